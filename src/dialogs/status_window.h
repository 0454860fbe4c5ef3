// The status window (frmMessage): one non-modal window with a centred rich-text message and a
// progress bar, opened, changed part by part, hidden and closed by the caller.
#pragma once

#include "velkor6/module.h"
#include "velkor6/variant.h"

#include <cstdint>

namespace velkor6::dialogs {

// The window's parts as a call gives them; a missing argument leaves its part as it stands.
struct StatusUpdate {
    Variant prompt = Variant::missing();
    Variant title = Variant::missing();
    Variant showCounter = Variant::missing();
    Variant curCount = Variant::missing();
    Variant maxCount = Variant::missing();
    std::int32_t parentHwnd = 0;
    Variant widthTwips = Variant::missing();
    Variant heightTwips = Variant::missing();
    Variant msgTopTwips = Variant::missing();
    bool noEvents = false;
    bool openAsTopMost = true;
};

inline constexpr std::u16string_view statusDefaultTitle = u"velkor6";

// Opens the window when none is open, applies the parts given, shows it without blocking and,
// unless noEvents, lets pending events run. A part whose value cannot be converted stays as it
// was; the rest of the call goes on.
void sendMessage(Module& module, const StatusUpdate& update);
// Hides the window, keeping it and its contents.
void hideMessage(Module& module);
// Closes the window; the next sendMessage starts afresh.
void clearMessage(Module& module);

} // namespace velkor6::dialogs
