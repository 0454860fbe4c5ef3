// Class `lib`: the function library. Each member forwards to its subsystem; the same members are
// reachable by name through the dispatch table (CLI, COM).
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "velkor6/module.h"
#include "velkor6/variant.h"

namespace velkor6 {

class lib {
public:
    explicit lib(std::shared_ptr<Module> module);

    Module& module() { return *module_; }
    const Locale& locale() const { return module_->locale(); }

    // --- Substring search, count and replace ---------------------------------------------
    std::int16_t vkrFindSubString(std::u16string_view sSource, std::u16string_view sFind,
                                  std::int16_t iStartSearch = 1, bool bIgnoreCase = true,
                                  bool bFindFirst = true, bool bWholeWord = false,
                                  std::u16string* sFound = nullptr);
    std::int16_t vkrFindLastSubString(std::u16string_view sSource, std::u16string_view sFind,
                                      std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
    std::int16_t vkrHasSubString(std::u16string_view sSource, std::u16string_view sFind,
                                 std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
    std::int16_t vkrCountSubString(std::u16string_view sSource, std::u16string_view sFind,
                                   std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
    std::int16_t vkrCountSubStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                      std::int16_t iStartSearch = 1, bool bIgnoreCase = true,
                                      std::u16string_view sNotInSigns = {});
    std::u16string vkrGetSubString(std::u16string_view sSource, std::u16string_view sBefore,
                                   std::u16string_view sAfter, std::int16_t iStartSearch = 1,
                                   bool bIgnoreCase = true, bool bWholeWord = false);
    void vkrSeparateString(std::u16string_view sSource, std::u16string_view sFind,
                           std::u16string& sBefore, std::u16string& sTerm, std::u16string& sAfter,
                           std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
    std::u16string vkrReplaceInString(std::u16string_view sSource, std::u16string_view sFind,
                                      std::u16string_view sReplace, std::int16_t iStartSearch = 1,
                                      bool bIgnoreCase = true, bool bOnlyAtBeginning = false,
                                      bool bNotInSigns = true, bool bWholeWord = false);
    std::u16string vkrReplaceInStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                         std::u16string_view sReplace,
                                         std::int16_t iStartSearch = 1, bool bIgnoreCase = true,
                                         bool bOnlyAtBeginning = false, bool bWholeWord = false,
                                         bool bNotNumVals = false, bool bOnlyNumVals = false,
                                         std::u16string_view sNotInSigns = {});
    bool vkrIsInSigns(std::u16string_view sSource, std::u16string_view sSigns, std::int16_t iStart,
                      std::int16_t iLen);
    bool vkrIsNumericWord(std::u16string_view sSource, std::int16_t iStart, std::int16_t iLen);
    std::u16string vkrMid(std::u16string_view Source, std::int32_t Start,
                          std::int32_t length = -1);
    void vkrMidLet(std::u16string& Source, std::int32_t Start, std::int32_t length,
                   std::u16string_view value);

    // --- Number parsing and conversion ---------------------------------------------------
    double vkrVal(std::u16string_view sSource);
    Variant vkrCVal(std::int32_t VarType, const Variant& SourceVal);
    Variant vkrRound(const Variant& vSourceValue, std::int16_t iDecimalPlaces);
    std::int32_t vkrHexToDec(const Variant& vHexVal);
    double vkrHex2Dbl(std::u16string_view sValue);
    std::u16string vkrDbl2Hex(double dValue, std::int16_t iMinLen = 0);
    void vkrBruchrechnung(float nValue, std::int32_t& lZaehler, std::int32_t& lNenner);
    bool vkrCompare(float nSource, float nTarget, float nTolerance);
    bool vkrAND(std::int32_t lVal1, std::int32_t lVal2);

    // --- SQL literal and value helpers ----------------------------------------------------

    // --- Call by name and compression ----------------------------------------------------

    // --- Paths and files -----------------------------------------------------------------

    // --- Predefined expressions and text files -------------------------------------------

    // --- Folders, special folders and file comparison ------------------------------------

    // --- Registry reading ----------------------------------------------------------------

private:
    std::shared_ptr<Module> module_;
};

} // namespace velkor6
