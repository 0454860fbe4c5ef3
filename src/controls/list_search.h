// Finding a list item by keystrokes: the letters typed within a second of each other make up
// the text searched for, first at the start of the items' texts, then anywhere in them.
#pragma once

#include "controls/list_view.h"

#include <cstdint>
#include <string>

namespace velkor6::controls {

struct KeystrokeSearch {
    std::u16string text; // typed so far, upper case
    float deadline = 0;  // seconds since midnight; a key after it starts a new text
};

// Handles one key press of the list (KeyAscii) at `now` (seconds since midnight). Space toggles
// (MultiSelect) or selects the selected item and answers false. Any other key extends or restarts
// the search text; the first item whose upper-cased text fits text + "*", or whose number value
// (vkrVal) equals that pattern's, is selected, made visible and answers true, then the
// sub-items are tried, then both again with "*" in front. A found item or a space consumes the
// key (keyAscii becomes 0).
bool searchListItem(const ListView& view, KeystrokeSearch& state, double now,
                    std::int16_t& keyAscii, bool deselectBefore);

} // namespace velkor6::controls
