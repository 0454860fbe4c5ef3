// A list-view window held in memory: items with their cells and state bits, columns, styles and
// the scroll position, answering the control-window operations as a list view's messages do.
// FakeListView presents the same data as the caller's list view object.
#pragma once

#include "velkor6/platform/control_window.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace velkor6::fake {

class FakeListViewWindow final : public ControlWindow {
public:
    struct Item {
        std::int32_t id = 0;               // stays with the item while the list is sorted
        std::vector<std::u16string> cells; // the text, then the sub-items
        std::uint32_t state = 0;           // LVIS bits: 1 focused, 2 selected, 12-15 image
        Variant icon{}, smallIcon{};
    };
    struct Column {
        std::u16string text;
        std::u16string key;
        std::int32_t width = 96; // pixels
        std::int16_t alignment = 0;
    };
    struct StateChange {
        std::int32_t item;
        std::uint32_t state, mask;
    };

    // Appends an item with these cells and answers its id.
    std::int32_t addItem(std::vector<std::u16string> cells, std::uint32_t state = 0);
    // The position of the item with this id, or -1.
    std::int32_t position(std::int32_t id) const;
    // The items' cells of one column, in list order.
    std::vector<std::u16string> column(std::size_t cell) const;

    std::vector<Item> items;
    std::vector<Column> columns;
    std::uint32_t styleBits = 0;
    std::uint32_t extendedStyleBits = 0;
    std::int32_t scroll = 0;
    std::u16string backgroundImage;
    // What the library asked for.
    std::vector<StateChange> stateChanges;
    int sorts = 0;
    int textReads = 0;

    // --- ControlWindow -------------------------------------------------------------------
    std::uint32_t style() override { return styleBits; }
    std::uint32_t setStyle(std::uint32_t style) override;
    std::int32_t findItem(std::u16string_view text, std::int32_t start) override;
    std::u16string itemText(std::int32_t item, std::int32_t subItem) override;
    bool setItemText(std::int32_t item, std::int32_t subItem, std::u16string_view text) override;
    std::uint32_t itemState(std::int32_t item, std::uint32_t mask) override;
    bool setItemState(std::int32_t item, std::uint32_t state, std::uint32_t mask) override;
    std::int32_t itemCount() override { return static_cast<std::int32_t>(items.size()); }
    std::int32_t selectedCount() override;
    std::int32_t columnWidth(std::int32_t column) override;
    bool setColumnWidth(std::int32_t column, std::int32_t width) override;
    std::uint32_t extendedStyle() override { return extendedStyleBits; }
    void setExtendedStyle(std::uint32_t style) override { extendedStyleBits = style; }
    std::int32_t horizontalScroll() override { return scroll; }
    // A merge sort, as the system's, that asks only whether compare(a, b) > 0.
    bool sortItems(const std::function<int(std::int32_t, std::int32_t)>& compare) override;
    bool setBackgroundImage(std::u16string_view pictureFile) override;

private:
    Item* at(std::int32_t item);
    std::int32_t nextId_ = 1;
};

} // namespace velkor6::fake
