// The host application's description: read from a host's application object, made for the
// library itself, and its version text.
#pragma once

#include "velkor6/applib.h"
#include "velkor6/platform/platform.h"

#include <string>

namespace velkor6::app {

// Reads Path, EXEName, Major, Minor and Revision by name (a COM client's App object, a script's
// class, a record). Errors of the object and of the conversions reach the caller.
HostApp hostAppFrom(Object& app, const Locale& loc);

// The library's own application object: its binary's folder, the name "velkor6", its version.
HostApp libraryHostApp(const Platform& platform);

// Major & "." & Format(Minor, "00") & "." & Format(Revision, "0000"): 6, 1, 23 gives 6.01.0023.
std::u16string versionText(const HostApp& app);

} // namespace velkor6::app
