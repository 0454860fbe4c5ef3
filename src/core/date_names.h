// Month and day names in the languages the library formats and reads dates in.
#pragma once

#include "velkor6/locale.h"

#include <string_view>

namespace velkor6 {

enum class DateLanguage { English, German };

// German for German locales ("de-DE", "de_AT.UTF-8"), English for all others.
DateLanguage dateLanguage(const Locale& loc);

std::u16string_view monthName(int month, DateLanguage lang);         // "March", "März"
std::u16string_view monthAbbreviation(int month, DateLanguage lang); // "Mar", "Mrz"
std::u16string_view dayName(int weekday, DateLanguage lang);         // 1 = "Sunday"
std::u16string_view dayAbbreviation(int weekday, DateLanguage lang); // 1 = "Sun", "So"

// The month (1-12) a word names in English or German, in full or abbreviated, ignoring case;
// 0 for any other word.
int monthFromName(std::u16string_view word);
// Whether a word is a day name in English or German, in full or abbreviated, ignoring case.
bool isDayName(std::u16string_view word);

} // namespace velkor6
