// The numeric-word test on a word that has already been cut out of its text.
#pragma once

#include "velkor6/locale.h"

#include <string_view>

namespace velkor6::text {

// A number by the locale's rules that begins and ends with a digit, or a format mask made of
// "#", "0", "," and "." that is more than separators.
bool isNumericWordText(std::u16string_view word, const Locale& locale);

} // namespace velkor6::text
