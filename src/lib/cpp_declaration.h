// The C++ declaration of a member as include/velkor6/lib.h and applib.h write it, derived from
// its row, for the member reference.
#pragma once

#include "lib/dispatch.h"

#include <span>
#include <string>
#include <string_view>

namespace velkor6::dispatch {

// "std::int16_t vkrHasSubString(std::u16string_view sSource, ...)". A property let is the
// member's name with "Let", the assigned value its last parameter, `value`.
std::u16string cppDeclaration(std::u16string_view name, CallKind kind,
                              std::span<const Param> params, VarType result);

template <class Target>
std::u16string cppDeclaration(const Member<Target>& m) {
    return cppDeclaration(m.name, m.kind, m.params, m.result);
}

} // namespace velkor6::dispatch
