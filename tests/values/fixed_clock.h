// A module over a platform whose clock stands still, for members that read today's date.
#pragma once

#include "velkor6/module.h"
#include "velkor6/platform/clock.h"
#include "velkor6/platform/platform.h"

#include <memory>

namespace velkor6::testing {

class FixedClock final : public Clock {
public:
    explicit FixedClock(Date now) : now_(now) {}
    Date now() const override { return now_; }
    double secondsSinceMidnight() const override {
        return (now_.serial - static_cast<long long>(now_.serial)) * 86400.0;
    }
    void sleep(std::chrono::milliseconds) override {}

private:
    Date now_;
};

inline std::shared_ptr<Module> moduleAt(Date now, const Locale& locale) {
    auto platform = std::make_unique<Platform>();
    platform->clock = std::make_unique<FixedClock>(now);
    return std::make_shared<Module>(std::move(platform), locale);
}

} // namespace velkor6::testing
