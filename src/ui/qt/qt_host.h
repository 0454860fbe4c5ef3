// The dialog host that draws the library's forms with Qt Widgets.
#pragma once

#include "ui/qt/status_window.h"
#include "velkor6/platform/dialog_host.h"

#include <memory>

namespace velkor6::qt {

class QtDialogHost final : public DialogHost {
public:
    DialogEvent showModal(const DialogForm& form, const DialogDecision& decide) override;
    PixelSize measureText(std::u16string_view text, const DialogFont& font,
                          std::int32_t wrapWidth) override;
    void showStatus(const StatusWindow& window) override;
    void hideStatus() override;
    void closeStatus() override;
    void serveEvents() override;
    std::vector<std::u16string> chooseFiles(const FileDialogRequest& request) override;
    std::u16string chooseFolder(const FolderDialogRequest& request) override;

private:
    std::unique_ptr<StatusWidget> status_;
};

} // namespace velkor6::qt
