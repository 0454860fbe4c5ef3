#include "controls/grid.h"

#include "controls/control_access.h"
#include "controls/fields.h"
#include "core/convert.h"

#include <exception>

namespace velkor6::controls {
namespace {

constexpr std::int32_t scaleTwips = 1;
constexpr std::int32_t framePixels = 4; // a sunken border of 2 pixels on either side

// Lengths in the scale of the control's container, converted to and from twips.
class ContainerScale {
public:
    ContainerScale(Object& control, const Locale& loc) : container_(containerOf(control)) {
        if (!container_)
            return;
        try {
            mode_ = toLong(get(*container_, u"ScaleMode"), loc);
        } catch (const std::exception&) {
            mode_ = scaleTwips;
        }
    }

    double toTwips(double length, const Locale& loc) const {
        return convert(length, mode_, scaleTwips, loc);
    }
    double fromTwips(double length, const Locale& loc) const {
        return convert(length, scaleTwips, mode_, loc);
    }

private:
    double convert(double length, std::int32_t from, std::int32_t to, const Locale& loc) const {
        if (from == to)
            return length;
        return toDouble(
            invokeMethod(*container_, u"ScaleX",
                         {Variant(static_cast<float>(length)), Variant(from), Variant(to)}),
            loc);
    }

    ObjectRef container_;
    std::int32_t mode_ = scaleTwips;
};

bool isListView(Object& control) {
    try {
        getObject(control, u"ColumnHeaders");
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

double innerTwips(Object& control, const ContainerScale& scale, std::int32_t twipsPerPixel,
                  const Locale& loc) {
    double width = scale.toTwips(toDouble(get(control, u"Width"), loc), loc);
    try {
        if (toLong(get(control, u"BorderStyle"), loc) != 0)
            width -= framePixels * twipsPerPixel;
    } catch (const std::exception&) {
        // No border property: no frame.
    }
    return width;
}

void resizeGridColumn(Object& grid, std::int32_t column, std::int32_t newWidth,
                      std::int32_t twipsPerPixel, const Locale& loc) {
    if (newWidth < 0) {
        const ContainerScale scale(grid, loc);
        double free = innerTwips(grid, scale, twipsPerPixel, loc);
        const std::int32_t count = toLong(get(grid, u"Cols"), loc);
        for (std::int32_t i = 0; i < count; ++i) {
            if (i != column)
                free -= toLong(get(grid, u"ColWidth", {Variant(i)}), loc);
        }
        if (free <= 0)
            return;
        newWidth = toLong(Variant(free), loc);
    }
    let(grid, u"ColWidth", {Variant(column), Variant(newWidth)});
}

void resizeListViewColumn(Object& listView, std::int32_t column, std::int32_t newWidth,
                          std::int32_t twipsPerPixel, const Locale& loc) {
    const ObjectRef headers = getObject(listView, u"ColumnHeaders");
    const ObjectRef header = getObject(*headers, u"Item", {Variant(column)});
    if (newWidth >= 0) {
        let(*header, u"Width", {Variant(static_cast<float>(newWidth))});
        return;
    }
    const ContainerScale scale(listView, loc);
    double free = innerTwips(listView, scale, twipsPerPixel, loc);
    const std::int32_t count = toLong(get(*headers, u"Count"), loc);
    for (std::int32_t i = 1; i <= count; ++i) {
        if (i != column)
            free -= scale.toTwips(
                toDouble(get(*getObject(*headers, u"Item", {Variant(i)}), u"Width"), loc), loc);
    }
    if (free > 0)
        let(*header, u"Width", {Variant(static_cast<float>(scale.fromTwips(free, loc)))});
}

} // namespace

void resizeColumn(Object& control, std::int32_t column, std::int32_t newWidth,
                  std::int32_t twipsPerPixel, const Locale& loc) {
    if (isListView(control))
        resizeListViewColumn(control, column, newWidth, twipsPerPixel, loc);
    else
        resizeGridColumn(control, column, newWidth, twipsPerPixel, loc);
}

} // namespace velkor6::controls
