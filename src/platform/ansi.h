// The ANSI code page, where bytes become characters one by one: the process's code page on
// Windows, converted by the system as the "A" functions do; Windows-1252 elsewhere.
#pragma once

#include <string>
#include <string_view>

namespace velkor6 {

std::string toAnsi(std::u16string_view s);   // characters the code page lacks become '?'
std::u16string fromAnsi(std::string_view s); // in a single-byte code page, one byte a character
char16_t ansiToChar(unsigned char b);
// The code page's byte for a character, or -1 when it has none.
int charToAnsi(char16_t c);

} // namespace velkor6
