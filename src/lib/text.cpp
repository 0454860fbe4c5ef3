// Substring search, count and replace: the `lib` members and their rows in the member table.
#include "lib/lib_members.h"
#include "text/text_toolkit.h"
#include "velkor6/vb_error.h"

#include <limits>

namespace velkor6 {
namespace {

Compare compareMode(bool ignoreCase) {
    return ignoreCase ? Compare::Text : Compare::Binary;
}

// The members keep positions and counts in Integers and pass integerLimit, so every result
// fits.
std::int16_t integer(text::Pos v) {
    return static_cast<std::int16_t>(v);
}

} // namespace

std::int16_t lib::vkrFindSubString(std::u16string_view sSource, std::u16string_view sFind,
                                   std::int16_t iStartSearch, bool bIgnoreCase, bool bFindFirst,
                                   bool bWholeWord, std::u16string* sFound) {
    return integer(text::findSubString(sSource, sFind, iStartSearch, compareMode(bIgnoreCase),
                                       bFindFirst, bWholeWord, sFound, text::integerLimit));
}

std::int16_t lib::vkrFindLastSubString(std::u16string_view sSource, std::u16string_view sFind,
                                       std::int16_t iStartSearch, bool bIgnoreCase) {
    return integer(text::findLastSubString(sSource, sFind, iStartSearch, compareMode(bIgnoreCase),
                                           text::integerLimit));
}

std::int16_t lib::vkrHasSubString(std::u16string_view sSource, std::u16string_view sFind,
                                  std::int16_t iStartSearch, bool bIgnoreCase) {
    return text::hasSubString(sSource, sFind, iStartSearch, compareMode(bIgnoreCase),
                              text::integerLimit)
               ? -1
               : 0;
}

std::int16_t lib::vkrCountSubString(std::u16string_view sSource, std::u16string_view sFind,
                                    std::int16_t iStartSearch, bool bIgnoreCase) {
    return integer(text::countSubString(sSource, sFind, iStartSearch, compareMode(bIgnoreCase),
                                        text::integerLimit));
}

std::int16_t lib::vkrCountSubStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                       std::int16_t iStartSearch, bool bIgnoreCase,
                                       std::u16string_view sNotInSigns) {
    return integer(text::countSubStringExt(sSource, sFind, iStartSearch, compareMode(bIgnoreCase),
                                           sNotInSigns, text::integerLimit));
}

std::u16string lib::vkrGetSubString(std::u16string_view sSource, std::u16string_view sBefore,
                                    std::u16string_view sAfter, std::int16_t /*iStartSearch*/,
                                    bool bIgnoreCase, bool bWholeWord) {
    return text::getSubString(sSource, sBefore, sAfter, compareMode(bIgnoreCase), bWholeWord,
                              text::integerLimit);
}

void lib::vkrSeparateString(std::u16string_view sSource, std::u16string_view sFind,
                            std::u16string& sBefore, std::u16string& sTerm, std::u16string& sAfter,
                            std::int16_t iStartSearch, bool bIgnoreCase) {
    text::Separated parts = text::separateString(sSource, sFind, iStartSearch,
                                                 compareMode(bIgnoreCase), text::integerLimit);
    sBefore = std::move(parts.before);
    sTerm = std::move(parts.term);
    sAfter = std::move(parts.after);
}

std::u16string lib::vkrReplaceInString(std::u16string_view sSource, std::u16string_view sFind,
                                       std::u16string_view sReplace, std::int16_t iStartSearch,
                                       bool /*bIgnoreCase*/, bool bOnlyAtBeginning,
                                       bool bNotInSigns, bool bWholeWord) {
    const text::ReplaceOptions options{bOnlyAtBeginning, bNotInSigns, bWholeWord};
    return text::replaceInString(sSource, sFind, sReplace, iStartSearch, options,
                                 text::integerLimit);
}

