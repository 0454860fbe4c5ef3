// The text toolkit as the library's members expose it: 16-bit Integer positions, lengths and
// counts, Booleans for the compare mode, and errors trapped where the members trap them.
#pragma once

#include "velkor6/locale.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor6::text {

std::int16_t vkrFindSubString(std::u16string_view sSource, std::u16string_view sFind,
                              std::int16_t iStartSearch = 1, bool bIgnoreCase = true,
                              bool bFindFirst = true, bool bWholeWord = false,
                              std::u16string* sFound = nullptr);
std::int16_t vkrFindLastSubString(std::u16string_view sSource, std::u16string_view sFind,
                                  std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
// -1 when found, else 0.
std::int16_t vkrHasSubString(std::u16string_view sSource, std::u16string_view sFind,
                             std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
// Raise error 6 when a position or the count passes 32767.
std::int16_t vkrCountSubString(std::u16string_view sSource, std::u16string_view sFind,
                               std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
std::int16_t vkrCountSubStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                  std::int16_t iStartSearch = 1, bool bIgnoreCase = true,
                                  std::u16string_view sNotInSigns = {});
// iStartSearch is accepted and ignored: both searches start at the beginning.
std::u16string vkrGetSubString(std::u16string_view sSource, std::u16string_view sBefore,
                               std::u16string_view sAfter, std::int16_t iStartSearch = 1,
                               bool bIgnoreCase = true, bool bWholeWord = false);
void vkrSeparateString(std::u16string_view sSource, std::u16string_view sFind,
                       std::u16string& sBefore, std::u16string& sTerm, std::u16string& sAfter,
                       std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
// Matching ignores case whatever bIgnoreCase says. Raise error 6 when the position passes
// 32767.
std::u16string vkrReplaceInString(std::u16string_view sSource, std::u16string_view sFind,
                                  std::u16string_view sReplace, std::int16_t iStartSearch = 1,
                                  bool bIgnoreCase = true, bool bOnlyAtBeginning = false,
                                  bool bNotInSigns = true, bool bWholeWord = false);
std::u16string vkrReplaceInStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                     std::u16string_view sReplace, const Locale& locale,
                                     std::int16_t iStartSearch = 1, bool bIgnoreCase = true,
                                     bool bOnlyAtBeginning = false, bool bWholeWord = false,
                                     bool bNotNumVals = false, bool bOnlyNumVals = false,
                                     std::u16string_view sNotInSigns = {});
bool vkrIsInSigns(std::u16string_view sSource, std::u16string_view sSigns, std::int16_t iStart,
                  std::int16_t iLen);
bool vkrIsNumericWord(std::u16string_view sSource, std::int16_t iStart, std::int16_t iLen,
                      const Locale& locale);
// Mid, or the rest of the text for a length of -1; "" where Mid fails.
std::u16string vkrMid(std::u16string_view Source, std::int32_t Start, std::int32_t length = -1);
// Leaves Source alone where Mid fails.
void vkrMidLet(std::u16string& Source, std::int32_t Start, std::int32_t length,
               std::u16string_view value);

} // namespace velkor6::text
