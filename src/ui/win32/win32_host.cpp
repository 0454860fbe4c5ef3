#include "ui/win32/win32_host.h"

// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on

#include "platform/win32/wide.h"
#include "ui/win32/file_dialogs.h"
#include "ui/win32/font_set.h"
#include "ui/win32/message_font.h"
#include "ui/win32/modal_form.h"
#include "ui/win32/modal_loop.h"
#include "ui/win32/status_form.h"

namespace velkor6::ui::win32 {
namespace {

using velkor6::win32::wide;

class Win32DialogHost final : public DialogHost {
public:
    Win32DialogHost() {
        INITCOMMONCONTROLSEX classes{sizeof classes, ICC_PROGRESS_CLASS | ICC_BAR_CLASSES};
        InitCommonControlsEx(&classes);
    }

    DialogEvent showModal(const DialogForm& form, const DialogDecision& decide) override {
        if (form.kind == DialogForm::Kind::systemMessage)
            return systemBox(form, decide);
        ModalForm window(form, decide, richEdit_);
        return window.run(defaultOwner());
    }

    PixelSize measureText(std::u16string_view text, const DialogFont& font,
                          std::int32_t wrapWidth) override {
        const SIZE size = win32::measureText(fonts_.get(font), wide(text), wrapWidth);
        return {size.cx, size.cy};
    }

    void showStatus(const StatusWindow& window) override {
        if (!status_)
            status_ = std::make_unique<StatusForm>(richEdit_);
        if (!status_->show(window))
            status_.reset();
    }
    void hideStatus() override {
        if (status_)
            status_->hide();
    }
    void closeStatus() override { status_.reset(); }

    void serveEvents() override {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) {
                PostQuitMessage(static_cast<int>(message.wParam));
                return;
            }
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }

    std::vector<std::u16string> chooseFiles(const FileDialogRequest& request) override {
        return runFileDialog(defaultOwner(), request);
    }
    std::u16string chooseFolder(const FolderDialogRequest& request) override {
        return runFolderDialog(defaultOwner(), request);
    }

private:
    // The system's own message box; the button whose result it returned is the event.
    static DialogEvent systemBox(const DialogForm& form, const DialogDecision& decide) {
        std::u16string text;
        for (const DialogText& t : form.texts) {
            const std::u16string& shown = t.rich ? t.plainText : t.text;
            if (!shown.empty())
                text += (text.empty() ? u"" : u"\r\n") + shown;
        }
        const int chosen = MessageBoxW(defaultOwner(), wide(text).c_str(), wide(form.title).c_str(),
                                       static_cast<UINT>(form.systemStyle));
        DialogEvent event;
        event.kind = DialogEvent::Kind::closeBox;
        for (std::size_t i = 0; i < form.buttons.size(); ++i) {
            if (form.buttons[i].result == chosen) {
                event.kind = DialogEvent::Kind::button;
                event.button = static_cast<std::int32_t>(i);
            }
        }
        event.clientSize = form.clientSize;
        decide(event);
        return event;
    }

    FontSet fonts_;
    RichEditLibrary richEdit_; // before the forms that use it, so that it goes after them
    std::unique_ptr<StatusForm> status_;
};

} // namespace

std::unique_ptr<DialogHost> createDialogHost() {
    return std::make_unique<Win32DialogHost>();
}

} // namespace velkor6::ui::win32
