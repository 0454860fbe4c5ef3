// Windows, monitors and list-view columns held in memory. Records every placement and state
// change the library asks for.
#pragma once

#include "velkor6/platform/window_manager.h"

#include <map>
#include <vector>

namespace velkor6::fake {

class FakeWindowManager final : public WindowManager {
public:
    struct Window {
        std::uint32_t style = 0;
        WindowHandle parent = 0;
        WindowRect rect;
        std::vector<std::int32_t> columnWidths; // a list-view window's columns
        std::int32_t shown = 0;                 // the last show command, 0 for none
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

private:
    struct Monitor {
        WindowRect bounds;
        WindowRect work;
    };
    Window* find(WindowHandle handle);

    std::map<WindowHandle, Window> windows_;
    std::vector<Monitor> monitors_;
    std::vector<Placement> placements_;
    std::int32_t screenWidth_ = 1920;
    std::int32_t screenHeight_ = 1080;
    TwipsPerPixel twips_;
};

} // namespace velkor6::fake
