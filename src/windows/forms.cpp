#include "windows/forms.h"

#include "core/convert.h"
#include "core/text.h"

namespace velkor6::windows {

ObjectRef findOpenForm(Object& forms, std::u16string_view formName, const Locale& loc) {
    const std::int32_t count = toLong(forms.call(u"Count", CallKind::PropertyGet, {}), loc);
    for (std::int32_t i = 0; i < count; ++i) {
        Variant index(i);
        const Variant form = forms.call(u"", CallKind::PropertyGet, std::span<Variant>(&index, 1));
        if (!form.isObject() || !form.object())
            continue;
        const Variant name = form.object()->call(u"Name", CallKind::PropertyGet, {});
        if (upperCase(toString(name, loc)) == upperCase(formName))
            return form.object();
    }
    return {};
}

} // namespace velkor6::windows
