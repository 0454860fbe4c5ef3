// Showing a form modally: its owner is disabled while it is up, and gets back its state and
// focus afterwards.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <functional>

namespace velkor6::ui::win32 {

// Runs the message loop for `form` until `finished` returns true. `preview` sees every message
// first and returns true for those it handled. A WM_QUIT ends the loop and is posted again for
// the caller's own loop.
void runModal(HWND form, HWND owner, const std::function<bool()>& finished,
              const std::function<bool(const MSG&)>& preview);

// The window a dialog of the calling thread belongs to: its active top-level window, if any.
HWND defaultOwner();

} // namespace velkor6::ui::win32
