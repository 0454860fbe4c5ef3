#include "lib/idl.h"

#include "core/text.h"
#include "lib/applib_members.h"
#include "lib/class_ids.h"
#include "lib/idl_names.h"
#include "lib/lib_members.h"
#include "velkor6/enums.h"

#include <cmath>
#include <cstdio>
#include <ostream>
#include <span>
#include <string>

namespace velkor6::typelib {
namespace {

std::string text(std::u16string_view s) {
    return toUtf8(s);
}

// A string literal of the IDL; characters outside ASCII become "?" since the compiler reads
// the file in no particular code page.
std::string quoted(std::u16string_view s) {
    std::string out = "\"";
    for (const char16_t c : s) {
        if (c == u'"' || c == u'\\') {
            out += '\\';
            out += static_cast<char>(c);
        } else if (c >= 0x20 && c < 0x7F) {
            out += static_cast<char>(c);
        } else {
            out += '?';
        }
    }
    return out + "\"";
}

std::string scalarType(VarType t) {
    switch (t) {
    case VarType::Integer:
        return "short";
    case VarType::Long:
        return "long";
    case VarType::Single:
        return "float";
    case VarType::Double:
        return "double";
    case VarType::Currency:
        return "CURRENCY";
    case VarType::Date:
        return "DATE";
    case VarType::String:
        return "BSTR";
    case VarType::Object:
        return "IDispatch*";
    case VarType::Boolean:
        return "VARIANT_BOOL";
    case VarType::Byte:
        return "unsigned char";
    default:
        return "VARIANT"; // Variant, and Decimal, which only a Variant can hold
    }
}

std::string typeName(VarType t) {
    if (isArrayType(t))
        return "SAFEARRAY(" + scalarType(elementType(t)) + ")";
    return scalarType(t);
}

std::string number(double d) {
    if (d == std::floor(d) && std::fabs(d) < 1e15)
        return std::to_string(static_cast<long long>(d));
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.17g", d);
    return buffer;
}

// The default value as IDL writes it, or "" when the type library cannot carry it (the
// parameter is then merely optional).
std::string defaultText(const Variant& v) {
    switch (v.type()) {
    case VarType::Integer:
        return std::to_string(v.integer());
    case VarType::Long:
        return std::to_string(v.longValue());
    case VarType::Byte:
        return std::to_string(v.byte());
    case VarType::Single:
        return number(v.single());
    case VarType::Double:
        return number(v.doubleValue());
    case VarType::Boolean:
        return v.boolean() ? "-1" : "0";
    case VarType::String:
        return quoted(v.string());
    default:
        return "";
    }
}

std::string parameter(const dispatch::Param& p) {
    const bool array = isArrayType(p.type);
    std::string attributes = p.byRef || array ? "in, out" : "in";
    if (p.optional) {
        // The compiler takes a string default only for a String passed by value; the server
        // supplies every default anyway.
        const std::string d =
            p.byRef && p.defaultValue.isString() ? "" : defaultText(p.defaultValue);
        attributes += d.empty() ? ", optional" : ", defaultvalue(" + d + ")";
    }
    std::string type = typeName(p.type);
    if (p.byRef || array)
        type += "*";
    return "[" + attributes + "] " + type + " " + text(idlParameterName(p.name));
}

template <class Target>
void writeInterface(std::ostream& out, const ClassIds& ids, const dispatch::Table<Target>& table) {
    out << "    [\n        uuid(" << text(ids.interfaceId) << "),\n        helpstring("
        << quoted(u"Members of class " + std::u16string(ids.name)) << ")\n    ]\n"
        << "    dispinterface _" << text(ids.name) << "\n    {\n    properties:\n    methods:\n";
    for (const auto& m : table) {
        out << "        [id(" << m.id << ")";
        if (m.kind == CallKind::PropertyGet)
            out << ", propget";
        else if (m.kind == CallKind::PropertyLet)
            out << ", propput";
        if (!m.summary.empty())
            out << ", helpstring(" << quoted(m.summary) << ")";
        out << "]\n        ";
        out << (m.result == VarType::Empty || m.kind == CallKind::PropertyLet ? "void"
                                                                              : typeName(m.result));
        out << " " << text(m.name) << "(";
        for (std::size_t p = 0; p < m.params.size(); ++p) {
            out << (p == 0 ? "" : ",") << "\n            " << parameter(m.params[p]);
        }
        out << ");\n";
    }
    out << "    };\n\n"
        << "    [\n        uuid(" << text(ids.classId) << ")\n    ]\n"
        << "    coclass " << text(ids.name) << "\n    {\n        [default] dispinterface _"
        << text(ids.name) << ";\n    };\n\n";
}

struct PublicEnum {
    const char* name;
    std::span<const EnumMember> members;
};

void writeEnum(std::ostream& out, const PublicEnum& e) {
    out << "    typedef enum " << e.name << "\n    {\n";
    for (std::size_t i = 0; i < e.members.size(); ++i) {
        const auto value = static_cast<std::uint32_t>(e.members[i].value);
        char hex[16];
        std::snprintf(hex, sizeof hex, "0x%08X", static_cast<unsigned>(value));
        out << "        " << text(e.members[i].name) << " = "
            << (e.members[i].value < 0 ? std::string(hex) : std::to_string(value))
            << (i + 1 < e.members.size() ? ",\n" : "\n");
    }
    out << "    } " << e.name << ";\n\n";
}

} // namespace

void writeIdl(std::ostream& out) {
    out << "// The type library of velkor6.dll. Generated from the member tables by\n"
           "// `velkor6 members --idl`; do not edit.\n\n"
           "// The automation types; the compiler gives these names their variant types.\n"
           "typedef short VARIANT_BOOL;\n"
           "typedef double DATE;\n"
           "typedef wchar_t* BSTR;\n"
           "typedef struct tagCY { hyper int64; } CURRENCY;\n"
           "typedef struct tagVARIANT { hyper placeholder[2]; } VARIANT;\n"
           "interface IDispatch;\n\n"
        << "[\n    uuid(" << text(libraryId) << "),\n    version(" << libraryMajor << "."
        << libraryMinor << "),\n    helpstring(" << quoted(libraryName) << ")\n]\nlibrary "
        << text(libraryName) << "\n{\n"
        << "    importlib(\"stdole2.tlb\");\n\n";
    const PublicEnum enums[] = {
        {"SpecialFolderConsts", specialFolderConstsMembers},
        {"RegistryKeys", registryKeysMembers},
        {"RegistryRights", registryRightsMembers},
        {"RegistryValueTypes", registryValueTypesMembers},
        {"RegistryErrorCodeConstants", registryErrorCodeConstantsMembers},
        {"RegistryOptions", registryOptionsMembers},
        {"Constants", constantsMembers},
        {"ListViewMessageConsts", listViewMessageConstsMembers},
        {"ListViewExStyleConsts", listViewExStyleConstsMembers},
        {"ListViewFindItemFlags", listViewFindItemFlagsMembers},
        {"ButtonStyleConsts", buttonStyleConstsMembers},
    };
    for (const PublicEnum& e : enums)
        writeEnum(out, e);
    writeInterface(out, libIds, dispatch::libMembers());
    writeInterface(out, applibIds, dispatch::applibMembers());
    out << "};\n";
}

} // namespace velkor6::typelib
