// Counting the occurrences of alternatives, optionally outside sign pairs.
#include "text/sign_scanner.h"
#include "text/text_toolkit.h"
#include "text/word_rules.h"
#include "velkor6/vb_error.h"

#include <vector>

namespace velkor6::text {
namespace {

Pos countOutsideSigns(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                      std::u16string_view notInSigns, Pos limit) {
    if (source.empty() || find.empty())
        return 0;
    std::vector<SignPairScanner> pairs;
    for (std::u16string_view pair : splitAlternatives(notInSigns)) {
        if (pair.size() == 2) // other lengths never enclose anything
            pairs.emplace_back(pair, source);
    }
    Pos total = 0;
    for (std::u16string_view alternative : splitAlternatives(find)) {
        const auto length = static_cast<Pos>(alternative.size());
        for (SignPairScanner& pair : pairs)
            pair.reset();
        Pos p = start;
        for (;;) {
            const Pos at = searchOne(source, alternative, p, mode, false, limit);
            if (at == 0)
                break;
            // Found again at the same place for ever: the count overflows whatever holds it.
            if (length == 0)
                throw VbError(vberr::overflow);
            bool enclosed = false;
            for (SignPairScanner& pair : pairs) {
                const std::size_t index = static_cast<std::size_t>(at - 1);
                pair.feed(source.substr(pair.cursor(), index - pair.cursor()));
                pair.advanceTo(index);
                enclosed = enclosed || pair.encloses(alternative.size());
            }
            if (!enclosed && ++total > limit)
                throw VbError(vberr::overflow);
            p = at + length;
            if (p > limit)
                throw VbError(vberr::overflow);
        }
    }
    return total;
}

} // namespace

Pos countSubString(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                   Pos limit) {
    return countOutsideSigns(source, find, start, mode, {}, limit);
}

Pos countSubStringExt(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                      std::u16string_view notInSigns, Pos limit) {
    return countOutsideSigns(source, find, start, mode, notInSigns, limit);
}

} // namespace velkor6::text
