#include "text/brackets.h"

#include "text/word_rules.h"
#include "velkor6/vb_error.h"

#include <cstdint>

namespace velkor6::text {
namespace {

// Walks a text left to right and tells which characters stand outside quoted literals. A quote
// itself never counts as outside; "" inside a literal closes and reopens it, to the same effect.
class QuoteTracker {
public:
    bool outside(char16_t c) {
        if (open_ != 0) {
            if (c == open_)
                open_ = 0;
            return false;
        }
        if (c == u'"' || c == u'\'') {
            open_ = c;
            return false;
        }
        return true;
    }

private:
    char16_t open_ = 0;
};

// +1 for an opening sign of a listed pair, -1 for a closing one, 0 otherwise.
int bracketWeight(const std::vector<std::u16string_view>& pairs, char16_t c) {
    for (const auto p : pairs) {
        if (c == p[0])
            return 1;
        if (c == p[1])
            return -1;
    }
    return 0;
}

bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

// Letters, digits and "_" make names; a number glued to one is part of that name.
bool isNameChar(char16_t c) {
    return isDigit(c) || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_' ||
           c >= 0x00C0;
}

std::u16string trimmed(std::u16string_view s) {
    return std::u16string(trimSpaces(s));
}

} // namespace

std::vector<std::u16string_view> bracketPairs(std::u16string_view list) {
    std::vector<std::u16string_view> pairs = splitAlternatives(list);
    for (const auto p : pairs) {
        if (p.size() != 2 || p[0] == p[1])
            throw VbError(vberr::invalidCall);
    }
    return pairs;
}

std::optional<BracketRegion> findBrackets(std::u16string_view s, std::u16string_view brackets,
                                          std::size_t from) {
    const auto pairs = bracketPairs(brackets);
    QuoteTracker quotes;
    std::size_t i = 0;
    std::u16string_view pair;
    for (; i < s.size(); ++i) {
        if (!quotes.outside(s[i]) || i < from)
            continue;
        for (const auto p : pairs) {
            if (s[i] == p[0])
                pair = p;
        }
        if (!pair.empty())
            break;
    }
    if (pair.empty())
        return std::nullopt;
    std::size_t depth = 1;
    for (std::size_t j = i + 1; j < s.size(); ++j) {
        if (!quotes.outside(s[j]))
            continue;
        if (s[j] == pair[0])
            ++depth;
        else if (s[j] == pair[1] && --depth == 0)
            return BracketRegion{i, j};
    }
    return std::nullopt;
}

std::u16string withoutBrackets(std::u16string_view s, std::u16string_view brackets) {
    std::u16string out;
    std::size_t from = 0;
    while (const auto region = findBrackets(s, brackets, from)) {
        out.append(s.substr(from, region->open - from));
        from = region->close + 1;
        if (!out.empty() && out.back() == u' ' && from < s.size() && s[from] == u' ')
            ++from;
    }
    out.append(s.substr(from));
    return trimmed(out);
}

std::optional<SeparatorHit> findTopLevel(std::u16string_view s, std::u16string_view separators,
                                         std::u16string_view brackets, Compare mode) {
    const auto pairs = bracketPairs(brackets);
    const auto alternatives = splitAlternatives(separators);
    QuoteTracker quotes;
    std::int64_t depth = 0;
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (!quotes.outside(s[i]))
            continue;
        if (depth == 0) {
            for (const auto sep : alternatives) {
                if (!sep.empty() && sep.size() <= s.size() - i &&
                    textEqual(s.substr(i, sep.size()), sep, mode))
                    return SeparatorHit{i, sep.size()};
            }
        }
        // A closing sign without its opening one is an ordinary character.
        depth = std::max<std::int64_t>(0, depth + bracketWeight(pairs, s[i]));
    }
    return std::nullopt;
}

std::optional<FunctionCall> separateFunction(std::u16string_view s) {
    s = trimSpaces(s);
    const auto region = findBrackets(s, u"()", 0);
    if (!region || region->close + 1 != s.size())
        return std::nullopt;
    FunctionCall call;
    call.name = trimmed(s.substr(0, region->open));
    if (call.name.empty() || call.name.find_first_of(u"\"'") != std::u16string::npos)
        return std::nullopt;
    std::u16string_view inner = s.substr(region->open + 1, region->close - region->open - 1);
    if (trimSpaces(inner).empty())
        return call;
    for (;;) {
        const auto comma = findTopLevel(inner, u",", u"()|[]|{}", Compare::Binary);
        if (!comma) {
            call.args.push_back(trimmed(inner));
            return call;
        }
        call.args.push_back(trimmed(inner.substr(0, comma->index)));
        inner.remove_prefix(comma->index + 1);
    }
}

