// Brackets and expressions: regions of bracket pairs, parts between separators and function
// calls, each with brackets and separators inside quoted literals ("..." and '...') ignored.
// Bracket lists are sign-pair lists ("()|[]"); positions are 0-based indices here.
#pragma once

#include "core/text.h"
#include "velkor6/locale.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6::text {

struct BracketRegion {
    std::size_t open;  // index of the opening sign
    std::size_t close; // index of its closing sign
};

// The pairs of a bracket list; error 5 for a pair that is not two different characters.
std::vector<std::u16string_view> bracketPairs(std::u16string_view list);

// The first region whose opening sign (of any listed pair) stands at or after `from`, outside
// quotes, up to its own closing sign; regions of the same pair nest. Nothing when no opening sign
// follows or the first one is never closed.
std::optional<BracketRegion> findBrackets(std::u16string_view s, std::u16string_view brackets,
                                          std::size_t from);

// The text with every outermost region removed; where that leaves a blank on both sides, one
// goes. Leading and trailing blanks are trimmed.
std::u16string withoutBrackets(std::u16string_view s, std::u16string_view brackets);

struct SeparatorHit {
    std::size_t index;
    std::size_t length;
};
// The first separator (alternatives; empty ones are ignored) outside quotes and outside all
// regions of the bracket list.
std::optional<SeparatorHit> findTopLevel(std::u16string_view s, std::u16string_view separators,
                                         std::u16string_view brackets, Compare mode);

struct FunctionCall {
    std::u16string name;
    std::vector<std::u16string> args; // trimmed; none for "f()" or "f( )"
};
// "name(args)" with the closing bracket as the last character that is not blank, split at the
// commas outside quotes and brackets; nothing when the text is no call.
std::optional<FunctionCall> separateFunction(std::u16string_view s);

// Numbers written with `decimal` (and `grouping` in groups of three before it) outside quotes,
// rewritten with a point and without grouping. Only a number holding exactly one decimal sign
// changes.
std::u16string withDecimalPoints(std::u16string_view s, char16_t decimal, char16_t grouping);

// Text for an attribute of a resource document and back.
std::u16string toXmlAttribute(std::u16string_view s);
std::u16string fromXmlAttribute(std::u16string_view s);

} // namespace velkor6::text
