#include "core/text.h"
#include "platform/posix/services.h"
#include "platform/posix/x_display.h"

#include <iostream>

namespace velkor6::posix {
namespace {

// Without a display a message box goes to standard error, and the default button answers it,
// so that batch runs never wait for a user.
class PosixUserInterface final : public UserInterface {
public:
    PosixUserInterface(std::shared_ptr<XConnection> x, DialogHost& dialogs)
        : x_(std::move(x)), dialogs_(dialogs) {}

    std::int32_t messageBox(std::u16string_view text, std::u16string_view title,
                            std::int32_t style) override {
        std::cerr << "[" << toUtf8(title) << "] " << toUtf8(text) << '\n';
        std::cerr.flush();
        return defaultButtonResult(style);
    }

    // The library's own X connection asks for no events; what arrives anyway is taken off the
    // queue, and pending requests go out. The dialog host serves its toolkit's connection.
    void serveEvents() override {
        dialogs_.serveEvents();
        Display* d = x_->openedDisplay();
        if (d == nullptr)
            return;
        while (XPending(d) > 0) {
            XEvent event;
            XNextEvent(d, &event);
        }
    }

private:
    std::shared_ptr<XConnection> x_;
    DialogHost& dialogs_;
};

} // namespace

std::unique_ptr<UserInterface> createUserInterface(std::shared_ptr<XConnection> x,
                                                   DialogHost& dialogs) {
    return std::make_unique<PosixUserInterface>(std::move(x), dialogs);
}

} // namespace velkor6::posix
