// Small random texts over an alphabet rich in the characters the rules care about.
#pragma once

#include <random>
#include <string>

namespace velkor6::text::testing {

class RandomText {
public:
    explicit RandomText(unsigned seed) : rng_(seed) {}

    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng_); }
    bool chance(int percent) { return below(100) < percent; }

    std::u16string text(int maxLength) {
        static constexpr std::u16string_view alphabet = u"aAab  \"\"'()[]1.,#0x-";
        std::u16string s;
        for (int n = below(maxLength + 1); n > 0; --n)
            s += alphabet[static_cast<std::size_t>(below(static_cast<int>(alphabet.size())))];
        return s;
    }

    std::u16string pick(std::initializer_list<std::u16string_view> choices) {
        return std::u16string(choices.begin()[below(static_cast<int>(choices.size()))]);
    }

    // One to three alternatives, now and then an empty one.
    std::u16string alternatives() {
        std::u16string s = pick({u"a", u"A", u"ab", u"b", u"1", u"0", u"x", u"(", u"\"", u""});
        for (int n = below(3); n > 0; --n)
            s += u"|" + pick({u"a", u"ba", u"1", u".", u"#", u"0", u"'", u""});
        return s;
    }

    std::u16string signPairs() {
        std::u16string s;
        for (int n = below(4); n > 0; --n) {
            if (!s.empty())
                s += u"|";
            s += pick({u"\"\"", u"''", u"()", u"[]", u"(", u"a()"});
        }
        return s;
    }

private:
    std::mt19937 rng_;
};

} // namespace velkor6::text::testing
