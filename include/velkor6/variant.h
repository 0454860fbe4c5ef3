// The dynamically typed value that crosses every public interface of the library.
#pragma once

#include "velkor6/export.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velkor6 {

// Type codes of the automation value model; the numbers are the ones clients pass (VarType).
enum class VarType : std::uint16_t {
    Empty = 0,
    Null = 1,
    Integer = 2,
    Long = 3,
    Single = 4,
    Double = 5,
    Currency = 6,
    Date = 7,
    String = 8,
    Object = 9,
    Error = 10,
    Boolean = 11,
    Variant = 12,
    Decimal = 14,
    Byte = 17,
    Array = 0x2000,
};

constexpr VarType operator|(VarType a, VarType b) {
    return static_cast<VarType>(static_cast<std::uint16_t>(a) | static_cast<std::uint16_t>(b));
}
constexpr bool isArrayType(VarType t) {
    return (static_cast<std::uint16_t>(t) & 0x2000) != 0;
}
constexpr VarType elementType(VarType t) {
    return static_cast<VarType>(static_cast<std::uint16_t>(t) & 0x0FFF);
}

// A 64-bit integer scaled by 10,000.
struct Currency {
    std::int64_t scaled = 0;
    static constexpr std::int64_t scale = 10000;
    friend constexpr bool operator==(Currency, Currency) = default;
};

// Days since 1899-12-30; the fraction is the time of day (also for negative days).
struct Date {
    double serial = 0;
    friend constexpr bool operator==(Date, Date) = default;
};

// A 96-bit unsigned mantissa with a decimal scale of 0 to 28 and a separate sign.
struct Decimal {
    std::uint32_t hi = 0;
    std::uint64_t lo = 0;
    std::uint8_t scale = 0;
    bool negative = false;
    friend constexpr bool operator==(const Decimal&, const Decimal&) = default;
};

// An error code held as a value; an omitted optional argument is the code DISP_E_PARAMNOTFOUND.
struct ErrorCode {
    std::int32_t scode = 0;
    static constexpr std::int32_t paramNotFound = static_cast<std::int32_t>(0x80020004u);
    friend constexpr bool operator==(ErrorCode, ErrorCode) = default;
};

class Variant;

// What a Variant holding an object refers to: anything that answers calls by name.
// How a member is called: the three ways a dispatch interface tells apart.
enum class CallKind { Method, PropertyGet, PropertyLet };

class VELKOR6_API Object {
public:
    virtual ~Object() = default;
    virtual std::u16string typeName() const = 0;
    // Calls a member by name; arguments may be written back (ByRef).
    virtual Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) = 0;
};

using ObjectRef = std::shared_ptr<Object>;

struct ArrayBound {
    std::int32_t lower = 0;
    std::int32_t count = 0;
    std::int32_t upper() const { return lower + count - 1; }
    friend bool operator==(const ArrayBound&, const ArrayBound&) = default;
};

// A SAFEARRAY-like array; elements are stored with the first dimension varying fastest.
// An array whose dimensions were never set has no bounds at all.
struct VariantArray {
    VarType element = VarType::Variant;
    std::vector<ArrayBound> bounds;
    std::vector<Variant> items;
};

class VELKOR6_API Variant {
public:
    struct NullTag {
        friend constexpr bool operator==(NullTag, NullTag) = default;
    };

    Variant() = default;
    Variant(std::int16_t v) : value_(v) {}
    Variant(std::int32_t v) : value_(v) {}
    Variant(float v) : value_(v) {}
    Variant(double v) : value_(v) {}
    Variant(Currency v) : value_(v) {}
    Variant(Date v) : value_(v) {}
    Variant(std::u16string v) : value_(std::move(v)) {}
    Variant(std::u16string_view v) : value_(std::u16string(v)) {}
    Variant(const char16_t* v) : value_(std::u16string(v)) {}
    Variant(bool v) : value_(v) {}
    Variant(Decimal v) : value_(v) {}
    Variant(std::uint8_t v) : value_(v) {}
    Variant(ObjectRef v) : value_(std::move(v)) {}
    Variant(ErrorCode v) : value_(v) {}
    Variant(VariantArray v);
    // Narrow text and stray pointers must not silently become Booleans.
    Variant(const char*) = delete;
    Variant(const void*) = delete;

    Variant(const Variant& other);
    Variant(Variant&&) noexcept = default;
    Variant& operator=(const Variant& other);
    Variant& operator=(Variant&&) noexcept = default;
    ~Variant() = default;

    static Variant null() { return Variant(NullTag{}); }
    static Variant missing() { return Variant(ErrorCode{ErrorCode::paramNotFound}); }
    static Variant nothing() { return Variant(ObjectRef{}); }
    // A one-dimensional Variant array with lower bound 0, as Array(...) makes it.
    static Variant array(std::vector<Variant> items, VarType element = VarType::Variant);

    VarType type() const;
    bool isEmpty() const { return value_.index() == 0; }
    bool isNull() const { return std::holds_alternative<NullTag>(value_); }
    bool isMissing() const;
    bool isArray() const { return std::holds_alternative<ArrayBox>(value_); }
    bool isObject() const { return std::holds_alternative<ObjectRef>(value_); }
    bool isString() const { return std::holds_alternative<std::u16string>(value_); }
    // Integer, Long, Single, Double, Currency, Decimal or Byte.
    bool isNumber() const;

    // Exact accessors: the caller has checked type(); a wrong type is a programming error.
    std::int16_t integer() const { return std::get<std::int16_t>(value_); }
    std::int32_t longValue() const { return std::get<std::int32_t>(value_); }
    float single() const { return std::get<float>(value_); }
    double doubleValue() const { return std::get<double>(value_); }
    Currency currency() const { return std::get<Currency>(value_); }
    Date date() const { return std::get<Date>(value_); }
    const std::u16string& string() const { return std::get<std::u16string>(value_); }
    std::u16string& string() { return std::get<std::u16string>(value_); }
    bool boolean() const { return std::get<bool>(value_); }
    const Decimal& decimal() const { return std::get<Decimal>(value_); }
    std::uint8_t byte() const { return std::get<std::uint8_t>(value_); }
    const ObjectRef& object() const { return std::get<ObjectRef>(value_); }
    ErrorCode error() const { return std::get<ErrorCode>(value_); }
    const VariantArray& array() const { return *std::get<ArrayBox>(value_); }
    VariantArray& array() { return *std::get<ArrayBox>(value_); }

    // Exact equality of type and value (arrays element by element, objects by identity);
    // VB's comparison with coercion is compareVariants() in the core.
    friend bool operator==(const Variant& a, const Variant& b);

private:
    using ArrayBox = std::unique_ptr<VariantArray>;
    explicit Variant(NullTag t) : value_(t) {}

    std::variant<std::monostate, NullTag, std::int16_t, std::int32_t, float, double, Currency, Date,
                 std::u16string, bool, Decimal, std::uint8_t, ObjectRef, ErrorCode, ArrayBox>
        value_;
};

// The friend above, declared here as well so that the shared library exports it.
VELKOR6_API bool operator==(const Variant& a, const Variant& b);

} // namespace velkor6
