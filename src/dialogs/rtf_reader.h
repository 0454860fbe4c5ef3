// The rich text that callers put into the library's boxes, read into the HTML subset that a
// toolkit's text widget shows.
#pragma once

#include <string>
#include <string_view>

namespace velkor6::dialogs {

// Reads an RTF fragment: groups, \b \i \ul (and their 0 forms, \ulnone, \plain), \par \line,
// \qc \ql \qr \qj (\pard), \fs in half points, \cf with the fragment's \colortbl, \'hh in
// Windows-1252, \uN with its \ucN skip, \tab and the typographic symbols, and the escaped
// braces and backslash. Other control words are ignored and other destinations ({\* ...},
// \fonttbl, \stylesheet, \info, \pict, ...) skipped with their contents. Characters beyond
// ASCII in the input stand for themselves. Each paragraph becomes a <p> without margins and each
// run of equal formatting a <span> carrying only what differs from the widget's own font, so
// that plain text keeps the widget's look; every text character is escaped.
std::u16string rtfToHtml(std::u16string_view rtf);

} // namespace velkor6::dialogs
