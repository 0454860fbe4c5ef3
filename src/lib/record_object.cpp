#include "velkor6/record_object.h"

#include "core/convert.h"
#include "core/text.h"
#include "velkor6/vb_error.h"

namespace velkor6 {

RecordObject::RecordObject(std::u16string typeName, std::vector<Field> fields, Locale loc)
    : typeName_(std::move(typeName)), fields_(std::move(fields)), locale_(std::move(loc)) {}

Variant* RecordObject::field(std::u16string_view name) {
    for (Field& f : fields_) {
        if (textEqual(f.name, name, Compare::Text))
            return &f.value;
    }
    return nullptr;
}

Variant RecordObject::call(std::u16string_view name, CallKind kind, std::span<Variant> args) {
    Variant* value = field(name);
    if (value == nullptr)
        throw VbError(vberr::noSuchMember);
    if (kind == CallKind::PropertyLet) {
        if (args.size() != 1)
            throw VbError(vberr::wrongArgumentCount);
        *value = convertTo(args[0], value->type(), locale_);
        return {};
    }
    if (!args.empty())
        throw VbError(vberr::wrongArgumentCount);
    return *value;
}

} // namespace velkor6
