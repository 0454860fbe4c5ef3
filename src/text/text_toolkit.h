// Searching, counting, cutting and replacing in strings with case, whole-word and quoting
// rules. Positions are 1-based; 0 means "not found". A search term may list alternatives
// separated by "|"; a sign-pair list is written the same way ("\"\"|''|()").
#pragma once

#include "core/text.h"
#include "velkor6/locale.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace velkor6::text {

using Pos = std::int64_t;

// The largest position, length or count the algorithms may hold. The library's members keep
// them in 16-bit Integer variables and pass integerLimit: a value beyond it behaves as the
// overflow of such a variable at that very point. Inside the search of one alternative the
// overflow is trapped and the alternative counts as not found; in the count and replace loops
// it raises error 6 when the search position moves past the limit (p + Len(term),
// p + Len(replacement), p + 1) or the count does. Callers that need long texts pass noLimit.
inline constexpr Pos integerLimit = 32767;
inline constexpr Pos noLimit = std::numeric_limits<Pos>::max();

// The search of one alternative: its first occurrence at or after `start`, as a whole word if
// asked (the character before and the one after must be word delimiters; the last character
// of the text never blocks). A start below 1 or a position beyond the limit gives 0.
Pos searchOne(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
              bool wholeWord, Pos limit);

// The earliest position over all alternatives (ties go to the one listed first), or with
// findFirst false the position of the first alternative in written order that occurs at all.
// Writes the winning alternative to *found; leaves it alone when nothing is found.
Pos findSubString(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                  bool findFirst, bool wholeWord, std::u16string* found, Pos limit = noLimit);

// The last occurrence of one term ("|" is an ordinary character) at or after start.
Pos findLastSubString(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                      Pos limit = noLimit);

bool hasSubString(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                  Pos limit = noLimit);

// Non-overlapping occurrences, summed over the alternatives. An empty alternative that is
// found makes the count endless: error 6.
Pos countSubString(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                   Pos limit = noLimit);
// Counts only occurrences that no pair of the sign-pair list encloses (see isInSigns).
Pos countSubStringExt(std::u16string_view source, std::u16string_view find, Pos start, Compare mode,
                      std::u16string_view notInSigns, Pos limit = noLimit);

// The trimmed text after the first `before` and before the following `after`; "" when one of
// them is given and not found. Both searches start at the beginning.
std::u16string getSubString(std::u16string_view source, std::u16string_view before,
                            std::u16string_view after, Compare mode, bool wholeWord,
                            Pos limit = noLimit);

struct Separated {
    std::u16string before;
    std::u16string term;
    std::u16string after;
};
// Cuts the text at the first occurrence of the first alternative (in written order) found at
// or after start. Without one, term is the whole source and before and after are empty.
Separated separateString(std::u16string_view source, std::u16string_view find, Pos start,
                         Compare mode, Pos limit = noLimit);

struct ReplaceOptions {
    bool onlyAtBeginning = false;
    bool notInQuotes = true; // skip matches inside double-quoted literals
    bool wholeWord = false;
};
// Replaces the alternatives (always ignoring case) from start on. A replacement is never
// searched again.
std::u16string replaceInString(std::u16string_view source, std::u16string_view find,
                               std::u16string_view replacement, Pos start,
                               const ReplaceOptions& options, Pos limit = noLimit);

struct ReplaceExtOptions {
    bool onlyAtBeginning = false; // stop at the first match that is not at position 1
    bool wholeWord = false;
    bool notNumericWords = false; // skip matches inside numeric words
    bool onlyNumericWords = false;
    std::u16string_view notInSigns; // skip matches inside any of these sign pairs
};
std::u16string replaceInStringExt(std::u16string_view source, std::u16string_view find,
                                  std::u16string_view replacement, Pos start,
                                  const ReplaceExtOptions& options, const Locale& locale,
                                  Pos limit = noLimit);

// Whether the term at start (length `length`) lies inside the region of a two-character sign
// pair: an odd count of signs on both sides for a pair of equal signs, the nearest unmatched
// opening sign before and closing sign after it for distinct ones. A term at the first or at
// the last character is never inside.
bool isInSigns(std::u16string_view source, std::u16string_view signs, Pos start, Pos length);

// Whether the term at start belongs to a numeric word: a number by the locale's rules that
// begins and ends with a digit, or a format mask of "#", "0", "," and ".". The word must have
// a delimiter on both sides.
bool isNumericWord(std::u16string_view source, Pos start, Pos length, const Locale& locale);

// Source = Left(Source, start - 1) & value & Mid(Source, start + n), n being length, or the
// length of value when length is -1. Raises error 5 for a start below 1.
void midLet(std::u16string& source, Pos start, Pos length, std::u16string_view value);

} // namespace velkor6::text
