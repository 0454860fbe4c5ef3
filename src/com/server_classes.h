// The public classes the server offers, each over its member table. Adding a class is one
// ServerClass line in server_classes.cpp.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
// clang-format on

#include "com/dispatch_object.h"
#include "com/member_index.h"
#include "com/server_state.h"
#include "lib/class_ids.h"

#include <memory>
#include <span>
#include <string>

namespace velkor6::com {

GUID guidOf(std::u16string_view text); // "XXXXXXXX-XXXX-..." without braces

struct ClassEntry {
    typelib::ClassIds ids;
    GUID classId;
    GUID interfaceId;
    // A new object of the class with one reference.
    IDispatch* (*create)();
    // An IDispatch for an object of this class, or nullptr when the object is of another one.
    IDispatch* (*wrap)(const ObjectRef& object);
};

template <class Target, const typelib::ClassIds& Ids, const dispatch::Table<Target>& (*Members)()>
struct ServerClass {
    static const MemberIndex<Target>& index() {
        static const MemberIndex<Target> members(Members());
        return members;
    }
    static const GUID& interfaceId() {
        static const GUID id = guidOf(Ids.interfaceId);
        return id;
    }
    static IDispatch* create() {
        return DispatchObject<Target>::create(std::make_shared<Target>(serverContext()), index(),
                                              Ids.name, interfaceId(), serverContext());
    }
    static IDispatch* wrap(const ObjectRef& object) {
        const auto* value = dynamic_cast<const dispatch::TableObject<Target>*>(object.get());
        if (value == nullptr)
            return nullptr;
        return DispatchObject<Target>::create(value->target(), index(), Ids.name, interfaceId(),
                                              serverContext(), object);
    }
    static ClassEntry entry() { return {Ids, guidOf(Ids.classId), interfaceId(), &create, &wrap}; }
};

std::span<const ClassEntry> serverClasses();

} // namespace velkor6::com
