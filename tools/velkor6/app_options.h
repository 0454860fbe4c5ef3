// The options that describe the host application, checked before any member runs.
#pragma once

#include "commands.h"
#include "velkor6/applib.h"

#include <string_view>

namespace velkor6::cli {

// "6.1.23" gives Major 6, Minor 1, Revision 23; missing parts stay 0, "" leaves all three 0.
// Raises UsageError for a part that is no number from 0 to 32767, an empty part or a fourth
// part.
void readAppVersion(std::string_view text, HostApp& host);

// True for the names of the fixed locales (de-DE, en-US), in any case.
bool isLocalePreset(std::string_view name);
// Raises UsageError unless the name is a preset or a locale the C library has installed.
void checkLocale(std::string_view name);

// The options as a session uses them: the version checked, and without --app-path the
// current folder as an absolute path. Raises UsageError.
Options resolveAppOptions(Options options);

} // namespace velkor6::cli
