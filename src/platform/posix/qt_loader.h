// The Qt dialog host, a library of its own that only a process showing a dialog loads.
#pragma once

#include "velkor6/platform/dialog_host.h"
#include "velkor6/platform/window_manager.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace velkor6::posix {

// Where the library is looked for, in this order: beside the library or program that holds this
// code, in the installation's library folder next to it, and in the library folder it was
// installed for.
std::vector<std::string> qtLibraryCandidates(const std::string& ownFolder);

// The Qt host, or null when there is no X display, no library, or Qt cannot start.
std::unique_ptr<DialogHost> loadQtDialogHost();

// The control window of a widget that the Qt library's wrappers gave this handle; nullptr when
// that library is not loaded in this process (this never loads it) or the handle is none of its.
std::shared_ptr<ControlWindow> qtControlWindow(WindowHandle handle);

// A host that loads the Qt host when it is first asked to show or measure something, and uses
// the fallback's host where Qt cannot start. Serving events before that loads nothing, so a
// process that shows no dialog never loads Qt.
std::unique_ptr<DialogHost> qtOnFirstUse(std::function<std::unique_ptr<DialogHost>()> fallback);

} // namespace velkor6::posix
