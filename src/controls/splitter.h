// A splitter made of a picture box docked to one side of its form (Align 1 top, 2 bottom,
// 3 left, 4 right) and a control inside it. The grip zone is the strip, iDiff wide, along the
// picture box's inner edge (the one facing the rest of the form). Mouse coordinates are the
// control's own, as its MouseMove and MouseDown events give them.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <cstdint>

namespace velkor6::controls {

namespace pointer {
inline constexpr std::int16_t normal = 0;
inline constexpr std::int16_t sizeNorthSouth = 7;
inline constexpr std::int16_t sizeWestEast = 9;
} // namespace pointer

struct SplitterGeometry {
    std::int16_t align = 0;
    double boxWidth = 0, boxHeight = 0;
    double controlLeft = 0, controlTop = 0; // within the picture box
};

// Align and Width/Height of the picture box; Left and Top of the control.
SplitterGeometry readSplitter(Object& control, Object& pictureBox, const Locale& loc);

// The pointer for the mouse at (x, y): 9 in the zone of a box docked left or right, 7 in the
// zone of one docked at the top or bottom, else 0. The zone's limit, in the control's
// coordinates: left-docked x >= box width - control left - grip; right-docked x < grip -
// control left; top-docked y >= box height - control top - grip; bottom-docked y < grip -
// control top.
std::int16_t splitterPointer(const SplitterGeometry& g, double x, double y, double grip);

// The coordinate a drag follows: x for a box docked left or right, y otherwise.
double dragCoordinate(std::int16_t align, double x, double y);

// Moves the inner edge of the box by the way the mouse went from `from` to `to` (a coordinate
// of the control): Width for left and right, Height for top and bottom, never below minimum.
// Answers the coordinate the next move is measured from: where the edge now puts the grip point.
double followDrag(Object& pictureBox, std::int16_t align, double from, double to, double minimum,
                  const Locale& loc);

} // namespace velkor6::controls
