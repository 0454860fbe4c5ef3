// The fonts installed on the system.
#pragma once

#include "velkor6/export.h"

#include <string>
#include <vector>

namespace velkor6 {

class VELKOR6_API Fonts {
public:
    virtual ~Fonts() = default;
    // The names of the installed font families, in no particular order; a name may repeat.
    // Empty when the system has no fonts or no way to list them.
    virtual std::vector<std::u16string> families() = 0;
};

} // namespace velkor6
