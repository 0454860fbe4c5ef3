#include "controls/list_view.h"

#include "core/convert.h"
#include "velkor6/vb_error.h"

#include <array>

namespace velkor6::controls {

ObjectRef objectOf(const Variant& v) {
    if (!v.isObject() || !v.object())
        throw VbError(vberr::objectNotSet);
    return v.object();
}

ListView::ListView(ObjectRef control, WindowManager* windows, const Locale& loc)
    : control_(std::move(control)), windows_(windows), locale_(loc) {
    if (!control_)
        throw VbError(vberr::objectNotSet);
}

Variant ListView::get(Object& object, std::u16string_view name) const {
    return object.call(name, CallKind::PropertyGet, {});
}

void ListView::let(Object& object, std::u16string_view name, Variant value) const {
    std::array<Variant, 1> args{std::move(value)};
    object.call(name, CallKind::PropertyLet, args);
}

Variant ListView::getAt(Object& object, std::u16string_view name, Variant arg) const {
    std::array<Variant, 1> args{std::move(arg)};
    return object.call(name, CallKind::PropertyGet, args);
}

WindowHandle ListView::handle() const {
    return toLong(get(*control_, u"hwnd"), locale_);
}

std::shared_ptr<ControlWindow> ListView::window() const {
    if (!windowLooked_) {
        windowLooked_ = true;
        if (windows_ != nullptr)
            window_ = windows_->controlWindow(handle());
    }
    return window_;
}

ObjectRef ListView::columnHeaders() const {
    return objectOf(get(*control_, u"ColumnHeaders"));
}

std::int32_t ListView::columnCount() const {
    return toLong(get(*columnHeaders(), u"Count"), locale_);
}

ObjectRef ListView::columnHeader(std::int32_t index) const {
    return objectOf(getAt(*columnHeaders(), u"", index));
}

std::int32_t ListView::columnWidth(std::int32_t column) const {
    const std::shared_ptr<ControlWindow> w = window();
    return w == nullptr ? 0 : w->columnWidth(column);
}

void ListView::setColumnWidth(std::int32_t column, std::int32_t width) const {
    if (const std::shared_ptr<ControlWindow> w = window())
        w->setColumnWidth(column, width);
}

ObjectRef ListView::listItems() const {
    return objectOf(get(*control_, u"ListItems"));
}

std::int32_t ListView::itemCount() const {
    return toLong(get(*listItems(), u"Count"), locale_);
}

ObjectRef ListView::item(std::int32_t index) const {
    return objectOf(getAt(*listItems(), u"", index));
}

ObjectRef ListView::selectedItem() const {
    const Variant item = get(*control_, u"SelectedItem");
    return item.isObject() ? item.object() : ObjectRef();
}

void ListView::setSelectedItem(const ObjectRef& item) const {
    let(*control_, u"SelectedItem", Variant(item));
}

bool ListView::sorted() const {
    return toBoolean(get(*control_, u"Sorted"), locale_);
}

void ListView::setSorted(bool sorted) const {
    let(*control_, u"Sorted", Variant(sorted));
}

std::int16_t ListView::sortKey() const {
    return toInteger(get(*control_, u"SortKey"), locale_);
}

void ListView::setSortKey(std::int16_t key) const {
    let(*control_, u"SortKey", Variant(key));
}

std::int16_t ListView::sortOrder() const {
    return toInteger(get(*control_, u"SortOrder"), locale_);
}

void ListView::setSortOrder(std::int16_t order) const {
    let(*control_, u"SortOrder", Variant(order));
}

bool ListView::multiSelect() const {
    return toBoolean(get(*control_, u"MultiSelect"), locale_);
}

std::u16string ListView::text(Object& item) const {
    return toString(get(item, u"Text"), locale_);
}

std::u16string ListView::cellText(Object& item, std::int32_t column) const {
    if (column <= 0)
        return text(item);
    return toString(getAt(item, u"SubItems", column), locale_);
}

std::int32_t ListView::index(Object& item) const {
    return toLong(get(item, u"Index"), locale_);
}

bool ListView::selected(Object& item) const {
    return toBoolean(get(item, u"Selected"), locale_);
}

void ListView::setSelected(Object& item, bool selected) const {
    let(item, u"Selected", Variant(selected));
}

void ListView::ensureVisible(Object& item) const {
    item.call(u"EnsureVisible", CallKind::Method, {});
}

std::int16_t columnAt(ControlWindow& window, std::int32_t columnCount, std::int32_t x) {
    std::int64_t right = -static_cast<std::int64_t>(window.horizontalScroll());
    for (std::int32_t column = 0; column < columnCount; ++column) {
        right += window.columnWidth(column);
        if (x < right)
            return static_cast<std::int16_t>(column);
    }
    return 0;
}

} // namespace velkor6::controls
