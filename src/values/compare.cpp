#include "values/numbers.h"
#include "velkor6/vb_error.h"

#include <cmath>

namespace velkor6::values {

bool withinTolerance(float source, float target, float tolerance) {
    const float lower = target - tolerance;
    const float upper = target + tolerance;
    // Single arithmetic that leaves the range is VB's overflow, not an infinity.
    if (std::isfinite(target) && std::isfinite(tolerance) &&
        (std::isinf(lower) || std::isinf(upper)))
        throw VbError(vberr::overflow);
    return lower <= source && source <= upper;
}

} // namespace velkor6::values
