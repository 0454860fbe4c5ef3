// Locales of the operating system that --locale may name besides the presets.
#pragma once

#include <string>

namespace velkor6::cli {

// True when the C library has the locale installed (newlocale loads it).
bool localeInstalled(const std::string& name);
// Makes the locale the one the program's module reads from the environment (LC_ALL).
void useSystemLocale(const std::string& name);

} // namespace velkor6::cli