std::u16string lib::vkrReplaceInStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                          std::u16string_view sReplace, std::int16_t iStartSearch,
                                          bool /*bIgnoreCase*/, bool bOnlyAtBeginning,
                                          bool bWholeWord, bool bNotNumVals, bool bOnlyNumVals,
                                          std::u16string_view sNotInSigns) {
    const text::ReplaceExtOptions options{bOnlyAtBeginning, bWholeWord, bNotNumVals, bOnlyNumVals,
                                          sNotInSigns};
    return text::replaceInStringExt(sSource, sFind, sReplace, iStartSearch, options, locale(),
                                    text::integerLimit);
}

bool lib::vkrIsInSigns(std::u16string_view sSource, std::u16string_view sSigns, std::int16_t iStart,
                       std::int16_t iLen) {
    return text::isInSigns(sSource, sSigns, iStart, iLen);
}

bool lib::vkrIsNumericWord(std::u16string_view sSource, std::int16_t iStart, std::int16_t iLen) {
    return text::isNumericWord(sSource, iStart, iLen, locale());
}

std::u16string lib::vkrMid(std::u16string_view Source, std::int32_t Start, std::int32_t length) {
    try {
        return std::u16string(mid(Source, Start, length));
    } catch (const VbError&) {
        return {};
    }
}

void lib::vkrMidLet(std::u16string& Source, std::int32_t Start, std::int32_t length,
                    std::u16string_view value) {
    // Start + length is Long arithmetic and overflows past its range.
    const text::Pos removed = length == -1 ? static_cast<text::Pos>(value.size()) : length;
    if (Start + removed > std::numeric_limits<std::int32_t>::max())
        return;
    try {
        text::midLet(Source, Start, length, value);
    } catch (const VbError&) {
    }
}

} // namespace velkor6

