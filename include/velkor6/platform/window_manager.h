// Window-manager service: the caller's windows by handle, their styles and rectangles, the
// monitors' work areas and window messages; the window tree of all programs, z-order, owners,
// shapes, frame metrics and pointer confinement.
#pragma once

#include "velkor6/export.h"
#include "velkor6/platform/control_window.h"
#include "velkor6/platform/rgb_image.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

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
inline constexpr std::uint32_t popup = 0x80000000;
inline constexpr std::uint32_t border = 0x00800000;
inline constexpr std::uint32_t dlgFrame = 0x00400000;
// A title bar: border and dialog frame together.
inline constexpr std::uint32_t caption = border | dlgFrame;
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

// Window-frame sizes in pixels, as the system draws them (SystemMetricsConstants).
struct FrameMetrics {
    std::int32_t sizingFrame = 0; // SM_CYFRAME: the frame of a resizable window
    std::int32_t dialogFrame = 0; // SM_CYDLGFRAME: the frame of a window with a caption
    std::int32_t titleButton = 0; // SM_CYSIZE: a title-bar button (about the title's height)
};

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
    // The control window of this process behind the handle (a list view, text box or button);
    // nullptr for a handle that is none, or that belongs to another process.
    virtual std::shared_ptr<ControlWindow> controlWindow(WindowHandle) { return nullptr; }

    // The work area (the screen without task bars) of the monitor nearest to the point, in
    // screen pixels; nullopt when the system cannot tell.
    virtual std::optional<WindowRect> workArea(std::int32_t x, std::int32_t y) = 0;
    // The primary screen's size in pixels (0 where there is no screen).
    virtual std::int32_t screenWidth() = 0;
    virtual std::int32_t screenHeight() = 0;
    // The screen's twips per pixel (1440 divided by the dots per inch), as VB's Screen gives it.
    virtual TwipsPerPixel twipsPerPixel() = 0;

    // --- The window tree of all programs, top of the z-order first ----------------------
    // The top-most top-level window of the desktop; 0 when there is none.
    virtual WindowHandle topWindow() = 0;
    // The window just below this one among its siblings; 0 after the last one.
    virtual WindowHandle nextWindow(WindowHandle window) = 0;
    // The top-most child of the window; 0 when it has none.
    virtual WindowHandle firstChild(WindowHandle window) = 0;
    // The class name and the caption (title) of any program's window, at most 255 characters
    // each; "" for a handle that is no window.
    virtual std::u16string className(WindowHandle window) = 0;
    virtual std::u16string caption(WindowHandle window) = 0;
    // The window the user is working in; 0 when the system cannot tell.
    virtual WindowHandle foregroundWindow() = 0;

    // --- Z-order and owners --------------------------------------------------------------
    // Keeps the window above all windows that are not top-most themselves, without
    // activating, moving or sizing it.
    virtual bool setTopMost(WindowHandle window) = 0;
    // Makes the window a pop-up owned by owner: it then stays above that window only.
    virtual bool setOwner(WindowHandle window, WindowHandle owner) = 0;

    // --- Shape, frames and the pointer ---------------------------------------------------
    // Cuts the window to a rounded rectangle: area in coordinates relative to the window's
    // top-left corner, corners an ellipse of the given width and height (0 and 0: square).
    // The window system owns the shape from then on.
    virtual bool setRoundedShape(WindowHandle window, const WindowRect& area,
                                 std::int32_t ellipseWidth, std::int32_t ellipseHeight) = 0;
    // Gives the window's class a drop shadow, for the windows created after it too; false
    // where the window system has no such class bit.
    virtual bool addClassDropShadow(WindowHandle window) = 0;
    // The client area (inside frame and title) in screen pixels; nullopt for no window.
    virtual std::optional<WindowRect> clientRect(WindowHandle window) = 0;
    // Confines the pointer to the area (screen pixels; an empty or inverted area is the
    // system's to interpret); nullopt releases it.
    virtual bool confinePointer(std::optional<WindowRect> area) = 0;
    // The frame sizes. Where every window may have its own frame (X11, the window manager
    // draws it), those of the given window, or of the active window for 0.
    virtual FrameMetrics frameMetrics(WindowHandle window) = 0;

    // --- Opacity -------------------------------------------------------------------------
    // Sets how opaque a top-level window is drawn, from 0 (invisible, yet still there and
    // taking input where the system allows) to 1 (opaque, as every window starts); values
    // outside are clamped. False for a handle that is no window or where the window system
    // has no opacity.
    virtual bool setOpacity(WindowHandle, double) { return false; }
    // The opacity last set (1 for a window whose opacity was never changed); nullopt for a
    // handle that is no window or where the window system has no opacity.
    virtual std::optional<double> opacity(WindowHandle) { return std::nullopt; }

    // --- Bitmaps and device contexts (handles as the client holds them) -------------------
    // The pixels of a bitmap handle (a picture's Handle); nullopt for a handle that is none or
    // where the window system has no such handles.
    virtual std::optional<RgbImage> bitmapPixels(std::int64_t) { return std::nullopt; }
    // The pixels of a device context inside the area (clipped to what the context holds);
    // nullopt when it has none there.
    virtual std::optional<RgbImage> deviceContextPixels(std::int64_t, const WindowRect&) {
        return std::nullopt;
    }
    // Draws the pixels on a device context with their top-left corner at x, y.
    virtual bool drawPixels(std::int64_t, std::int32_t, std::int32_t, const RgbImage&) {
        return false;
    }
};

} // namespace velkor6
