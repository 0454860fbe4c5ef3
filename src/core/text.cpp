// InStr, Trim, Mid, Left and Right with the run time's rules.
#include "core/text.h"

#include "velkor6/vb_error.h"

namespace velkor6 {
namespace {

constexpr std::size_t npos = std::u16string_view::npos;

// First index at or after `from` where `find` (not empty) occurs ignoring case. The first
// character is matched against its two cased forms, the rest is folded on the fly.
std::size_t findFolded(std::u16string_view s, std::u16string_view find, std::size_t from) {
    const std::size_t m = find.size();
    if (m > s.size())
        return npos;
    const char16_t small = foldCase(find[0]);
    const char16_t capital = toUpper(small);
    const std::size_t last = s.size() - m;
    for (std::size_t i = from; i <= last; ++i) {
        const char16_t c = s[i];
        if (c != small && c != capital)
            continue;
        std::size_t k = 1;
        while (k < m && foldCase(s[i + k]) == foldCase(find[k]))
            ++k;
        if (k == m)
            return i;
    }
    return npos;
}

} // namespace

std::size_t inStr(std::size_t start, std::u16string_view source, std::u16string_view find,
                  Compare mode) {
    if (start < 1)
        throw VbError(vberr::invalidCall);
    if (start > source.size())
        return 0;
    if (find.empty())
        return start;
    const std::size_t at = mode == Compare::Binary ? source.find(find, start - 1)
                                                   : findFolded(source, find, start - 1);
    return at == npos ? 0 : at + 1;
}

std::u16string_view ltrimSpaces(std::u16string_view s) {
    const std::size_t first = s.find_first_not_of(u' ');
    return first == npos ? std::u16string_view{} : s.substr(first);
}

std::u16string_view rtrimSpaces(std::u16string_view s) {
    const std::size_t last = s.find_last_not_of(u' ');
    return last == npos ? std::u16string_view{} : s.substr(0, last + 1);
}

std::u16string_view trimSpaces(std::u16string_view s) {
    return rtrimSpaces(ltrimSpaces(s));
}

std::u16string_view mid(std::u16string_view s, std::int64_t start, std::int64_t length) {
    if (start < 1 || length < -1)
        throw VbError(vberr::invalidCall);
    if (static_cast<std::uint64_t>(start) > s.size())
        return {};
    const std::u16string_view rest = s.substr(static_cast<std::size_t>(start - 1));
    if (length == -1 || static_cast<std::uint64_t>(length) >= rest.size())
        return rest;
    return rest.substr(0, static_cast<std::size_t>(length));
}

std::u16string_view left(std::u16string_view s, std::int64_t length) {
    if (length < 0)
        throw VbError(vberr::invalidCall);
    return s.substr(0, static_cast<std::uint64_t>(length) < s.size()
                           ? static_cast<std::size_t>(length)
                           : s.size());
}

std::u16string_view right(std::u16string_view s, std::int64_t length) {
    if (length < 0)
        throw VbError(vberr::invalidCall);
    if (static_cast<std::uint64_t>(length) >= s.size())
        return s;
    return s.substr(s.size() - static_cast<std::size_t>(length));
}

} // namespace velkor6
