// The POSIX window manager.
#pragma once

#include "velkor6/platform/window_manager.h"

#include <memory>

namespace velkor6::posix {

std::unique_ptr<WindowManager> createWindowManager();

} // namespace velkor6::posix
