// How the type library spells a parameter whose name the IDL compiler reserves ("default"):
// with a trailing "_". Early-bound clients use that spelling for named arguments, so the
// server accepts it beside the table's own.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace velkor6::typelib {

inline bool isIdlKeyword(std::u16string_view name) {
    static constexpr std::u16string_view reserved[] = {
        u"boolean", u"byte",    u"case",      u"char",     u"coclass",    u"const",
        u"default", u"double",  u"enum",      u"false",    u"FALSE",      u"float",
        u"hyper",   u"import",  u"importlib", u"int",      u"interface",  u"library",
        u"long",    u"methods", u"module",    u"NULL",     u"properties", u"short",
        u"signed",  u"sizeof",  u"small",     u"struct",   u"switch",     u"true",
        u"TRUE",    u"typedef", u"union",     u"unsigned", u"void",       u"wchar_t"};
    return std::find(std::begin(reserved), std::end(reserved), name) != std::end(reserved);
}

inline std::u16string idlParameterName(std::u16string_view name) {
    std::u16string spelled(name);
    if (isIdlKeyword(name))
        spelled += u'_';
    return spelled;
}

} // namespace velkor6::typelib
