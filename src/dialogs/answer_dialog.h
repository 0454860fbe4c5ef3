// The answer dialog (frmAnswer): a headline and detail like the plain message box, with one
// button per caption the caller gives.
#pragma once

#include "velkor6/module.h"
#include "velkor6/platform/dialog_host.h"

#include <cstdint>
#include <string>
#include <vector>

namespace velkor6::dialogs {

DialogForm answerForm(DialogHost& host, std::u16string_view prompt, std::u16string_view detail,
                      std::u16string_view title, const std::vector<std::u16string>& captions);
// The 1-based number of the pressed button; 0 for Esc and the close box.
std::int16_t showAnswer(DialogHost& host, std::u16string_view prompt, std::u16string_view detail,
                        std::u16string_view title, const std::vector<std::u16string>& captions);

} // namespace velkor6::dialogs
