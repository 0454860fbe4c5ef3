// The Win32 dialog host with real windows: another thread plays the user, posting the messages
// a keyboard and the mouse would cause.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on

#include "ui/win32/controls.h"
#include "ui/win32/form_window.h"
#include "ui/win32/win32_host.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

namespace velkor6::ui::win32 {
namespace {

HWND waitForForm(const wchar_t* title) {
    for (int i = 0; i < 200; ++i) {
        const HWND form = FindWindowW(formClassName, title);
        if (form != nullptr && IsWindowVisible(form) != FALSE)
            return form;
        Sleep(20);
    }
    return nullptr;
}

// Runs `user` on its own thread once the form titled `title` is up.
class User {
public:
    User(const wchar_t* title, std::function<void(HWND)> user)
        : thread_([title, user = std::move(user)] {
              if (const HWND form = waitForForm(title))
                  user(form);
          }) {}
    ~User() { thread_.join(); }

private:
    std::thread thread_;
};

void key(HWND target, WPARAM virtualKey) {
    PostMessageW(target, WM_KEYDOWN, virtualKey, 1);
    PostMessageW(target, WM_KEYUP, virtualKey, 0xC0000001);
}

DialogForm yesNoForm(const std::u16string& title) {
    DialogForm form;
    form.title = title;
    form.icon = DialogIcon::question;
    form.iconRect = {10, 10, 32, 32};
    form.clientSize = {300, 120};
    form.texts.push_back({u"Weiter?", false, u"Weiter?", {}, {52, 10, 200, 20}, false});
    form.buttons.push_back({u"&Ja", 6, u'J', {60, 80, 80, 24}});
    form.buttons.push_back({u"&Nein", 7, u'N', {160, 80, 80, 24}});
    form.defaultButton = 0;
    form.cancelButton = 1;
    form.previewKeys = true;
    return form;
}

struct Recorder {
    std::vector<DialogEvent> events;
    std::size_t acceptAfter;
    bool operator()(const DialogEvent& e) {
        events.push_back(e);
        return events.size() > acceptAfter;
    }
};

TEST(Win32Host, ReportsKeysAndTheCloseBoxUntilTheLogicAccepts) {
    const auto host = createDialogHost();
    Recorder recorder{{}, 3};
    DialogEvent result;
    {
        const User user(L"keys", [](HWND form) {
            key(form, 'N');
            key(form, VK_ESCAPE);
            PostMessageW(form, WM_SYSCOMMAND, SC_CLOSE, 0);
            key(form, VK_RETURN);
        });
        result = host->showModal(yesNoForm(u"keys"), std::ref(recorder));
    }
    ASSERT_EQ(recorder.events.size(), 4u);
    EXPECT_EQ(recorder.events[0].kind, DialogEvent::Kind::letter);
    EXPECT_EQ(recorder.events[0].letter, u'N');
    EXPECT_EQ(recorder.events[1].kind, DialogEvent::Kind::escape);
    EXPECT_EQ(recorder.events[2].kind, DialogEvent::Kind::closeBox);
    EXPECT_EQ(result.kind, DialogEvent::Kind::enter);
    EXPECT_EQ(result.clientSize, (PixelSize{300, 120}));
    EXPECT_EQ(FindWindowW(formClassName, L"keys"), nullptr) << "the form is gone";
}

TEST(Win32Host, ButtonsPressByClickAndByAltWithTheirAccessKey) {
    const auto host = createDialogHost();
    Recorder recorder{{}, 1};
    {
        const User user(L"buttons", [](HWND form) {
            const HWND no = FindWindowExW(form, nullptr, L"Button", L"&Nein");
            PostMessageW(no, BM_CLICK, 0, 0);
            Sleep(100);
            // Alt+J as the keyboard sends it: the system turns it into WM_SYSCHAR.
            PostMessageW(form, WM_SYSKEYDOWN, 'J', 1 | (1 << 29));
        });
        host->showModal(yesNoForm(u"buttons"), std::ref(recorder));
    }
    ASSERT_EQ(recorder.events.size(), 2u);
    EXPECT_EQ(recorder.events[0].kind, DialogEvent::Kind::button);
    EXPECT_EQ(recorder.events[0].button, 1);
    EXPECT_EQ(recorder.events[1].kind, DialogEvent::Kind::button);
    EXPECT_EQ(recorder.events[1].button, 0);
}

TEST(Win32Host, FieldKeepsToItsLimitAndHidesACode) {
    DialogForm form;
    form.kind = DialogForm::Kind::input;
    form.title = u"code";
    form.clientSize = {300, 100};
    form.texts.push_back({u"Code", false, u"Code", {}, {10, 10, 200, 20}, false});
    form.field = DialogField{u"", 8, u'*', false, true, false, u"", false, {10, 34, 200, 22}};
    form.buttons.push_back({u"OK", 1, 0, {60, 66, 80, 24}});
    form.buttons.push_back({u"Abbrechen", 2, 0, {160, 66, 80, 24}});
    const auto host = createDialogHost();
    Recorder recorder{{}, 0};
    wchar_t shownAs = 0;
    DialogEvent result;
    {
        const User user(L"code", [&shownAs](HWND form) {
            const HWND edit = FindWindowExW(form, nullptr, L"Edit", nullptr);
            shownAs = static_cast<wchar_t>(SendMessageW(edit, EM_GETPASSWORDCHAR, 0, 0));
            for (const wchar_t c : std::wstring(L"0123456789"))
                PostMessageW(edit, WM_CHAR, c, 1);
            key(edit, VK_RETURN);
        });
        result = host->showModal(form, std::ref(recorder));
    }
    EXPECT_EQ(shownAs, L'*');
    EXPECT_EQ(result.kind, DialogEvent::Kind::enter);
    EXPECT_EQ(result.text, u"01234567");
}

TEST(Win32Host, ZoomEditorSelectsItsTextKeepsEnterAndGrowsWithTheForm) {
    DialogForm form;
    form.kind = DialogForm::Kind::zoom;
    form.title = u"zoom";
    form.clientSize = {300, 200};
    form.resizable = true;
    form.minimumSize = {200, 120};
    form.field = DialogField{u"Zeile", 0, 0, true, true, false, u"", true, {8, 8, 284, 150}};
    form.buttons.push_back({u"OK", 1, 0, {212, 168, 80, 24}});
    const auto host = createDialogHost();
    Recorder recorder{{}, 0};
    DWORD selection = 0;
    RECT grownField{}, movedButton{};
    DialogEvent result;
    {
        const User user(L"zoom", [&](HWND window) {
            const HWND edit = FindWindowExW(window, nullptr, L"Edit", nullptr);
            Sleep(100);
            selection = static_cast<DWORD>(SendMessageW(edit, EM_GETSEL, 0, 0));
            key(edit, VK_RETURN); // a new line, not the default button
            // The character comes from translating the key in the form's thread; the click must
            // not overtake it.
            for (int i = 0; i < 200 && GetWindowTextLengthW(edit) != 2; ++i)
                Sleep(10);
            RECT outer{};
            GetWindowRect(window, &outer);
            SetWindowPos(window, nullptr, 0, 0, outer.right - outer.left + 100,
                         outer.bottom - outer.top + 50, SWP_NOMOVE | SWP_NOZORDER);
            GetClientRect(edit, &grownField);
            const HWND ok = FindWindowExW(window, nullptr, L"Button", L"OK");
            GetWindowRect(ok, &movedButton);
            MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&movedButton), 2);
            PostMessageW(ok, BM_CLICK, 0, 0);
        });
        result = host->showModal(form, std::ref(recorder));
    }
    EXPECT_EQ(LOWORD(selection), 0);
    EXPECT_EQ(HIWORD(selection), 5) << "the whole text is selected";
    EXPECT_EQ(result.kind, DialogEvent::Kind::button);
    EXPECT_EQ(result.text, u"\r\n");
    EXPECT_EQ(result.clientSize, (PixelSize{400, 250}));
    EXPECT_EQ(movedButton.left, 312);
    EXPECT_EQ(movedButton.top, 218);
    EXPECT_GT(grownField.right, 284);
}

