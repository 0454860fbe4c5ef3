#include "controls/list_sort.h"

#include "controls/list_items.h"
#include "core/convert.h"
#include "velkor6/vb_error.h"

#include <vector>

namespace velkor6::controls {

ColumnKind columnKind(const ListView& view, std::int16_t column) {
    const std::int32_t count = view.itemCount();
    for (std::int32_t i = 1; i <= count; ++i) {
        const Variant cell(view.cellText(*view.item(i), column));
        if (cell.string().empty())
            continue;
        if (isDate(cell, view.locale()))
            return ColumnKind::Date;
        return isNumeric(cell, view.locale()) ? ColumnKind::Number : ColumnKind::Text;
    }
    return ColumnKind::Text;
}

double sortKey(std::u16string_view cell, ColumnKind kind, const Locale& loc) {
    try {
        const Variant text(cell);
        if (kind == ColumnKind::Date)
            return toDate(text, loc).serial;
        return toLong(text, loc);
    } catch (const VbError&) {
        return 0;
    }
}

int compareKeys(double a, double b, bool descending) {
    if (a == b)
        return 1;
    return (a < b) != descending ? 0 : 2;
}

void sortListView(const ListView& view, std::int16_t column, ListSortState& state) {
    state.column = column;
    const ColumnKind kind = columnKind(view, column);
    if (view.sortKey() == column) {
        view.setSortOrder(view.sortOrder() == 0 ? 1 : 0);
    } else {
        view.setSortKey(column);
        view.setSortOrder(0);
    }
    state.descending = view.sortOrder() == 1;

    if (kind == ColumnKind::Text) {
        view.setSorted(true);
        return;
    }
    view.setSorted(false);
    const std::shared_ptr<ControlWindow> window = view.window();
    if (window == nullptr)
        return;
    // Each cell is read and converted once; the comparers then only look the keys up.
    std::vector<double> keys;
    const std::int32_t count = window->itemCount();
    keys.reserve(static_cast<std::size_t>(count > 0 ? count : 0));
    for (std::int32_t i = 0; i < count; ++i)
        keys.push_back(sortKey(cellText(*window, i, state.column), kind, view.locale()));
    const auto keyOf = [&keys](std::int32_t i) {
        return i >= 0 && static_cast<std::size_t>(i) < keys.size()
                   ? keys[static_cast<std::size_t>(i)]
                   : 0.0;
    };
    window->sortItems([&](std::int32_t a, std::int32_t b) {
        return compareKeys(keyOf(a), keyOf(b), state.descending);
    });
}

} // namespace velkor6::controls
