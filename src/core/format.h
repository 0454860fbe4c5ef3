// VB's Format for the masks this library uses, and the named date forms.
#pragma once

#include <string>
#include <string_view>

#include "velkor6/locale.h"
#include "velkor6/variant.h"

namespace velkor6 {

// Format(value, mask). Number masks: 0 # . , literals (backslash, "quoted") and up to four
// sections separated by ";". Number rounding is half away from zero on the 15-digit decimal text,
// so Format(2.675, "0.00") is "2.68". Date masks: d dd ddd dddd m mm mmm mmmm yy yyyy h hh n nn
// s ss AM/PM A/P, "/" and ":" become the locale separators, m after h means minutes.
// Named forms: "General Date", "Short Date", "Short Time", "Long Time", "General Number",
// "Fixed", "Standard", "Percent". Null gives "". An empty mask gives CStr(value).
std::u16string format(const Variant& value, std::u16string_view mask, const Locale& loc);

// The text VB's Print and CStr give a date: General Date in the locale.
std::u16string formatGeneralDate(Date d, const Locale& loc);

} // namespace velkor6
