// A list view control of the caller's as the library reaches it by name: ListItems, ColumnHeaders,
// SelectedItem, Sorted, SortKey, SortOrder, MultiSelect, HitTest, hwnd, Parent, MousePointer,
// Icons and SmallIcons. Its items and columns are those of a FakeListViewWindow, so that the
// control's members and its window's messages see one list.
#pragma once

#include "fake/fake_list_view_window.h"
#include "fake/fake_window_manager.h"
#include "velkor6/variant.h"
#include "velkor6/vb_error.h"

#include <memory>
#include <string>
#include <vector>

namespace velkor6::fake {

class FakeListView final : public Object, public std::enable_shared_from_this<FakeListView> {
public:
    explicit FakeListView(std::shared_ptr<FakeListViewWindow> window, WindowHandle hwnd = 0);

    std::u16string typeName() const override { return u"ListView"; }
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override;

    // Appends an item (text, then sub-items); a Sorted list puts it in its place.
    void add(std::vector<std::u16string> cells);
    // The list item object at a 0-based position.
    ObjectRef item(std::size_t position);
    // The items' texts (or one column's cells) in list order.
    std::vector<std::u16string> texts(std::size_t cell = 0) const { return window->column(cell); }

    std::shared_ptr<FakeListViewWindow> window;
    WindowHandle hwnd;
    bool sorted = false;
    std::int16_t sortKey = 0;
    std::int16_t sortOrder = 0;
    bool multiSelect = false;
    ObjectRef parent;
    Variant icons{}, smallIcons{};
    std::vector<std::int16_t> mousePointers; // each MousePointer assignment
    std::int32_t ensuredVisible = 0;         // the id of the item last made visible
    float rowHeight = 240;                   // HitTest's rows, in twips from the top
    // A member whose every call raises error 5, to see how callers cope.
    std::u16string failOn;

private:
    // A Sorted list keeps its items in the order of the SortKey cells, not case-sensitive.
    void resort();

    class Items;
    class ListItem;
    class Headers;
    class Header;
};

// A list view whose window the window manager knows under hwnd.
std::shared_ptr<FakeListView> addListView(FakeWindowManager& windows, WindowHandle hwnd);

} // namespace velkor6::fake
