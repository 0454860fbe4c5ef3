// Windows, monitors and the library's control windows held in memory. Records every placement and
// state change the library asks for.
#pragma once

#include "velkor6/platform/window_manager.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velkor6::fake {

class FakeWindowManager final : public WindowManager {
public:
    struct Window {
        std::uint32_t style = 0;
        WindowHandle parent = 0;
        WindowRect rect;
        std::int32_t shown = 0; // the last show command, 0 for none
        std::u16string className{};
        std::u16string caption{};
        std::optional<WindowRect> client{}; // the client area; the window rectangle when unset
        bool topMost = false;
        WindowHandle owner = 0;
        struct Shape {
            WindowRect area;
            std::int32_t ellipseWidth = 0, ellipseHeight = 0;
        };
        std::optional<Shape> shape{};
        bool classShadow = false;
    };
    struct Placement {
        WindowHandle window = 0;
        std::int32_t x = 0, y = 0, width = 0, height = 0;
        std::uint32_t flags = 0;
    };

    // --- Setting up ---------------------------------------------------------------------
    Window& addWindow(WindowHandle handle, Window window);
    Window& window(WindowHandle handle) { return windows_.at(handle); }
    // Without monitors the work area is unknown.
    void addMonitor(WindowRect bounds, WindowRect work);
    void setScreen(std::int32_t width, std::int32_t height);
    void setTwipsPerPixel(TwipsPerPixel tpp) { twips_ = tpp; }
    const std::vector<Placement>& placements() const { return placements_; }
    // The tree: windows with the same parent are siblings, the one added first on top.
    void removeWindow(WindowHandle handle);
    // Called with the number of each search from the top (1 for the first), before it starts,
    // so that windows can come and go while a caller waits.
    void onSearch(std::function<void(int)> f) { onSearch_ = std::move(f); }
    int searches() const { return searches_; }
    void setForeground(WindowHandle w) { foreground_ = w; }
    void setFrameMetrics(FrameMetrics m) { frame_ = m; }
    // Each confinePointer call: the area, or nullopt for a release.
    const std::vector<std::optional<WindowRect>>& confinements() const { return confinements_; }

    // --- WindowManager ------------------------------------------------------------------
    std::uint32_t style(WindowHandle window) override;
    WindowHandle parent(WindowHandle window) override;
    std::optional<WindowRect> windowRect(WindowHandle window) override;
    bool setPosition(WindowHandle window, WindowHandle insertAfter, std::int32_t x, std::int32_t y,
                     std::int32_t width, std::int32_t height, std::uint32_t flags) override;
    bool show(WindowHandle window, std::int32_t command) override;
    std::int32_t sendMessage(WindowHandle window, std::uint32_t message, std::int32_t wParam,
                             std::int32_t lParam) override;
    std::optional<WindowRect> workArea(std::int32_t x, std::int32_t y) override;
    std::int32_t screenWidth() override { return screenWidth_; }
    std::int32_t screenHeight() override { return screenHeight_; }
    TwipsPerPixel twipsPerPixel() override { return twips_; }
    WindowHandle topWindow() override;
    WindowHandle nextWindow(WindowHandle window) override;
    WindowHandle firstChild(WindowHandle window) override;
    std::u16string className(WindowHandle window) override;
    std::u16string caption(WindowHandle window) override;
    WindowHandle foregroundWindow() override { return foreground_; }
    bool setTopMost(WindowHandle window) override;
    bool setOwner(WindowHandle window, WindowHandle owner) override;
    bool setRoundedShape(WindowHandle window, const WindowRect& area, std::int32_t ellipseWidth,
                         std::int32_t ellipseHeight) override;
    bool addClassDropShadow(WindowHandle window) override;
    std::optional<WindowRect> clientRect(WindowHandle window) override;
    bool confinePointer(std::optional<WindowRect> area) override;
    FrameMetrics frameMetrics(WindowHandle) override { return frame_; }
    std::shared_ptr<ControlWindow> controlWindow(WindowHandle handle) override;
    // The control window (a list view, text box or button) the handle stands for.
    void addControlWindow(WindowHandle handle, std::shared_ptr<ControlWindow> window);

private:
    struct Monitor {
        WindowRect bounds;
        WindowRect work;
    };
    Window* find(WindowHandle handle);

    WindowHandle firstWithParent(WindowHandle parent, std::size_t from) const;

    std::map<WindowHandle, Window> windows_;
    std::map<WindowHandle, std::shared_ptr<ControlWindow>> controls_;
    std::vector<WindowHandle> order_; // the order windows were added in
    std::function<void(int)> onSearch_;
    int searches_ = 0;
    WindowHandle foreground_ = 0;
    FrameMetrics frame_{4, 3, 18};
    std::vector<std::optional<WindowRect>> confinements_;
    std::vector<Monitor> monitors_;
    std::vector<Placement> placements_;
    std::int32_t screenWidth_ = 1920;
    std::int32_t screenHeight_ = 1080;
    TwipsPerPixel twips_;
};

} // namespace velkor6::fake