namespace velkor6::dispatch {
namespace {

constexpr std::int16_t one = 1;

Param startSearch() {
    return optional(u"iStartSearch", VarType::Integer, one);
}
Param ignoreCase() {
    return optional(u"bIgnoreCase", VarType::Boolean, true);
}

} // namespace

void addTextMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back(
        {1,
         u"vkrFindSubString",
         CallKind::Method,
         {required(u"sSource", T::String), required(u"sFind", T::String), startSearch(),
          ignoreCase(), optional(u"bFindFirst", T::Boolean, true),
          optional(u"bWholeWord", T::Boolean, false), optionalOutput(u"sFound", T::String, u"")},
         T::Integer,
         [](lib& l, Args& a) -> Variant {
             return l.vkrFindSubString(a.str(0), a.str(1), a.i16(2), a.b(3), a.b(4), a.b(5),
                                       &a.strRef(6));
         },
         u"Position of the first (or first listed) alternative of sFind; writes it to "
         u"sFound.",
         u"sFind lists alternatives separated by \"|\". With bFindFirst the earliest "
         u"position wins (on a tie the alternative listed first); without it the first "
         u"alternative in written order that occurs at all. A whole word needs a "
         u"delimiter (space, punctuation, brackets, quotes, CR, LF; not tab, \"-\", \"_\", "
         u"\"#\", \"@\") on both sides; the last character of the text never blocks it. "
         u"0 when nothing is found, and then sFound is left as it was."});
    t.push_back({2,
                 u"vkrFindLastSubString",
                 CallKind::Method,
                 {required(u"sSource", T::String), required(u"sFind", T::String), startSearch(),
                  ignoreCase()},
                 T::Integer,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrFindLastSubString(a.str(0), a.str(1), a.i16(2), a.b(3));
                 },
                 u"Position of the last occurrence of sFind at or after iStartSearch, or 0.",
                 u"\"|\" is an ordinary character here. Occurrences may overlap: the last \"aa\" "
                 u"in \"aaaa\" is at 3."});
    t.push_back({3,
                 u"vkrHasSubString",
                 CallKind::Method,
                 {required(u"sSource", T::String), required(u"sFind", T::String), startSearch(),
                  ignoreCase()},
                 T::Integer,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrHasSubString(a.str(0), a.str(1), a.i16(2), a.b(3));
                 },
                 u"-1 when any alternative of sFind occurs at or after iStartSearch, else 0.",
                 u""});
    t.push_back({4,
                 u"vkrCountSubString",
                 CallKind::Method,
                 {required(u"sSource", T::String), required(u"sFind", T::String), startSearch(),
                  ignoreCase()},
                 T::Integer,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrCountSubString(a.str(0), a.str(1), a.i16(2), a.b(3));
                 },
                 u"Number of non-overlapping occurrences, summed over the alternatives of sFind.",
                 u"An occurrence that matches two alternatives counts twice. Error 6 when the "
                 u"count or a position passes 32767, which an empty alternative always causes."});
    t.push_back({5,
                 u"vkrCountSubStringExt",
                 CallKind::Method,
                 {required(u"sSource", T::String), required(u"sFind", T::String), startSearch(),
                  ignoreCase(), optional(u"sNotInSigns", T::String, u"")},
                 T::Integer,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrCountSubStringExt(a.str(0), a.str(1), a.i16(2), a.b(3), a.str(4));
                 },
                 u"As vkrCountSubString, but occurrences inside any sign pair of sNotInSigns do "
                 u"not count.",
                 u"sNotInSigns lists two-character pairs separated by \"|\", for example "
                 u"\"\"\"\"|''|()\". Whether a pair encloses a term is decided as by "
                 u"vkrIsInSigns."});
    t.push_back({6,
                 u"vkrGetSubString",
                 CallKind::Method,
                 {required(u"sSource", T::String), required(u"sBefore", T::String),
                  required(u"sAfter", T::String), startSearch(), ignoreCase(),
                  optional(u"bWholeWord", T::Boolean, false)},
                 T::String,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrGetSubString(a.str(0), a.str(1), a.str(2), a.i16(3), a.b(4),
                                              a.b(5));
                 },
                 u"The trimmed text between the first sBefore and the following sAfter.",
                 u"An empty sBefore or sAfter leaves that side open; one that is given and not "
                 u"found gives \"\". Both searches start at the beginning: iStartSearch is "
                 u"accepted and ignored."});
    t.push_back({7,
                 u"vkrSeparateString",
                 CallKind::Method,
                 {required(u"sSource", T::String), required(u"sFind", T::String),
                  output(u"sBefore", T::String), output(u"sTerm", T::String),
                  output(u"sAfter", T::String), startSearch(), ignoreCase()},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrSeparateString(a.str(0), a.str(1), a.strRef(2), a.strRef(3), a.strRef(4),
                                         a.i16(5), a.b(6));
                     return {};
                 },
                 u"Cuts sSource at the first alternative of sFind that occurs into the trimmed "
                 u"parts before, the term itself and after.",
                 u"The alternatives are tried in written order, not by position. When none "
                 u"occurs, sTerm receives the whole untrimmed sSource and the others \"\"."});
    t.push_back(
        {8,
         u"vkrReplaceInString",
         CallKind::Method,
         {required(u"sSource", T::String), required(u"sFind", T::String),
          required(u"sReplace", T::String), startSearch(), ignoreCase(),
          optional(u"bOnlyAtBeginning", T::Boolean, false),
          optional(u"bNotInSigns", T::Boolean, true), optional(u"bWholeWord", T::Boolean, false)},
         T::String,
         [](lib& l, Args& a) -> Variant {
             return l.vkrReplaceInString(a.str(0), a.str(1), a.str(2), a.i16(3), a.b(4), a.b(5),
                                         a.b(6), a.b(7));
         },
         u"Replaces every alternative of sFind by sReplace, outside double-quoted "
         u"literals.",
         u"Matching always ignores case; bIgnoreCase is accepted and ignored. With "
         u"bNotInSigns a match after an odd number of double quotes is left alone "
         u"(single quotes are not protected). A replacement is never searched again. "
         u"bOnlyAtBeginning replaces one match, and only when the text without its "
         u"leading blanks starts with it. Error 6 when the position passes 32767."});
    t.push_back(
        {9,
         u"vkrReplaceInStringExt",
         CallKind::Method,
         {required(u"sSource", T::String), required(u"sFind", T::String),
          required(u"sReplace", T::String), startSearch(), ignoreCase(),
          optional(u"bOnlyAtBeginning", T::Boolean, false),
          optional(u"bWholeWord", T::Boolean, false), optional(u"bNotNumVals", T::Boolean, false),
          optional(u"bOnlyNumVals", T::Boolean, false), optional(u"sNotInSigns", T::String, u"")},
         T::String,
         [](lib& l, Args& a) -> Variant {
             return l.vkrReplaceInStringExt(a.str(0), a.str(1), a.str(2), a.i16(3), a.b(4), a.b(5),
                                            a.b(6), a.b(7), a.b(8), a.str(9));
         },
         u"Replaces every alternative of sFind by sReplace, except inside the sign pairs "
         u"of sNotInSigns and, if asked, inside (or outside) numeric words.",
         u"Matching always ignores case. Quotes are protected only when listed as a pair. "
         u"bOnlyAtBeginning stops at the first match that is not at position 1. "
         u"bNotNumVals skips matches inside a numeric word (see vkrIsNumericWord), "
         u"bOnlyNumVals skips those outside one. Error 6 when the position passes "
         u"32767."});
    t.push_back({10,
                 u"vkrIsInSigns",
                 CallKind::Method,
                 {byRef(u"sSource", T::String), byRef(u"sSigns", T::String),
                  byRef(u"iStart", T::Integer), byRef(u"iLen", T::Integer)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrIsInSigns(a.str(0), a.str(1), a.i16(2), a.i16(3));
                 },
                 u"Whether the term at iStart (iLen characters) lies inside the region of the "
                 u"two-character sign pair sSigns.",
                 u"For equal signs (quotes) both sides must hold an odd number of them; for "
                 u"distinct signs the nearest unmatched opening sign before the term and closing "
                 u"sign after it decide. A term at the first or the last character is never "
                 u"inside."});
    t.push_back(
        {11,
         u"vkrIsNumericWord",
         CallKind::Method,
         {byRef(u"sSource", T::String), byRef(u"iStart", T::Integer), byRef(u"iLen", T::Integer)},
         T::Boolean,
         [](lib& l, Args& a) -> Variant {
             return l.vkrIsNumericWord(a.str(0), a.i16(1), a.i16(2));
         },
         u"Whether the term at iStart (iLen characters) belongs to a numeric word.",
         u"The word reaches to the nearest of \" { } [ ] ( ) ; space \\ / ' ~ on each "
         u"side; a word without one on either side is not numeric. It is numeric when it "
         u"is a number in the locale's notation beginning and ending with a digit, or a "
         u"format mask of \"#\", \"0\", \",\" and \".\" that is more than separators."});
    t.push_back({12,
                 u"vkrMid",
                 CallKind::PropertyGet,
                 {byRef(u"Source", T::String), required(u"Start", T::Long),
                  optional(u"length", T::Long, std::int32_t{-1})},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.vkrMid(a.str(0), a.i32(1), a.i32(2)); },
                 u"Mid(Source, Start, length); the rest of the text when length is -1.",
                 u"\"\" where Mid fails (a Start below 1, another negative length)."});
    t.push_back(
        {12,
         u"vkrMid",
         CallKind::PropertyLet,
         {output(u"Source", T::String), required(u"Start", T::Long),
          optional(u"length", T::Long, std::int32_t{-1}), required(u"vNewValue", T::String)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrMidLet(a.strRef(0), a.i32(1), a.i32(2), a.str(3));
             return {};
         },
         u"Replaces length characters of Source at Start by the whole assigned value.",
         u"With length -1 as many characters as the value has are replaced. The text may "
         u"grow or shrink: \"abcdef\", Start 2, length 2, \"XYZ\" gives \"aXYZdef\". Source "
         u"is left alone where Mid would fail."});
}

} // namespace velkor6::dispatch
