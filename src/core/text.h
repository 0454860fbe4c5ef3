// Text helpers over UTF-16 code units with VB's semantics (1-based positions).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor6 {

enum class Compare { Binary = 0, Text = 1 };

// Encodings at the edges: UTF-8 for the CLI and POSIX file names (the ANSI code page is the
// platform's: platform/ansi.h).
std::string toUtf8(std::u16string_view s);
std::u16string fromUtf8(std::string_view s);
bool isValidUtf8(std::string_view s); // no ill-formed, overlong or surrogate sequence
// UTF-16 code units from bytes (a mark, if any, is the caller's to skip); an odd last byte is
// dropped.
std::u16string fromUtf16(std::string_view bytes, bool bigEndian = false);

// Case folding for text comparison: what a user expects for Latin text, including accented
// letters (ä/Ä, é/É); ß stays ß, since it has no single-character capital in VB's world.
char16_t foldCase(char16_t c);
char16_t toUpper(char16_t c);
char16_t toLower(char16_t c);
std::u16string upperCase(std::u16string_view s);
std::u16string lowerCase(std::u16string_view s);

bool charsEqual(char16_t a, char16_t b, Compare mode);
bool textEqual(std::u16string_view a, std::u16string_view b, Compare mode);
// StrComp: -1, 0 or 1. Text mode orders letters alphabetically with accents after the base letter.
int compareStrings(std::u16string_view a, std::u16string_view b, Compare mode);

// InStr(start, source, find, mode): 1-based position or 0. An empty find is found at start
// when start is within source; start beyond the text gives 0. start < 1 raises error 5.
std::size_t inStr(std::size_t start, std::u16string_view source, std::u16string_view find,
                  Compare mode);

std::u16string_view trimSpaces(std::u16string_view s); // spaces only, like VB's Trim
std::u16string_view ltrimSpaces(std::u16string_view s);
std::u16string_view rtrimSpaces(std::u16string_view s);
// Mid(s, start[, length]) with VB's clamping; start < 1 raises error 5.
std::u16string_view mid(std::u16string_view s, std::int64_t start, std::int64_t length = -1);
std::u16string_view left(std::u16string_view s, std::int64_t length);
std::u16string_view right(std::u16string_view s, std::int64_t length);

} // namespace velkor6
