// Window-manager service: the caller's windows by handle, their styles and rectangles, the
// monitors' work areas and window messages.
#pragma once

#include "velkor6/export.h"

#include <cstdint>
#include <optional>

namespace velkor6 {

// A window handle as clients pass it (a Long).
using WindowHandle = std::int32_t;

// Screen coordinates in pixels; right and bottom lie just outside the window.
struct WindowRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    std::int32_t width() const { return right - left; }
    std::int32_t height() const { return bottom - top; }
    friend bool operator==(const WindowRect&, const WindowRect&) = default;
};

// Style bits of a window (WindowStyleConstants).
namespace winstyle {
inline constexpr std::uint32_t maximize = 0x01000000;
inline constexpr std::uint32_t minimize = 0x20000000;
inline constexpr std::uint32_t child = 0x40000000;
} // namespace winstyle

// Flags of setPosition (SetWindowPosConstants).
namespace swp {
inline constexpr std::uint32_t noSize = 1;
inline constexpr std::uint32_t noMove = 2;
inline constexpr std::uint32_t noZOrder = 4;
inline constexpr std::uint32_t noRedraw = 8;
inline constexpr std::uint32_t noActivate = 16;
} // namespace swp

// Show commands of show().
namespace showcmd {
inline constexpr std::int32_t normal = 1;
inline constexpr std::int32_t maximize = 3;
inline constexpr std::int32_t minimize = 6;
} // namespace showcmd

struct TwipsPerPixel {
    std::int32_t x = 15;
    std::int32_t y = 15;
};

class VELKOR6_API WindowManager {
public:
    virtual ~WindowManager() = default;

    // The style word of the window; 0 for a handle that is no window.
    virtual std::uint32_t style(WindowHandle window) = 0;
    // The parent (or owner) window; 0 for none.
    virtual WindowHandle parent(WindowHandle window) = 0;
    // The outer rectangle in screen pixels; nullopt for a handle that is no window.
    virtual std::optional<WindowRect> windowRect(WindowHandle window) = 0;
    // Moves, sizes and orders a window (as SetWindowPos, with its flags); for a child window the
    // position is in the parent's client coordinates.
    virtual bool setPosition(WindowHandle window, WindowHandle insertAfter, std::int32_t x,
                             std::int32_t y, std::int32_t width, std::int32_t height,
                             std::uint32_t flags) = 0;
    // Shows the window maximised, minimised or normal (a showcmd value).
    virtual bool show(WindowHandle window, std::int32_t command) = 0;
    // Sends a message to the window and returns its answer; 0 for a handle that is no window.
    virtual std::int32_t sendMessage(WindowHandle window, std::uint32_t message,
                                     std::int32_t wParam, std::int32_t lParam) = 0;

    // The work area (the screen without task bars) of the monitor nearest to the point, in
    // screen pixels; nullopt when the system cannot tell.
    virtual std::optional<WindowRect> workArea(std::int32_t x, std::int32_t y) = 0;
    // The primary screen's size in pixels (0 where there is no screen).
    virtual std::int32_t screenWidth() = 0;
    virtual std::int32_t screenHeight() = 0;
    // The screen's twips per pixel (1440 divided by the dots per inch), as VB's Screen gives it.
    virtual TwipsPerPixel twipsPerPixel() = 0;
};

} // namespace velkor6
