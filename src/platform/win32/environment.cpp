// Special folders from the shell, the administrator test through the service-control manager,
// and the process environment.
// clang-format off
#include <windows.h>
#include <shlobj.h>
// clang-format on

#include "platform/win32/services.h"
#include "platform/win32/wide.h"

namespace velkor6::win32 {
namespace {

class Win32Environment final : public Environment {
public:
    std::u16string specialFolder(std::int32_t csidl) override {
        LPITEMIDLIST items = nullptr;
        if (FAILED(SHGetSpecialFolderLocation(nullptr, csidl, &items)) || items == nullptr)
            return {};
        wchar_t path[MAX_PATH] = {};
        const BOOL ok = SHGetPathFromIDListW(items, path);
        CoTaskMemFree(items);
        if (!ok)
            return {}; // a virtual folder: printers, the network
        std::wstring folder(path);
        while (folder.size() > 3 && folder.back() == L'\\')
            folder.pop_back();
        return fromWide(folder);
    }

    // Who may open the service-control manager with full access administers the machine.
    bool userIsAdmin() override {
        SC_HANDLE manager = OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS);
        if (manager == nullptr)
            return false;
        CloseServiceHandle(manager);
        return true;
    }

    std::u16string commandLine() override {
        const wchar_t* line = GetCommandLineW();
        return line == nullptr ? std::u16string() : fromWide(line);
    }

    std::optional<std::u16string> variable(std::u16string_view name) override {
        const std::wstring key = wide(name);
        std::wstring value(256, L'\0');
        for (;;) {
            SetLastError(ERROR_SUCCESS);
            const DWORD n = GetEnvironmentVariableW(key.c_str(), value.data(),
                                                    static_cast<DWORD>(value.size()));
            if (n == 0) {
                if (GetLastError() == ERROR_ENVVAR_NOT_FOUND)
                    return std::nullopt;
                return std::u16string();
            }
            if (n < value.size()) {
                value.resize(n);
                return fromWide(value);
            }
            value.resize(n);
        }
    }
};

// GetAsyncKeyState answers for the whole desktop, as the library's callers expect.
class Win32InputState final : public InputState {
public:
    std::int16_t asyncKeyState(std::int32_t virtualKey) override {
        return static_cast<std::int16_t>(GetAsyncKeyState(virtualKey));
    }
    bool mouseButtonsSwapped() override { return GetSystemMetrics(SM_SWAPBUTTON) != 0; }
};

} // namespace

std::unique_ptr<Environment> createEnvironment() {
    return std::make_unique<Win32Environment>();
}
std::unique_ptr<InputState> createInputState() {
    return std::make_unique<Win32InputState>();
}

} // namespace velkor6::win32
