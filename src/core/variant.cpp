#include "velkor6/variant.h"

namespace velkor6 {

Variant::Variant(VariantArray v) : value_(std::make_unique<VariantArray>(std::move(v))) {}

Variant::Variant(const Variant& other) {
    if (const auto* box = std::get_if<ArrayBox>(&other.value_)) {
        value_ = std::make_unique<VariantArray>(**box);
    } else {
        std::visit(
            [this](const auto& v) {
                if constexpr (!std::is_same_v<std::decay_t<decltype(v)>, ArrayBox>)
                    value_ = v;
            },
            other.value_);
    }
}

Variant& Variant::operator=(const Variant& other) {
    if (this != &other) {
        Variant copy(other);
        *this = std::move(copy);
    }
    return *this;
}

Variant Variant::array(std::vector<Variant> items, VarType element) {
    VariantArray a;
    a.element = element;
    a.bounds.push_back({0, static_cast<std::int32_t>(items.size())});
    a.items = std::move(items);
    return Variant(std::move(a));
}

VarType Variant::type() const {
    switch (value_.index()) {
    case 0:
        return VarType::Empty;
    case 1:
        return VarType::Null;
    case 2:
        return VarType::Integer;
    case 3:
        return VarType::Long;
    case 4:
        return VarType::Single;
    case 5:
        return VarType::Double;
    case 6:
        return VarType::Currency;
    case 7:
        return VarType::Date;
    case 8:
        return VarType::String;
    case 9:
        return VarType::Boolean;
    case 10:
        return VarType::Decimal;
    case 11:
        return VarType::Byte;
    case 12:
        return VarType::Object;
    case 13:
        return VarType::Error;
    default:
        return VarType::Array | array().element;
    }
}

bool Variant::isMissing() const {
    const auto* e = std::get_if<ErrorCode>(&value_);
    return e != nullptr && e->scode == ErrorCode::paramNotFound;
}

bool Variant::isNumber() const {
    switch (type()) {
    case VarType::Integer:
    case VarType::Long:
    case VarType::Single:
    case VarType::Double:
    case VarType::Currency:
    case VarType::Decimal:
    case VarType::Byte:
        return true;
    default:
        return false;
    }
}

bool operator==(const Variant& a, const Variant& b) {
    if (a.value_.index() != b.value_.index())
        return false;
    if (a.isArray()) {
        const auto& x = a.array();
        const auto& y = b.array();
        return x.element == y.element && x.bounds == y.bounds && x.items == y.items;
    }
    return a.value_ == b.value_;
}

} // namespace velkor6
