// Answers one dialog the way a user at the keyboard would: waits for a shown, enabled top-level
// window with the given title, then works through the steps. Keys go in as keyboard input
// (SendInput) when the box can be brought to the foreground, otherwise as posted key messages to
// the box's focused control.
// usage: dialog_keys TITLE STEP...
// Steps: a key name (a letter or digit, Esc, Enter, Space, Tab), Alt+<letter>, text:<characters>,
// dump (lists the controls on standard error), close (the close box), click:<caption> (a mouse
// click on that button), shot:<file> (creates the file and waits until someone deletes it, so a
// screenshot can be taken first), wait:<milliseconds>.
// clang-format off
#include <windows.h>
// clang-format on

#include <cstdio>
#include <cwctype>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr DWORD pollMilliseconds = 50;
constexpr int waitForBoxPolls = 400;  // 20 s
constexpr int waitForShotPolls = 600; // 30 s

struct Search {
    std::wstring_view title;
    HWND found = nullptr;
};

BOOL CALLBACK matchTitle(HWND window, LPARAM state) {
    Search& search = *reinterpret_cast<Search*>(state);
    wchar_t text[256] = {};
    GetWindowTextW(window, text, 256);
    if (search.title == text && IsWindowVisible(window) != FALSE &&
        IsWindowEnabled(window) != FALSE) {
        search.found = window;
        return FALSE;
    }
    return TRUE;
}

HWND findBox(std::wstring_view title) {
    for (int i = 0; i < waitForBoxPolls; ++i) {
        Search search{title};
        EnumWindows(matchTitle, reinterpret_cast<LPARAM>(&search));
        if (search.found != nullptr)
            return search.found;
        Sleep(pollMilliseconds);
    }
    return nullptr;
}

// The control of the box's thread that has the keyboard focus, or the box itself.
HWND focusOf(HWND box) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    if (GetGUIThreadInfo(GetWindowThreadProcessId(box, nullptr), &info) != FALSE &&
        info.hwndFocus != nullptr)
        return info.hwndFocus;
    return box;
}

bool bringToFront(HWND box) {
    SetForegroundWindow(box);
    for (int i = 0; i < 40; ++i) {
        if (GetForegroundWindow() == box)
            return true;
        Sleep(pollMilliseconds);
    }
    return false;
}

INPUT keyInput(WORD key, bool up) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    return input;
}

class Keyboard {
public:
    explicit Keyboard(HWND box) : box_(box), real_(bringToFront(box)) {}

    void press(WORD key, bool alt) {
        if (real_) {
            std::vector<INPUT> inputs;
            if (alt)
                inputs.push_back(keyInput(VK_MENU, false));
            inputs.push_back(keyInput(key, false));
            inputs.push_back(keyInput(key, true));
            if (alt)
                inputs.push_back(keyInput(VK_MENU, true));
            SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
        } else {
            // The receiving thread's TranslateMessage makes the characters.
            const HWND target = focusOf(box_);
            const LPARAM scan = static_cast<LPARAM>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)) << 16;
            const LPARAM context = alt ? LPARAM{1} << 29 : 0;
            const UINT down = alt ? WM_SYSKEYDOWN : WM_KEYDOWN;
            const UINT up = alt ? WM_SYSKEYUP : WM_KEYUP;
            PostMessageW(target, down, key, 1 | scan | context);
            PostMessageW(target, up, key, 1 | scan | context | (LPARAM{3} << 30));
        }
        Sleep(pollMilliseconds);
    }

    void type(std::wstring_view text) {
        for (const wchar_t c : text) {
            if (real_) {
                INPUT inputs[2] = {};
                for (int i = 0; i < 2; ++i) {
                    inputs[i].type = INPUT_KEYBOARD;
                    inputs[i].ki.wScan = c;
                    inputs[i].ki.dwFlags = KEYEVENTF_UNICODE | (i == 1 ? KEYEVENTF_KEYUP : 0);
                }
                SendInput(2, inputs, sizeof(INPUT));
            } else {
                PostMessageW(focusOf(box_), WM_CHAR, c, 1);
            }
        }
        Sleep(pollMilliseconds);
    }

    bool real() const { return real_; }

