// The POSIX implementations of the platform services.
#pragma once

#include "velkor6/platform/platform.h"

#include <memory>

namespace velkor6::posix {

std::unique_ptr<Clock> createClock();
std::unique_ptr<FileSystem> createFileSystem();
std::unique_ptr<Environment> createEnvironment();
std::unique_ptr<InputState> createInputState();
// Serving events runs the dialog host's toolkit once it is loaded.
std::unique_ptr<UserInterface> createUserInterface(DialogHost& dialogs);
std::unique_ptr<Shell> createShell();
std::unique_ptr<Fonts> createFonts();

} // namespace velkor6::posix
