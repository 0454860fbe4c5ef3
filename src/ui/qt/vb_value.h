// VB values, names and errors as the widget wrappers take and raise them.
#pragma once

#include "velkor6/variant.h"
#include "velkor6/vb_error.h"

#include <QString>
#include <cstdint>
#include <span>
#include <string_view>

namespace velkor6::qt {

// Errors of VB's controls beside the run-time errors of velkor6/vb_error.h.
namespace ctlerr {
inline constexpr std::int32_t invalidPropertyValue = 380;
inline constexpr std::int32_t invalidArrayIndex = 381;
inline constexpr std::int32_t readOnly = 383;
inline constexpr std::int32_t notAnArray = 343;
inline constexpr std::int32_t controlNotFound = 730;
inline constexpr std::int32_t indexOutOfBounds = 35600;
inline constexpr std::int32_t elementNotFound = 35601;
inline constexpr std::int32_t keyNotUnique = 35602;
inline constexpr std::int32_t noImageList = 35613;
// RPC_E_DISCONNECTED: the object behind the reference is gone.
inline constexpr std::int32_t disconnected = static_cast<std::int32_t>(0x80010108u);
} // namespace ctlerr

// VB's sizes are twips; Qt's pixels. 15 twips a pixel, as at 96 dots per inch.
inline constexpr std::int32_t twipsPerPixel = 15;
std::int32_t pixelsOf(std::int32_t twips);

[[noreturn]] void raise(std::int32_t number);

// Member names as IDispatch compares them: not case-sensitive.
bool sameName(std::u16string_view a, std::u16string_view b);

// VB's coercions of an argument: numbers round half to even and raise 6 beyond a Long; text
// that is no number raises 13, Null 94.
std::int32_t toInt(const Variant& v);
bool toBool(const Variant& v);
QString toText(const Variant& v);
Variant text(const QString& s);
// The object of an argument; raises 424 for anything else (Nothing included).
Object& toObject(const Variant& v);

inline QString toQString(std::u16string_view s) {
    return QString::fromUtf16(s.data(), static_cast<qsizetype>(s.size()));
}

// One call of a wrapper's member: its name, kind and arguments. A let's value is its last
// argument; the arguments before it are the property's indices.
struct MemberCall {
    std::u16string_view name;
    CallKind kind;
    std::span<Variant> args;

    bool named(std::u16string_view member) const { return sameName(name, member); }
    bool writes() const { return kind == CallKind::PropertyLet; }
    // The value a let assigns; raises 450 when there is none.
    const Variant& value() const;
    // Whether index argument i was given (and not left out).
    bool has(std::size_t i) const;
    // Index argument i; raises 449 when it was not given.
    const Variant& arg(std::size_t i) const;
    // Raises 383 when the call assigns to a member that can only be read.
    void readOnly() const;
};

} // namespace velkor6::qt
