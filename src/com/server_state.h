// What the in-process server keeps while it is loaded: the count of live objects and locks
// (for DllCanUnloadNow), its module handle, and the module context its objects share.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
// clang-format on

#include "com/com_ptr.h"
#include "velkor6/module.h"

#include <memory>
#include <string>

namespace velkor6::com {

void objectCreated();
void objectDestroyed();
void lockServer(bool lock);
// True when no object is alive and no client holds a lock.
bool serverIdle();

void setServerModule(HMODULE module);
HMODULE serverModule();

// The module context of everything created through this server, made on first use: module-wide
// state lives until the library is unloaded.
std::shared_ptr<Module> serverContext();

// The description of a class's interface from the embedded type library, or nothing when the
// module carries none (as in the unit tests).
ComPtr<ITypeInfo> typeInfoOf(const GUID& interfaceId);

// Drops the module context and the type library, when the server is about to be unloaded.
void releaseServerResources();

// The full path of a loaded module.
std::wstring modulePath(HMODULE module);

// Counts one live object for as long as it exists.
class LiveObject {
public:
    LiveObject() { objectCreated(); }
    LiveObject(const LiveObject&) = delete;
    LiveObject& operator=(const LiveObject&) = delete;
    ~LiveObject() { objectDestroyed(); }
};

} // namespace velkor6::com
