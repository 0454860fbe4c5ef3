#include "platform/win32/services.h"

namespace velkor6 {

std::unique_ptr<Platform> Platform::createNative() {
    auto p = std::make_unique<Platform>();
    p->clock = win32::createClock();
    return p;
}

} // namespace velkor6
