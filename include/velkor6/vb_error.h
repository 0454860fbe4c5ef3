// The one exception type of the library: a VB run-time or library error.
#pragma once

#include "velkor6/export.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace velkor6 {

// VB run-time error numbers the library raises.
namespace vberr {
constexpr std::int32_t invalidCall = 5;
constexpr std::int32_t overflow = 6;
constexpr std::int32_t outOfMemory = 7;
constexpr std::int32_t subscriptOutOfRange = 9;
constexpr std::int32_t divisionByZero = 11;
constexpr std::int32_t typeMismatch = 13;
constexpr std::int32_t outOfStringSpace = 14;
constexpr std::int32_t fileNotFound = 53;
constexpr std::int32_t objectNotSet = 91;
constexpr std::int32_t invalidPattern = 93;
constexpr std::int32_t invalidUseOfNull = 94;
constexpr std::int32_t objectRequired = 424;
constexpr std::int32_t noSuchMember = 438;
constexpr std::int32_t namedArgumentNotFound = 448;
constexpr std::int32_t argumentNotOptional = 449;
constexpr std::int32_t wrongArgumentCount = 450;
constexpr std::int32_t duplicateKey = 457;
// The library's own errors (hexadecimal 80040000).
constexpr std::int32_t library = static_cast<std::int32_t>(0x80040000u);
} // namespace vberr

class VELKOR6_API VbError : public std::runtime_error {
public:
    VbError(std::int32_t number, std::u16string description, std::u16string source = u"velkor6");
    // The run-time error with VB's own description.
    explicit VbError(std::int32_t number);

    std::int32_t number() const { return number_; }
    const std::u16string& description() const { return description_; }
    const std::u16string& source() const { return source_; }
    void setSource(std::u16string source) { source_ = std::move(source); }

    // VB's description of a run-time error number, or "Application-defined or object-defined
    // error".
    static std::u16string describe(std::int32_t number);

private:
    std::int32_t number_;
    std::u16string description_;
    std::u16string source_;
};

} // namespace velkor6
