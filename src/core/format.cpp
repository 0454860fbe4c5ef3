#include "core/format.h"

#include "core/convert.h"
#include "core/date.h"
#include "core/format_date.h"
#include "core/format_number.h"
#include "core/text.h"
#include "velkor6/vb_error.h"

#include <optional>

namespace velkor6 {

namespace {

bool isMaskName(std::u16string_view mask, std::u16string_view name) {
    return textEqual(mask, name, Compare::Text);
}

void requireScalar(const Variant& v) {
    if (v.isArray() || v.isObject() || v.type() == VarType::Error) {
        throw VbError(vberr::typeMismatch);
    }
}

// The number a value stands for under a number mask; nullopt for text that reads as neither
// a number nor a date (Format returns such text unchanged).
std::optional<DecimalDigits> numberOf(const Variant& v, const Locale& loc) {
    requireScalar(v);
    switch (v.type()) {
    case VarType::Empty:
        return DecimalDigits{};
    case VarType::Integer:
        return decimalDigits(std::int64_t{v.integer()});
    case VarType::Long:
        return decimalDigits(std::int64_t{v.longValue()});
    case VarType::Byte:
        return decimalDigits(std::int64_t{v.byte()});
    case VarType::Boolean:
        return decimalDigits(std::int64_t{v.boolean() ? -1 : 0});
    case VarType::Single:
        return decimalDigits(v.single());
    case VarType::Double:
        return decimalDigits(v.doubleValue());
    case VarType::Currency:
        return decimalDigits(v.currency());
    case VarType::Decimal:
        return decimalDigits(v.decimal());
    case VarType::Date:
        return decimalDigits(v.date().serial);
    default:
        break;
    }
    if (const auto number = parseNumber(v.string(), loc)) {
        return decimalDigits(*number);
    }
    if (const auto date = parseDate(v.string(), loc)) {
        return decimalDigits(date->serial);
    }
    return std::nullopt;
}

// The date a value stands for under a date mask; nullopt for text that is neither.
std::optional<Date> dateOf(const Variant& v, const Locale& loc) {
    requireScalar(v);
    switch (v.type()) {
    case VarType::Empty:
        return Date{0};
    case VarType::Date:
        return v.date();
    case VarType::String:
        if (const auto date = parseDate(v.string(), loc)) {
            return date;
        }
        if (const auto number = parseNumber(v.string(), loc)) {
            return Date{*number};
        }
        return std::nullopt;
    default:
        return Date{toDouble(v, loc)};
    }
}

// "General Number": the number as CStr writes it, without grouping.
std::u16string generalNumber(const Variant& v, const Locale& loc) {
    if (v.isEmpty()) {
        return u"0";
    }
    if (v.isNumber()) {
        return toString(v, loc);
    }
    if (v.type() == VarType::Date) {
        return doubleToText(v.date().serial, loc);
    }
    if (v.type() == VarType::Boolean) {
        return v.boolean() ? u"-1" : u"0";
    }
    if (const auto number = parseNumber(v.string(), loc)) {
        return doubleToText(*number, loc);
    }
    if (const auto date = parseDate(v.string(), loc)) {
        return doubleToText(date->serial, loc);
    }
    return v.string();
}

struct NamedNumberForm {
    std::u16string_view name;
    std::u16string_view mask;
};

// Named number forms that are masks in disguise; the yes/no kinds are three sections.
constexpr NamedNumberForm namedNumberForms[] = {
    {u"Fixed", u"0.00"},
    {u"Standard", u"#,##0.00"},
    {u"Percent", u"0.00%"},
    {u"Scientific", u"0.00E+00"},
    {u"Yes/No", u"\\Y\\e\\s;\\Y\\e\\s;\\N\\o"},
    {u"True/False", u"\\T\\r\\u\\e;\\T\\r\\u\\e;\\F\\a\\l\\s\\e"},
    {u"On/Off", u"\\O\\n;\\O\\n;\\O\\f\\f"},
};

std::u16string formatNumberMaskOf(const Variant& value, std::u16string_view mask,
                                  const Locale& loc) {
    const auto number = numberOf(value, loc);
    return number ? formatNumberMask(*number, mask, loc) : value.string();
}

} // namespace

std::u16string format(const Variant& value, std::u16string_view mask, const Locale& loc) {
    if (value.isNull()) {
        return isDateMask(mask) ? std::u16string() : formatNullSection(mask);
    }
    if (mask.empty()) {
        return value.isEmpty() ? std::u16string() : toString(value, loc);
    }
    if (isMaskName(mask, u"General Number")) {
        requireScalar(value);
        return generalNumber(value, loc);
    }
    for (const NamedNumberForm& form : namedNumberForms) {
        if (isMaskName(mask, form.name)) {
            return formatNumberMaskOf(value, form.mask, loc);
        }
    }
    const bool namedDate = isNamedDateForm(mask);
    if (namedDate || isDateMask(mask)) {
        const auto date = dateOf(value, loc);
        if (!date) {
            return value.string();
        }
        return namedDate ? formatNamedDate(*date, mask, loc)
                         : formatDateMask(*date, maskSections(mask).front(), loc);
    }
    return formatNumberMaskOf(value, mask, loc);
}

std::u16string formatGeneralDate(Date d, const Locale& loc) {
    return formatNamedDate(d, u"General Date", loc);
}

} // namespace velkor6
