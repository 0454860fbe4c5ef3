// The POSIX implementations of the platform services.
#pragma once

#include "velkor6/platform/platform.h"

#include <memory>

namespace velkor6::posix {

// The library's X connection (x_display.h); declared only, so that Xlib's macros stay out of
// the files that include this one.
class XConnection;

std::unique_ptr<Clock> createClock();
std::unique_ptr<FileSystem> createFileSystem();
std::unique_ptr<Environment> createEnvironment();
// Input and user interface share the library's X connection with the window manager; serving
// events also runs the dialog host's toolkit once it is loaded.
std::unique_ptr<InputState> createInputState(std::shared_ptr<XConnection> x);
std::unique_ptr<UserInterface> createUserInterface(std::shared_ptr<XConnection> x,
                                                   DialogHost& dialogs);
std::unique_ptr<Shell> createShell();
std::unique_ptr<Fonts> createFonts();

} // namespace velkor6::posix