TEST(Win32Host, OwnerIsDisabledWhileTheFormIsUpAndEnabledAfter) {
    const HWND owner = CreateWindowExW(0, L"STATIC", L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0,
                                       0, 200, 100, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(owner, nullptr);
    SetActiveWindow(owner);
    const auto host = createDialogHost();
    Recorder recorder{{}, 0};
    BOOL enabledDuring = TRUE;
    HWND ownerOfForm = nullptr;
    {
        const User user(L"owned", [&](HWND form) {
            enabledDuring = IsWindowEnabled(owner);
            ownerOfForm = GetWindow(form, GW_OWNER);
            key(form, VK_ESCAPE);
        });
        host->showModal(yesNoForm(u"owned"), std::ref(recorder));
    }
    EXPECT_EQ(ownerOfForm, owner);
    EXPECT_EQ(enabledDuring, FALSE);
    EXPECT_NE(IsWindowEnabled(owner), FALSE);
    DestroyWindow(owner);
}

TEST(Win32Host, StatusWindowComesGoesAndKeepsItsWindow) {
    const auto host = createDialogHost();
    StatusWindow status;
    status.title = u"Import";
    status.message = {u"{\\qc \\b Satz 1\\b0}", true, u"Satz 1", {}, {10, 10, 280, 40}, true};
    status.counterVisible = true;
    status.counterValue = 30;
    status.counterMax = 120;
    status.counterRect = {10, 60, 280, 16};
    status.clientSize = {300, 90};
    status.topMost = true;
    host->showStatus(status);
    const HWND window = FindWindowW(formClassName, L"Import");
    ASSERT_NE(window, nullptr);
    EXPECT_NE(IsWindowVisible(window), FALSE);
    EXPECT_NE(GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    const HWND message = FindWindowExW(window, nullptr, L"RICHEDIT50W", nullptr);
    wchar_t shown[64] = {};
    GetWindowTextW(message, shown, 64);
    EXPECT_EQ(std::wstring(shown), L"Satz 1");
    RECT place{};
    GetClientRect(message, &place);
    EXPECT_EQ(place.right, 280);
    const HWND bar = FindWindowExW(window, nullptr, PROGRESS_CLASSW, nullptr);
    EXPECT_EQ(SendMessageW(bar, PBM_GETPOS, 0, 0), 30);
    EXPECT_EQ(SendMessageW(bar, PBM_GETRANGE, FALSE, 0), 120);

    host->hideStatus();
    EXPECT_EQ(IsWindowVisible(window), FALSE);
    status.counterValue = 31;
    status.counterVisible = false;
    host->showStatus(status);
    EXPECT_EQ(FindWindowW(formClassName, L"Import"), window) << "the same window again";
    EXPECT_EQ(SendMessageW(bar, PBM_GETPOS, 0, 0), 31);
    EXPECT_EQ(IsWindowVisible(bar), FALSE);

    host->closeStatus();
    EXPECT_EQ(IsWindow(window), FALSE);
}

TEST(Win32Host, MeasuresLabelsOnOneLineOrWrapped) {
    const auto host = createDialogHost();
    const DialogFont font;
    const std::u16string text =
        u"Die Datei konnte nicht gespeichert werden, weil sie gesperrt ist.";
    const PixelSize line = host->measureText(text, font, 0);
    const PixelSize wrapped = host->measureText(text, font, line.width / 3);
    EXPECT_GT(line.width, 0);
    EXPECT_LE(wrapped.width, line.width / 3);
    EXPECT_GE(wrapped.height, 3 * line.height);
    EXPECT_EQ(host->measureText(u"a\r\nb", font, 0).height, 2 * line.height);
    DialogFont bigger = font;
    bigger.pointSize = 16;
    EXPECT_GT(host->measureText(text, bigger, 0).width, line.width);
}

TEST(Win32Host, RichTextGoesToTheControlAsASevenBitDocument) {
    EXPECT_EQ(asciiRtf(u"{\\qc Gr\u00FC\u00DFe}"), "{\\rtf1\\ansi {\\qc Gr\\u252?\\u223?e}}");
    // Above 32767 the code is written as a negative number.
    EXPECT_EQ(asciiRtf(u"\uFFFD"), "{\\rtf1\\ansi \\u-3?}");
    EXPECT_EQ(asciiRtf(u"{\\rtf1 x}"), "{\\rtf1 x}");
}

} // namespace
} // namespace velkor6::ui::win32
