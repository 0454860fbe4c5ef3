#include "controls/tab_strip.h"

#include "controls/control_access.h"
#include "core/convert.h"

#include <exception>

namespace velkor6::controls {

std::int32_t selectedTab(Object& tabStrip, const Locale& loc) {
    try {
        return toLong(get(*getObject(tabStrip, u"SelectedItem"), u"Index"), loc);
    } catch (const std::exception&) {
        return 0;
    }
}

void showSelectedContainer(Object& tabStrip, std::u16string_view containerName, const Locale& loc) {
    const std::int32_t selected = selectedTab(tabStrip, loc);
    const std::int32_t count = toLong(get(*getObject(tabStrip, u"Tabs"), u"Count"), loc);
    const ControlArray containers(*getObject(tabStrip, u"Parent"), containerName, loc);
    for (std::int32_t i = 1; i <= count; ++i) {
        if (const ObjectRef container = containers.element(i))
            let(*container, u"Visible", {Variant(i == selected)});
    }
}

} // namespace velkor6::controls
