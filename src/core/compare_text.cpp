// Equality and ordering of texts in binary and in text comparison.
#include "core/text.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace velkor6 {
namespace {

// The base letter of each small letter from U+00C0 to U+017F, "-" for a character that is no
// letter, "=" for a letter that sorts as itself. Capitals are folded before the lookup.
constexpr std::u16string_view latin1Bases = u"aaaaaaaceeeeiiiidnooooo-ouuuuy=s"  // C0-DF
                                            u"aaaaaaaceeeeiiiidnooooo-ouuuuy=y"; // E0-FF
constexpr std::u16string_view extendedABases =
    u"aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkkllllllllllnnnnnnnnnoooooooo"
    u"rrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
static_assert(latin1Bases.size() == 0x40 && extendedABases.size() == 0x80);

constexpr std::uint32_t digitWeight = 0x10000;
constexpr std::uint32_t letterWeight = 0x20000;

// One sorting element: the primary weight orders base letters (case and accents ignored), the
// secondary weight breaks ties between accented forms of one letter.
struct Weight {
    std::uint32_t primary = 0;
    char16_t secondary = 0;
};

// Letters that sort like two letters: ß as "ss", æ as "ae", œ as "oe", ĳ as "ij".
constexpr std::array<std::u16string_view, 4> expansions = {u"\u00DFss", u"\u00E6ae", u"\u0153oe",
                                                           u"\u0133ij"};

char16_t baseLetter(char16_t folded) {
    char16_t base = 0;
    if (folded >= 0xC0 && folded <= 0xFF)
        base = latin1Bases[folded - 0xC0];
    else if (folded >= 0x100 && folded <= 0x17F)
        base = extendedABases[folded - 0x100];
    if (base == u'-')
        return 0;
    return base == u'=' ? folded : base;
}

// Yields the sorting weights of a text one by one, expanding the double letters.
class WeightReader {
public:
    explicit WeightReader(std::u16string_view s) : s_(s) {}

    bool next(Weight& w) {
        if (pending_ != 0) {
            w = {letterWeight + pending_, pendingSecondary_};
            pending_ = 0;
            return true;
        }
        if (i_ == s_.size())
            return false;
        const char16_t folded = foldCase(s_[i_++]);
        for (std::u16string_view e : expansions) {
            if (e[0] == folded) {
                w = {letterWeight + e[1], folded};
                pending_ = e[2];
                pendingSecondary_ = folded;
                return true;
            }
        }
        w = weightOf(folded);
        return true;
    }

private:
    static Weight weightOf(char16_t folded) {
        if (folded >= u'0' && folded <= u'9')
            return {digitWeight + folded, 0};
        if (folded >= u'a' && folded <= u'z')
            return {letterWeight + folded, 0};
        if (const char16_t base = baseLetter(folded); base != 0)
            return {letterWeight + base, base == folded ? char16_t{0} : folded};
        // Cased letters, the other alphabets and the ideographs sort after the Latin letters;
        // punctuation and symbols sort before the digits.
        const bool isLetter = toUpper(folded) != folded || (folded >= 0x0180 && folded < 0x0300) ||
                              (folded >= 0x0370 && folded < 0x2000) || folded >= 0x3000;
        if (isLetter)
            return {letterWeight + folded, 0};
        return {folded, 0};
    }

    std::u16string_view s_;
    std::size_t i_ = 0;
    char16_t pending_ = 0;
    char16_t pendingSecondary_ = 0;
};

int sign(std::int64_t d) {
    return d < 0 ? -1 : (d > 0 ? 1 : 0);
}

int compareText(std::u16string_view a, std::u16string_view b) {
    int secondary = 0;
    WeightReader ra(a);
    WeightReader rb(b);
    Weight wa;
    Weight wb;
    for (;;) {
        const bool moreA = ra.next(wa);
        const bool moreB = rb.next(wb);
        if (!moreA || !moreB)
            return moreA ? 1 : (moreB ? -1 : secondary);
        if (wa.primary != wb.primary)
            return wa.primary < wb.primary ? -1 : 1;
        // The first accent difference decides only when the base letters are all equal.
        if (secondary == 0 && wa.secondary != wb.secondary)
            secondary = wa.secondary < wb.secondary ? -1 : 1;
    }
}

} // namespace

bool charsEqual(char16_t a, char16_t b, Compare mode) {
    return a == b || (mode == Compare::Text && foldCase(a) == foldCase(b));
}

bool textEqual(std::u16string_view a, std::u16string_view b, Compare mode) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (!charsEqual(a[i], b[i], mode))
            return false;
    }
    return true;
}

int compareStrings(std::u16string_view a, std::u16string_view b, Compare mode) {
    if (mode == Compare::Text)
        return compareText(a, b);
    return sign(a.compare(b));
}

} // namespace velkor6
