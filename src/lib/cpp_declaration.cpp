#include "lib/cpp_declaration.h"

#include <string>

namespace velkor6::dispatch {
namespace {

// What the VB types cannot say: the C++ API's own classes and records in place of Object and
// Variant. An empty parameter name stands for the result.
struct ClassType {
    std::u16string_view param;
    std::u16string_view type;
    std::u16string_view member;
};
constexpr ClassType classTypes[] = {
    {u"oApp", u"const HostApp&", u"vkrInitApp"},
    {u"", u"std::shared_ptr<applib>", u"vkrInitApp"},
    {u"oApp", u"applib&", u"vkrRes"},
    {u"tFileInfo", u"typFileInfo&", u"vkrSeparateFile"},
    {u"oApp", u"applib&", u"vkrZoomTextBox"},
    {u"vArgs", u"std::vector<std::u16string>&", u"vkrSeparateFunction"},
    {u"tSize", u"SIZE&", u"vkrGetInternalFormSize"},
    {u"", u"std::vector<typCmdParam>", u"cmdParams"},
    {u"", u"Variant", u"vkrGlobalObj"},
};

std::u16string classType(std::u16string_view member, std::u16string_view param) {
    for (const auto& c : classTypes) {
        if (c.member == member && c.param == param)
            return std::u16string(c.type);
    }
    return {};
}

std::u16string ascii(const std::string& s) {
    return {s.begin(), s.end()};
}

std::u16string valueType(VarType t) {
    switch (t) {
    case VarType::Integer:
        return u"std::int16_t";
    case VarType::Long:
        return u"std::int32_t";
    case VarType::Single:
        return u"float";
    case VarType::Double:
        return u"double";
    case VarType::Boolean:
        return u"bool";
    case VarType::String:
        return u"std::u16string";
    case VarType::Object:
        return u"ObjectRef";
    default:
        return u"Variant";
    }
}

// Text comes in as a view and goes out through a reference, or a pointer when the caller may
// leave it out; an omissible Variant the member tests for Missing is a pointer as well.
std::u16string paramType(const Param& p) {
    if (isArrayType(p.type))
        return p.output ? u"VariantArray&" : u"const VariantArray&";
    switch (p.type) {
    case VarType::String:
        if (p.output)
            return p.optional ? u"std::u16string*" : u"std::u16string&";
        return u"std::u16string_view";
    case VarType::Variant:
        if (p.byRef && p.optional)
            return p.output ? u"Variant*" : u"const Variant*";
        return p.output ? u"Variant&" : u"const Variant&";
    case VarType::Object:
        return p.output ? u"ObjectRef&" : u"const ObjectRef&";
    default:
        return valueType(p.type) + (p.output ? u"&" : u"");
    }
}

std::u16string defaultText(const Param& p, const std::u16string& type) {
    const Variant& v = p.defaultValue;
    if (type.back() == u'*')
        return u"nullptr";
    if (v.isMissing())
        return u"Variant::missing()";
    if (v.isString())
        // A Variant's empty text differs from its Empty.
        return v.string().empty() && type != u"const Variant&" ? u"{}"
                                                               : u"u\"" + v.string() + u"\"";
    switch (v.type()) {
    case VarType::Boolean:
        return v.boolean() ? u"true" : u"false";
    case VarType::Integer:
        return ascii(std::to_string(v.integer()));
    case VarType::Long:
        return ascii(std::to_string(v.longValue()));
    default:
        return u"{}";
    }
}

// The IDL reserves "default"; C++ reserves it too.
std::u16string cppName(const std::u16string& name) {
    return name == u"default" ? u"defaultValue" : name;
}

// A settings let carries its get's fallback parameters, which only a read uses; C++ leaves
// them out.
bool readOnlyParam(const Param& p) {
    return p.name == u"default" || p.name == u"bAutoCreate";
}

} // namespace

std::u16string cppDeclaration(std::u16string_view name, CallKind kind,
                              std::span<const Param> params, VarType result) {
    const bool let = kind == CallKind::PropertyLet;
    std::u16string resultType = classType(name, u"");
    if (resultType.empty())
        resultType = result == VarType::Empty || let ? u"void"
                     : isArrayType(result)           ? u"VariantArray"
                                                     : valueType(result);
    std::u16string s = resultType + u" " + std::u16string(name) + (let ? u"Let(" : u"(");
    bool first = true;
    for (std::size_t i = 0; i < params.size(); ++i) {
        const Param& p = params[i];
        const bool assigned = let && i + 1 == params.size();
        if (let && readOnlyParam(p))
            continue;
        std::u16string type = classType(name, p.name);
        if (type.empty())
            type = paramType(p);
        if (!first)
            s += u", ";
        first = false;
        s += type + u" " + (assigned ? u"value" : cppName(p.name));
        // A let's parameters before the assigned value cannot have defaults in C++.
        if (p.optional && !let)
            s += u" = " + defaultText(p, type);
    }
    return s + u")";
}

} // namespace velkor6::dispatch
