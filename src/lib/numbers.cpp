// Number parsing and conversion: the `lib` members and their rows in the member table.
#include "values/numbers.h"

#include "lib/lib_members.h"
#include "values/hex.h"
#include "values/typed_conversion.h"

namespace velkor6 {

double lib::vkrVal(std::u16string_view sSource) {
    return values::lenientNumber(sSource, locale());
}

Variant lib::vkrCVal(std::int32_t VarType, const Variant& SourceVal) {
    const Date today = values::dateOnly(module().platform().clock->now());
    return values::typedConversion(VarType, SourceVal, locale(), today);
}

Variant lib::vkrRound(const Variant& vSourceValue, std::int16_t iDecimalPlaces) {
    return values::roundValue(vSourceValue, iDecimalPlaces, locale());
}

std::int32_t lib::vkrHexToDec(const Variant& vHexVal) {
    return values::hexToLong(vHexVal, locale());
}

double lib::vkrHex2Dbl(std::u16string_view sValue) {
    return values::hexToDouble(sValue);
}

std::u16string lib::vkrDbl2Hex(double dValue, std::int16_t iMinLen) {
    return values::doubleToHex(dValue, iMinLen);
}

void lib::vkrBruchrechnung(float nValue, std::int32_t& lZaehler, std::int32_t& lNenner) {
    const values::Fraction f = values::approximateFraction(nValue);
    lZaehler = f.numerator;
    lNenner = f.denominator;
}

bool lib::vkrCompare(float nSource, float nTarget, float nTolerance) {
    return values::withinTolerance(nSource, nTarget, nTolerance);
}

bool lib::vkrAND(std::int32_t lVal1, std::int32_t lVal2) {
    return values::hasAllBits(lVal1, lVal2);
}

} // namespace velkor6

namespace velkor6::dispatch {

void addValueMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back({13,
                 u"vkrVal",
                 CallKind::Method,
                 {required(u"sSource", T::String)},
                 T::Double,
                 [](lib& l, Args& a) -> Variant { return l.vkrVal(a.str(0)); },
                 u"Lenient number from typed text: keeps digits, signs and separators and reads "
                 u"them in the locale; 0 when nothing readable is left.",
                 u""});
    t.push_back({14,
                 u"vkrCVal",
                 CallKind::Method,
                 {required(u"VarType", T::Long), required(u"SourceVal", T::Variant)},
                 T::Variant,
                 [](lib& l, Args& a) -> Variant { return l.vkrCVal(a.i32(0), a[1]); },
                 u"Converts SourceVal to the type code VarType; Null, Empty and \"\" give the "
                 u"type's default.",
                 u"Defaults: an Integer 0 for the numeric codes 2, 3, 4, 5, 6, 14 and 17, today's "
                 u"date for 7, \"\" for 8, False for 11, Null for any other code. A value that "
                 u"does not convert comes back unchanged; no error is raised."});
    t.push_back({15,
                 u"vkrRound",
                 CallKind::Method,
                 {required(u"vSourceValue", T::Variant), required(u"iDecimalPlaces", T::Integer)},
                 T::Variant,
                 [](lib& l, Args& a) -> Variant { return l.vkrRound(a[0], a.i16(1)); },
                 u"Rounds Integer, Long, Single, Double and Currency values half away from zero; "
                 u"other values and negative places come back unchanged.",
                 u""});
    t.push_back({16,
                 u"vkrHexToDec",
                 CallKind::Method,
                 {byRef(u"vHexVal", T::Variant)},
                 T::Long,
                 [](lib& l, Args& a) -> Variant { return l.vkrHexToDec(a[0]); },
                 u"Reads hexadecimal text (or, after a leading \"x\", raw little-endian bytes) as "
                 u"a 32-bit Long; 0 when unreadable.",
                 u"Reading stops at the first character that is not a hexadecimal digit. A value "
                 u"wider than 32 bits gives 0. A value that is not a String is written with Hex() "
                 u"first, so an Integer -1 gives 65535 and a Long -1 gives -1."});
    t.push_back({17,
                 u"vkrHex2Dbl",
                 CallKind::Method,
                 {required(u"sValue", T::String)},
                 T::Double,
                 [](lib& l, Args& a) -> Variant { return l.vkrHex2Dbl(a.str(0)); },
                 u"Reads hexadecimal text wider than 32 bits; \"&\" and \"H\" are ignored.",
                 u"The last six digits are the low 24 bits, the digits before them the high part. "
                 u"A high part wider than 32 bits raises error 6."});
    t.push_back(
        {18,
         u"vkrDbl2Hex",
         CallKind::Method,
         {required(u"dValue", T::Double), optional(u"iMinLen", T::Integer, std::int16_t{0})},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrDbl2Hex(a.f64(0), a.i16(1)); },
         u"Hexadecimal text of a number wider than 32 bits, left-padded with \"0\" to "
         u"iMinLen; error 6 when the high part exceeds a Long.",
         u""});
    t.push_back({19,
                 u"vkrBruchrechnung",
                 CallKind::Method,
                 {required(u"nValue", T::Single), output(u"lZaehler", T::Long),
                  output(u"lNenner", T::Long)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     std::int32_t numerator = 0;
                     std::int32_t denominator = 0;
                     l.vkrBruchrechnung(a.f32(0), numerator, denominator);
                     a[1] = Variant(numerator);
                     a[2] = Variant(denominator);
                     return Variant();
                 },
                 u"Numerator and denominator (2 to 64) approximating nValue.",
                 u"The denominator 1 is never tried: 0 gives 0/2 and a whole n gives 2n/2; 1 "
                 u"gives 0/0."});
    t.push_back(
        {20,
         u"vkrCompare",
         CallKind::Method,
         {required(u"nSource", T::Single), required(u"nTarget", T::Single),
          required(u"nTolerance", T::Single)},
         T::Boolean,
         [](lib& l, Args& a) -> Variant { return l.vkrCompare(a.f32(0), a.f32(1), a.f32(2)); },
         u"True when nSource lies within nTarget plus or minus nTolerance (single "
         u"precision).",
         u""});
    t.push_back({21,
                 u"vkrAND",
                 CallKind::Method,
                 {required(u"lVal1", T::Long), required(u"lVal2", T::Long)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrAND(a.i32(0), a.i32(1)); },
                 u"True when every bit set in lVal2 is also set in lVal1.",
                 u""});
}

} // namespace velkor6::dispatch
