#include "lib/dispatch.h"

#include "core/convert.h"
#include "core/text.h"
#include "velkor6/vb_error.h"

namespace velkor6::dispatch {

bool sameName(std::u16string_view a, std::u16string_view b) {
    return textEqual(a, b, Compare::Text);
}

void throwNoSuchMember(std::u16string_view) {
    throw VbError(vberr::noSuchMember);
}

namespace {

Variant coerceArray(const Variant& v, VarType element, const Locale& loc) {
    if (!v.isArray())
        throw VbError(vberr::typeMismatch);
    if (element == VarType::Variant || v.array().element == element)
        return v;
    Variant copy = v;
    VariantArray& a = copy.array();
    for (Variant& item : a.items)
        item = coerce(item, element, loc);
    a.element = element;
    return copy;
}

} // namespace

Variant coerce(const Variant& v, VarType type, const Locale& loc) {
    if (type == VarType::Variant)
        return v;
    if (isArrayType(type))
        return coerceArray(v, elementType(type), loc);
    if (v.type() == type)
        return v;
    if (type == VarType::Object) {
        if (!v.isObject())
            throw VbError(vberr::typeMismatch);
        return v;
    }
    if (v.isNull() || v.isArray() || v.isObject() || v.type() == VarType::Error)
        throw VbError(vberr::typeMismatch);
    try {
        return convertTo(v, type, loc);
    } catch (const VbError& e) {
        // Overflow keeps its number; whatever else fails is a type mismatch, as DispInvoke says.
        if (e.number() == vberr::overflow)
            throw;
        throw VbError(vberr::typeMismatch);
    }
}

Binding bindArguments(std::span<const Param> params, std::span<Argument> args, const Locale& loc) {
    Binding b;
    b.values.resize(params.size());
    b.sources.assign(params.size(), nullptr);
    std::vector<bool> given(params.size(), false);

    std::size_t next = 0;
    for (Argument& arg : args) {
        std::size_t slot = 0;
        if (arg.name.empty()) {
            slot = next++;
            if (slot >= params.size())
                throw VbError(vberr::wrongArgumentCount);
        } else {
            slot = params.size();
            for (std::size_t i = 0; i < params.size(); ++i) {
                if (sameName(params[i].name, arg.name)) {
                    slot = i;
                    break;
                }
            }
            if (slot == params.size())
                throw VbError(vberr::namedArgumentNotFound);
            if (given[slot])
                throw VbError(vberr::wrongArgumentCount);
        }
        given[slot] = true;
        if (arg.value == nullptr || arg.value->isMissing())
            continue;
        try {
            b.values[slot] = coerce(*arg.value, params[slot].type, loc);
        } catch (const VbError& e) {
            throw ArgumentError(e, slot);
        }
        b.sources[slot] = arg.value;
    }

    for (std::size_t i = 0; i < params.size(); ++i) {
        if (b.sources[i] != nullptr)
            continue;
        if (!params[i].optional)
            throw VbError(vberr::argumentNotOptional);
        b.values[i] = params[i].defaultValue;
    }
    return b;
}

void writeBack(std::span<const Param> params, Binding& binding) {
    for (std::size_t i = 0; i < params.size(); ++i) {
        if (params[i].byRef && binding.sources[i] != nullptr)
            *binding.sources[i] = binding.values[i];
    }
}

std::u16string typeLabel(VarType t) {
    if (isArrayType(t))
        return typeLabel(elementType(t)) + u"()";
    switch (t) {
    case VarType::Empty:
    case VarType::Null:
    case VarType::Error:
        return u"Variant"; // what a declaration says of a value that may be any of them
    default:
        return std::u16string(typeBaseName(t));
    }
}

} // namespace velkor6::dispatch
