// Proleptic Gregorian calendar arithmetic on day numbers (day 0 = 1899-12-30).
#pragma once

#include <cstdint>

namespace velkor6 {

struct CivilDate {
    std::int64_t year = 1899;
    int month = 12, day = 30;
};

constexpr std::int64_t secondsPerDay = 86400;

// Floor division, for roll-over of negative counts.
constexpr std::int64_t floorDiv(std::int64_t a, std::int64_t b) {
    std::int64_t q = a / b;
    return (a % b != 0 && (a < 0) != (b < 0)) ? q - 1 : q;
}
constexpr std::int64_t floorMod(std::int64_t a, std::int64_t b) {
    return a - floorDiv(a, b) * b;
}

constexpr bool isLeapYear(std::int64_t y) {
    return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
}

constexpr int daysInMonth(std::int64_t year, int month) {
    constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : lengths[month - 1];
}

// Day number of a valid calendar date. Counts in 400-year eras starting on March 1st so that
// the leap day is the last day of each shifted year.
constexpr std::int64_t dayNumber(std::int64_t year, int month, int day) {
    const std::int64_t y = month <= 2 ? year - 1 : year;
    const std::int64_t era = floorDiv(y, 400);
    const std::int64_t yearOfEra = y - era * 400;
    const std::int64_t shiftedMonth = month > 2 ? month - 3 : month + 9;
    const std::int64_t dayOfYear = (153 * shiftedMonth + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    constexpr std::int64_t daysFrom0000To18991230 = 693899; // March-based epoch offset
    return era * 146097 + dayOfEra - daysFrom0000To18991230;
}

constexpr CivilDate civilDate(std::int64_t dayNum) {
    const std::int64_t z = dayNum + 693899;
    const std::int64_t era = floorDiv(z, 146097);
    const std::int64_t dayOfEra = z - era * 146097;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t shiftedMonth = (5 * dayOfYear + 2) / 153;
    const int day = static_cast<int>(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
    const int month = static_cast<int>(shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9);
    const std::int64_t year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    return {year, month, day};
}

static_assert(dayNumber(1899, 12, 30) == 0);
static_assert(dayNumber(1900, 1, 1) == 2);
static_assert(dayNumber(100, 1, 1) == -657434);
static_assert(dayNumber(9999, 12, 31) == 2958465);
static_assert(civilDate(2958465).year == 9999 && civilDate(-657434).year == 100);

// The serial of a calendar day plus a time of day: negative days carry the time as a positive
// fraction, so the fraction is subtracted.
constexpr double composeSerial(std::int64_t dayNum, std::int64_t secondOfDay) {
    const double fraction = static_cast<double>(secondOfDay) / secondsPerDay;
    const double day = static_cast<double>(dayNum);
    return dayNum < 0 ? day - fraction : day + fraction;
}

// A serial split into its calendar day number and the second of that day, rounded to the
// nearest second. Raises error 6 (overflow) outside the valid date range.
struct DaySecond {
    std::int64_t dayNum = 0;
    std::int64_t second = 0;
};
DaySecond splitSerial(double serial);

} // namespace velkor6
