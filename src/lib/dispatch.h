// The member tables of the public classes and invoke-by-name over them. One row per member:
// name, kind, parameters, result type and the function that calls the facade. The CLI, the COM
// server and the member reference are all built on these rows.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6::dispatch {

enum class Kind { Method, PropertyGet, PropertyLet };

struct Param {
    std::u16string name;
    VarType type = VarType::Variant; // VarType::Array | element for "x() As T"
    bool byRef = false;
    bool optional = false;
    Variant defaultValue; // for optional parameters; Missing when the member tests IsMissing
};

// The arguments of one call, already bound to the parameters and coerced to their types.
class Args {
public:
    explicit Args(std::span<Variant> values) : values_(values) {}

    std::size_t size() const { return values_.size(); }
    Variant& operator[](std::size_t i) { return values_[i]; }
    const Variant& operator[](std::size_t i) const { return values_[i]; }

    // Typed views; valid because binding coerced each value to its declared type.
    const std::u16string& str(std::size_t i) const { return values_[i].string(); }
    std::u16string& strRef(std::size_t i) { return values_[i].string(); }
    std::int16_t i16(std::size_t i) const { return values_[i].integer(); }
    std::int32_t i32(std::size_t i) const { return values_[i].longValue(); }
    float f32(std::size_t i) const { return values_[i].single(); }
    double f64(std::size_t i) const { return values_[i].doubleValue(); }
    bool b(std::size_t i) const { return values_[i].boolean(); }

private:
    std::span<Variant> values_;
};

template <class Target>
struct Member {
    using Fn = Variant (*)(Target&, Args&);

    std::u16string name;
    Kind kind = Kind::Method;
    std::vector<Param> params;       // for a property let, the last one is the assigned value
    VarType result = VarType::Empty; // Empty: no result (a Sub)
    Fn call = nullptr;
    std::u16string summary; // one line for the member reference
    std::u16string notes;   // further paragraphs for the member reference (may be empty)
};

template <class Target>
using Table = std::vector<Member<Target>>;

// Shorthands that keep the rows readable.
inline Param required(std::u16string name, VarType type) {
    return Param{std::move(name), type, false, false, Variant()};
}
inline Param optional(std::u16string name, VarType type, Variant defaultValue) {
    return Param{std::move(name), type, false, true, std::move(defaultValue)};
}
inline Param byRef(std::u16string name, VarType type) {
    return Param{std::move(name), type, true, false, Variant()};
}
inline Param optionalByRef(std::u16string name, VarType type, Variant defaultValue) {
    return Param{std::move(name), type, true, true, std::move(defaultValue)};
}

// One argument as the caller passes it: a value it owns (written back when the parameter is
// ByRef) and, for a named argument, the parameter's name.
struct Argument {
    Variant* value = nullptr;
    std::u16string name;
};

// The row a call by name reaches, or nullptr. A method call also finds a property get, as
// late-bound clients send both flags together.
template <class Target>
const Member<Target>* find(const Table<Target>& table, std::u16string_view name, Kind kind);

// The arguments of one call bound to a member's parameters: one coerced value per parameter,
// and for each the caller's value it came from (nullptr when the argument was omitted).
struct Binding {
    std::vector<Variant> values;
    std::vector<Variant*> sources;
};

// Binds the arguments to the member's parameters: positional first, then named; omitted
// optionals (not passed, or Missing) take their defaults. Raises 449 for a missing required
// argument, 448 for an unknown name, 450 for too many arguments or one bound twice, and the
// conversion errors (13, 6) for a value that does not fit the declared type.
Binding bindArguments(std::span<const Param> params, std::span<Argument> args, const Locale& loc);
// Writes the ByRef parameters back into the caller's values.
void writeBack(std::span<const Param> params, Binding& binding);
// Coerces a value to a parameter type with VB's rules; Variant takes anything.
Variant coerce(const Variant& v, VarType type, const Locale& loc);

[[noreturn]] void throwNoSuchMember(std::u16string_view name);
bool sameName(std::u16string_view a, std::u16string_view b);

// Calls a member by name (case-insensitive). Raises 438 when no row has that name and kind.
template <class Target>
Variant invoke(const Table<Target>& table, Target& target, std::u16string_view name, Kind kind,
               std::span<Argument> args, const Locale& loc) {
    const Member<Target>* m = find(table, name, kind);
    if (m == nullptr)
        throwNoSuchMember(name);
    Binding binding = bindArguments(m->params, args, loc);
    Args view(binding.values);
    // A ByRef argument is the caller's variable: what the member wrote before an error stays.
    try {
        Variant result = m->call(target, view);
        writeBack(m->params, binding);
        return result;
    } catch (...) {
        writeBack(m->params, binding);
        throw;
    }
}

template <class Target>
const Member<Target>* find(const Table<Target>& table, std::u16string_view name, Kind kind) {
    for (const auto& m : table) {
        if (!sameName(m.name, name))
            continue;
        if (m.kind == kind || (kind == Kind::Method && m.kind == Kind::PropertyGet))
            return &m;
    }
    return nullptr;
}

// "String", "Integer", "Variant()", as the member reference writes a type.
std::u16string typeLabel(VarType t);

} // namespace velkor6::dispatch
