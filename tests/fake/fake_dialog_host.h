// A dialog host that draws nothing: it records every form and answers from a script.
#pragma once

#include "velkor6/platform/dialog_host.h"

#include <deque>
#include <optional>
#include <vector>

namespace velkor6::fake {

class FakeDialogHost final : public DialogHost {
public:
    // The next dialog is offered these events in turn until it accepts one; a dialog without a
    // script (or one refusing all of it) is offered Esc, then the close box.
    void answer(std::vector<DialogEvent> events) { script_.push_back(std::move(events)); }
    void answer(DialogEvent event) { answer(std::vector<DialogEvent>{std::move(event)}); }
    static DialogEvent button(std::int32_t index, std::u16string text = {});
    static DialogEvent key(DialogEvent::Kind kind, char16_t letter = 0, std::int32_t focus = -1);

    const std::vector<DialogForm>& forms() const { return forms_; }
    // The events each dialog accepted, one per form.
    const std::vector<DialogEvent>& accepted() const { return accepted_; }
    // The status window as last shown; empty when none is open.
    const std::optional<StatusWindow>& status() const { return status_; }
    bool statusVisible() const { return statusVisible_; }
    int statusCreations() const { return statusCreations_; }
    int eventsServed() const { return eventsServed_; }

    DialogEvent showModal(const DialogForm& form, const DialogDecision& decide) override;
    // Every character 6 pixels wide, every line 13 high; wrapping breaks at any character.
    PixelSize measureText(std::u16string_view text, const DialogFont& font,
                          std::int32_t wrapWidth) override;
    void showStatus(const StatusWindow& window) override;
    void hideStatus() override { statusVisible_ = false; }
    void closeStatus() override {
        status_.reset();
        statusVisible_ = false;
    }
    void serveEvents() override { ++eventsServed_; }

private:
    std::deque<std::vector<DialogEvent>> script_;
    std::vector<DialogForm> forms_;
    std::vector<DialogEvent> accepted_;
    std::optional<StatusWindow> status_;
    bool statusVisible_ = false;
    int statusCreations_ = 0;
    int eventsServed_ = 0;

    // --- File dialog and folder chooser -------------------------------------------------
public:
    // The next file dialogs pick these paths in turn; empty, or none left: cancelled.
    void answerFiles(std::vector<std::u16string> paths) { files_.push_back(std::move(paths)); }
    // The next folder choosers pick these folders in turn; "", or none left: cancelled.
    void answerFolder(std::u16string path) { folders_.push_back(std::move(path)); }
    const std::vector<FileDialogRequest>& fileRequests() const { return fileRequests_; }
    const std::vector<FolderDialogRequest>& folderRequests() const { return folderRequests_; }

    std::vector<std::u16string> chooseFiles(const FileDialogRequest& request) override;
    std::u16string chooseFolder(const FolderDialogRequest& request) override;

private:
    std::deque<std::vector<std::u16string>> files_;
    std::deque<std::u16string> folders_;
    std::vector<FileDialogRequest> fileRequests_;
    std::vector<FolderDialogRequest> folderRequests_;
};

} // namespace velkor6::fake
