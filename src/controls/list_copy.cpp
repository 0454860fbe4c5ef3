#include "controls/list_copy.h"

#include "core/convert.h"
#include "velkor6/vb_error.h"

#include <array>

namespace velkor6::controls {
namespace {

void copyImageList(const ListView& source, const ListView& target, std::u16string_view name) {
    try {
        const Variant images = source.get(source.control(), name);
        if (images.isObject() && images.object())
            target.let(target.control(), name, images);
    } catch (const VbError&) {
        // A list without image lists: its items have no pictures either.
    }
}

// An icon index the item has, or Missing: 0 and Empty stand for none.
Variant iconOf(const ListView& view, Object& item, std::u16string_view name) {
    Variant icon = view.get(item, name);
    if (icon.isEmpty() || icon.isNull() || (icon.isNumber() && toDouble(icon, view.locale()) == 0))
        return Variant::missing();
    return icon;
}

} // namespace

void copyListView(const ListView& source, const ListView& target) {
    target.listItems()->call(u"Clear", CallKind::Method, {});
    const ObjectRef targetHeaders = target.columnHeaders();
    targetHeaders->call(u"Clear", CallKind::Method, {});

    const std::int32_t columns = source.columnCount();
    for (std::int32_t i = 1; i <= columns; ++i) {
        const ObjectRef header = source.columnHeader(i);
        std::array<Variant, 5> args{Variant::missing(), Variant::missing(),
                                    source.get(*header, u"Text"), source.get(*header, u"Width"),
                                    source.get(*header, u"Alignment")};
        targetHeaders->call(u"Add", CallKind::Method, args);
    }
    copyImageList(source, target, u"Icons");
    copyImageList(source, target, u"SmallIcons");

    const ObjectRef targetItems = target.listItems();
    const std::int32_t count = source.itemCount();
    for (std::int32_t i = 1; i <= count; ++i) {
        const ObjectRef item = source.item(i);
        std::array<Variant, 5> args{Variant::missing(), Variant::missing(),
                                    Variant(source.text(*item)), iconOf(source, *item, u"Icon"),
                                    iconOf(source, *item, u"SmallIcon")};
        const ObjectRef copy = objectOf(targetItems->call(u"Add", CallKind::Method, args));
        for (std::int32_t column = 1; column < columns; ++column) {
            std::array<Variant, 2> cell{Variant(column), Variant(source.cellText(*item, column))};
            copy->call(u"SubItems", CallKind::PropertyLet, cell);
        }
    }
}

} // namespace velkor6::controls
