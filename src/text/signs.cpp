// Whether a term lies inside a sign pair, scanning the text the way the library always has.
#include "text/text_toolkit.h"

namespace velkor6::text {

bool isInSigns(std::u16string_view source, std::u16string_view signs, Pos start, Pos length) {
    const auto n = static_cast<Pos>(source.size());
    if (signs.size() != 2 || source.empty() || start < 2 || length < 1 || start > n - length)
        return false;
    const char16_t open = signs[0];
    const char16_t close = signs[1];
    const bool same = open == close;
    // Backwards to the nearest opening sign that is not closed before the term (for quotes:
    // all of them), then forwards to the nearest closing sign that was not opened after it.
    Pos before = 0;
    for (Pos i = start - 1; i >= 1; --i) {
        const char16_t c = source[static_cast<std::size_t>(i - 1)];
        if (c == open)
            ++before;
        else if (c == close)
            --before;
        if (!same && before == 1)
            break;
    }
    Pos after = 0;
    for (Pos i = start + length; i <= n; ++i) {
        const char16_t c = source[static_cast<std::size_t>(i - 1)];
        if (c == close)
            ++after;
        else if (c == open)
            --after;
        if (!same && after == 1)
            break;
    }
    return before % 2 != 0 && after % 2 != 0;
}

} // namespace velkor6::text
