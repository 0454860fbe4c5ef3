#include "controls/list_tooltip.h"

#include "core/convert.h"
#include "velkor6/vb_error.h"

#include <array>
#include <optional>

namespace velkor6::controls {
namespace {

// The 0-based column whose header spans x, by the headers' widths.
std::optional<std::int32_t> headerAt(const ListView& view, float x) {
    const std::int32_t count = view.columnCount();
    double right = 0;
    for (std::int32_t i = 1; i <= count; ++i) {
        right += toDouble(view.get(*view.columnHeader(i), u"Width"), view.locale());
        if (x < right)
            return i - 1;
    }
    return std::nullopt;
}

WindowHandle handleOf(const ListView& view) {
    try {
        return view.handle();
    } catch (const VbError&) {
        return 0; // a list without a window is still one list
    }
}

} // namespace

void showTooltip(const ListView& view, float x, float y, const Variant& defaultText,
                 TooltipTarget& last) {
    std::array<Variant, 2> point{Variant(x), Variant(y)};
    const Variant hit = view.control().call(u"HitTest", CallKind::Method, point);
    const ObjectRef item = hit.isObject() ? hit.object() : ObjectRef();

    std::u16string text;
    std::int32_t itemIndex = 0;
    std::optional<std::int32_t> column;
    if (item) {
        itemIndex = view.index(*item);
        column = headerAt(view, x);
    }
    if (column)
        text = view.cellText(*item, *column);
    else
        text = toString(defaultText, view.locale());

    const ObjectRef tooltip =
        objectOf(view.get(*objectOf(view.get(view.control(), u"Parent")), u"p_cTooltip"));
    const WindowHandle list = handleOf(view);
    if (!last.shown || last.list != list || last.item != itemIndex) {
        tooltip->call(u"Reset", CallKind::Method, {});
        last = {true, list, itemIndex};
    }
    view.let(*tooltip, u"ToolText", Variant(std::move(text)));
}

} // namespace velkor6::controls
