// The POSIX window manager answers "no window" for every handle: the handles clients pass are
// Windows handles, and a desktop's own windows are reached by the window subsystem later.
#include "platform/posix/window_manager.h"

namespace velkor6::posix {
namespace {

class NoWindows final : public WindowManager {
public:
    std::uint32_t style(WindowHandle) override { return 0; }
    WindowHandle parent(WindowHandle) override { return 0; }
    std::optional<WindowRect> windowRect(WindowHandle) override { return std::nullopt; }
    bool setPosition(WindowHandle, WindowHandle, std::int32_t, std::int32_t, std::int32_t,
                     std::int32_t, std::uint32_t) override {
        return false;
    }
    bool show(WindowHandle, std::int32_t) override { return false; }
    std::int32_t sendMessage(WindowHandle, std::uint32_t, std::int32_t, std::int32_t) override {
        return 0;
    }
    std::optional<WindowRect> workArea(std::int32_t, std::int32_t) override { return std::nullopt; }
    std::int32_t screenWidth() override { return 0; }
    std::int32_t screenHeight() override { return 0; }
    TwipsPerPixel twipsPerPixel() override { return {}; }
};

} // namespace

std::unique_ptr<WindowManager> createWindowManager() {
    return std::make_unique<NoWindows>();
}

} // namespace velkor6::posix
