#include "core/text.h"
#include "platform/posix/services.h"

#include <iostream>

namespace velkor6::posix {
namespace {

// Without a display a message box goes to standard error, and the default button answers it,
// so that batch runs never wait for a user.
class PosixUserInterface final : public UserInterface {
public:
    explicit PosixUserInterface(DialogHost& dialogs) : dialogs_(dialogs) {}

    std::int32_t messageBox(std::u16string_view text, std::u16string_view title,
                            std::int32_t style) override {
        std::cerr << "[" << toUtf8(title) << "] " << toUtf8(text) << '\n';
        std::cerr.flush();
        return defaultButtonResult(style);
    }

    void serveEvents() override { dialogs_.serveEvents(); }

private:
    DialogHost& dialogs_;
};

} // namespace

std::unique_ptr<UserInterface> createUserInterface(DialogHost& dialogs) {
    return std::make_unique<PosixUserInterface>(dialogs);
}

} // namespace velkor6::posix
