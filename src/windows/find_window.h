// Finding any program's window by class name and caption patterns.
#pragma once

#include "velkor6/platform/window_manager.h"

#include <string_view>

namespace velkor6::windows {

// lTopHwnd's value for "start at the top of the desktop".
inline constexpr WindowHandle desktopTop = -1;

// The first window, depth first (a window before its children, all of them before its next
// sibling), whose class name and caption match the patterns (Like, case-sensitive). The search
// starts at `start` (desktopTop: the top-most window of the desktop), or, with findNext, at the
// window after it, and runs to the end of that window's siblings. 0 when none matches.
WindowHandle findWindow(WindowManager& windows, WindowHandle start,
                        std::u16string_view classPattern, std::u16string_view captionPattern,
                        bool findNext = false);

} // namespace velkor6::windows
