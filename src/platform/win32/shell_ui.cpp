// The desktop's own services: message boxes, the event queue, opening documents and starting
// programs.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include "platform/win32/handle.h"
#include "platform/win32/services.h"
#include "platform/win32/wide.h"

#include <string>

namespace velkor6::win32 {
namespace {

class Win32UserInterface final : public UserInterface {
public:
    std::int32_t messageBox(std::u16string_view text, std::u16string_view title,
                            std::int32_t style) override {
        return MessageBoxW(GetActiveWindow(), wide(text).c_str(), wide(title).c_str(),
                           static_cast<UINT>(style));
    }

    void serveEvents() override {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
};

class Win32Shell final : public Shell {
public:
    std::int32_t execute(std::u16string_view verb, std::u16string_view file,
                         std::u16string_view parameters, std::u16string_view directory,
                         std::int32_t showCommand) override {
        const std::wstring v = wide(verb), f = wide(file), p = wide(parameters),
                           d = wide(directory);
        const HINSTANCE result = ShellExecuteW(nullptr, v.empty() ? nullptr : v.c_str(), f.c_str(),
                                               p.empty() ? nullptr : p.c_str(),
                                               d.empty() ? nullptr : d.c_str(), showCommand);
        return static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(result));
    }

    // Windows file names hold no quotation marks, so a "%1" the command quotes stays one
    // argument whatever the name holds.
    bool startWithFile(std::u16string_view command, std::u16string_view file,
                       std::int32_t windowStyle) override {
        std::u16string commandLine(command);
        for (std::size_t at = commandLine.find(u"%1"); at != std::u16string::npos;
             at = commandLine.find(u"%1", at + file.size()))
            commandLine.replace(at, 2, file);
        std::wstring line = wide(commandLine); // CreateProcessW may write into it
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESHOWWINDOW;
        startup.wShowWindow = static_cast<WORD>(windowStyle);
        PROCESS_INFORMATION process{};
        if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                            &startup, &process))
            return false;
        Handle processHandle(process.hProcess);
        Handle threadHandle(process.hThread);
        return true;
    }
};

} // namespace

std::unique_ptr<UserInterface> createUserInterface() {
    return std::make_unique<Win32UserInterface>();
}
std::unique_ptr<Shell> createShell() {
    return std::make_unique<Win32Shell>();
}

} // namespace velkor6::win32
