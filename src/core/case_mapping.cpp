// Upper and lower case of single characters. Every mapped letter has exactly one partner, so
// that a search can look for a folded character by testing two code units.
#include "core/text.h"

#include <array>

namespace velkor6 {
namespace {

constexpr char16_t tableSize = 0x0530; // Basic Latin up to the end of Cyrillic

struct CaseTables {
    std::array<char16_t, tableSize> upper{};
    std::array<char16_t, tableSize> lower{};
};

constexpr CaseTables makeCaseTables() {
    CaseTables t;
    for (char16_t c = 0; c < tableSize; ++c) {
        t.upper[c] = c;
        t.lower[c] = c;
    }
    auto pair = [&t](char16_t upper, char16_t lower) {
        t.lower[upper] = lower;
        t.upper[lower] = upper;
    };
    // Runs where the capital comes first and the small letter right after it.
    auto alternating = [&pair](char16_t first, char16_t last) {
        for (char16_t c = first; c < last; c += 2)
            pair(c, static_cast<char16_t>(c + 1));
    };
    // Runs where small letters are a fixed distance above their capitals.
    auto shifted = [&pair](char16_t first, char16_t last, char16_t distance) {
        for (char16_t c = first; c <= last; ++c)
            pair(c, static_cast<char16_t>(c + distance));
    };

    shifted(u'A', u'Z', 0x20);
    shifted(0x00C0, 0x00D6, 0x20);
    shifted(0x00D8, 0x00DE, 0x20);
    pair(0x0178, 0x00FF); // Ÿ ÿ
    // Latin Extended-A. Dotted and dotless i (0130, 0131), kra (0138), n preceded by
    // apostrophe (0149) and long s (017F) have no partner of their own.
    alternating(0x0100, 0x012F);
    alternating(0x0132, 0x0137);
    alternating(0x0139, 0x0148);
    alternating(0x014A, 0x0177);
    alternating(0x0179, 0x017E);
    // Greek; final sigma stays apart so that sigma keeps a single partner.
    pair(0x0386, 0x03AC);
    shifted(0x0388, 0x038A, 0x25);
    pair(0x038C, 0x03CC);
    shifted(0x038E, 0x038F, 0x3F);
    shifted(0x0391, 0x03A1, 0x20);
    shifted(0x03A3, 0x03AB, 0x20);
    // Cyrillic.
    shifted(0x0400, 0x040F, 0x50);
    shifted(0x0410, 0x042F, 0x20);
    alternating(0x0460, 0x0481);
    alternating(0x048A, 0x04BF);
    pair(0x04C0, 0x04CF);
    alternating(0x04C1, 0x04CE);
    alternating(0x04D0, 0x052F);
    return t;
}

constexpr CaseTables caseTables = makeCaseTables();

} // namespace

char16_t toUpper(char16_t c) {
    return c < tableSize ? caseTables.upper[c] : c;
}

char16_t toLower(char16_t c) {
    return c < tableSize ? caseTables.lower[c] : c;
}

char16_t foldCase(char16_t c) {
    return toLower(c);
}

std::u16string upperCase(std::u16string_view s) {
    std::u16string out(s);
    for (char16_t& c : out)
        c = toUpper(c);
    return out;
}

std::u16string lowerCase(std::u16string_view s) {
    std::u16string out(s);
    for (char16_t& c : out)
        c = toLower(c);
    return out;
}

} // namespace velkor6
