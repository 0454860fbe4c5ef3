// Which host draws the library's dialogs in this process.
#pragma once

#include "velkor6/platform/dialog_host.h"

#include <memory>

namespace velkor6::ui {

// Chosen once per module: VELKOR6_UI names a host ("headless" forces text on standard error);
// without it a toolkit host where a display is reachable, else the headless one.
std::unique_ptr<DialogHost> createDialogHost();

} // namespace velkor6::ui
