// Single bytes as runs: byte k is at position k, followed by enough bytes for a block copy.
#pragma once

#include "lzw/output_buffer.h"

#include <array>

namespace velkor6::lzw {

inline constexpr std::array<char, 256 + OutputBuffer::block> alphabet = [] {
    std::array<char, 256 + OutputBuffer::block> a{};
    for (std::size_t k = 0; k < a.size(); ++k)
        a[k] = static_cast<char>(k % 256);
    return a;
}();

// In a group of eight codes, the bit 8 of each of the seven codes in the low 64 bits.
inline constexpr std::uint64_t groupHighBits = 0x4020100804020100ull;

} // namespace velkor6::lzw
