// The caller's own control windows (list views, text boxes, buttons) by their handles.
#pragma once

#include "velkor6/platform/control_window.h"

#include <memory>
#include <windows.h>

namespace velkor6::win32 {

// The control behind the window; nullptr when it is no window or belongs to another process
// (list-view messages carry pointers, which the system does not carry across processes).
std::shared_ptr<ControlWindow> openControlWindow(HWND window);

} // namespace velkor6::win32
