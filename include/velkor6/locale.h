// Number and date conventions of a user's locale.
#pragma once

#include "velkor6/export.h"

#include <string>

namespace velkor6 {

struct VELKOR6_API Locale {
    std::u16string name;           // "de-DE"
    char16_t decimal = u'.';       // decimal separator
    char16_t grouping = u',';      // thousands separator
    std::u16string currencySymbol; // "$", "€"
    char16_t dateSeparator = u'/'; // what "/" in a date mask becomes
    char16_t timeSeparator = u':'; // what ":" in a date mask becomes
    std::u16string shortDate;      // Windows picture: "M/d/yyyy", "dd.MM.yyyy"
    std::u16string longTime;       // Windows picture: "h:mm:ss tt", "HH:mm:ss"
    std::u16string am = u"AM";
    std::u16string pm = u"PM";
    std::u16string country; // "United States", "Deutschland"

    static const Locale& germanGermany();
    static const Locale& englishUS();
    // By name ("de-DE", "en-US", also "de_DE.UTF-8"); unknown names give English (US).
    static const Locale& preset(std::u16string_view name);
};

} // namespace velkor6
