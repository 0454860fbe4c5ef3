// Calls into wrapped widgets as a VB client makes them.
#pragma once

#include "velkor6/qt.h"
#include "velkor6/vb_error.h"

#include <QString>
#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <vector>

namespace velkor6::qt::test {

inline Variant get(const ObjectRef& o, std::u16string_view name, std::vector<Variant> args = {}) {
    return o->call(name, CallKind::PropertyGet, args);
}

inline void let(const ObjectRef& o, std::u16string_view name, std::vector<Variant> args) {
    o->call(name, CallKind::PropertyLet, args);
}

inline Variant run(const ObjectRef& o, std::u16string_view name, std::vector<Variant> args = {}) {
    return o->call(name, CallKind::Method, args);
}

inline ObjectRef obj(const Variant& v) {
    return v.isObject() ? v.object() : nullptr;
}

inline std::u16string str(const Variant& v) {
    return v.isString() ? v.string() : u"<not a string>";
}

inline QString q(const Variant& v) {
    return QString::fromStdU16String(str(v));
}

// The VB error number a call raises; 0 when it raises none.
inline std::int32_t errorOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const VbError& e) {
        return e.number();
    }
    return 0;
}

} // namespace velkor6::qt::test

namespace velkor6::qt::test {

// A number or Boolean as VB compares it.
inline std::int32_t num(const Variant& v) {
    switch (v.type()) {
    case VarType::Integer:
        return v.integer();
    case VarType::Long:
        return v.longValue();
    case VarType::Boolean:
        return v.boolean() ? -1 : 0;
    default:
        ADD_FAILURE() << "not a number, type " << static_cast<int>(v.type());
        return -999;
    }
}

} // namespace velkor6::qt::test
