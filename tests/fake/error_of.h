// The VB error number a call raises, or 0 when it raises none.
#pragma once

#include "velkor6/vb_error.h"

#include <cstdint>

namespace velkor6 {

std::int32_t errorOf(auto&& f) {
    try {
        f();
    } catch (const VbError& e) {
        return e.number();
    }
    return 0;
}

} // namespace velkor6
