// OLE Automation dates: days since 1899-12-30, the fraction being the time of day.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <optional>
#include <string_view>

namespace velkor6 {

struct DateParts {
    int year = 1899, month = 12, day = 30;
    int hour = 0, minute = 0, second = 0;
    friend bool operator==(const DateParts&, const DateParts&) = default;
};

// Valid serials run from -657434 (100-01-01) to 2958465.99999 (9999-12-31 23:59:59).
constexpr double minDateSerial = -657434.0;
constexpr double maxDateSerial = 2958466.0;

// The calendar parts of a serial, rounded to the nearest second. Negative serials keep the
// fraction as a positive time: -1.25 is 1899-12-29 06:00. Raises error 6 outside the range.
DateParts splitDate(Date d);
// DateSerial + TimeSerial with VB's roll-over of months, days, hours, minutes and seconds.
// Raises error 5 for years outside 100..9999 after the roll-over.
Date makeDate(const DateParts& p);
Date dateSerial(int year, int month, int day); // two-digit years: 0-29 -> 20xx, 30-99 -> 19xx
int weekday(Date d);                           // 1 = Sunday ... 7 = Saturday

// Reads a date and/or time the way CDate does in the locale: the locale's short-date order,
// ISO yyyy-mm-dd, month names in English and the locale's language, times with ":" and AM/PM.
// A date needs its day, month and year: there is no clock here to supply the current year, so
// "15.03" is no date. A day and month that only fit the other way round are swapped.
std::optional<Date> parseDate(std::u16string_view text, const Locale& loc);

} // namespace velkor6
