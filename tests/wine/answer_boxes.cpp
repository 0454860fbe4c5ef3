// Runs a client (the rest of this program's command line) and answers every dialog box the
// client shows the way a user pressing Enter would: with the box's default button. Under Wine's
// null display driver a message box is a window nobody can see or click, and a client that shows
// one would wait for ever. Each answered box is printed to standard error, so the log shows it
// where it came. The exit status is the client's.
// usage: answer_boxes COMMAND [ARGUMENTS...]
// clang-format off
#include <windows.h>
// clang-format on

#include "platform/win32/handle.h"

#include <cstdio>
#include <set>
#include <string>
#include <string_view>

namespace {

using velkor6::win32::Handle;

// The class names of the system's dialog boxes (message boxes among them) and of the library's
// own dialogs.
constexpr std::wstring_view dialogClass = L"#32770";
constexpr std::wstring_view libraryDialogClass = L"velkor6.Form";
constexpr DWORD pollMilliseconds = 100;

std::wstring commandTail() {
    // This program's own name, quoted or not, and the blanks after it.
    const wchar_t* p = GetCommandLineW();
    if (*p == L'"') {
        ++p;
        while (*p != 0 && *p != L'"')
            ++p;
        if (*p != 0)
            ++p;
    } else {
        while (*p != 0 && *p != L' ' && *p != L'\t')
            ++p;
    }
    while (*p == L' ' || *p == L'\t')
        ++p;
    return p;
}

std::wstring className(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

std::wstring windowText(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

// Adds a static control's text (the message; icons have none) to the line at `out`.
BOOL CALLBACK addStaticText(HWND child, LPARAM out) {
    if (className(child) == L"Static") {
        std::wstring& line = *reinterpret_cast<std::wstring*>(out);
        for (const wchar_t c : windowText(child)) {
            if (c != L'\r' && c != L'\n')
                line += c;
            else if (!line.empty() && line.back() != L' ')
                line += L' ';
        }
        if (!line.empty() && line.back() != L' ')
            line += L' ';
    }
    return TRUE;
}

// The texts of a box's static controls, on one line.
std::wstring boxText(HWND box) {
    std::wstring text;
    EnumChildWindows(box, addStaticText, reinterpret_cast<LPARAM>(&text));
    while (!text.empty() && text.back() == L' ')
        text.pop_back();
    return text;
}

std::string utf8(std::wstring_view text) {
    if (text.empty())
        return {};
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                         nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(), size,
                        nullptr, nullptr);
    return bytes;
}

struct Buttons {
    int defaultId = 0;
    int leftmostId = 0;
    LONG leftmostX = 0;
};

// Notes the default push button and the leftmost one, of those shown, at `out`.
BOOL CALLBACK noteButton(HWND child, LPARAM out) {
    const LONG style = GetWindowLongW(child, GWL_STYLE);
    if (className(child) != L"Button" || (style & WS_VISIBLE) == 0)
        return TRUE;
    const LONG type = style & BS_TYPEMASK;
    if (type != BS_PUSHBUTTON && type != BS_DEFPUSHBUTTON)
        return TRUE;
    Buttons& buttons = *reinterpret_cast<Buttons*>(out);
    const int id = GetDlgCtrlID(child);
    if (type == BS_DEFPUSHBUTTON)
        buttons.defaultId = id;
    RECT place{};
    GetWindowRect(child, &place);
    if (buttons.leftmostId == 0 || place.left < buttons.leftmostX) {
        buttons.leftmostId = id;
        buttons.leftmostX = place.left;
    }
    return TRUE;
}

// Presses the default button, or closes a box without buttons (its Cancel). The buttons are
// asked, not DM_GETDEFID: Wine's message box answers that with IDOK whatever it shows. When the
// style names a default past the last button, Wine marks none, and Windows makes the first one
// the default: the leftmost is pressed then.
void answer(HWND box) {
    Buttons buttons;
    EnumChildWindows(box, noteButton, reinterpret_cast<LPARAM>(&buttons));
    const int id = buttons.defaultId != 0 ? buttons.defaultId : buttons.leftmostId;
    const HWND button = id != 0 ? GetDlgItem(box, id) : nullptr;
    // The library's status window has no buttons and closes only when its program says so.
    if (button == nullptr && className(box) == libraryDialogClass)
        return;
    std::fprintf(stderr, "answered box \"%s\": %s [%s]\n", utf8(windowText(box)).c_str(),
                 utf8(boxText(box)).c_str(),
                 button != nullptr ? utf8(windowText(button)).c_str() : "close");
    std::fflush(stderr);
    if (button != nullptr)
        PostMessageW(box, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
    else
        PostMessageW(box, WM_CLOSE, 0, 0);
}

struct Watch {
    DWORD processId;
    std::set<HWND> answered; // answered once; a slow box is not pressed twice
};

BOOL CALLBACK answerIfBox(HWND window, LPARAM state) {
    Watch& watch = *reinterpret_cast<Watch*>(state);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == watch.processId && IsWindowVisible(window) != FALSE &&
        (className(window) == dialogClass || className(window) == libraryDialogClass) &&
        watch.answered.insert(window).second)
        answer(window);
    return TRUE;
}

void answerBoxes(Watch& watch) {
    std::erase_if(watch.answered, [](HWND box) { return IsWindow(box) == FALSE; });
    EnumWindows(answerIfBox, reinterpret_cast<LPARAM>(&watch));
}

} // namespace

int main() {
    std::wstring command = commandTail();
    if (command.empty()) {
        std::fputs("usage: answer_boxes COMMAND [ARGUMENTS...]\n", stderr);
        return 2;
    }
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    // The client writes to this program's standard handles.
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                       &startup, &started) == 0) {
        std::fprintf(stderr, "answer_boxes: cannot start %s (error %lu)\n", utf8(command).c_str(),
                     GetLastError());
        return 127;
    }
    const Handle process(started.hProcess);
    const Handle thread(started.hThread);
    Watch watch{started.dwProcessId, {}};
    while (WaitForSingleObject(process.get(), pollMilliseconds) == WAIT_TIMEOUT)
        answerBoxes(watch);
    DWORD status = 1;
    GetExitCodeProcess(process.get(), &status);
    return static_cast<int>(status);
}
