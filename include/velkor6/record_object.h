// A record as an object: its fields are read and written by name, so that a record can cross
// the dispatch table as a ByRef argument and front ends can show it field by field.
#pragma once

#include "velkor6/export.h"
#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6 {

class VELKOR6_API RecordObject : public Object {
public:
    struct Field {
        std::u16string name;
        Variant value; // its type is the field's type
    };

    // loc converts assigned values to the field types.
    RecordObject(std::u16string typeName, std::vector<Field> fields, Locale loc);

    std::u16string typeName() const override { return typeName_; }
    // A property get (or a method call without arguments) reads a field, a property let with
    // one argument writes it. Unknown names raise error 438.
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override;

    // In declaration order.
    const std::vector<Field>& fields() const { return fields_; }
    // nullptr for an unknown name (names compare case-insensitively).
    Variant* field(std::u16string_view name);

private:
    std::u16string typeName_;
    std::vector<Field> fields_;
    Locale locale_;
};

} // namespace velkor6
