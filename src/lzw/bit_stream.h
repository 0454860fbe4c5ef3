// The 9-bit code stream: codes least significant bit first, cut into bytes least significant bit
// first. The stream's first byte (the low eight bits of the leading clear code) is never stored.
#pragma once

#include "lzw/lzw.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace velkor6::lzw {

// Writes codes after the leading clear code into a buffer sized for them beforehand.
class CodeWriter {
public:
    explicit CodeWriter(std::size_t maxCodes) : out_(maxCodes * codeBits / 8 + 8, '\0') {}

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
    // The stored stream starts with the high bit of the leading clear code.
    std::uint64_t bits_ = clearCode >> 8;
    unsigned pending_ = 1;
};

// Reads 9-bit codes from bytes of the full stream (the one that still has its leading zero
// byte). A segment of it must start at a code that is a multiple of 8, that is at a byte that is
// a multiple of 9.
class CodeReader {
public:
    // A whole stored stream: its dropped zero byte is taken to stand in front of it.
    static CodeReader stored(std::string_view packed) { return CodeReader(packed, 1); }
    // A segment of the full stream.
    static CodeReader segment(std::string_view bytes) { return CodeReader(bytes, 0); }

    // Only whole codes count; trailing bits that do not make one are ignored.
    std::size_t count() const { return count_; }

    // Code i, for i < count() (and i >= 1 in a stored stream: code 0 has no stored byte of its
    // own). A whole code ends inside the bytes.
    std::uint32_t operator[](std::size_t i) const {
        const std::size_t bit = i * codeBits;
        const std::size_t at = bit / 8 - dropped_;
        const std::uint32_t two = data_[at] | (std::uint32_t{data_[at + 1]} << 8);
        return (two >> (bit % 8)) & (tableSize - 1);
    }

    // Code 0, which the whole stored stream holds only its high bit of.
    std::uint32_t first() const { return dropped_ ? (data_[0] & 1u) << 8 : (*this)[0]; }

    // Codes 8g to 8g + 7, for 8g + 8 <= count() (and g >= 1 in a stored stream): the 72 bits of
    // bytes 9g to 9g + 8, as the low 64 bits and the last byte.
    std::uint64_t groupLow(std::size_t g) const {
        return loadLittleEndian64(data_ + 9 * g - dropped_);
    }
    std::uint32_t groupHigh(std::size_t g) const { return data_[9 * g + 8 - dropped_]; }

private:
    CodeReader(std::string_view bytes, std::size_t dropped)
        : data_(reinterpret_cast<const unsigned char*>(bytes.data())), dropped_(dropped),
          count_((bytes.size() + dropped) * 8 / codeBits) {}

    static std::uint64_t loadLittleEndian64(const unsigned char* p) {
        std::uint64_t v;
        std::memcpy(&v, p, sizeof v);
        if constexpr (std::endian::native == std::endian::big) {
            std::uint64_t r = 0;
            for (int k = 0; k < 8; ++k)
                r |= std::uint64_t{p[k]} << (8 * k);
            v = r;
        }
        return v;
    }

    const unsigned char* data_;
    std::size_t dropped_; // bytes of the full stream in front of data_: 1 or 0
    std::size_t count_;
};

} // namespace velkor6::lzw
