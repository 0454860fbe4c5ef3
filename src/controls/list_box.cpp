#include "controls/list_box.h"

#include "core/convert.h"
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
