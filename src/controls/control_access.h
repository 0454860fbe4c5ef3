// Reading and writing the caller's controls by their VB member names, and the one route to an
// element of a control array that every control helper takes.
//
// Control arrays: the array named X on a form (or any container of controls) is the form's
// property X read without arguments. The array object answers LBound, UBound and Item(i); an
// element that does not exist makes Item raise (a VB array may have holes). A VB form over
// IDispatch answers so by itself; a toolkit wrapper of a form answers the property get X with an
// object that has these three members, and an element answers Index with its number.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace velkor6::controls {

Variant get(Object& object, std::u16string_view name, std::initializer_list<Variant> args = {});
void let(Object& object, std::u16string_view name, std::initializer_list<Variant> args);
Variant invokeMethod(Object& object, std::u16string_view name,
                     std::initializer_list<Variant> args = {});

// The object a property answers; raises 424 (object required) for anything else or Nothing.
ObjectRef getObject(Object& object, std::u16string_view name,
                    std::initializer_list<Variant> args = {});

// A control array of a container as the route above reaches it.
class ControlArray {
public:
    // Raises when the container has no such property or it answers no object.
    ControlArray(Object& container, std::u16string_view name, const Locale& loc);

    std::int32_t lowerBound() const;
    std::int32_t upperBound() const;
    // Nothing for an element that does not exist.
    ObjectRef element(std::int32_t index) const;

private:
    ObjectRef array_;
    Locale locale_;
};

} // namespace velkor6::controls
