// Copying one list view into another: columns, image lists and items with their sub-items.
#pragma once

#include "controls/list_view.h"

namespace velkor6::controls {

// Clears the target's items and columns, then copies each column (text, width, alignment), the
// image lists (Icons, SmallIcons; a list without them keeps its own) and every item with its
// Text, Icon, SmallIcon and the sub-items of all columns.
void copyListView(const ListView& source, const ListView& target);

} // namespace velkor6::controls
