#include "text/text_members.h"

#include "text/text_toolkit.h"
#include "velkor6/vb_error.h"

#include <limits>

namespace velkor6::text {
namespace {

Compare compareMode(bool ignoreCase) {
    return ignoreCase ? Compare::Text : Compare::Binary;
}

// Results are within the limit the algorithms were given.
std::int16_t integer(Pos v) {
    return static_cast<std::int16_t>(v);
}

} // namespace

std::int16_t vkrFindSubString(std::u16string_view sSource, std::u16string_view sFind,
                              std::int16_t iStartSearch, bool bIgnoreCase, bool bFindFirst,
                              bool bWholeWord, std::u16string* sFound) {
    return integer(findSubString(sSource, sFind, iStartSearch, compareMode(bIgnoreCase), bFindFirst,
                                 bWholeWord, sFound, integerLimit));
}

std::int16_t vkrFindLastSubString(std::u16string_view sSource, std::u16string_view sFind,
                                  std::int16_t iStartSearch, bool bIgnoreCase) {
    return integer(
        findLastSubString(sSource, sFind, iStartSearch, compareMode(bIgnoreCase), integerLimit));
}

std::int16_t vkrHasSubString(std::u16string_view sSource, std::u16string_view sFind,
                             std::int16_t iStartSearch, bool bIgnoreCase) {
    return hasSubString(sSource, sFind, iStartSearch, compareMode(bIgnoreCase), integerLimit) ? -1
                                                                                              : 0;
}

std::int16_t vkrCountSubString(std::u16string_view sSource, std::u16string_view sFind,
                               std::int16_t iStartSearch, bool bIgnoreCase) {
    return integer(
        countSubString(sSource, sFind, iStartSearch, compareMode(bIgnoreCase), integerLimit));
}

std::int16_t vkrCountSubStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                  std::int16_t iStartSearch, bool bIgnoreCase,
                                  std::u16string_view sNotInSigns) {
    return integer(countSubStringExt(sSource, sFind, iStartSearch, compareMode(bIgnoreCase),
                                     sNotInSigns, integerLimit));
}

std::u16string vkrGetSubString(std::u16string_view sSource, std::u16string_view sBefore,
                               std::u16string_view sAfter, std::int16_t /*iStartSearch*/,
                               bool bIgnoreCase, bool bWholeWord) {
    return getSubString(sSource, sBefore, sAfter, compareMode(bIgnoreCase), bWholeWord,
                        integerLimit);
}

void vkrSeparateString(std::u16string_view sSource, std::u16string_view sFind,
                       std::u16string& sBefore, std::u16string& sTerm, std::u16string& sAfter,
                       std::int16_t iStartSearch, bool bIgnoreCase) {
    Separated parts =
        separateString(sSource, sFind, iStartSearch, compareMode(bIgnoreCase), integerLimit);
    sBefore = std::move(parts.before);
    sTerm = std::move(parts.term);
    sAfter = std::move(parts.after);
}

std::u16string vkrReplaceInString(std::u16string_view sSource, std::u16string_view sFind,
                                  std::u16string_view sReplace, std::int16_t iStartSearch,
                                  bool /*bIgnoreCase*/, bool bOnlyAtBeginning, bool bNotInSigns,
                                  bool bWholeWord) {
    const ReplaceOptions options{bOnlyAtBeginning, bNotInSigns, bWholeWord};
    return replaceInString(sSource, sFind, sReplace, iStartSearch, options, integerLimit);
}

std::u16string vkrReplaceInStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                     std::u16string_view sReplace, const Locale& locale,
                                     std::int16_t iStartSearch, bool /*bIgnoreCase*/,
                                     bool bOnlyAtBeginning, bool bWholeWord, bool bNotNumVals,
                                     bool bOnlyNumVals, std::u16string_view sNotInSigns) {
    const ReplaceExtOptions options{bOnlyAtBeginning, bWholeWord, bNotNumVals, bOnlyNumVals,
                                    sNotInSigns};
    return replaceInStringExt(sSource, sFind, sReplace, iStartSearch, options, locale,
                              integerLimit);
}

bool vkrIsInSigns(std::u16string_view sSource, std::u16string_view sSigns, std::int16_t iStart,
                  std::int16_t iLen) {
    return isInSigns(sSource, sSigns, iStart, iLen);
}

bool vkrIsNumericWord(std::u16string_view sSource, std::int16_t iStart, std::int16_t iLen,
                      const Locale& locale) {
    return isNumericWord(sSource, iStart, iLen, locale);
}

std::u16string vkrMid(std::u16string_view Source, std::int32_t Start, std::int32_t length) {
    try {
        return std::u16string(mid(Source, Start, length));
    } catch (const VbError&) {
        return {};
    }
}

void vkrMidLet(std::u16string& Source, std::int32_t Start, std::int32_t length,
               std::u16string_view value) {
    // Start + length is Long arithmetic and overflows past its range.
    const Pos removed = length == -1 ? static_cast<Pos>(value.size()) : length;
    if (Start + removed > std::numeric_limits<std::int32_t>::max())
        return;
    try {
        midLet(Source, Start, length, value);
    } catch (const VbError&) {
    }
}

} // namespace velkor6::text
