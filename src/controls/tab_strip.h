// A tab strip that switches container controls: one container per tab, the elements 1 to
// Tabs.Count of a control array on the strip's Parent (see control_access.h for the route).
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <string_view>

namespace velkor6::controls {

// The Index of the strip's SelectedItem; 0 when it cannot be read (no tab selected).
std::int32_t selectedTab(Object& tabStrip, const Locale& loc);

// Makes container i visible when tab i is the selected one and hides the others; a missing
// element is passed over.
void showSelectedContainer(Object& tabStrip, std::u16string_view containerName, const Locale& loc);

} // namespace velkor6::controls
