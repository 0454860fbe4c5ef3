#include "text/numeric_word.h"

#include "core/convert.h"
#include "text/text_toolkit.h"
#include "text/word_rules.h"

#include <algorithm>
#include <string>

namespace velkor6::text {
namespace {

bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

} // namespace

bool isNumericWordText(std::u16string_view word, const Locale& locale) {
    if (word.empty())
        return false;
    if (isNumeric(Variant(word), locale))
        return isDigit(word.front()) && isDigit(word.back());
    const auto isMask = [](char16_t c) { return c == u'#' || c == u'0' || c == u',' || c == u'.'; };
    const auto isSeparator = [](char16_t c) { return c == u',' || c == u'.'; };
    return std::all_of(word.begin(), word.end(), isMask) &&
           !std::all_of(word.begin(), word.end(), isSeparator);
}

bool isNumericWord(std::u16string_view source, Pos start, Pos length, const Locale& locale) {
    const auto n = static_cast<Pos>(source.size());
    if (source.empty() || start < 1 || length < 1 || start > n - length)
        return false;
    // The delimiters around the term, as 1-based positions; a word at either end of the text
    // has none there and is not numeric.
    Pos first = start - 1;
    while (first >= 1 && !isNumericWordDelimiter(source[static_cast<std::size_t>(first - 1)]))
        --first;
    if (first < 1)
        return false;
    Pos last = start + length;
    while (last <= n && !isNumericWordDelimiter(source[static_cast<std::size_t>(last - 1)]))
        ++last;
    if (last > n)
        return false;
    return isNumericWordText(
        source.substr(static_cast<std::size_t>(first), static_cast<std::size_t>(last - first - 1)),
        locale);
}

} // namespace velkor6::text
