#include "platform/win32/services.h"
#include "platform/win32/wide.h"
#include "ui/dialog_host_choice.h"
#include "ui/win32/win32_host.h"

#include <string_view>
#include <windows.h>

namespace velkor6 {
namespace win32 {
namespace {

void marker() {}

// Every Windows process can draw windows; VELKOR6_UI=headless still asks for text.
std::unique_ptr<DialogHost> createDialogHost() {
    wchar_t chosen[16] = {};
    const DWORD n = GetEnvironmentVariableW(L"VELKOR6_UI", chosen, 16);
    if (n > 0 && n < 16 && std::wstring_view(chosen) == L"headless")
        return ui::createDialogHost();
    return ui::win32::createDialogHost();
}

} // namespace

std::u16string libraryFolder() {
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            reinterpret_cast<LPCWSTR>(&marker), &module))
        return {};
    std::wstring path(32768, L'\0');
    const DWORD n = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    path.resize(n);
    const std::size_t slash = path.find_last_of(L"\\/");
    return slash == std::wstring::npos ? std::u16string() : fromWide(path.substr(0, slash));
}

} // namespace win32

std::unique_ptr<Platform> Platform::createNative() {
    auto p = std::make_unique<Platform>();
    p->clock = win32::createClock();
    p->fileSystem = win32::createFileSystem();
    p->environment = win32::createEnvironment();
    p->input = win32::createInputState();
    p->ui = win32::createUserInterface();
    p->dialogs = win32::createDialogHost();
    p->shell = win32::createShell();
    p->registry = win32::createRegistry();
    p->fileStore = win32::createFileStore();
    p->windowManager = win32::createWindowManager();
    p->xml = win32::createXmlService();
    p->fonts = win32::createFonts();
    p->settingsFiles = win32::createSettingsFiles();
    p->libraryFolder = win32::libraryFolder();
    return p;
}

} // namespace velkor6
