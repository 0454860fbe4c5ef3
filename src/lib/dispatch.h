// The member tables of the public classes and invoke-by-name over them. One row per member:
// dispatch id, name, kind, parameters, result type and the function that calls the member. The
// CLI, the COM server, the type library and the member reference are all built on these rows.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"
#include "velkor6/vb_error.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6::dispatch {

struct Param {
    std::u16string name;
    VarType type = VarType::Variant; // VarType::Array | element for "x() As T"
    bool byRef = false;
    bool optional = false;
    Variant defaultValue; // for optional parameters; Missing when the member tests IsMissing
    bool output = false;  // a ByRef parameter the member writes, not one it only reads
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

    // The DISPID. Early-bound clients are compiled against it, so a member keeps its number for
    // ever; a property's get and let rows share one.
    std::int32_t id = 0;
    std::u16string name;
    CallKind kind = CallKind::Method;
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
// A ByRef parameter the member only reads.
inline Param byRef(std::u16string name, VarType type) {
    return Param{std::move(name), type, true, false, Variant()};
}
inline Param optionalByRef(std::u16string name, VarType type, Variant defaultValue) {
    return Param{std::move(name), type, true, true, std::move(defaultValue)};
}
// A ByRef parameter the member writes: one of its results.
inline Param output(std::u16string name, VarType type) {
    return Param{std::move(name), type, true, false, Variant(), true};
}
inline Param optionalOutput(std::u16string name, VarType type, Variant defaultValue) {
    return Param{std::move(name), type, true, true, std::move(defaultValue), true};
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
const Member<Target>* find(const Table<Target>& table, std::u16string_view name, CallKind kind);

// A conversion error (13, 6) of one argument: the same number, description and source as the
// plain error, which COM clients see unchanged, and the parameter whose value did not fit, which
// front ends that show errors to people name.
class ArgumentError : public VbError {
public:
    ArgumentError(const VbError& error, std::size_t param) : VbError(error), param_(param) {}
    std::size_t param() const { return param_; }

private:
    std::size_t param_;
};

// The arguments of one call bound to a member's parameters: one coerced value per parameter,
// and for each the caller's value it came from (nullptr when the argument was omitted).
struct Binding {
    std::vector<Variant> values;
    std::vector<Variant*> sources;
};

// Binds the arguments to the member's parameters: positional first, then named; omitted
// optionals (not passed, or Missing) take their defaults. Raises 449 for a missing required
// argument, 448 for an unknown name, 450 for too many arguments or one bound twice, and the
// conversion errors (13, 6) as ArgumentError for a value that does not fit the declared type.
Binding bindArguments(std::span<const Param> params, std::span<Argument> args, const Locale& loc);
// Writes the ByRef parameters back into the caller's values.
void writeBack(std::span<const Param> params, Binding& binding);
// Coerces a value to a parameter type with VB's rules; Variant takes anything.
Variant coerce(const Variant& v, VarType type, const Locale& loc);

[[noreturn]] void throwNoSuchMember(std::u16string_view name);
bool sameName(std::u16string_view a, std::u16string_view b);

struct NoObserver {
    void operator()(const Binding&) const {}
};

// The one way a member is called: binds the arguments, calls the member and writes its ByRef
// parameters back into the caller's values. What a member wrote before raising stays written,
// as with VB's own by-reference variables. `written` then sees the bound values, on success and
// on error alike: the COM server copies them into the caller's VARIANTs, the CLI prints outputs.
template <class Target, class Observer = NoObserver>
Variant call(const Member<Target>& member, Target& target, std::span<Argument> args,
             const Locale& loc, Observer&& written = {}) {
    Binding binding = bindArguments(member.params, args, loc);
    Args view(binding.values);
    Variant result;
    try {
        result = member.call(target, view);
    } catch (...) {
        writeBack(member.params, binding);
        written(binding);
        throw;
    }
    writeBack(member.params, binding);
    written(binding);
    return result;
}

// Calls a member by name (case-insensitive). Raises 438 when no row has that name and kind.
template <class Target>
Variant invoke(const Table<Target>& table, Target& target, std::u16string_view name, CallKind kind,
               std::span<Argument> args, const Locale& loc) {
    const Member<Target>* m = find(table, name, kind);
    if (m == nullptr)
        throwNoSuchMember(name);
    return call(*m, target, args, loc);
}

template <class Target>
const Member<Target>* find(const Table<Target>& table, std::u16string_view name, CallKind kind) {
    for (const auto& m : table) {
        if (!sameName(m.name, name))
            continue;
        if (m.kind == kind || (kind == CallKind::Method && m.kind == CallKind::PropertyGet))
            return &m;
    }
    return nullptr;
}

// "String", "Integer", "Variant()", as the member reference writes a type.
std::u16string typeLabel(VarType t);

} // namespace velkor6::dispatch
