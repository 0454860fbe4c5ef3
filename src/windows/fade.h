// Fading a window's opacity in or out over time.
#pragma once

#include "velkor6/platform/clock.h"
#include "velkor6/platform/ui.h"
#include "velkor6/platform/window_manager.h"

#include <cstdint>
#include <vector>

namespace velkor6::windows {

// A fade takes one step per this many milliseconds (about 50 frames a second), and at most
// maxFadeSteps steps: longer fades take longer steps.
inline constexpr std::int32_t fadeStepMilliseconds = 20;
inline constexpr std::int32_t maxFadeSteps = 1000;

struct FadeStep {
    std::int32_t pauseMilliseconds = 0; // waited before the opacity is set
    double opacity = 0;
};

// The steps from one opacity to another over the duration: ceil(duration / 20) steps (at least
// one, at most 1000), the k-th reached at round(k * duration / n) ms, at from + (to - from) * k /
// n; the last step lands on `to` exactly. A duration of 0 or less is a single step without a pause.
std::vector<FadeStep> fadeSchedule(double from, double to, std::int32_t milliseconds);

// Fades the window from its present opacity to `to` (0 transparent ... 1 opaque), serving the
// user interface before every pause so that the program stays responsive. False when the handle
// is no window or the window system cannot change its opacity; then nothing waits.
bool fade(Clock& clock, UserInterface& ui, WindowManager& windows, WindowHandle window, double to,
          std::int32_t milliseconds);

} // namespace velkor6::windows
