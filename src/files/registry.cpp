#include "files/registry.h"

#include "core/convert.h"
#include "core/text.h"
#include "platform/ansi.h"
#include "values/hex.h"
#include "values/typed_conversion.h"

#include <exception>
#include <vector>

namespace velkor6::files {
namespace {

// The readers' data buffer; larger values count as unreadable.
constexpr std::size_t dataCapacity = 1024;
// Name buffer of the key enumeration, terminating NUL included.
constexpr std::size_t nameCapacity = 255;

constexpr int longTypeCode = 3;
constexpr int stringTypeCode = 8;
// The typed conversion wants today's date only for the Date type, which no reader asks for.
constexpr Date unusedToday{};

Registry::Key openKey(Registry* reg, RegHandle key, std::u16string_view subKey,
                      std::uint32_t access) {
    return reg == nullptr ? Registry::Key() : reg->open(key, subKey, access);
}

// The DWORD bytes written as hexadecimal from the last byte to the first and read back as a Long;
// so fewer than four bytes read as an unsigned number and more than four as none (0).
std::int32_t dwordValue(std::string_view data, const Locale& loc) {
    constexpr std::u16string_view digits = u"0123456789ABCDEF";
    std::u16string text;
    for (std::size_t i = data.size(); i-- > 0;) {
        const auto b = static_cast<unsigned char>(data[i]);
        text += digits[b >> 4];
        text += digits[b & 0xF];
    }
    return values::hexToLong(Variant(std::move(text)), loc);
}

} // namespace

Variant registryDataValue(const RegValue& value, const Locale& loc) {
    const std::string_view data = value.data;
    switch (value.type) {
    case regtype::sz:
    case regtype::expandSz: {
        const std::u16string text = value.text ? *value.text : fromAnsi(data);
        return text.empty() ? Variant(u"") : Variant(text.substr(0, text.size() - 1));
    }
    case regtype::binary:
        return Variant(fromAnsi(data));
    case regtype::dword:
    case regtype::dwordBigEndian: // read in the little-endian order too, on purpose
        return Variant(dwordValue(data, loc));
    default:
        return Variant(u"");
    }
}

Variant readRegistryValue(Registry* reg, RegHandle key, std::u16string_view subKey,
                          std::u16string_view valueName, const Variant* defaultValue,
                          const Locale& loc) {
    const Variant fallback = defaultValue != nullptr ? *defaultValue : Variant(u"");
    try {
        const Registry::Key k = openKey(reg, key, subKey, regaccess::queryValue);
        if (!k)
            return fallback;
        RegValue value;
        if (reg->queryValue(k.handle(), valueName, dataCapacity, value) != regstatus::success)
            return fallback;
        return registryDataValue(value, loc);
    } catch (const std::exception&) {
        return Variant(u"");
    }
}

Variant regGetValue(Registry* reg, RegHandle key, std::u16string_view subKey,
                    std::u16string_view valueName, const Variant& vDefaultValue,
                    const Locale& loc) {
    return readRegistryValue(reg, key, subKey, valueName,
                             vDefaultValue.isMissing() ? nullptr : &vDefaultValue, loc);
}

std::int32_t regGetLong(Registry* reg, RegHandle key, std::u16string_view subKey,
                        std::u16string_view valueName, std::int32_t lDefaultValue,
                        const Locale& loc) {
    try {
        const Variant fallback(lDefaultValue);
        const Variant raw = readRegistryValue(reg, key, subKey, valueName, &fallback, loc);
        // Text the conversion leaves unconverted does not fit the Long result: 0.
        return toLong(values::typedConversion(longTypeCode, raw, loc, unusedToday), loc);
    } catch (const std::exception&) {
        return 0;
    }
}

std::u16string regGetString(Registry* reg, RegHandle key, std::u16string_view subKey,
                            std::u16string_view valueName, std::u16string_view sDefaultValue,
                            const Locale& loc) {
    try {
        const Variant fallback(sDefaultValue);
        const Variant raw = readRegistryValue(reg, key, subKey, valueName, &fallback, loc);
        return toString(values::typedConversion(stringTypeCode, raw, loc, unusedToday), loc);
    } catch (const std::exception&) {
        return {};
    }
}

std::int32_t regSubKeyCount(Registry* reg, RegHandle key, std::u16string_view subKey) {
    std::int32_t count = 0;
    try {
        Registry::Key k = openKey(reg, key, subKey, regaccess::enumerateSubKeys);
        if (!k)
            return 0;
        // The member has always left the keys it opens here open; kept so.
        const RegHandle handle = k.release();
        std::u16string name;
        for (std::uint32_t index = 0;
             reg->enumKey(handle, index, nameCapacity, name) == regstatus::success; ++index) {
            std::u16string path(subKey);
            path += u'\\';
            path += name;
            const std::int32_t below = regSubKeyCount(reg, key, path);
            if (below == 0)
                break; // a sub-key that does not open ends the counting here
            count += below;
        }
        ++count;
    } catch (const std::exception&) {
        // The level ends with what it has counted so far.
    }
    return count;
}

void regFindKeys(Registry* reg, RegHandle key, std::u16string_view subKey, VariantArray& keys) {
    try {
        Registry::Key k = openKey(reg, key, subKey, regaccess::enumerateSubKeys);
        if (!k)
            return;
        // Left open, as the member always did.
        const RegHandle handle = k.release();
        std::u16string list;
        std::u16string name;
        for (std::uint32_t index = 0;
             reg->enumKey(handle, index, nameCapacity, name) == regstatus::success; ++index) {
            list += u'|';
            list += name;
        }
        // Split(Mid(list, 2), "|"): no sub-keys give an empty array, a "|" in a name two entries.
        std::vector<Variant> items;
        if (!list.empty()) {
            std::u16string_view rest = std::u16string_view(list).substr(1);
            for (;;) {
                const std::size_t bar = rest.find(u'|');
                items.emplace_back(rest.substr(0, bar));
                if (bar == std::u16string_view::npos)
                    break;
                rest.remove_prefix(bar + 1);
            }
        }
        VariantArray result;
        result.element = VarType::String;
        result.bounds = {ArrayBound{0, static_cast<std::int32_t>(items.size())}};
        result.items = std::move(items);
        keys = std::move(result);
    } catch (const std::exception&) {
        // keys keeps whatever it held.
    }
}

} // namespace velkor6::files
