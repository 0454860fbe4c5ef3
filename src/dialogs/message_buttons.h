// The buttons of the library's message boxes: which set a style shows, their captions in the
// current language, their results, the default button, hot keys, and what a click or a key
// means.
#pragma once

#include "velkor6/module.h"
#include "velkor6/platform/dialog_host.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace velkor6::dialogs {

// The title of a box whose caller gave none: the library's file description.
inline constexpr std::u16string_view libraryTitle = u"velkor6";
// The forms are laid out at this fixed scale, whatever the screen's.
inline constexpr std::int32_t twipsPerPixel = 15;

struct ButtonSet {
    std::vector<std::u16string_view> tags; // left to right
    std::size_t cancel = 0;                // the button Esc presses
};

// The set of style AND 7, tested in a fixed order: 5 before 4, 3 before 2 and 1.
ButtonSet buttonSet(std::int32_t style);
// 1 "ok"/"cmdOK", 2 "cancel"/"cmdCancel", 3 "abort", 4 "retry", 5 "ignore", 6 "yes", 7 "no";
// any other tag 2.
std::int32_t tagResult(std::u16string_view tag);
// The symbol of the style bits 16 to 64; 48 is tested first, as it holds both 16 and 32.
DialogIcon styleIcon(std::int32_t style);
// For i = 0 to 3 every i whose bits (i * 256) are all set in the style makes button i the
// default, the last match winning; an i past the shown buttons leaves the default as it was.
std::int32_t defaultButtonIndex(std::int32_t style, std::size_t count);
// The upper-case character after the first "&" that is not part of a "&&"; 0 when none.
char16_t hotKey(std::u16string_view caption);

// The buttons of a message box's style, captioned in the module's current language.
std::vector<DialogButton> messageButtons(Module& module, std::int32_t style);
// A button with its hot key worked out from the caption.
DialogButton captionedButton(std::u16string caption, std::int32_t result);

// The result an event gives on a form whose buttons carry their results; nothing when the event
// does not close the form (a letter that is no button's hot key, Space off the buttons).
// Esc presses the cancel button (none: result 0), Enter the default button, and the close box
// hides the form without a result: 0.
std::optional<std::int32_t> buttonDecision(const DialogForm& form, const DialogEvent& event);

// Shows a form whose buttons carry their results and returns the result buttonDecision gives.
std::int32_t runButtonForm(DialogHost& host, const DialogForm& form);

} // namespace velkor6::dialogs
