// The registry readers of `lib`, over the module's platform registry.
#include "files/registry.h"
#include "velkor6/lib.h"

namespace velkor6 {

Variant lib::regGetValue(std::int32_t lRegKey, std::u16string_view sRegSubKey,
                         std::u16string_view sValueName, const Variant& vDefaultValue) {
    return files::regGetValue(module().platform().registry.get(), lRegKey, sRegSubKey, sValueName,
                              vDefaultValue, locale());
}

std::int32_t lib::regGetLong(std::int32_t lRegKey, std::u16string_view sRegSubKey,
                             std::u16string_view sValueName, std::int32_t lDefaultValue) {
    return files::regGetLong(module().platform().registry.get(), lRegKey, sRegSubKey, sValueName,
                             lDefaultValue, locale());
}

std::u16string lib::regGetString(std::int32_t lRegKey, std::u16string_view sRegSubKey,
                                 std::u16string_view sValueName,
                                 std::u16string_view sDefaultValue) {
    return files::regGetString(module().platform().registry.get(), lRegKey, sRegSubKey, sValueName,
                               sDefaultValue, locale());
}

std::int32_t lib::regSubKeyCount(std::int32_t lRegKey, std::u16string_view sRegSubKey) {
    return files::regSubKeyCount(module().platform().registry.get(), lRegKey, sRegSubKey);
}

void lib::regFindKeys(std::int32_t lRegKey, std::u16string_view sRegSubKey, VariantArray& sKeys) {
    files::regFindKeys(module().platform().registry.get(), lRegKey, sRegSubKey, sKeys);
}

} // namespace velkor6
