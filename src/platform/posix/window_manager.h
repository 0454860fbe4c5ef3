// The POSIX window manager: X11 windows (a handle is the X window id) over the library's own
// display connection; every answer is the neutral one when there is no display.
#pragma once

#include "velkor6/platform/window_manager.h"

#include <memory>

namespace velkor6::posix {

// The library's X connection (x_display.h); declared only, so that Xlib's macros stay out of
// the files that include this one.
class XConnection;

std::unique_ptr<WindowManager> createWindowManager(std::shared_ptr<XConnection> x);

} // namespace velkor6::posix
