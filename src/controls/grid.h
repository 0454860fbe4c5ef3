// Column widths of a grid (Cols, ColWidth(i) in twips, columns from 0) or of a list view
// (ColumnHeaders(i).Width in its container's scale, columns from 1).
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <cstdint>

namespace velkor6::controls {

// With newWidth >= 0 the column gets that width, in its own units. Otherwise it takes the width
// the other columns leave inside the control: the control's Width (converted from its
// container's ScaleMode with the container's ScaleX) less a frame of 2 pixels on each side when
// BorderStyle is not 0; when they leave none, the column keeps its width. A control answering
// ColumnHeaders is a list view, any other a grid.
void resizeColumn(Object& control, std::int32_t column, std::int32_t newWidth,
                  std::int32_t twipsPerPixel, const Locale& loc);

} // namespace velkor6::controls
