// What separates words, how search terms list alternatives, and the whole-word test.
#pragma once

#include <string_view>
#include <vector>

namespace velkor6::text {

// Tab, "-", "_", "#", "|" and "@" belong to words on purpose: they occur inside field and
// variable names.
constexpr bool isWordDelimiter(char16_t c) {
    switch (c) {
    case u' ':
    case u'!':
    case u'{':
    case u'}':
    case u'[':
    case u']':
    case u'(':
    case u')':
    case u'?':
    case u'.':
    case u';':
    case u',':
    case u':':
    case u'+':
    case u'=':
    case u'<':
    case u'>':
    case u'\'':
    case u'*':
    case u'/':
    case u'&':
    case u'%':
    case u'$':
    case u'\u00A7':
    case u'\\':
    case u'\u00B4':
    case u'`':
    case u'"':
    case u'\r':
    case u'\n':
        return true;
    default:
        return false;
    }
}

// The narrower set that ends a numeric word: a number may hold signs, separators and "#".
constexpr bool isNumericWordDelimiter(char16_t c) {
    switch (c) {
    case u'"':
    case u'{':
    case u'}':
    case u'[':
    case u']':
    case u'(':
    case u')':
    case u';':
    case u' ':
    case u'\\':
    case u'/':
    case u'\'':
    case u'~':
        return true;
    default:
        return false;
    }
}

// The end of a whole word: the character at index `end` of s (just after the term) is a
// delimiter, or the term reaches the end of s. When that character is the last one of s it is
// not looked at, so a term that stops one short of the end always passes.
constexpr bool wordEndsAt(std::u16string_view s, std::size_t end) {
    return end + 1 >= s.size() || isWordDelimiter(s[end]);
}

// The term of length m at index i of s stands as a whole word.
constexpr bool isWholeWordAt(std::u16string_view s, std::size_t i, std::size_t m) {
    return (i == 0 || isWordDelimiter(s[i - 1])) && wordEndsAt(s, i + m);
}

// The alternatives of a search term ("a|b|"), or the pairs of a sign-pair list, in written
// order. Empty parts are kept; an empty text has no parts at all.
inline std::vector<std::u16string_view> splitAlternatives(std::u16string_view s) {
    std::vector<std::u16string_view> parts;
    if (s.empty())
        return parts;
    for (;;) {
        const std::size_t bar = s.find(u'|');
        parts.push_back(s.substr(0, bar));
        if (bar == std::u16string_view::npos)
            return parts;
        s.remove_prefix(bar + 1);
    }
}

} // namespace velkor6::text
