#include "ui/qt/vb_value.h"

#include <QLocale>
#include <cmath>
#include <limits>

namespace velkor6::qt {
namespace {

std::u16string describe(std::int32_t number) {
    switch (number) {
    case ctlerr::invalidPropertyValue:
        return u"Invalid property value";
    case ctlerr::invalidArrayIndex:
        return u"Invalid property array index";
    case ctlerr::readOnly:
        return u"Can't assign to read-only property";
    case ctlerr::notAnArray:
        return u"Object not an array";
    case ctlerr::controlNotFound:
        return u"Control not found";
    case ctlerr::indexOutOfBounds:
        return u"Index out of bounds";
    case ctlerr::elementNotFound:
        return u"Element not found";
    case ctlerr::keyNotUnique:
        return u"Key is not unique in collection";
    case ctlerr::noImageList:
        return u"ImageList must be initialized before it can be used";
    case ctlerr::disconnected:
        return u"Automation error: the object invoked has disconnected from its clients";
    default:
        return VbError::describe(number);
    }
}

std::int32_t rounded(double d) {
    if (std::isnan(d))
        raise(vberr::overflow);
    const double r = std::nearbyint(d); // the default rounding mode: half to even
    if (r < std::numeric_limits<std::int32_t>::min() ||
        r > std::numeric_limits<std::int32_t>::max())
        raise(vberr::overflow);
    return static_cast<std::int32_t>(r);
}

double decimalValue(const Decimal& d) {
    double v = static_cast<double>(d.hi) * 18446744073709551616.0 + static_cast<double>(d.lo);
    v /= std::pow(10.0, d.scale);
    return d.negative ? -v : v;
}

double number(const Variant& v) {
    switch (v.type()) {
    case VarType::Empty:
        return 0;
    case VarType::Null:
        raise(vberr::invalidUseOfNull);
    case VarType::Integer:
        return v.integer();
    case VarType::Long:
        return v.longValue();
    case VarType::Single:
        return v.single();
    case VarType::Double:
        return v.doubleValue();
    case VarType::Currency:
        return static_cast<double>(v.currency().scaled) / Currency::scale;
    case VarType::Date:
        return v.date().serial;
    case VarType::Boolean:
        return v.boolean() ? -1 : 0;
    case VarType::Decimal:
        return decimalValue(v.decimal());
    case VarType::Byte:
        return v.byte();
    case VarType::String: {
        const QString s = toQString(v.string()).trimmed();
        bool ok = false;
        double d = s.toDouble(&ok);
        if (!ok)
            d = QLocale::system().toDouble(s, &ok);
        if (!ok)
            raise(vberr::typeMismatch);
        return d;
    }
    default:
        raise(vberr::typeMismatch);
    }
}

} // namespace

std::int32_t pixelsOf(std::int32_t twips) {
    return static_cast<std::int32_t>(std::lround(twips / static_cast<double>(twipsPerPixel)));
}

void raise(std::int32_t number) {
    throw VbError(number, describe(number), u"velkor6.qt");
}

bool sameName(std::u16string_view a, std::u16string_view b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        char16_t x = a[i], y = b[i];
        if (x >= u'A' && x <= u'Z')
            x = static_cast<char16_t>(x + 32);
        if (y >= u'A' && y <= u'Z')
            y = static_cast<char16_t>(y + 32);
        if (x != y)
            return false;
    }
    return true;
}

std::int32_t toInt(const Variant& v) {
    return rounded(number(v));
}

bool toBool(const Variant& v) {
    if (v.isString()) {
        const QString s = toQString(v.string()).trimmed();
        if (s.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
            return true;
        if (s.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
            return false;
    }
    return number(v) != 0;
}

QString toText(const Variant& v) {
    switch (v.type()) {
    case VarType::Empty:
        return {};
    case VarType::String:
        return toQString(v.string());
    case VarType::Boolean:
        return v.boolean() ? QStringLiteral("True") : QStringLiteral("False");
    case VarType::Integer:
    case VarType::Long:
    case VarType::Byte:
        return QString::number(toInt(v));
    case VarType::Single:
        return QString::number(static_cast<double>(v.single()), 'g', 7);
    case VarType::Double:
    case VarType::Currency:
    case VarType::Date:
    case VarType::Decimal:
        return QString::number(number(v), 'g', 15);
    case VarType::Null:
        raise(vberr::invalidUseOfNull);
    default:
        raise(vberr::typeMismatch);
    }
}

Variant text(const QString& s) {
    return Variant(std::u16string(reinterpret_cast<const char16_t*>(s.utf16()),
                                  static_cast<std::size_t>(s.size())));
}

Object& toObject(const Variant& v) {
    if (!v.isObject() || !v.object())
        raise(vberr::objectRequired);
    return *v.object();
}

const Variant& MemberCall::value() const {
    if (args.empty())
        raise(vberr::wrongArgumentCount);
    return args.back();
}

bool MemberCall::has(std::size_t i) const {
    const std::size_t indices = writes() && !args.empty() ? args.size() - 1 : args.size();
    return i < indices && !args[i].isMissing();
}

const Variant& MemberCall::arg(std::size_t i) const {
    if (!has(i))
        raise(vberr::argumentNotOptional);
    return args[i];
}

void MemberCall::readOnly() const {
    if (writes())
        raise(ctlerr::readOnly);
}

} // namespace velkor6::qt