private:
    HWND box_;
    bool real_;
};

// The virtual key of a key name, 0 for none.
WORD keyCode(std::wstring_view name) {
    if (name.size() == 1 && std::iswalnum(name[0]))
        return static_cast<WORD>(std::towupper(name[0]));
    if (name == L"Esc")
        return VK_ESCAPE;
    if (name == L"Enter")
        return VK_RETURN;
    if (name == L"Space")
        return VK_SPACE;
    if (name == L"Tab")
        return VK_TAB;
    return 0;
}

bool waitForDeletion(const std::wstring& file) {
    const HANDLE created = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                       FILE_ATTRIBUTE_NORMAL, nullptr);
    if (created == INVALID_HANDLE_VALUE)
        return false;
    CloseHandle(created);
    for (int i = 0; i < waitForShotPolls; ++i) {
        if (GetFileAttributesW(file.c_str()) == INVALID_FILE_ATTRIBUTES)
            return true;
        Sleep(pollMilliseconds);
    }
    return false;
}

BOOL CALLBACK printChild(HWND child, LPARAM) {
    wchar_t name[64] = {};
    wchar_t text[128] = {};
    GetClassNameW(child, name, 64);
    GetWindowTextW(child, text, 128);
    RECT r{};
    GetWindowRect(child, &r);
    MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&r), 2);
    std::fprintf(stderr, "  %ls \"%ls\" at %ld,%ld size %ldx%ld%s\n", name, text, r.left, r.top,
                 r.right - r.left, r.bottom - r.top,
                 IsWindowVisible(child) != FALSE ? "" : " (hidden)");
    return TRUE;
}

bool step(Keyboard& keyboard, HWND box, std::wstring_view what) {
    if (what == L"dump") {
        RECT client{};
        GetClientRect(box, &client);
        std::fprintf(stderr, "window of %ldx%ld:\n", client.right, client.bottom);
        EnumChildWindows(box, printChild, 0);
        return true;
    }
    if (what == L"close")
        return PostMessageW(box, WM_SYSCOMMAND, SC_CLOSE, 0) != FALSE;
    if (what.starts_with(L"click:")) {
        const std::wstring caption(what.substr(6));
        const HWND button = FindWindowExW(box, nullptr, L"Button", caption.c_str());
        return button != nullptr && PostMessageW(button, BM_CLICK, 0, 0) != FALSE;
    }
    if (what.starts_with(L"text:")) {
        keyboard.type(what.substr(5));
        return true;
    }
    if (what.starts_with(L"shot:"))
        return waitForDeletion(std::wstring(what.substr(5)));
    if (what.starts_with(L"wait:")) {
        Sleep(static_cast<DWORD>(std::wcstoul(std::wstring(what.substr(5)).c_str(), nullptr, 10)));
        return true;
    }
    const bool alt = what.starts_with(L"Alt+");
    const WORD key = keyCode(alt ? what.substr(4) : what);
    if (key == 0)
        return false;
    keyboard.press(key, alt);
    return true;
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc < 3) {
        std::fputs("usage: dialog_keys TITLE STEP...\n", stderr);
        return 2;
    }
    const HWND box = findBox(argv[1]);
    if (box == nullptr) {
        std::fprintf(stderr, "dialog_keys: no window \"%ls\" appeared\n", argv[1]);
        return 1;
    }
    // The box gets its focus when first painted; keys before that would go elsewhere.
    Sleep(200);
    Keyboard keyboard(box);
    for (int i = 2; i < argc; ++i) {
        if (!step(keyboard, box, argv[i])) {
            std::fprintf(stderr, "dialog_keys: step \"%ls\" failed in \"%ls\"\n", argv[i], argv[1]);
            return 1;
        }
    }
    return 0;
}
