// The input dialog (frmInput): a description over a one-line text box, OK and Cancel.
#pragma once

#include "velkor6/module.h"
#include "velkor6/platform/dialog_host.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor6::dialogs {

struct InputPrompt {
    std::u16string text;
    std::int32_t maxLength = 0; // 0: no limit
};

// "##|text": two digits and "|" in front limit the input to that many characters.
InputPrompt splitInputPrompt(std::u16string_view prompt);

DialogForm inputForm(Module& module, std::u16string_view prompt, std::u16string_view title,
                     std::u16string_view initial, bool hidden);
// 1 when confirmed with OK (value receives the text), else 2 with value unchanged.
std::int32_t showInput(Module& module, std::u16string_view prompt, std::u16string_view title,
                       std::u16string& value, std::u16string_view initial, bool hidden);

} // namespace velkor6::dialogs