std::u16string withDecimalPoints(std::u16string_view s, char16_t decimal, char16_t grouping) {
    std::u16string out(s);
    QuoteTracker quotes;
    const auto inNumber = [&](char16_t c) { return isDigit(c) || c == decimal || c == grouping; };
    std::size_t i = 0;
    while (i < s.size()) {
        if (!quotes.outside(s[i]) || !isDigit(s[i]) ||
            (i > 0 && (isNameChar(s[i - 1]) || s[i - 1] == decimal || s[i - 1] == grouping))) {
            ++i;
            continue;
        }
        std::size_t end = i;
        while (end < s.size() && inNumber(s[end]))
            ++end;
        while (!isDigit(s[end - 1]))
            --end; // a separator after the number belongs to the text around it
        std::size_t next = end;
        if (next < s.size() && (s[next] == u'e' || s[next] == u'E')) {
            std::size_t k = next + 1;
            if (k < s.size() && (s[k] == u'+' || s[k] == u'-'))
                ++k;
            if (k < s.size() && isDigit(s[k])) {
                while (k < s.size() && isDigit(s[k]))
                    ++k;
                next = k;
            }
        }
        const bool glued = next < s.size() && isNameChar(s[next]);
        // digits, groups of three after the grouping sign, then the decimal sign and digits
        std::u16string number;
        std::size_t decimals = 0;
        bool wellFormed = !glued;
        std::size_t digitsInGroup = 0;
        bool grouped = false;
        for (std::size_t k = i; k < end && wellFormed; ++k) {
            const char16_t c = s[k];
            if (isDigit(c)) {
                ++digitsInGroup;
                number += c;
            } else if (c == grouping && decimals == 0) {
                wellFormed = (!grouped || digitsInGroup == 3) && digitsInGroup <= 3;
                grouped = true;
                digitsInGroup = 0;
            } else if (c == decimal) {
                wellFormed = (!grouped || digitsInGroup == 3) && ++decimals == 1;
                number += u'.';
                digitsInGroup = 0;
            } else {
                wellFormed = false;
            }
        }
        if (wellFormed && decimals == 1) {
            const std::size_t at = out.size() - (s.size() - i);
            out.replace(at, end - i, number);
        }
        // The quote tracker has seen no quote inside the number: it holds none.
        i = next;
    }
    return out;
}

std::u16string toXmlAttribute(std::u16string_view s) {
    std::u16string out;
    for (const char16_t c : s) {
        switch (c) {
        case u'&':
            out += u"&amp;";
            break;
        case u'<':
            out += u"&lt;";
            break;
        case u'>':
            out += u"&gt;";
            break;
        case u'"':
            out += u"&quot;";
            break;
        case u'\'':
            out += u"&apos;";
            break;
        // An attribute's value turns raw line breaks and tabs into blanks when it is read.
        case u'\t':
            out += u"&#9;";
            break;
        case u'\n':
            out += u"&#10;";
            break;
        case u'\r':
            out += u"&#13;";
            break;
        default:
            out += c;
        }
    }
    return out;
}

namespace {

// The character a reference at the start of s stands for, and the reference's length.
std::optional<std::pair<std::u16string, std::size_t>> readReference(std::u16string_view s) {
    static constexpr std::pair<std::u16string_view, char16_t> named[] = {
        {u"&amp;", u'&'}, {u"&lt;", u'<'}, {u"&gt;", u'>'}, {u"&quot;", u'"'}, {u"&apos;", u'\''}};
    for (const auto& [name, c] : named) {
        if (s.starts_with(name))
            return std::pair{std::u16string(1, c), name.size()};
    }
    if (!s.starts_with(u"&#"))
        return std::nullopt;
    std::size_t k = 2;
    const bool hex = k < s.size() && s[k] == u'x';
    if (hex)
        ++k;
    const std::size_t first = k;
    std::uint32_t code = 0;
    for (; k < s.size() && k - first < 8; ++k) {
        const char16_t c = s[k];
        int digit = -1;
        if (isDigit(c))
            digit = c - u'0';
        else if (hex && c >= u'a' && c <= u'f')
            digit = c - u'a' + 10;
        else if (hex && c >= u'A' && c <= u'F')
            digit = c - u'A' + 10;
        if (digit < 0)
            break;
        code = code * (hex ? 16 : 10) + static_cast<std::uint32_t>(digit);
    }
    if (k == first || k >= s.size() || s[k] != u';' || code == 0 || code > 0x10FFFF ||
        (code >= 0xD800 && code <= 0xDFFF))
        return std::nullopt;
    std::u16string c;
    if (code < 0x10000) {
        c += static_cast<char16_t>(code);
    } else {
        code -= 0x10000;
        c += static_cast<char16_t>(0xD800 + (code >> 10));
        c += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
    }
    return std::pair{c, k + 1};
}

} // namespace

std::u16string fromXmlAttribute(std::u16string_view s) {
    std::u16string out;
    std::size_t i = 0;
    while (i < s.size()) {
        if (s[i] == u'&') {
            if (const auto ref = readReference(s.substr(i))) {
                out += ref->first;
                i += ref->second;
                continue;
            }
        }
        out += s[i++];
    }
    return out;
}

} // namespace velkor6::text
