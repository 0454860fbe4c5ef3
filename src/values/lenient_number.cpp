#include "core/convert.h"
#include "values/numbers.h"
#include "values/typed_conversion.h"
#include "velkor6/vb_error.h"

#include <algorithm>
#include <string>

namespace velkor6::values {
namespace {

constexpr std::u16string_view numberChars = u"0123456789,.-+";

// While the separator occurs twice or more: drop it at the start, else at the end, else take its
// first occurrence for a grouping mark. Once neither end holds a separator, only first
// occurrences go, so the loop reduces to one pass.
std::u16string keepOneSeparator(std::u16string_view s, char16_t dec) {
    auto count = std::count(s.begin(), s.end(), dec);
    std::size_t lo = 0;
    std::size_t hi = s.size();
    while (count >= 2 && (s[lo] == dec || s[hi - 1] == dec)) {
        if (s[lo] == dec)
            ++lo;
        else
            --hi;
        --count;
    }
    std::u16string out;
    out.reserve(hi - lo);
    for (std::size_t i = lo; i < hi; ++i) {
        if (s[i] == dec && count >= 2) {
            --count;
            continue;
        }
        out.push_back(s[i]);
    }
    return out;
}

} // namespace

double lenientNumber(std::u16string_view source, const Locale& loc) {
    std::u16string kept;
    if (source.empty()) {
        kept = u"0";
    } else {
        kept.reserve(source.size());
        for (char16_t c : source) {
            if (numberChars.find(c) != std::u16string_view::npos)
                kept.push_back(c);
        }
    }
    kept = keepOneSeparator(kept, loc.decimal);
    try {
        // A text the conversion rejects comes back as text; reading it as a Double fails again.
        return toDouble(typedConversion(5, Variant(std::move(kept)), loc, Date{}), loc);
    } catch (const VbError&) {
        return 0;
    }
}

} // namespace velkor6::values
