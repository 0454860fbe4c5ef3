#include "core/date.h"

#include "core/calendar.h"
#include "velkor6/vb_error.h"

#include <cmath>

namespace velkor6 {

namespace {

constexpr std::int64_t firstDay = -657434; // 100-01-01
constexpr std::int64_t lastDay = 2958465;  // 9999-12-31

} // namespace

DaySecond splitSerial(double serial) {
    if (!std::isfinite(serial) || serial <= minDateSerial - 1 || serial >= maxDateSerial) {
        throw VbError(vberr::overflow);
    }
    const double whole = std::trunc(serial);
    std::int64_t dayNum = static_cast<std::int64_t>(whole);
    std::int64_t second = std::llround(std::fabs(serial - whole) * secondsPerDay);
    if (second >= secondsPerDay) {
        // 23:59:59.6 is the next day's midnight, except on the very last day there is.
        if (dayNum < lastDay) {
            ++dayNum;
            second = 0;
        } else {
            second = secondsPerDay - 1;
        }
    }
    if (dayNum < firstDay) {
        throw VbError(vberr::overflow);
    }
    return {dayNum, second};
}

DateParts splitDate(Date d) {
    const auto [dayNum, second] = splitSerial(d.serial);
    const CivilDate c = civilDate(dayNum);
    return {static_cast<int>(c.year),
            c.month,
            c.day,
            static_cast<int>(second / 3600),
            static_cast<int>(second / 60 % 60),
            static_cast<int>(second % 60)};
}

Date makeDate(const DateParts& p) {
    const std::int64_t monthIndex = std::int64_t{p.year} * 12 + (p.month - 1);
    const std::int64_t year = floorDiv(monthIndex, 12);
    const int month = static_cast<int>(floorMod(monthIndex, 12)) + 1;
    // Far outside the range the day arithmetic could overflow; nothing valid lies there.
    if (year < 0 || year > 20000) {
        throw VbError(vberr::invalidCall);
    }
    const std::int64_t seconds =
        std::int64_t{p.hour} * 3600 + std::int64_t{p.minute} * 60 + std::int64_t{p.second};
    const std::int64_t dayNum =
        dayNumber(year, month, 1) + (std::int64_t{p.day} - 1) + floorDiv(seconds, secondsPerDay);
    if (dayNum < firstDay || dayNum > lastDay) {
        throw VbError(vberr::invalidCall);
    }
    return Date{composeSerial(dayNum, floorMod(seconds, secondsPerDay))};
}

Date dateSerial(int year, int month, int day) {
    if (year >= 0 && year <= 29) {
        year += 2000;
    } else if (year >= 30 && year <= 99) {
        year += 1900;
    }
    return makeDate({year, month, day, 0, 0, 0});
}

int weekday(Date d) {
    // Day 0, 1899-12-30, was a Saturday.
    return static_cast<int>(floorMod(splitSerial(d.serial).dayNum + 6, 7)) + 1;
}

} // namespace velkor6
