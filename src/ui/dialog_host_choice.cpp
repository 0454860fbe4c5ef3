#include "ui/dialog_host_choice.h"

#include "ui/headless/headless_host.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace velkor6::ui {
namespace {

std::string_view environmentValue(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

// An X display is reachable when DISPLAY names one and, for a local display (":N" or ":N.S"),
// its socket exists; a remote display is taken on trust.
[[maybe_unused]] bool displayReachable() {
    const std::string_view display = environmentValue("DISPLAY");
    if (display.empty())
        return false;
    if (display.front() != ':')
        return true;
    std::string_view number = display.substr(1);
    number = number.substr(0, number.find('.'));
    std::error_code error;
    return std::filesystem::exists("/tmp/.X11-unix/X" + std::string(number), error);
}

} // namespace

std::unique_ptr<DialogHost> createDialogHost() {
    const std::string_view chosen = environmentValue("VELKOR6_UI");
    if (chosen == "headless")
        return std::make_unique<HeadlessHost>(HeadlessHost::fromEnvironment());
    // The toolkit hosts join here; until then every process draws its dialogs as text.
    return std::make_unique<HeadlessHost>(HeadlessHost::fromEnvironment());
}

} // namespace velkor6::ui
