// The dialog host without a display: each dialog is written to standard error as text and
// answered from VELKOR6_ANSWERS, from the terminal, or as Esc would answer it.
#pragma once

#include "velkor6/platform/dialog_host.h"

#include <deque>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace velkor6::ui {

class HeadlessHost final : public DialogHost {
public:
    // answers: one line per dialog, in the order the dialogs are shown: a result number such as
    // 7, "text:" and what the user types and confirms with OK, or, for the file dialog and the
    // folder chooser, "path:" and the chosen path (several files separated by "|"). interactive:
    // ask on `in` when the answers have run out.
    HeadlessHost(std::deque<std::string> answers, bool interactive, std::istream& in,
                 std::ostream& out);
    // The answers of VELKOR6_ANSWERS, read once; interactive when standard input and standard
    // error are terminals.
    static HeadlessHost fromEnvironment();

    DialogEvent showModal(const DialogForm& form, const DialogDecision& decide) override;
    PixelSize measureText(std::u16string_view text, const DialogFont& font,
                          std::int32_t wrapWidth) override;
    void showStatus(const StatusWindow& window) override;
    void hideStatus() override {}
    void closeStatus() override { shownStatus_.clear(); }
    void serveEvents() override {}
    std::vector<std::u16string> chooseFiles(const FileDialogRequest& request) override;
    std::u16string chooseFolder(const FolderDialogRequest& request) override;

private:
    void write(const DialogForm& form);
    DialogEvent scripted(const DialogForm& form, const std::string& answer) const;
    std::optional<DialogEvent> asked(const DialogForm& form);
    // The paths a file dialog or folder chooser is answered with; empty when cancelled.
    std::string pathAnswer();

    std::deque<std::string> answers_;
    bool interactive_;
    std::istream* in_;
    std::ostream* out_;
    std::string shownStatus_;
};

} // namespace velkor6::ui
