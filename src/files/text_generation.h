// Texts for generated files: placeholder expansion, reading text files whole, indenting XML.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/platform/clock.h"
#include "velkor6/variant.h"

#include <optional>
#include <string>
#include <string_view>

namespace velkor6::files {

// Replaces every occurrence of find, compared without regard to case, scanning the text once
// (an inserted text is not searched again).
std::u16string replaceAllText(std::u16string_view text, std::u16string_view find,
                              std::u16string_view replacement);

// Expands the caller's pairs (key, value, key, value ... from index 0), then %CRLF% %TAB% %DATE%
// %DATE!% %DATE!!% %TIME% %TIME!% %DATETIME% %LASTDAY% in that order, each over the whole text.
// An odd pair list raises error 9 after the complete pairs; text holds what was done by then.
void replacePredefinedExpressions(std::u16string& text, const Variant* pairs, Clock& clock,
                                  const Locale& loc);

// The last day of the previous month, or of the current one after the 20th.
Date lastDayFor(Date now);

// A file's bytes as text: UTF-16 LE when they start with FF FE (the mark dropped), else plain text
// as core/text_file.h reads it. nullopt (no file, no access, empty) gives "".
std::u16string textFromFileBytes(const std::optional<std::string>& bytes);

// One element per line, each nested level one tab deeper.
std::u16string preFormatXml(std::u16string_view xml);

} // namespace velkor6::files
