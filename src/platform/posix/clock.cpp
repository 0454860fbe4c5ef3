#include "velkor6/platform/clock.h"

#include "platform/posix/services.h"

#include <ctime>
#include <thread>

namespace velkor6 {
namespace {

class PosixClock final : public Clock {
public:
    Date now() const override {
        const auto [tm, nanos] = localNow();
        const double seconds = tm.tm_hour * 3600.0 + tm.tm_min * 60.0 + tm.tm_sec;
        return Date{daysFromCivil(tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday) +
                    (seconds + nanos * 1e-9) / 86400.0};
    }

    double secondsSinceMidnight() const override {
        const auto [tm, nanos] = localNow();
        return tm.tm_hour * 3600.0 + tm.tm_min * 60.0 + tm.tm_sec + nanos * 1e-9;
    }

    void sleep(std::chrono::milliseconds duration) override {
        std::this_thread::sleep_for(duration);
    }

private:
    struct LocalTime {
        std::tm tm;
        long nanos;
    };

    static LocalTime localNow() {
        timespec ts{};
        clock_gettime(CLOCK_REALTIME, &ts);
        LocalTime result{};
        localtime_r(&ts.tv_sec, &result.tm);
        result.nanos = ts.tv_nsec;
        return result;
    }

    // Days since 1899-12-30 of a proleptic Gregorian date.
    static double daysFromCivil(int y, int m, int d) {
        y -= m <= 2 ? 1 : 0;
        const int era = (y >= 0 ? y : y - 399) / 400;
        const int yoe = y - era * 400;
        const int doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
        const int doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
        const long days1970 = static_cast<long>(era) * 146097 + doe - 719468;
        return static_cast<double>(days1970 + 25569);
    }
};

} // namespace

namespace posix {
std::unique_ptr<Clock> createClock() {
    return std::make_unique<PosixClock>();
}
} // namespace posix

} // namespace velkor6
