// The system's common open and save dialogs and its folder chooser.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include "velkor6/platform/dialog_host.h"

#include <string>
#include <vector>

namespace velkor6::ui::win32 {

std::vector<std::u16string> runFileDialog(HWND owner, const FileDialogRequest& request);
std::u16string runFolderDialog(HWND owner, const FolderDialogRequest& request);

} // namespace velkor6::ui::win32
