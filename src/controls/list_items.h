// Items of the caller's list view by reference, and their check and selection state as the
// list's window keeps it (LVIS state bits).
#pragma once

#include "controls/list_view.h"

#include <cstdint>
#include <optional>
#include <string>

namespace velkor6::controls {

// The item's 0-based window index: for a sorted list the first item whose text equals the
// item's (not case-sensitive), else the item's Index - 1. A text stands for an item with that
// text, and is found in a sorted list only. Anything else, and an item not found, gives -1.
std::int32_t itemIndex(const ListView& view, const Variant& item);

// The window index an item reference stands for: a number is the index itself, an item or a
// text is found as by itemIndex. nullopt for Null, for anything else and for an index below 0,
// so that no reference reaches "every item" (-1).
std::optional<std::int32_t> referencedItem(const ListView& view, const Variant& item);

// State image 2 (checked): the bits from 12 up have bit 13 set.
bool itemChecked(ControlWindow& window, std::int32_t index);
void setItemChecked(ControlWindow& window, std::int32_t index, bool checked);
bool itemSelected(ControlWindow& window, std::int32_t index);
void setItemSelected(ControlWindow& window, std::int32_t index, bool selected);
// The cell text as a buffer of 4096 characters (with its terminating zero) holds it.
std::u16string cellText(ControlWindow& window, std::int32_t index, std::int32_t subItem);

// Items whose state image is exactly 2.
std::int32_t checkedCount(ControlWindow& window);
// One state change for every item.
void checkAll(ControlWindow& window, bool checked);

} // namespace velkor6::controls
