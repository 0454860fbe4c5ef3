// Centring windows and keeping them above others.
#pragma once

#include "velkor6/platform/window_manager.h"

namespace velkor6::windows {

// Moves the window (size and z-order kept) to the middle of the primary screen, raised by one
// title-bar button and one sizing frame.
void centre(WindowManager& windows, WindowHandle window);
// Keeps the window above all normal windows, without activating, moving or sizing it.
void topMost(WindowManager& windows, WindowHandle window);
// Centres (when asked), shows and makes top-most; nothing for handle 0.
void openTopMost(WindowManager& windows, WindowHandle window, bool centreIt);
// Centres (when asked), shows and makes the window a pop-up owned by appWindow, so that it stays
// above that window only; nothing unless both handles are given.
void openApplicationTopMost(WindowManager& windows, WindowHandle window, WindowHandle appWindow,
                            bool centreIt);
// Owned by owner (or by the foreground window when owner is 0) when that is another window;
// otherwise top-most.
void applicationTopMost(WindowManager& windows, WindowHandle client, WindowHandle owner);

} // namespace velkor6::windows
