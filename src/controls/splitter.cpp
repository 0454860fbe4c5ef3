#include "controls/splitter.h"

#include "controls/control_access.h"
#include "core/convert.h"

#include <algorithm>

namespace velkor6::controls {
namespace {

constexpr std::int16_t alignTop = 1;
constexpr std::int16_t alignBottom = 2;
constexpr std::int16_t alignLeft = 3;
constexpr std::int16_t alignRight = 4;

bool horizontal(std::int16_t align) {
    return align == alignLeft || align == alignRight;
}

} // namespace

SplitterGeometry readSplitter(Object& control, Object& pictureBox, const Locale& loc) {
    SplitterGeometry g;
    g.align = toInteger(get(pictureBox, u"Align"), loc);
    g.boxWidth = toDouble(get(pictureBox, u"Width"), loc);
    g.boxHeight = toDouble(get(pictureBox, u"Height"), loc);
    g.controlLeft = toDouble(get(control, u"Left"), loc);
    g.controlTop = toDouble(get(control, u"Top"), loc);
    return g;
}

std::int16_t splitterPointer(const SplitterGeometry& g, double x, double y, double grip) {
    if ((g.align == alignRight && x < grip - g.controlLeft) ||
        (g.align == alignLeft && x >= g.boxWidth - g.controlLeft - grip))
        return pointer::sizeWestEast;
    if ((g.align == alignBottom && y < grip - g.controlTop) ||
        (g.align == alignTop && y >= g.boxHeight - g.controlTop - grip))
        return pointer::sizeNorthSouth;
    return pointer::normal;
}

double dragCoordinate(std::int16_t align, double x, double y) {
    return horizontal(align) ? x : y;
}

double followDrag(Object& pictureBox, std::int16_t align, double from, double to, double minimum,
                  const Locale& loc) {
    const std::u16string_view extent = horizontal(align) ? u"Width" : u"Height";
    const bool edgeFollowsMouse = align == alignLeft || align == alignTop;
    const double moved = edgeFollowsMouse ? to - from : from - to;
    const double size = toDouble(get(pictureBox, extent), loc);
    const double wanted = std::max(size + moved, minimum);
    let(pictureBox, extent, {Variant(static_cast<float>(wanted))});
    // The control of a box docked right or at the bottom moves with the edge, under the mouse.
    const double change = wanted - size;
    return (edgeFollowsMouse ? from : to) + change;
}

} // namespace velkor6::controls
