// The operating-system services the library asks for; one implementation per platform,
// and a fake one in the tests.
#pragma once

#include <memory>

#include "velkor6/locale.h"
#include "velkor6/platform/clock.h"

namespace velkor6 {

struct Platform {
    std::unique_ptr<Clock> clock;

    // The services of the operating system this library was built for.
    static std::unique_ptr<Platform> createNative();
};

// The user's locale as the operating system reports it.
Locale nativeLocale();

} // namespace velkor6
