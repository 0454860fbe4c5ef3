#include "values/value_codes.h"

#include "velkor6/vb_error.h"

#include <algorithm>
#include <vector>

namespace velkor6::values {
namespace {

constexpr std::u16string_view digits36 = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::u16string_view alphabet64 =
    u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

int digit36(char16_t c) {
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'A' && c <= u'Z')
        return c - u'A' + 10;
    if (c >= u'a' && c <= u'z')
        return c - u'a' + 10;
    return -1;
}

int digit64(char16_t c) {
    const std::size_t at = alphabet64.find(c);
    return at == std::u16string_view::npos ? -1 : static_cast<int>(at);
}

// The key stream: xorshift32, started from a fixed key mixed with the length, so that texts
// that share a beginning do not share the beginning of their codes.
class KeyStream {
public:
    explicit KeyStream(std::size_t length)
        : state_(0x6A09E667u ^ (static_cast<std::uint32_t>(length) * 0x9E3779B9u)) {
        if (state_ == 0)
            state_ = 0x6A09E667u;
    }
    std::uint8_t next() {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 17;
        state_ ^= state_ << 5;
        return static_cast<std::uint8_t>(state_ >> 24);
    }

private:
    std::uint32_t state_;
};

std::uint32_t fnv1a(const std::vector<std::uint8_t>& bytes) {
    std::uint32_t h = 2166136261u;
    for (const std::uint8_t b : bytes)
        h = (h ^ b) * 16777619u;
    return h;
}

[[noreturn]] void notScrambled() {
    throw VbError(vberr::library, u"The text is not a value written by vkrEncryptedValue.",
                  u"velkor6.vkrDecryptedValue");
}

} // namespace

std::u16string longToCode(std::int32_t value) {
    // The magnitude as unsigned: -2147483648 has none as a Long.
    std::uint32_t rest =
        value < 0 ? 0u - static_cast<std::uint32_t>(value) : static_cast<std::uint32_t>(value);
    std::u16string code;
    do {
        code.insert(code.begin(), digits36[rest % 36]);
        rest /= 36;
    } while (rest != 0);
    if (value < 0)
        code.insert(code.begin(), u'-');
    return code;
}

std::int32_t codeToLong(std::u16string_view code) {
    const bool negative = code.starts_with(u'-');
    if (negative)
        code.remove_prefix(1);
    if (code.empty())
        throw VbError(vberr::typeMismatch);
    // Held below 2^32 while every character is still checked: a bad one is error 13 even after
    // the value has overflowed.
    std::uint64_t magnitude = 0;
    for (const char16_t c : code) {
        const int d = digit36(c);
        if (d < 0)
            throw VbError(vberr::typeMismatch);
        magnitude = std::min<std::uint64_t>(magnitude * 36 + static_cast<std::uint64_t>(d),
                                            std::uint64_t{1} << 32);
    }
    if (magnitude > (negative ? 2147483648u : 2147483647u))
        throw VbError(vberr::overflow);
    return negative ? static_cast<std::int32_t>(0 - magnitude)
                    : static_cast<std::int32_t>(magnitude);
}

std::u16string scrambleText(std::u16string_view text) {
    if (text.empty())
        return {};
    std::vector<std::uint8_t> plain;
    for (const char16_t c : text) {
        plain.push_back(static_cast<std::uint8_t>(c & 0xFF));
        plain.push_back(static_cast<std::uint8_t>(c >> 8));
    }
    const std::uint32_t hash = fnv1a(plain);
    KeyStream keys(plain.size());
    // A salt from the text itself leads, and every byte is chained to the one before it: a
    // change anywhere changes the code from there on, and repeated characters do not show.
    std::vector<std::uint8_t> bytes;
    std::uint8_t previous = static_cast<std::uint8_t>(hash) ^ keys.next();
    bytes.push_back(previous);
    for (const std::uint8_t b : plain) {
        previous = b ^ keys.next() ^ previous;
        bytes.push_back(previous);
    }
    bytes.push_back(static_cast<std::uint8_t>(hash >> 8) ^ keys.next());

    std::u16string code;
    std::uint32_t bits = 0;
    int count = 0;
    for (const std::uint8_t b : bytes) {
        bits = (bits << 8) | b;
        count += 8;
        while (count >= 6) {
            count -= 6;
            code += alphabet64[(bits >> count) & 63];
        }
    }
    if (count > 0)
        code += alphabet64[(bits << (6 - count)) & 63];
    return code;
}

std::u16string unscrambleText(std::u16string_view code) {
    if (code.empty())
        return {};
    if (code.size() % 4 == 1)
        notScrambled();
    std::vector<std::uint8_t> bytes;
    std::uint32_t bits = 0;
    int count = 0;
    for (const char16_t c : code) {
        const int d = digit64(c);
        if (d < 0)
            notScrambled();
        bits = (bits << 6) | static_cast<std::uint32_t>(d);
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes.push_back(static_cast<std::uint8_t>(bits >> count));
        }
    }
    // The unused low bits of the last character are zero in every code written.
    if ((bits & ((1u << count) - 1)) != 0)
        notScrambled();
    // The salt, two bytes per character and the check.
    if (bytes.size() < 4 || bytes.size() % 2 != 0)
        notScrambled();
    const std::size_t length = bytes.size() - 2;
    KeyStream keys(length);
    const std::uint8_t salt = bytes[0] ^ keys.next();
    std::vector<std::uint8_t> plain;
    for (std::size_t i = 1; i <= length; ++i)
        plain.push_back(bytes[i] ^ keys.next() ^ bytes[i - 1]);
    const std::uint8_t check = bytes.back() ^ keys.next();
    const std::uint32_t hash = fnv1a(plain);
    if (salt != static_cast<std::uint8_t>(hash) || check != static_cast<std::uint8_t>(hash >> 8))
        notScrambled();
    std::u16string text;
    for (std::size_t i = 0; i < plain.size(); i += 2)
        text += static_cast<char16_t>(plain[i] | (plain[i + 1] << 8));
    return text;
}

} // namespace velkor6::values
