// The 9-bit code stream: codes least significant bit first, cut into bytes least significant bit
// first. The stream's first byte (the low eight bits of the leading clear code) is never stored.
#pragma once

#include "lzw/lzw.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velkor6::lzw {

// Writes codes after the leading clear code into a buffer sized for them beforehand.
class CodeWriter {
public:
    explicit CodeWriter(std::size_t maxCodes)
        : out_((maxCodes * codeBits) / 8 + 8, '\0'),
          bits_(clearCode >> 8) // bit 8 of the leading clear code opens the stored stream
          ,
          pending_(1) {}

    void put(std::uint32_t code) {
        bits_ |= std::uint64_t{code} << pending_;
        pending_ += codeBits;
        if (pending_ >= 32) {
            store4();
            bits_ >>= 32;
            pending_ -= 32;
        }
    }

    // The complete bytes; the bits of a last partial byte are dropped.
    std::string finish() {
        while (pending_ >= 8) {
            out_[size_++] = static_cast<char>(bits_ & 0xFF);
            bits_ >>= 8;
            pending_ -= 8;
        }
        out_.resize(size_);
        return std::move(out_);
    }

private:
    void store4() {
        char* p = out_.data() + size_;
        p[0] = static_cast<char>(bits_ & 0xFF);
        p[1] = static_cast<char>((bits_ >> 8) & 0xFF);
        p[2] = static_cast<char>((bits_ >> 16) & 0xFF);
        p[3] = static_cast<char>((bits_ >> 24) & 0xFF);
        size_ += 4;
    }

    std::string out_;
    std::size_t size_ = 0;
    std::uint64_t bits_;
    unsigned pending_;
};

// Reads the codes of a stored stream as if its dropped zero byte were still in front of it.
class CodeReader {
public:
    explicit CodeReader(std::string_view packed)
        : data_(reinterpret_cast<const unsigned char*>(packed.data())),
          count_((packed.size() + 1) * 8 / codeBits) {}

    // Only whole codes count; trailing bits that do not make one are ignored.
    std::size_t count() const { return count_; }

    std::uint32_t first() const { return (data_[0] & 1u) << 8; }

    // Code i, for 1 <= i < count(). It starts at bit 9i of the full stream, bit 9i - 8 of the
    // stored one, and ends inside the stored bytes because it is a whole code.
    std::uint32_t operator[](std::size_t i) const {
        const std::size_t bit = i * codeBits - 8;
        const std::size_t at = bit / 8;
        const std::uint32_t two = data_[at] | (std::uint32_t{data_[at + 1]} << 8);
        return (two >> (bit % 8)) & (tableSize - 1);
    }

private:
    const unsigned char* data_;
    std::size_t count_;
};

} // namespace velkor6::lzw
