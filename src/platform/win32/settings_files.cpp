// Settings files through the ANSI private-profile functions, which the applications sharing
// these files use too.
#include "core/text.h"
#include "platform/ansi.h"
#include "platform/win32/services.h"

#include <windows.h>

namespace velkor6::win32 {
namespace {

class ProfileFunctions final : public SettingsFiles {
public:
    std::u16string read(std::u16string_view path, std::u16string_view section,
                        std::u16string_view key) override {
        char buffer[maxValueLength + 1] = {};
        const DWORD n = GetPrivateProfileStringA(toAnsi(section).c_str(), toAnsi(key).c_str(), "",
                                                 buffer, sizeof buffer, toAnsi(path).c_str());
        return fromAnsi(std::string_view(buffer, n));
    }

    bool write(std::u16string_view path, std::u16string_view section, std::u16string_view key,
               std::optional<std::u16string_view> value) override {
        const std::string text = value ? toAnsi(*value) : std::string();
        return WritePrivateProfileStringA(toAnsi(section).c_str(), toAnsi(key).c_str(),
                                          value ? text.c_str() : nullptr,
                                          toAnsi(path).c_str()) != FALSE;
    }
};

} // namespace

std::unique_ptr<SettingsFiles> createSettingsFiles() {
    return std::make_unique<ProfileFunctions>();
}

} // namespace velkor6::win32
