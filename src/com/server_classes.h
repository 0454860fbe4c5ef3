// The public classes the server offers, each over its member table. Adding a class is one
// ServerClass line in server_classes.cpp.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <memory>
#include <span>
#include <string>
#include <type_traits>

#include "com/class_ids.h"
#include "com/dispatch_object.h"
#include "com/member_index.h"
#include "com/server_state.h"

namespace velkor6::com {

GUID guidOf(std::u16string_view text); // "XXXXXXXX-XXXX-..." without braces

struct ClassEntry {
    ClassIds ids;
    GUID classId;
    GUID interfaceId;
    // A new object of the class with one reference.
    IDispatch* (*create)();
    // An IDispatch for an object of this class, or nullptr when the object is of another one.
    IDispatch* (*wrap)(const ObjectRef& object);
};

template <class Target, const ClassIds& Ids, const dispatch::Table<Target>& (*Members)()>
struct ServerClass {
    static const MemberIndex<Target>& index() {
        static const MemberIndex<Target> members(Members());
        return members;
    }
    static const GUID& interfaceId() {
        static const GUID id = guidOf(Ids.interfaceId);
        return id;
    }
    static IDispatch* dispatchFor(std::shared_ptr<Target> target) {
        return DispatchObject<Target>::create(std::move(target), index(), Ids.name, interfaceId(),
                                              serverContext());
    }
    static IDispatch* create() { return dispatchFor(std::make_shared<Target>(serverContext())); }
    static IDispatch* wrap(const ObjectRef& object) {
        if constexpr (std::is_base_of_v<Object, Target>) {
            if (auto target = std::dynamic_pointer_cast<Target>(object))
                return dispatchFor(std::move(target));
        }
        return nullptr;
    }
    static ClassEntry entry() {
        return {Ids, guidOf(Ids.classId), interfaceId(), &create, &wrap};
    }
};

std::span<const ClassEntry> serverClasses();

} // namespace velkor6::com
