#include "com/server_classes.h"

#include "lib/applib_members.h"
#include "lib/lib_members.h"

#include <string>
#include <vector>

namespace velkor6::com {

GUID guidOf(std::u16string_view text) {
    std::u16string braced = u"{" + std::u16string(text) + u"}";
    GUID id{};
    IIDFromString(reinterpret_cast<LPCOLESTR>(braced.c_str()), &id);
    return id;
}

std::span<const ClassEntry> serverClasses() {
    static const std::vector<ClassEntry> classes{
        ServerClass<lib, typelib::libIds, dispatch::libMembers>::entry(),
        ServerClass<applib, typelib::applibIds, dispatch::applibMembers>::entry(),
    };
    return classes;
}

} // namespace velkor6::com
