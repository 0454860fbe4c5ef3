// The registry entries of the server: classes, ProgIDs, interfaces and the type library, under
// Software\Classes of the current user or of the machine.
#pragma once

#include <string>
#include <windows.h>

namespace velkor6::com {

enum class Scope { User, Machine };

// Writes the entries for the DLL at serverPath (its type library is embedded as resource 1).
HRESULT registerServer(Scope scope, const std::wstring& serverPath);
// Removes what registerServer writes; the type library's entry for the other bitness stays.
HRESULT unregisterServer(Scope scope);

} // namespace velkor6::com
