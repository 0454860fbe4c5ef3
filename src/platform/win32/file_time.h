// FILETIME values as automation dates.
#pragma once

#include "velkor6/variant.h"

#include <windows.h>

namespace velkor6::win32 {

// Days from 1601-01-01 (FILETIME's epoch) to 1899-12-30 (the automation epoch).
inline constexpr double daysFrom1601To1899 = 109205.0;
inline constexpr double ticksPerDay = 864000000000.0;

inline unsigned long long ticks(const FILETIME& t) {
    return (static_cast<unsigned long long>(t.dwHighDateTime) << 32) | t.dwLowDateTime;
}

// A UTC file time as a local date, cut to whole seconds.
inline Date localDate(const FILETIME& utc) {
    FILETIME local{};
    FileTimeToLocalFileTime(&utc, &local);
    const unsigned long long seconds = ticks(local) / 10000000ULL;
    return Date{static_cast<double>(seconds) / 86400.0 - daysFrom1601To1899};
}

} // namespace velkor6::win32
