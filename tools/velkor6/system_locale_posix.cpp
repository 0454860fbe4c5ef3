#include "system_locale.h"

#include <cstdlib>
#include <locale.h>

namespace velkor6::cli {

bool localeInstalled(const std::string& name) {
    // newlocale takes "" for the environment's locale and a path for a locale file; the option
    // names an installed one.
    if (name.empty() || name.find('/') != std::string::npos)
        return false;
    const locale_t loc = newlocale(LC_ALL_MASK, name.c_str(), locale_t{});
    if (loc == locale_t{})
        return false;
    freelocale(loc);
    return true;
}

void useSystemLocale(const std::string& name) {
    setenv("LC_ALL", name.c_str(), 1);
}

} // namespace velkor6::cli
