// A deliberately plain model of the compressor and the established decoder: texts in a 512-entry
// table searched from 258 upwards, and the bit stream as a string of '0' and '1'. Slow, but close
// enough to the prose of the algorithm to check the fast code against it byte for byte.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6::lzw::reference {

std::string deflate(std::string_view bytes);
std::string inflate(std::string_view packed); // raises VbError 9 for a missing code

// The codes of a stored stream, the dropped zero byte put back; whole codes only.
std::vector<std::uint32_t> unpack(std::string_view packed);
// The stored stream of codes 0.. (code 0 must be the clear code, whose low byte is dropped).
std::string pack(const std::vector<std::uint32_t>& codes);

} // namespace velkor6::lzw::reference
