#include "system_locale.h"

namespace velkor6::cli {

// Windows takes its conventions from the user's settings; only the presets can replace them.
bool localeInstalled(const std::string&) {
    return false;
}

void useSystemLocale(const std::string&) {}

} // namespace velkor6::cli
