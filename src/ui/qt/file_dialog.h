// The file dialog and the folder chooser as Qt's own (non-native, so that they look and behave
// the same on every desktop).
#pragma once

#include "velkor6/platform/dialog_host.h"

#include <string>
#include <vector>

namespace velkor6::qt {

std::vector<std::u16string> runFileDialog(const FileDialogRequest& request);
std::u16string runFolderDialog(const FolderDialogRequest& request);

} // namespace velkor6::qt
