// A control window that has a style word only, as a text box or a button has; the list-view
// operations answer as on a window that is no list view.
#pragma once

#include "velkor6/platform/control_window.h"

#include <cstdint>
#include <vector>

namespace velkor6::fake {

class FakeStyleWindow final : public ControlWindow {
public:
    explicit FakeStyleWindow(std::uint32_t initial) : style_(initial) {}

    std::uint32_t style() override { return style_; }
    std::uint32_t setStyle(std::uint32_t style) override {
        writes.push_back(style);
        const std::uint32_t previous = style_;
        style_ = style;
        return previous;
    }

    std::int32_t findItem(std::u16string_view, std::int32_t) override { return -1; }
    std::u16string itemText(std::int32_t, std::int32_t) override { return {}; }
    bool setItemText(std::int32_t, std::int32_t, std::u16string_view) override { return false; }
    std::uint32_t itemState(std::int32_t, std::uint32_t) override { return 0; }
    bool setItemState(std::int32_t, std::uint32_t, std::uint32_t) override { return false; }
    std::int32_t itemCount() override { return 0; }
    std::int32_t selectedCount() override { return 0; }
    std::int32_t columnWidth(std::int32_t) override { return 0; }
    bool setColumnWidth(std::int32_t, std::int32_t) override { return false; }
    std::uint32_t extendedStyle() override { return 0; }
    void setExtendedStyle(std::uint32_t) override {}
    std::int32_t horizontalScroll() override { return 0; }
    bool sortItems(const std::function<int(std::int32_t, std::int32_t)>&) override { return false; }
    bool setBackgroundImage(std::u16string_view) override { return false; }

    std::vector<std::uint32_t> writes; // every setStyle, in order

private:
    std::uint32_t style_;
};

} // namespace velkor6::fake
