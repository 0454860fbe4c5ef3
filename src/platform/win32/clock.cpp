#include "platform/win32/services.h"

#include <windows.h>

namespace velkor6::win32 {
namespace {

// 100-nanosecond ticks of a FILETIME, and the days from 1601-01-01 to the automation epoch.
constexpr double ticksPerDay = 864000000000.0;
constexpr double daysFrom1601To1899 = 109205.0;

class Win32Clock final : public Clock {
public:
    Date now() const override { return Date{localTicks() / ticksPerDay - daysFrom1601To1899}; }

    double secondsSinceMidnight() const override {
        const auto ticksPerDayInt = static_cast<unsigned long long>(ticksPerDay);
        return static_cast<double>(localTicks() % ticksPerDayInt) / 1e7;
    }

    void sleep(std::chrono::milliseconds duration) override {
        Sleep(static_cast<DWORD>(duration.count() < 0 ? 0 : duration.count()));
    }

private:
    static unsigned long long localTicks() {
        FILETIME utc{};
        FILETIME local{};
        GetSystemTimePreciseAsFileTime(&utc);
        FileTimeToLocalFileTime(&utc, &local);
        return (static_cast<unsigned long long>(local.dwHighDateTime) << 32) | local.dwLowDateTime;
    }
};

} // namespace

std::unique_ptr<Clock> createClock() {
    return std::make_unique<Win32Clock>();
}

} // namespace velkor6::win32
