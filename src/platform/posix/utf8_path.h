// POSIX file names: UTF-8 bytes, with "\" read as "/" so that paths written on Windows work.
#pragma once

#include <string>
#include <string_view>

namespace velkor6::posix {

std::string nativePath(std::u16string_view path);
// Appends the UTF-8 name to out; bytes that are not UTF-8 become U+FFFD. Reuses out's storage,
// which keeps folder walks free of allocations.
void appendUtf8(std::u16string& out, std::string_view utf8);
std::u16string fromNative(std::string_view utf8);

} // namespace velkor6::posix
