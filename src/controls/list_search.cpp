#include "controls/list_search.h"

#include "core/like.h"
#include "core/text.h"
#include "values/numbers.h"

namespace velkor6::controls {
namespace {

constexpr std::int16_t space = 32;

bool fits(std::u16string_view text, std::u16string_view pattern) {
    return like(upperCase(text), pattern, Compare::Binary);
}

// The first item that fits the pattern, by its own text (or number value), then by a sub-item.
ObjectRef firstMatch(const ListView& view, std::u16string_view pattern) {
    const double patternValue = values::lenientNumber(pattern, view.locale());
    const std::int32_t count = view.itemCount();
    for (std::int32_t i = 1; i <= count; ++i) {
        ObjectRef item = view.item(i);
        const std::u16string text = view.text(*item);
        // Without digits both values are 0: a text without a number then matches any letters.
        if (fits(text, pattern) || values::lenientNumber(text, view.locale()) == patternValue)
            return item;
    }
    const std::int32_t columns = view.columnCount();
    for (std::int32_t i = 1; i <= count; ++i) {
        ObjectRef item = view.item(i);
        for (std::int32_t column = 1; column < columns; ++column) {
            if (fits(view.cellText(*item, column), pattern))
                return item;
        }
    }
    return {};
}

void deselectAll(const ListView& view) {
    if (const std::shared_ptr<ControlWindow> window = view.window()) {
        window->setItemState(-1, 0, lvis::selected);
        return;
    }
    const std::int32_t count = view.itemCount();
    for (std::int32_t i = 1; i <= count; ++i)
        view.setSelected(*view.item(i), false);
}

} // namespace

bool searchListItem(const ListView& view, KeystrokeSearch& state, double now,
                    std::int16_t& keyAscii, bool deselectBefore) {
    if (keyAscii == space) {
        if (const ObjectRef item = view.selectedItem()) {
            if (view.multiSelect())
                view.setSelected(*item, !view.selected(*item));
            else
                view.setSelected(*item, true);
        }
        keyAscii = 0;
        return false;
    }

    // The clock in single precision, as the deadline keeps it.
    const auto time = static_cast<float>(now);
    if (time > state.deadline)
        state.text.clear();
    state.deadline = time + 1.0f;
    state.text += toUpper(static_cast<char16_t>(keyAscii));

    std::u16string pattern = state.text + u"*";
    ObjectRef match;
    for (;;) {
        match = firstMatch(view, pattern);
        if (match)
            break;
        if (pattern.front() == u'*')
            return false;
        pattern.insert(pattern.begin(), u'*');
    }

    view.setSelectedItem(match);
    if (deselectBefore)
        deselectAll(view);
    view.setSelected(*match, true);
    view.ensureVisible(*match);
    keyAscii = 0;
    return true;
}

} // namespace velkor6::controls
