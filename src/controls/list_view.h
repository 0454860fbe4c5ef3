// The caller's list view control as the helpers use it: its properties and collections by name
// (ListItems, ColumnHeaders, SelectedItem, Sorted, ...) and its window, for what the control
// only tells through its window messages (item state, column widths, the typed sort).
#pragma once

#include "velkor6/locale.h"
#include "velkor6/platform/window_manager.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace velkor6::controls {

class ListView {
public:
    // windows may be nullptr on a platform without windows: then the list has no window, and
    // what only the window tells answers neutrally. Raises error 91 when control is Nothing.
    ListView(ObjectRef control, WindowManager* windows, const Locale& loc);

    Object& control() const { return *control_; }
    const Locale& locale() const { return locale_; }

    // The control's hwnd property.
    WindowHandle handle() const;
    // The list's window; nullptr when the platform has none for the handle.
    std::shared_ptr<ControlWindow> window() const;

    // --- Columns -------------------------------------------------------------------------
    ObjectRef columnHeaders() const;
    // ColumnHeaders.Count.
    std::int32_t columnCount() const;
    // ColumnHeaders(index), from 1.
    ObjectRef columnHeader(std::int32_t index) const;
    // In pixels, through the window; 0 without one. The first column is 0.
    std::int32_t columnWidth(std::int32_t column) const;
    void setColumnWidth(std::int32_t column, std::int32_t width) const;

    // --- Items ---------------------------------------------------------------------------
    ObjectRef listItems() const;
    // ListItems.Count.
    std::int32_t itemCount() const;
    // ListItems(index), from 1.
    ObjectRef item(std::int32_t index) const;
    // SelectedItem; nullptr when none is.
    ObjectRef selectedItem() const;
    void setSelectedItem(const ObjectRef& item) const;

    // --- Sorting and selection mode ------------------------------------------------------
    bool sorted() const;
    void setSorted(bool sorted) const;
    std::int16_t sortKey() const;
    void setSortKey(std::int16_t key) const;
    std::int16_t sortOrder() const;
    void setSortOrder(std::int16_t order) const;
    bool multiSelect() const;

    // --- A list item's members -----------------------------------------------------------
    std::u16string text(Object& item) const;
    // SubItems(column) for a column above 0, else Text.
    std::u16string cellText(Object& item, std::int32_t column) const;
    // Index, from 1.
    std::int32_t index(Object& item) const;
    bool selected(Object& item) const;
    void setSelected(Object& item, bool selected) const;
    void ensureVisible(Object& item) const;

    // Property reads and writes on any of the list's objects.
    Variant get(Object& object, std::u16string_view name) const;
    void let(Object& object, std::u16string_view name, Variant value) const;
    // A property read with one argument (SubItems(i), ListItems(i)).
    Variant getAt(Object& object, std::u16string_view name, Variant arg) const;

private:
    ObjectRef control_;
    WindowManager* windows_;
    Locale locale_;
    mutable std::shared_ptr<ControlWindow> window_;
    mutable bool windowLooked_ = false;
};

// The object a property holds; raises error 91 when it holds Nothing or no object.
ObjectRef objectOf(const Variant& v);

// The 0-based column under a horizontal position in the list's client pixels: the column widths
// summed from minus the scroll position; a position right of the last column gives 0, as the
// first column does.
std::int16_t columnAt(ControlWindow& window, std::int32_t columnCount, std::int32_t x);

} // namespace velkor6::controls
