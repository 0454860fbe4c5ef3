#include "core/like.h"

#include "velkor6/vb_error.h"

#include <vector>

namespace velkor6 {

namespace {

struct Element {
    enum class Kind { Char, AnyChar, Digit, List, Star } kind;
    char16_t c = 0;           // Char
    std::u16string_view list; // List: the text between "[" (and "!") and "]"
    bool negated = false;     // List
};

// Ordering of single characters for list ranges: code units in binary mode, the text
// collation (case ignored, accented letters after their base letter) in text mode.
int compareChars(char16_t a, char16_t b, Compare mode) {
    if (mode == Compare::Binary) {
        return a < b ? -1 : a > b ? 1 : 0;
    }
    return compareStrings(std::u16string_view(&a, 1), std::u16string_view(&b, 1), mode);
}

// Walks a list's text, calling f(lo, hi) for each character (lo == hi) and each range. A "-"
// first or last is a literal; elsewhere it joins the characters either side into a range.
template <class F>
void forEachListEntry(std::u16string_view list, F f) {
    std::size_t i = 0;
    if (!list.empty() && list[0] == u'-') {
        f(u'-', u'-');
        i = 1;
    }
    while (i < list.size()) {
        const char16_t c = list[i];
        if (i + 2 < list.size() && list[i + 1] == u'-') {
            f(c, list[i + 2]);
            i += 3;
        } else {
            f(c, c);
            ++i;
        }
    }
}

bool listMatches(const Element& e, char16_t c, Compare mode) {
    bool found = false;
    forEachListEntry(e.list, [&](char16_t lo, char16_t hi) {
        if (found) {
            return;
        }
        if (lo == hi) {
            found = mode == Compare::Binary ? c == lo : foldCase(c) == foldCase(lo);
        } else {
            found = compareChars(lo, c, mode) <= 0 && compareChars(c, hi, mode) <= 0;
        }
    });
    return found != e.negated;
}

std::vector<Element> compile(std::u16string_view pattern, Compare mode) {
    std::vector<Element> elements;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char16_t c = pattern[i];
        switch (c) {
        case u'?':
            elements.push_back({Element::Kind::AnyChar, 0, {}, false});
            break;
        case u'#':
            elements.push_back({Element::Kind::Digit, 0, {}, false});
            break;
        case u'*':
            // Runs of stars match what one star matches.
            if (elements.empty() || elements.back().kind != Element::Kind::Star) {
                elements.push_back({Element::Kind::Star, 0, {}, false});
            }
            break;
        case u'[': {
            const std::size_t close = pattern.find(u']', i + 1);
            if (close == std::u16string_view::npos) {
                throw VbError(vberr::invalidPattern);
            }
            std::u16string_view list = pattern.substr(i + 1, close - i - 1);
            i = close;
            if (list.empty()) {
                break; // "[]" is the empty string: it consumes nothing
            }
            const bool negated = list[0] == u'!';
            if (negated) {
                list.remove_prefix(1);
            }
            forEachListEntry(list, [mode](char16_t lo, char16_t hi) {
                if (lo != hi && compareChars(lo, hi, mode) > 0) {
                    throw VbError(vberr::invalidPattern);
                }
            });
            // A list after "*" is read like any other. VB itself misreads "*[[-{]" as "*["
            // (so "aa" fails to match); that is a defect we do not reproduce.
            elements.push_back({Element::Kind::List, 0, list, negated});
            break;
        }
        default:
            elements.push_back({Element::Kind::Char, c, {}, false});
            break;
        }
    }
    return elements;
}

bool matchesOne(const Element& e, char16_t c, Compare mode) {
    switch (e.kind) {
    case Element::Kind::Char:
        return mode == Compare::Binary ? c == e.c : foldCase(c) == foldCase(e.c);
    case Element::Kind::AnyChar:
        return true;
    case Element::Kind::Digit:
        return c >= u'0' && c <= u'9';
    case Element::Kind::List:
        return listMatches(e, c, mode);
    case Element::Kind::Star:
        break;
    }
    return false;
}

} // namespace

bool like(std::u16string_view s, std::u16string_view pattern, Compare mode) {
    const std::vector<Element> p = compile(pattern, mode);
    // Every element but "*" consumes exactly one character, so on a mismatch it is enough to
    // let the most recent star swallow one more character and retry from there: O(n * m).
    std::size_t si = 0, pi = 0;
    std::size_t starPi = p.size(), starSi = 0;
    while (si < s.size()) {
        if (pi < p.size() && p[pi].kind == Element::Kind::Star) {
            starPi = pi++;
            starSi = si;
        } else if (pi < p.size() && matchesOne(p[pi], s[si], mode)) {
            ++pi;
            ++si;
        } else if (starPi != p.size()) {
            pi = starPi + 1;
            si = ++starSi;
        } else {
            return false;
        }
    }
    while (pi < p.size() && p[pi].kind == Element::Kind::Star) {
        ++pi;
    }
    return pi == p.size();
}

} // namespace velkor6
