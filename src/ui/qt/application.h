// The one QApplication of the process.
#pragma once

namespace velkor6::qt {

// The program's own QApplication, or one made now when a display can be reached and the platform
// plugin exists; false when widgets cannot be shown (no display, a plugin missing, or a program
// that runs a QCoreApplication without a GUI). Qt would abort the process in those cases, so
// they are checked first.
bool startApplication();

} // namespace velkor6::qt
