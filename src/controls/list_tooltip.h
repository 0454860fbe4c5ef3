// The tooltip of a list view: the text of the cell under the mouse, shown by the tooltip object
// the list's form exposes as p_cTooltip (ToolText and Reset).
#pragma once

#include "controls/list_view.h"

#include <cstdint>

namespace velkor6::controls {

// The item the tooltip last showed, so that the tip is reset only when the mouse reaches another
// item (or leaves the items).
struct TooltipTarget {
    bool shown = false;
    WindowHandle list = 0;
    std::int32_t item = 0; // Index, 0 for none
};

// x and y in the list's own units, as its MouseMove event gives them. Over an item the text is
// its Text (first column) or its SubItems of the column under x; over no item, or right of the
// last column, it is the default text.
void showTooltip(const ListView& view, float x, float y, const Variant& defaultText,
                 TooltipTarget& last);

} // namespace velkor6::controls
