// `lib` members for substring search, count and replace: forwards to src/text.
#include "text/text_members.h"
#include "velkor6/lib.h"

namespace velkor6 {

std::int16_t lib::vkrFindSubString(std::u16string_view sSource, std::u16string_view sFind,
                                   std::int16_t iStartSearch, bool bIgnoreCase, bool bFindFirst,
                                   bool bWholeWord, std::u16string* sFound) {
    return text::vkrFindSubString(sSource, sFind, iStartSearch, bIgnoreCase, bFindFirst, bWholeWord,
                                  sFound);
}

std::int16_t lib::vkrFindLastSubString(std::u16string_view sSource, std::u16string_view sFind,
                                       std::int16_t iStartSearch, bool bIgnoreCase) {
    return text::vkrFindLastSubString(sSource, sFind, iStartSearch, bIgnoreCase);
}

std::int16_t lib::vkrHasSubString(std::u16string_view sSource, std::u16string_view sFind,
                                  std::int16_t iStartSearch, bool bIgnoreCase) {
    return text::vkrHasSubString(sSource, sFind, iStartSearch, bIgnoreCase);
}

std::int16_t lib::vkrCountSubString(std::u16string_view sSource, std::u16string_view sFind,
                                    std::int16_t iStartSearch, bool bIgnoreCase) {
    return text::vkrCountSubString(sSource, sFind, iStartSearch, bIgnoreCase);
}

std::int16_t lib::vkrCountSubStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                       std::int16_t iStartSearch, bool bIgnoreCase,
                                       std::u16string_view sNotInSigns) {
    return text::vkrCountSubStringExt(sSource, sFind, iStartSearch, bIgnoreCase, sNotInSigns);
}

std::u16string lib::vkrGetSubString(std::u16string_view sSource, std::u16string_view sBefore,
                                    std::u16string_view sAfter, std::int16_t iStartSearch,
                                    bool bIgnoreCase, bool bWholeWord) {
    return text::vkrGetSubString(sSource, sBefore, sAfter, iStartSearch, bIgnoreCase, bWholeWord);
}

void lib::vkrSeparateString(std::u16string_view sSource, std::u16string_view sFind,
                            std::u16string& sBefore, std::u16string& sTerm, std::u16string& sAfter,
                            std::int16_t iStartSearch, bool bIgnoreCase) {
    text::vkrSeparateString(sSource, sFind, sBefore, sTerm, sAfter, iStartSearch, bIgnoreCase);
}

std::u16string lib::vkrReplaceInString(std::u16string_view sSource, std::u16string_view sFind,
                                       std::u16string_view sReplace, std::int16_t iStartSearch,
                                       bool bIgnoreCase, bool bOnlyAtBeginning, bool bNotInSigns,
                                       bool bWholeWord) {
    return text::vkrReplaceInString(sSource, sFind, sReplace, iStartSearch, bIgnoreCase,
                                    bOnlyAtBeginning, bNotInSigns, bWholeWord);
}

std::u16string lib::vkrReplaceInStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                          std::u16string_view sReplace, std::int16_t iStartSearch,
                                          bool bIgnoreCase, bool bOnlyAtBeginning, bool bWholeWord,
                                          bool bNotNumVals, bool bOnlyNumVals,
                                          std::u16string_view sNotInSigns) {
    return text::vkrReplaceInStringExt(sSource, sFind, sReplace, locale(), iStartSearch,
                                       bIgnoreCase, bOnlyAtBeginning, bWholeWord, bNotNumVals,
                                       bOnlyNumVals, sNotInSigns);
}

bool lib::vkrIsInSigns(std::u16string_view sSource, std::u16string_view sSigns, std::int16_t iStart,
                       std::int16_t iLen) {
    return text::vkrIsInSigns(sSource, sSigns, iStart, iLen);
}

bool lib::vkrIsNumericWord(std::u16string_view sSource, std::int16_t iStart, std::int16_t iLen) {
    return text::vkrIsNumericWord(sSource, iStart, iLen, locale());
}

std::u16string lib::vkrMid(std::u16string_view Source, std::int32_t Start, std::int32_t length) {
    return text::vkrMid(Source, Start, length);
}

void lib::vkrMidLet(std::u16string& Source, std::int32_t Start, std::int32_t length,
                    std::u16string_view value) {
    text::vkrMidLet(Source, Start, length, value);
}

} // namespace velkor6
