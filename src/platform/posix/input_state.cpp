#include "platform/posix/services.h"

namespace velkor6::posix {
namespace {

// Without a window system there is no keyboard or mouse to ask: nothing reads as down.
class PosixInputState final : public InputState {
public:
    std::int16_t asyncKeyState(std::int32_t) override { return 0; }
    bool mouseButtonsSwapped() override { return false; }
};

} // namespace

std::unique_ptr<InputState> createInputState() {
    return std::make_unique<PosixInputState>();
}

} // namespace velkor6::posix
