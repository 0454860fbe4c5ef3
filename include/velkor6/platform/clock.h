// Clock service: the current local time.
#pragma once

#include "velkor6/export.h"
#include "velkor6/variant.h"

#include <chrono>

namespace velkor6 {

class VELKOR6_API Clock {
public:
    virtual ~Clock() = default;
    // Local date and time now.
    virtual Date now() const = 0;
    // Seconds since local midnight, with fractions (VB's Timer).
    virtual double secondsSinceMidnight() const = 0;
    virtual void sleep(std::chrono::milliseconds duration) = 0;
};

} // namespace velkor6
