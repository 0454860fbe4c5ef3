// The status window: not modal, above its owner, with a centred rich-text message and a progress
// bar. It stays until the host closes it.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include "ui/win32/controls.h"
#include "ui/win32/font_set.h"
#include "ui/win32/form_window.h"
#include "velkor6/platform/dialog_host.h"

#include <string>

namespace velkor6::ui::win32 {

class StatusForm final : public FormWindow {
public:
    explicit StatusForm(RichEditLibrary& richEdit) : richEdit_(richEdit) {}
    // Makes the window or brings it up to date, and shows it without taking the activation.
    bool show(const StatusWindow& window);
    void hide();

private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool build(const StatusWindow& window);

    FontSet fonts_;
    RichEditLibrary& richEdit_;
    HWND message_ = nullptr;
    HWND counter_ = nullptr;
    std::u16string shownText_;
    HWND owner_ = nullptr;
};

} // namespace velkor6::ui::win32
