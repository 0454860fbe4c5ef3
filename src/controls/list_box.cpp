#include "controls/list_box.h"

#include "controls/control_access.h"
#include "core/convert.h"
#include "values/numbers.h"
#include "velkor6/vb_error.h"

#include <array>

namespace velkor6::controls {
namespace {

ObjectRef required(ObjectRef control) {
    if (!control)
        throw VbError(vberr::objectNotSet);
    return control;
}

} // namespace

ListBox::ListBox(ObjectRef control, const Locale& loc)
    : control_(required(std::move(control))), locale_(loc) {}

void ListBox::clear() const {
    control_->call(u"Clear", CallKind::Method, {});
}

std::int32_t ListBox::addItem(std::u16string_view text) const {
    std::array<Variant, 1> args{Variant(text)};
    control_->call(u"AddItem", CallKind::Method, args);
    return toLong(control_->call(u"NewIndex", CallKind::PropertyGet, {}), locale_);
}

void ListBox::setItemData(std::int32_t index, std::int32_t data) const {
    std::array<Variant, 2> args{Variant(index), Variant(data)};
    control_->call(u"ItemData", CallKind::PropertyLet, args);
}

namespace {

std::int32_t listCount(Object& list, const Locale& loc) {
    return toLong(get(list, u"ListCount"), loc);
}

std::int32_t itemData(Object& list, std::int32_t item, const Locale& loc) {
    return toLong(get(list, u"ItemData", {Variant(item)}), loc);
}

} // namespace

std::int32_t selectedFlags(Object& list, const Locale& loc) {
    std::int32_t flags = 0;
    const std::int32_t count = listCount(list, loc);
    for (std::int32_t i = 0; i < count; ++i) {
        if (toBoolean(get(list, u"Selected", {Variant(i)}), loc))
            flags |= itemData(list, i, loc);
    }
    return flags;
}

void selectFlags(Object& list, std::int32_t flags, const Locale& loc) {
    const std::int32_t count = listCount(list, loc);
    for (std::int32_t i = 0; i < count; ++i)
        let(list, u"Selected",
            {Variant(i), Variant(values::hasAllBits(flags, itemData(list, i, loc)))});
}

std::int32_t readItemData(Object& list, std::int32_t index, const Locale& loc) {
    return itemData(list, index == -1 ? toLong(get(list, u"ListIndex"), loc) : index, loc);
}

void writeItemData(Object& list, std::int32_t index, std::int32_t value, const Locale& loc) {
    if (index == -1) {
        index = toLong(get(list, u"NewIndex"), loc);
        if (index == -1)
            index = toLong(get(list, u"ListIndex"), loc);
        if (index == -1)
            return;
    }
    let(list, u"ItemData", {Variant(index), Variant(value)});
}

bool selectItemData(Object& list, std::int32_t value, const Locale& loc) {
    const std::int32_t count = listCount(list, loc);
    for (std::int32_t i = 0; i < count; ++i) {
        if (itemData(list, i, loc) == value) {
            let(list, u"ListIndex", {Variant(i)});
            return true;
        }
    }
    return false;
}

TabStrip::TabStrip(ObjectRef control) : control_(required(std::move(control))) {}

ObjectRef TabStrip::tabs() const {
    const Variant tabs = control_->call(u"Tabs", CallKind::PropertyGet, {});
    if (!tabs.isObject() || !tabs.object())
        throw VbError(vberr::objectRequired);
    return tabs.object();
}

void TabStrip::clearTabs() const {
    tabs()->call(u"Clear", CallKind::Method, {});
}

void TabStrip::addTab(std::u16string_view caption) const {
    std::array<Variant, 3> args{Variant::missing(), Variant::missing(), Variant(caption)};
    tabs()->call(u"Add", CallKind::Method, args);
}

} // namespace velkor6::controls
