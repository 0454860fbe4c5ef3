// The dialog host of the Windows builds: real windows of the library's module.
#pragma once

#include "velkor6/platform/dialog_host.h"

#include <memory>

namespace velkor6::ui::win32 {

std::unique_ptr<DialogHost> createDialogHost();

} // namespace velkor6::ui::win32
