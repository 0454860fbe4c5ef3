#include "core/text.h"
#include "platform/posix/services.h"

#include <iostream>

namespace velkor6::posix {
namespace {

// Without a display a message box goes to standard error, and the default button answers it,
// so that batch runs never wait for a user.
class PosixUserInterface final : public UserInterface {
public:
    std::int32_t messageBox(std::u16string_view text, std::u16string_view title,
                            std::int32_t style) override {
        std::cerr << "[" << toUtf8(title) << "] " << toUtf8(text) << '\n';
        std::cerr.flush();
        return defaultButtonResult(style);
    }

    void serveEvents() override {}
};

} // namespace

std::unique_ptr<UserInterface> createUserInterface() {
    return std::make_unique<PosixUserInterface>();
}

} // namespace velkor6::posix
