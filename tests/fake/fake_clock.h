// A clock that stands still until a test moves it, or that moves on by a step at every reading
// of the seconds since midnight (so that loops watching it end).
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
    // Today at this many seconds after midnight.
    void setSecondsSinceMidnight(double seconds);
    void advance(double seconds);
    void setReadStep(double seconds) { step_ = seconds; }

private:
    mutable Date now_;
    double step_ = 0;
};

} // namespace velkor6::fake
