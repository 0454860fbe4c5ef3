#include "text/forward_finder.h"

#include "text/word_rules.h"

namespace velkor6::text {

ForwardFinder::ForwardFinder(std::u16string_view source, std::u16string_view find, Compare mode,
                             bool wholeWord)
    : source_(source), mode_(mode), wholeWord_(wholeWord) {
    for (std::u16string_view text : splitAlternatives(find))
        alternatives_.push_back({text});
}

// First occurrence at or after index `from`; an empty alternative occurs at every index of
// the text.
std::size_t ForwardFinder::occurrence(const Alternative& a, std::size_t from) const {
    const std::size_t at = inStr(from + 1, source_, a.text, mode_);
    return at == 0 ? none : at - 1;
}

bool ForwardFinder::occursAt(const Alternative& a, std::size_t index) const {
    if (index >= source_.size())
        return false;
    return textEqual(source_.substr(index, a.text.size()), a.text, mode_);
}

std::size_t ForwardFinder::nextFor(Alternative& a, std::size_t cursor,
                                   std::optional<char16_t> before) {
    if (!wholeWord_) {
        if (!a.known || a.from > cursor || (a.next != none && a.next < cursor)) {
            a.from = cursor;
            a.next = occurrence(a, cursor);
            a.known = true;
        }
        return a.next;
    }
    const std::size_t length = a.text.size();
    if (occursAt(a, cursor) && (!before || isWordDelimiter(*before)) &&
        wordEndsAt(source_, cursor + length))
        return cursor;
    if (!a.known || a.from > cursor || (a.next != none && a.next <= cursor)) {
        std::size_t at = occurrence(a, cursor + 1);
        while (at != none && !isWholeWordAt(source_, at, length))
            at = occurrence(a, at + 1);
        a.from = cursor;
        a.next = at;
        a.known = true;
    }
    return a.next;
}

std::optional<ForwardFinder::Match> ForwardFinder::next(std::size_t cursor,
                                                        std::optional<char16_t> before) {
    std::optional<Match> best;
    for (std::size_t k = 0; k < alternatives_.size(); ++k) {
        const std::size_t at = nextFor(alternatives_[k], cursor, before);
        if (at != none && (!best || at < best->index))
            best = Match{at, k};
    }
    return best;
}

} // namespace velkor6::text
