#include "fake/fake_list_view_window.h"

#include "core/text.h"

#include <algorithm>

namespace velkor6::fake {

std::int32_t FakeListViewWindow::addItem(std::vector<std::u16string> cells, std::uint32_t state) {
    Item item;
    item.id = nextId_++;
    item.cells = std::move(cells);
    if (item.cells.empty())
        item.cells.emplace_back();
    item.state = state;
    items.push_back(std::move(item));
    return items.back().id;
}

std::int32_t FakeListViewWindow::position(std::int32_t id) const {
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].id == id)
            return static_cast<std::int32_t>(i);
    }
    return -1;
}

std::vector<std::u16string> FakeListViewWindow::column(std::size_t cell) const {
    std::vector<std::u16string> out;
    for (const Item& item : items)
        out.push_back(cell < item.cells.size() ? item.cells[cell] : std::u16string());
    return out;
}

FakeListViewWindow::Item* FakeListViewWindow::at(std::int32_t item) {
    if (item < 0 || static_cast<std::size_t>(item) >= items.size())
        return nullptr;
    return &items[static_cast<std::size_t>(item)];
}

std::uint32_t FakeListViewWindow::setStyle(std::uint32_t style) {
    const std::uint32_t previous = styleBits;
    styleBits = style;
    return previous;
}

std::int32_t FakeListViewWindow::findItem(std::u16string_view text, std::int32_t start) {
    for (std::size_t i = start < 0 ? 0 : static_cast<std::size_t>(start) + 1; i < items.size();
         ++i) {
        if (upperCase(items[i].cells[0]) == upperCase(text))
            return static_cast<std::int32_t>(i);
    }
    return -1;
}

std::u16string FakeListViewWindow::itemText(std::int32_t item, std::int32_t subItem) {
    ++textReads;
    const Item* i = at(item);
    if (i == nullptr || subItem < 0 || static_cast<std::size_t>(subItem) >= i->cells.size())
        return {};
    return i->cells[static_cast<std::size_t>(subItem)];
}

bool FakeListViewWindow::setItemText(std::int32_t item, std::int32_t subItem,
                                     std::u16string_view text) {
    Item* i = at(item);
    if (i == nullptr || subItem < 0)
        return false;
    if (static_cast<std::size_t>(subItem) >= i->cells.size())
        i->cells.resize(static_cast<std::size_t>(subItem) + 1);
    i->cells[static_cast<std::size_t>(subItem)] = std::u16string(text);
    return true;
}

std::uint32_t FakeListViewWindow::itemState(std::int32_t item, std::uint32_t mask) {
    const Item* i = at(item);
    return i == nullptr ? 0 : i->state & mask;
}

bool FakeListViewWindow::setItemState(std::int32_t item, std::uint32_t state, std::uint32_t mask) {
    stateChanges.push_back({item, state, mask});
    const auto change = [&](Item& i) { i.state = (i.state & ~mask) | (state & mask); };
    if (item == -1) {
        for (Item& i : items)
            change(i);
        return true;
    }
    Item* i = at(item);
    if (i == nullptr)
        return false;
    change(*i);
    return true;
}

std::int32_t FakeListViewWindow::selectedCount() {
    std::int32_t count = 0;
    for (const Item& i : items)
        count += (i.state & lvis::selected) != 0 ? 1 : 0;
    return count;
}

std::int32_t FakeListViewWindow::columnWidth(std::int32_t column) {
    if (column < 0 || static_cast<std::size_t>(column) >= columns.size())
        return 0;
    return columns[static_cast<std::size_t>(column)].width;
}

bool FakeListViewWindow::setColumnWidth(std::int32_t column, std::int32_t width) {
    if (column < 0 || static_cast<std::size_t>(column) >= columns.size())
        return false;
    columns[static_cast<std::size_t>(column)].width = width;
    return true;
}

bool FakeListViewWindow::sortItems(const std::function<int(std::int32_t, std::int32_t)>& compare) {
    ++sorts;
    // Bottom-up merge on the indices before the sort; the right run's head goes first only when
    // the comparer says the left one comes after it.
    std::vector<std::int32_t> order(items.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<std::int32_t>(i);
    std::vector<std::int32_t> merged(order.size());
    for (std::size_t width = 1; width < order.size(); width *= 2) {
        for (std::size_t lo = 0; lo < order.size(); lo += 2 * width) {
            const std::size_t mid = std::min(lo + width, order.size());
            const std::size_t hi = std::min(lo + 2 * width, order.size());
            std::size_t l = lo, r = mid, out = lo;
            while (l < mid && r < hi) {
                merged[out++] = compare(order[l], order[r]) > 0 ? order[r++] : order[l++];
            }
            while (l < mid)
                merged[out++] = order[l++];
            while (r < hi)
                merged[out++] = order[r++];
        }
        order.swap(merged);
    }
    std::vector<Item> sorted;
    sorted.reserve(items.size());
    for (const std::int32_t i : order)
        sorted.push_back(items[static_cast<std::size_t>(i)]);
    items.swap(sorted);
    return true;
}

bool FakeListViewWindow::setBackgroundImage(std::u16string_view pictureFile) {
    backgroundImage = std::u16string(pictureFile);
    return true;
}

} // namespace velkor6::fake
