// Long values as short text codes, and texts scrambled for a settings file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor6::values {

// Base 36 (digits 0-9, then A-Z), a "-" before negative values, no leading zeros.
std::u16string longToCode(std::int32_t value);
// The reverse; either letter case. Error 13 for a text that is no code, 6 for a code beyond
// the Long range.
std::int32_t codeToLong(std::u16string_view code);

// Scrambling, not encryption: the key is in the library. The result holds only A-Z, a-z, 0-9,
// "-" and "_"; "" stays "".
std::u16string scrambleText(std::u16string_view text);
// The reverse; the library's error for a text scrambleText cannot have written.
std::u16string unscrambleText(std::u16string_view code);

} // namespace velkor6::values
