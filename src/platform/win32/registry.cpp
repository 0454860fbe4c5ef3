// The registry through the ANSI advapi32 functions, whose results the registry members report.
#include "core/text.h"
#include "platform/ansi.h"
#include "platform/win32/services.h"

#include <windows.h>

namespace velkor6::win32 {
namespace {

// Handles cross the interface as 32-bit numbers, as clients hold them; the predefined roots
// are sign-extended like the system's own constants.
HKEY keyOf(RegHandle h) {
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(h));
}
RegHandle handleOf(HKEY k) {
    return static_cast<RegHandle>(reinterpret_cast<LONG_PTR>(k));
}

class Win32Registry final : public Registry {
public:
    std::int32_t queryValue(RegHandle key, std::u16string_view name, std::size_t capacity,
                            RegValue& value) override {
        const std::string valueName = toAnsi(name);
        DWORD type = REG_NONE;
        std::string data(capacity, '\0');
        auto size = static_cast<DWORD>(capacity);
        const LONG rc = RegQueryValueExA(keyOf(key), valueName.c_str(), nullptr, &type,
                                         reinterpret_cast<BYTE*>(data.data()), &size);
        value.type = type;
        if (rc == ERROR_MORE_DATA) {
            value.data.clear();
            return regstatus::moreData;
        }
        if (rc != ERROR_SUCCESS)
            return rc;
        data.resize(size);
        value.data = std::move(data);
        return regstatus::success;
    }

    std::int32_t enumKey(RegHandle key, std::uint32_t index, std::size_t nameCapacity,
                         std::u16string& name) override {
        std::string buffer(nameCapacity + 1, '\0');
        auto size = static_cast<DWORD>(nameCapacity);
        const LONG rc = RegEnumKeyExA(keyOf(key), index, buffer.data(), &size, nullptr, nullptr,
                                      nullptr, nullptr);
        if (rc != ERROR_SUCCESS)
            return rc;
        buffer.resize(size);
        name = fromAnsi(buffer);
        return regstatus::success;
    }

    std::int32_t close(RegHandle key) override {
        if (regroot::isPredefined(key))
            return regstatus::success;
        return RegCloseKey(keyOf(key));
    }

protected:
    std::int32_t openKey(RegHandle parent, std::u16string_view subKey, std::uint32_t access,
                         RegHandle& result) override {
        HKEY opened = nullptr;
        const LONG rc = RegOpenKeyExA(keyOf(parent), toAnsi(subKey).c_str(), 0, access, &opened);
        if (rc == ERROR_SUCCESS)
            result = handleOf(opened);
        return rc;
    }
};

} // namespace

std::unique_ptr<Registry> createRegistry() {
    return std::make_unique<Win32Registry>();
}

} // namespace velkor6::win32
