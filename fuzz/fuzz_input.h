// The pieces a harness takes from the fuzzer's bytes: numbers and flags from the front, texts
// that end at a zero byte, and whatever is left.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace velkor6::fuzz {

class Input {
public:
    Input(const std::uint8_t* data, std::size_t size)
        : bytes_(reinterpret_cast<const char*>(data), size) {}

    template <class T>
    T number() {
        T value{};
        const std::size_t n = std::min(sizeof value, bytes_.size());
        std::memcpy(&value, bytes_.data(), n);
        bytes_.remove_prefix(n);
        return value;
    }
    bool flag() { return (number<std::uint8_t>() & 1) != 0; }

    std::string_view bytes() {
        const std::size_t end = std::min(bytes_.find('\0'), bytes_.size());
        const std::string_view piece = bytes_.substr(0, end);
        bytes_.remove_prefix(std::min(end + 1, bytes_.size()));
        return piece;
    }

    // Each byte is a character, except that a byte from F0 on takes the two bytes after it as
    // one UTF-16 unit, so that any unit (a lone surrogate too) can occur.
    std::u16string text() {
        const std::string_view piece = bytes();
        std::u16string out;
        for (std::size_t i = 0; i < piece.size(); ++i) {
            const auto b = static_cast<unsigned char>(piece[i]);
            if (b >= 0xF0 && i + 2 < piece.size()) {
                out += static_cast<char16_t>(static_cast<unsigned char>(piece[i + 1]) |
                                             static_cast<unsigned char>(piece[i + 2]) << 8);
                i += 2;
            } else {
                out += static_cast<char16_t>(b);
            }
        }
        return out;
    }

    std::string_view rest() const { return bytes_; }

private:
    std::string_view bytes_;
};

} // namespace velkor6::fuzz
