// Pausing and waiting for another program's window to appear or vanish.
#pragma once

#include "velkor6/platform/clock.h"
#include "velkor6/platform/ui.h"
#include "velkor6/platform/window_manager.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <string_view>

namespace velkor6::windows {

struct WaitServices {
    Clock& clock;
    UserInterface& ui;
    WindowManager& windows;
};

// Active: serves the user interface until the clock (compared in single precision) has moved
// past start + milliseconds; passive: sleeps, and the user interface stands still.
void pause(Clock& clock, UserInterface& ui, std::int32_t milliseconds, bool active);

// Polls every 500 ms (serving the user interface meanwhile) until a window matching the
// patterns exists; false when the deadline (now + maxSeconds, rounded to a whole second) came
// first. parentForm, when not Nothing, is disabled meanwhile and always enabled afterwards.
bool waitForClassStarted(WaitServices s, std::u16string_view classPattern,
                         std::u16string_view captionPattern, std::int32_t maxSeconds,
                         const ObjectRef& parentForm);
// Until no window matches on two looks in a row; the same deadline and parentForm rules.
bool waitForClassFinished(WaitServices s, std::u16string_view classPattern,
                          std::u16string_view captionPattern, std::int32_t maxSeconds,
                          const ObjectRef& parentForm);

} // namespace velkor6::windows
