// The search of a replace loop: the alternatives of a term in a text rewritten from left to
// right.
#pragma once

#include "core/text.h"

#include <optional>
#include <string_view>
#include <vector>

namespace velkor6::text {

// The text before the cursor is final output; from the cursor on it is the untouched source.
// Each alternative's next occurrence is remembered and stays valid while the cursor moves
// towards it, so a loop over the whole text searches it about once per alternative. Only the
// whole-word test of a match right at the cursor depends on the output (the character before
// it), and that one is checked on every call.
class ForwardFinder {
public:
    struct Match {
        std::size_t index;       // in the source
        std::size_t alternative; // in written order
    };

    ForwardFinder(std::u16string_view source, std::u16string_view find, Compare mode,
                  bool wholeWord);

    // The earliest match at or after the cursor; on equal positions the alternative listed
    // first. `before` is the character in front of the cursor, none at the start of the text.
    std::optional<Match> next(std::size_t cursor, std::optional<char16_t> before);
    std::u16string_view alternative(std::size_t k) const { return alternatives_[k].text; }

private:
    static constexpr std::size_t none = std::u16string_view::npos;

    struct Alternative {
        std::u16string_view text;
        // The first occurrence at or after `from` (for whole words: after `from`, and passing
        // the test with the source's own character before it), or none.
        std::size_t from = 0;
        std::size_t next = none;
        bool known = false;
    };

    std::size_t occurrence(const Alternative& a, std::size_t from) const;
    bool occursAt(const Alternative& a, std::size_t index) const;
    std::size_t nextFor(Alternative& a, std::size_t cursor, std::optional<char16_t> before);

    std::u16string_view source_;
    Compare mode_;
    bool wholeWord_;
    std::vector<Alternative> alternatives_;
};

} // namespace velkor6::text
