// VB's Format for the masks this library uses, and the named date forms.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <string>
#include <string_view>

namespace velkor6 {

// Format(value, mask). Number masks: 0 # . , literals (backslash, "quoted") and up to four
// sections separated by ";". Number rounding is half away from zero on the 15-digit decimal text,
// so Format(2.675, "0.00") is "2.68". Date masks: d dd ddd dddd m mm mmm mmmm yy yyyy h hh n nn
// s ss AM/PM A/P, "/" and ":" become the locale separators, m after h means minutes.
// Named forms (any case): "General Date", "Long Date", "Medium Date", "Short Date", "Long Time",
// "Medium Time", "Short Time", "General Number", "Fixed", "Standard", "Percent", "Scientific",
// "Yes/No", "True/False", "On/Off". Null gives "" (or the fourth section of a number mask).
// An empty mask gives CStr(value). Text that reads as no number or date comes back unchanged.
std::u16string format(const Variant& value, std::u16string_view mask, const Locale& loc);

// The text VB's Print and CStr give a date: General Date in the locale.
std::u16string formatGeneralDate(Date d, const Locale& loc);

} // namespace velkor6
