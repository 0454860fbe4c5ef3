// What a rich-text fragment reads as without its markup, for hosts that show plain text.
#pragma once

#include <string>
#include <string_view>

namespace velkor6::dialogs {

// Groups and control words go; \par and \line become line breaks, \tab a tab, \'hh the
// Windows-1252 character, and \\ \{ \} their characters. Destination groups ({\* ...}, font and
// colour tables) are dropped whole.
std::u16string rtfPlainText(std::u16string_view rtf);

} // namespace velkor6::dialogs
