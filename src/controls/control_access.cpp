#include "controls/control_access.h"

#include "core/convert.h"
#include "velkor6/vb_error.h"

#include <exception>
#include <vector>

namespace velkor6::controls {
namespace {

Variant callWith(Object& object, std::u16string_view name, CallKind kind,
                 std::initializer_list<Variant> args) {
    std::vector<Variant> values(args);
    return object.call(name, kind, values);
}

} // namespace

Variant get(Object& object, std::u16string_view name, std::initializer_list<Variant> args) {
    return callWith(object, name, CallKind::PropertyGet, args);
}

void let(Object& object, std::u16string_view name, std::initializer_list<Variant> args) {
    callWith(object, name, CallKind::PropertyLet, args);
}

Variant invokeMethod(Object& object, std::u16string_view name,
                     std::initializer_list<Variant> args) {
    return callWith(object, name, CallKind::Method, args);
}

ObjectRef getObject(Object& object, std::u16string_view name, std::initializer_list<Variant> args) {
    const Variant v = get(object, name, args);
    if (!v.isObject() || !v.object())
        throw VbError(vberr::objectRequired);
    return v.object();
}

ControlArray::ControlArray(Object& container, std::u16string_view name, const Locale& loc)
    : array_(getObject(container, name)), locale_(loc) {}

std::int32_t ControlArray::lowerBound() const {
    return toLong(get(*array_, u"LBound"), locale_);
}

std::int32_t ControlArray::upperBound() const {
    return toLong(get(*array_, u"UBound"), locale_);
}

ObjectRef ControlArray::element(std::int32_t index) const {
    try {
        const Variant v = get(*array_, u"Item", {Variant(index)});
        return v.isObject() ? v.object() : ObjectRef();
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace velkor6::controls
