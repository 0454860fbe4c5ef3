#include "fake/fake_clock.h"

#include "core/date.h"

#include <cmath>

namespace velkor6::fake {

FakeClock::FakeClock() : now_(makeDate({2024, 3, 15, 10, 30, 0})) {}

double FakeClock::secondsSinceMidnight() const {
    const double day = std::floor(now_.serial);
    const double seconds = std::round((now_.serial - day) * 86400.0 * 1000.0) / 1000.0;
    now_.serial += step_ / 86400.0;
    return seconds;
}

void FakeClock::setSecondsSinceMidnight(double seconds) {
    now_.serial = std::floor(now_.serial) + seconds / 86400.0;
}

void FakeClock::sleep(std::chrono::milliseconds duration) {
    advance(static_cast<double>(duration.count()) / 1000.0);
}

void FakeClock::advance(double seconds) {
    now_.serial += seconds / 86400.0;
}

} // namespace velkor6::fake
