#include "controls/list_items.h"

#include "core/convert.h"

namespace velkor6::controls {
namespace {

// All bits from 12 up: the state image and whatever a later system puts above it.
constexpr std::uint32_t imageBits = 0xFFFFF000u;
constexpr std::size_t textBuffer = 4096;

} // namespace

std::int32_t itemIndex(const ListView& view, const Variant& item) {
    const bool isItem = item.isObject() && item.object();
    if (!isItem && !item.isString())
        return -1;
    if (view.sorted()) {
        const std::shared_ptr<ControlWindow> window = view.window();
        if (window == nullptr)
            return -1;
        return window->findItem(isItem ? view.text(*item.object()) : item.string(), -1);
    }
    // A text has no Index: in an unsorted list it finds nothing.
    if (!isItem)
        return -1;
    return view.index(*item.object()) - 1;
}

std::optional<std::int32_t> referencedItem(const ListView& view, const Variant& item) {
    std::int32_t index = -1;
    if (item.isNumber())
        index = toLong(item, view.locale());
    else
        index = itemIndex(view, item);
    if (index < 0)
        return std::nullopt;
    return index;
}

bool itemChecked(ControlWindow& window, std::int32_t index) {
    return (window.itemState(index, imageBits) & lvis::checked) == lvis::checked;
}

void setItemChecked(ControlWindow& window, std::int32_t index, bool checked) {
    window.setItemState(index, checked ? lvis::checked : lvis::unchecked, lvis::stateImageMask);
}

bool itemSelected(ControlWindow& window, std::int32_t index) {
    return (window.itemState(index, lvis::selected) & lvis::selected) != 0;
}

void setItemSelected(ControlWindow& window, std::int32_t index, bool selected) {
    window.setItemState(index, selected ? lvis::selected : 0, lvis::selected);
}

std::u16string cellText(ControlWindow& window, std::int32_t index, std::int32_t subItem) {
    std::u16string text = window.itemText(index, subItem);
    if (text.size() > textBuffer - 1)
        text.resize(textBuffer - 1);
    return text;
}

std::int32_t checkedCount(ControlWindow& window) {
    std::int32_t count = 0;
    const std::int32_t items = window.itemCount();
    for (std::int32_t i = 0; i < items; ++i) {
        if ((window.itemState(i, imageBits) & imageBits) == lvis::checked)
            ++count;
    }
    return count;
}

void checkAll(ControlWindow& window, bool checked) {
    setItemChecked(window, -1, checked);
}

} // namespace velkor6::controls
