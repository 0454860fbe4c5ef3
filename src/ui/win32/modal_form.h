// One of the library's modal dialogs as a real window: the controls stand where the dialog logic
// placed them, and every user action goes to the logic, which decides when the form closes.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include "ui/win32/controls.h"
#include "ui/win32/font_set.h"
#include "ui/win32/form_window.h"
#include "velkor6/platform/dialog_host.h"

#include <optional>
#include <vector>

namespace velkor6::ui::win32 {

class ModalForm final : public FormWindow {
public:
    ModalForm(const DialogForm& form, const DialogDecision& decide, RichEditLibrary& richEdit);
    // Shows the form over `owner` until the logic accepts an event, and returns that event.
    // Without a window (the system refused one) it returns a refused close.
    DialogEvent run(HWND owner);

private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool build();
    bool preview(const MSG& message);
    void report(DialogEvent::Kind kind, std::int32_t button = -1, char16_t letter = 0);
    void placeForSize(int width, int height);
    std::int32_t buttonIndex(HWND control) const;

    const DialogForm& form_;
    const DialogDecision& decide_;
    FontSet fonts_;
    RichEditLibrary& richEdit_;
    std::vector<HWND> buttons_;
    HWND field_ = nullptr;
    std::vector<std::pair<HWND, COLORREF>> colours_;
    std::optional<DialogEvent> decided_;
};

} // namespace velkor6::ui::win32
