#include "controls/fields.h"

#include "controls/control_access.h"
#include "core/convert.h"
#include "core/text.h"

#include <exception>

namespace velkor6::controls {

std::int32_t checkedOption(Object& form, std::u16string_view group, const Locale& loc) {
    const ControlArray options(form, group, loc);
    const std::int32_t last = options.upperBound();
    for (std::int32_t i = options.lowerBound(); i <= last; ++i) {
        const ObjectRef option = options.element(i);
        if (option && toBoolean(get(*option, u"Value"), loc))
            return i;
    }
    return -1;
}

bool isWholeTextSelected(Object& field, const Locale& loc) {
    const auto length = static_cast<std::int32_t>(toString(get(field, u"Text"), loc).size());
    return toLong(get(field, u"SelStart"), loc) == 0 &&
           toLong(get(field, u"SelLength"), loc) == length;
}

void selectWholeText(Object& field, bool changeSelection, const Locale& loc) {
    if (!changeSelection && toLong(get(field, u"SelLength"), loc) > 0)
        return;
    const auto length = static_cast<std::int32_t>(toString(get(field, u"Text"), loc).size());
    let(field, u"SelStart", {Variant(std::int32_t{0})});
    let(field, u"SelLength", {Variant(length)});
}

void showTip(Object& field, Object& panel) {
    let(panel, u"Text", {get(field, u"ToolTipText")});
}

bool hasIndex(Object& control) {
    try {
        get(control, u"Index");
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool containsControl(Object& container, std::u16string_view name, std::int32_t index,
                     const Locale& loc) {
    const ObjectRef controls = getObject(container, u"Controls");
    const std::int32_t count = toLong(get(*controls, u"Count"), loc);
    const std::u16string wanted = upperCase(name);
    for (std::int32_t i = 0; i < count; ++i) {
        try {
            const ObjectRef control = getObject(*controls, u"", {Variant(i)});
            if (upperCase(toString(get(*control, u"Name"), loc)) != wanted)
                continue;
            if (index < 0 || toLong(get(*control, u"Index"), loc) == index)
                return true;
        } catch (const std::exception&) {
            // A control without a name or an index is not the one asked for.
        }
    }
    return false;
}

ObjectRef containerOf(Object& control) {
    for (const std::u16string_view property : {u"Container", u"Parent"}) {
        try {
            const Variant v = get(control, property);
            if (v.isObject() && v.object())
                return v.object();
        } catch (const std::exception&) {
        }
    }
    return {};
}

bool focusIfUsable(Object& control, const Locale& loc) {
    if (!toBoolean(get(control, u"Visible"), loc) || !toBoolean(get(control, u"Enabled"), loc))
        return false;
    invokeMethod(control, u"SetFocus");
    return true;
}

} // namespace velkor6::controls
