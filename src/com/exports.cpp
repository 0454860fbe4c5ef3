// The entry points of velkor6.dll (listed in velkor6.def).
// clang-format off
#include <windows.h>
#include <unknwn.h>
#include <olectl.h>
// clang-format on

#include "com/class_factory.h"
#include "com/registration.h"
#include "com/server_classes.h"
#include "com/server_state.h"

#include <cwctype>
#include <string_view>

using namespace velkor6::com;

namespace {

bool sameWord(std::wstring_view a, std::wstring_view b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (std::towlower(a[i]) != std::towlower(b[i]))
            return false;
    }
    return true;
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        setServerModule(instance);
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID riid, LPVOID* out) {
    if (out == nullptr)
        return E_POINTER;
    *out = nullptr;
    for (const ClassEntry& c : serverClasses()) {
        if (!IsEqualCLSID(classId, c.classId))
            continue;
        IClassFactory* factory = createClassFactory(c);
        const HRESULT hr = factory->QueryInterface(riid, out);
        factory->Release();
        return hr;
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
    if (!serverIdle())
        return S_FALSE;
    releaseServerResources();
    return S_OK;
}

// Per user: needs no administrator rights, and is what a plain regsvr32 does.
STDAPI DllRegisterServer() {
    return registerServer(Scope::User, modulePath(serverModule()));
}

STDAPI DllUnregisterServer() {
    return unregisterServer(Scope::User);
}

// regsvr32 /n /i:machine (or /i:user) chooses where explicitly; /u with it unregisters.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
    const std::wstring_view where = commandLine != nullptr ? commandLine : L"";
    Scope scope = Scope::User;
    if (sameWord(where, L"machine"))
        scope = Scope::Machine;
    else if (!where.empty() && !sameWord(where, L"user"))
        return E_INVALIDARG;
    return install ? registerServer(scope, modulePath(serverModule())) : unregisterServer(scope);
}
