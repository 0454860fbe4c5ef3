#include "fake/fake_window_manager.h"

#include <algorithm>
#include <limits>

namespace velkor6::fake {
namespace {

// Distance from the point to the rectangle, 0 inside it.
std::int64_t distance(const WindowRect& r, std::int32_t x, std::int32_t y) {
    const std::int64_t dx = x < r.left ? r.left - x : x >= r.right ? x - r.right + 1 : 0;
    const std::int64_t dy = y < r.top ? r.top - y : y >= r.bottom ? y - r.bottom + 1 : 0;
    return dx * dx + dy * dy;
}

} // namespace

FakeWindowManager::Window& FakeWindowManager::addWindow(WindowHandle handle, Window window) {
    if (windows_.count(handle) == 0)
        order_.push_back(handle);
    return windows_[handle] = std::move(window);
}

void FakeWindowManager::removeWindow(WindowHandle handle) {
    windows_.erase(handle);
    order_.erase(std::remove(order_.begin(), order_.end(), handle), order_.end());
}

WindowHandle FakeWindowManager::firstWithParent(WindowHandle parent, std::size_t from) const {
    for (std::size_t i = from; i < order_.size(); ++i) {
        if (windows_.at(order_[i]).parent == parent)
            return order_[i];
    }
    return 0;
}

WindowHandle FakeWindowManager::topWindow() {
    ++searches_;
    if (onSearch_)
        onSearch_(searches_);
    return firstWithParent(0, 0);
}

WindowHandle FakeWindowManager::nextWindow(WindowHandle window) {
    const auto it = std::find(order_.begin(), order_.end(), window);
    if (it == order_.end())
        return 0;
    return firstWithParent(windows_.at(window).parent,
                           static_cast<std::size_t>(it - order_.begin()) + 1);
}

WindowHandle FakeWindowManager::firstChild(WindowHandle window) {
    return find(window) == nullptr ? 0 : firstWithParent(window, 0);
}

std::u16string FakeWindowManager::className(WindowHandle window) {
    const Window* w = find(window);
    return w == nullptr ? std::u16string() : w->className;
}

std::u16string FakeWindowManager::caption(WindowHandle window) {
    const Window* w = find(window);
    return w == nullptr ? std::u16string() : w->caption;
}

bool FakeWindowManager::setTopMost(WindowHandle window) {
    Window* w = find(window);
    if (w == nullptr)
        return false;
    w->topMost = true;
    return true;
}

bool FakeWindowManager::setOwner(WindowHandle window, WindowHandle owner) {
    Window* w = find(window);
    if (w == nullptr)
        return false;
    w->style |= winstyle::popup;
    w->owner = owner;
    return true;
}

bool FakeWindowManager::setRoundedShape(WindowHandle window, const WindowRect& area,
                                        std::int32_t ellipseWidth, std::int32_t ellipseHeight) {
    Window* w = find(window);
    if (w == nullptr)
        return false;
    w->shape = Window::Shape{area, ellipseWidth, ellipseHeight};
    return true;
}

bool FakeWindowManager::addClassDropShadow(WindowHandle window) {
    Window* w = find(window);
    if (w == nullptr)
        return false;
    w->classShadow = true;
    return true;
}

std::optional<WindowRect> FakeWindowManager::clientRect(WindowHandle window) {
    const Window* w = find(window);
    if (w == nullptr)
        return std::nullopt;
    return w->client.value_or(w->rect);
}

bool FakeWindowManager::confinePointer(std::optional<WindowRect> area) {
    confinements_.push_back(area);
    return true;
}

void FakeWindowManager::addMonitor(WindowRect bounds, WindowRect work) {
    monitors_.push_back({bounds, work});
}

void FakeWindowManager::setScreen(std::int32_t width, std::int32_t height) {
    screenWidth_ = width;
    screenHeight_ = height;
}

FakeWindowManager::Window* FakeWindowManager::find(WindowHandle handle) {
    const auto it = windows_.find(handle);
    return it == windows_.end() ? nullptr : &it->second;
}

std::uint32_t FakeWindowManager::style(WindowHandle window) {
    const Window* w = find(window);
    return w == nullptr ? 0 : w->style;
}

WindowHandle FakeWindowManager::parent(WindowHandle window) {
    const Window* w = find(window);
    return w == nullptr ? 0 : w->parent;
}

std::optional<WindowRect> FakeWindowManager::windowRect(WindowHandle window) {
    const Window* w = find(window);
    if (w == nullptr)
        return std::nullopt;
    return w->rect;
}

bool FakeWindowManager::setPosition(WindowHandle window, WindowHandle, std::int32_t x,
                                    std::int32_t y, std::int32_t width, std::int32_t height,
                                    std::uint32_t flags) {
    Window* w = find(window);
    if (w == nullptr)
        return false;
    placements_.push_back({window, x, y, width, height, flags});
    if ((flags & swp::noSize) != 0) {
        width = w->rect.width();
        height = w->rect.height();
    }
    w->rect = {x, y, x + width, y + height};
    return true;
}

bool FakeWindowManager::show(WindowHandle window, std::int32_t command) {
    Window* w = find(window);
    if (w == nullptr)
        return false;
    w->shown = command;
    return true;
}

std::int32_t FakeWindowManager::sendMessage(WindowHandle, std::uint32_t, std::int32_t,
                                            std::int32_t) {
    return 0;
}

std::shared_ptr<ControlWindow> FakeWindowManager::controlWindow(WindowHandle handle) {
    const auto it = controls_.find(handle);
    return it == controls_.end() ? nullptr : it->second;
}

void FakeWindowManager::addControlWindow(WindowHandle handle,
                                         std::shared_ptr<ControlWindow> window) {
    controls_[handle] = std::move(window);
}

std::optional<WindowRect> FakeWindowManager::workArea(std::int32_t x, std::int32_t y) {
    if (monitors_.empty())
        return std::nullopt;
    const auto nearest = std::min_element(
        monitors_.begin(), monitors_.end(), [&](const Monitor& a, const Monitor& b) {
            return distance(a.bounds, x, y) < distance(b.bounds, x, y);
        });
    return nearest->work;
}

} // namespace velkor6::fake
