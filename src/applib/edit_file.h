// Opening a file in the editor the system has registered for its type.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/platform/platform.h"

#include <string_view>

namespace velkor6::app {

// Asks the registry for the edit command of the file's type; without one the file is opened
// with "open", else with "edit", and when that fails the command itself is started with the
// file put in for "%1". Every failure is ignored.
void openForEditing(Platform& platform, std::u16string_view path, const Locale& loc);

} // namespace velkor6::app
