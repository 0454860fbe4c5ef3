// Finding alternatives, the last occurrence, and cutting a text at a found term.
#include "text/text_toolkit.h"
#include "text/word_rules.h"

#include <algorithm>

namespace velkor6::text {
namespace {

constexpr std::size_t npos = std::u16string_view::npos;

std::u16string trimmed(std::u16string_view s) {
    return std::u16string(trimSpaces(s));
}

// The last index in [first, last] where find (not empty) occurs, or npos.
std::size_t lastIndexOf(std::u16string_view s, std::u16string_view find, std::size_t first,
                        std::size_t last, Compare mode) {
    if (mode == Compare::Binary) {
        const std::size_t at = s.rfind(find, last);
        return at != npos && at >= first ? at : npos;
    }
    const char16_t small = foldCase(find[0]);
    const char16_t capital = toUpper(small);
    for (std::size_t i = last + 1; i-- > first;) {
        if ((s[i] == small || s[i] == capital) &&
            textEqual(s.substr(i, find.size()), find, Compare::Text))
            return i;
    }
    return npos;
}

} // namespace

Pos searchOne(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
              bool wholeWord, Pos limit) {
    if (start < 1)
        return 0;
    auto from = static_cast<std::size_t>(start);
    for (;;) {
        const std::size_t at = inStr(from, source, find, mode);
        if (at == 0 || static_cast<Pos>(at) > limit)
            return 0;
        if (!wholeWord || isWholeWordAt(source, at - 1, find.size()))
            return static_cast<Pos>(at);
        from = at + 1;
    }
}

Pos findSubString(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                  bool findFirst, bool wholeWord, std::u16string* found, Pos limit) {
    if (source.empty())
        return 0;
    Pos best = 0;
    std::u16string_view winner;
    for (std::u16string_view alternative : splitAlternatives(find)) {
        const Pos at = searchOne(source, alternative, start, mode, wholeWord, limit);
        if (at == 0 || (best != 0 && at >= best))
            continue;
        best = at;
        winner = alternative;
        if (!findFirst)
            break;
    }
    if (best != 0 && found != nullptr)
        found->assign(winner);
    return best;
}

Pos findLastSubString(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                      Pos limit) {
    // Every occurrence from start on would be visited one after the other; the search of each
    // stops being able to report once the position passes the limit, so the last one within
    // the limit remains.
    const auto n = static_cast<Pos>(source.size());
    const auto m = static_cast<Pos>(find.size());
    if (start < 1 || start > n)
        return 0;
    if (m == 0) {
        const Pos last = std::min(n, limit); // an empty term is found at every position
        return last >= start ? last : 0;
    }
    const Pos lastStart = std::min(n - m + 1, limit);
    if (lastStart < start)
        return 0;
    const std::size_t at = lastIndexOf(source, find, static_cast<std::size_t>(start - 1),
                                       static_cast<std::size_t>(lastStart - 1), mode);
    return at == npos ? 0 : static_cast<Pos>(at) + 1;
}

bool hasSubString(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                  Pos limit) {
    return findSubString(source, find, start, mode, true, false, nullptr, limit) >= 1;
}

std::u16string getSubString(std::u16string_view source, std::u16string_view before,
                            std::u16string_view after, Compare mode, bool wholeWord, Pos limit) {
    std::u16string t(source);
    std::u16string found;
    if (!before.empty()) {
        const Pos at = findSubString(t, before, 1, mode, true, wholeWord, &found, limit);
        t = at > 0 ? trimmed(mid(t, at + static_cast<Pos>(found.size()))) : std::u16string();
    }
    if (!after.empty()) {
        const Pos at = findSubString(t, after, 1, mode, true, wholeWord, &found, limit);
        t = at > 0 ? trimmed(left(t, at - 1)) : std::u16string();
    }
    return t;
}

Separated separateString(std::u16string_view source, std::u16string_view find, Pos start,
                         Compare mode, Pos limit) {
    for (std::u16string_view alternative : splitAlternatives(find)) {
        const Pos at = searchOne(source, alternative, start, mode, false, limit);
        if (at == 0)
            continue;
        const auto n = static_cast<Pos>(alternative.size());
        return {trimmed(left(source, at - 1)), trimmed(mid(source, at, n)),
                trimmed(mid(source, at + n))};
    }
    return {u"", std::u16string(source), u""};
}

} // namespace velkor6::text
