// A clock that stands still until a test moves it.
#pragma once

#include "velkor6/platform/clock.h"

namespace velkor6::fake {

class FakeClock final : public Clock {
public:
    // 2024-03-15 10:30:00 unless set otherwise.
    FakeClock();

    Date now() const override { return now_; }
    double secondsSinceMidnight() const override;
    // Sleeping moves the clock on by the duration at once.
    void sleep(std::chrono::milliseconds duration) override;

    void set(Date now) { now_ = now; }
    void advance(double seconds);

private:
    Date now_;
};

} // namespace velkor6::fake
