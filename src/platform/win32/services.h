// The Win32 implementations of the platform services.
#pragma once

#include <memory>

#include "velkor6/platform/platform.h"

namespace velkor6::win32 {

std::unique_ptr<Clock> createClock();

} // namespace velkor6::win32
