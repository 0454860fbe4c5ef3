// Date masks of Format, the named date forms and the locale's date pictures.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <optional>
#include <string>
#include <string_view>

namespace velkor6 {

// Whether a mask formats dates: it has date or time tokens and no digit placeholders.
bool isDateMask(std::u16string_view mask);

// "General Date", "Long Date", "Medium Date", "Short Date", "Long Time", "Medium Time",
// "Short Time" in any case.
bool isNamedDateForm(std::u16string_view mask);
std::u16string formatNamedDate(Date d, std::u16string_view name, const Locale& loc);

// A date mask: d dd ddd dddd ddddd dddddd w ww m mm mmm mmmm q y yy yyyy h hh n nn s ss ttttt c
// AM/PM am/pm A/P a/p AMPM, "/" and ":" as the locale's separators, literals.
std::u16string formatDateMask(Date d, std::u16string_view mask, const Locale& loc);

// A Windows date or time picture ("dd.MM.yyyy", "h:mm:ss tt").
std::u16string formatDatePicture(Date d, std::u16string_view picture, const Locale& loc);

} // namespace velkor6
