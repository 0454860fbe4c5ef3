// Counting the occurrences of alternatives, optionally outside sign pairs.
#include "text/sign_scanner.h"
#include "text/text_toolkit.h"
#include "text/word_rules.h"
#include "velkor6/vb_error.h"

#include <algorithm>
#include <vector>

namespace velkor6::text {
namespace {

struct Occurrence {
    std::size_t index;
    std::size_t length;
};

[[noreturn]] void overflow() {
    throw VbError(vberr::overflow);
}

// Visits the occurrences of one alternative as the loop finds them: from start, going on after
// each one. The position after an occurrence is an Integer in the members.
template <class Visit>
void forEachOccurrence(std::u16string_view source, std::u16string_view alternative, Pos start,
                       Compare mode, Pos limit, Visit visit) {
    const auto length = static_cast<Pos>(alternative.size());
    for (Pos p = start;;) {
        const Pos at = searchOne(source, alternative, p, mode, false, limit);
        if (at == 0)
            return;
        // Found again at the same place for ever: the count overflows whatever holds it.
        if (length == 0)
            overflow();
        visit(Occurrence{static_cast<std::size_t>(at - 1), alternative.size()});
        p = at + length;
        if (p > limit)
            overflow();
    }
}

} // namespace

Pos countSubString(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                   Pos limit) {
    return countSubStringExt(source, find, start, mode, {}, limit);
}

Pos countSubStringExt(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                      std::u16string_view notInSigns, Pos limit) {
    if (source.empty() || find.empty())
        return 0;
    std::vector<SignPairScanner> pairs;
    for (std::u16string_view pair : splitAlternatives(notInSigns)) {
        if (pair.size() == 2) // other lengths never enclose anything
            pairs.emplace_back(pair, source);
    }
    Pos total = 0;
    std::vector<Occurrence> found;
    for (std::u16string_view alternative : splitAlternatives(find)) {
        forEachOccurrence(source, alternative, start, mode, limit, [&](Occurrence o) {
            if (!pairs.empty())
                found.push_back(o);
            else if (++total > limit)
                overflow();
        });
    }
    if (pairs.empty())
        return total;
    // Whether an occurrence is enclosed depends on its place only, so all of them are tested
    // in one pass through the text.
    std::stable_sort(found.begin(), found.end(),
                     [](Occurrence a, Occurrence b) { return a.index < b.index; });
    for (Occurrence o : found) {
        bool enclosed = false;
        for (SignPairScanner& pair : pairs) {
            pair.feed(source.substr(pair.cursor(), o.index - pair.cursor()));
            pair.advanceTo(o.index);
            enclosed = enclosed || pair.encloses(o.length);
        }
        if (!enclosed && ++total > limit)
            overflow();
    }
    return total;
}

} // namespace velkor6::text
