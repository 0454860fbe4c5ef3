#include "com/server_state.h"

#include <atomic>
#include <string>
#include <utility>

namespace velkor6::com {
namespace {

struct ServerState {
    std::atomic<long> objects{0};
    std::atomic<long> locks{0};
    HMODULE module = nullptr;
    std::shared_ptr<Module> context;
    // Not released when the process ends: by then oleaut32 may be gone. releaseServerResources
    // lets it go when the server is unloaded while the process goes on.
    ITypeLib* typeLib = nullptr;
    bool typeLibLoaded = false;
};

ServerState& state() {
    static ServerState s;
    return s;
}

} // namespace

void objectCreated() {
    ++state().objects;
}
void objectDestroyed() {
    --state().objects;
}
void lockServer(bool lock) {
    if (lock)
        ++state().locks;
    else
        --state().locks;
}
bool serverIdle() {
    return state().objects == 0 && state().locks == 0;
}

void setServerModule(HMODULE module) {
    state().module = module;
}
HMODULE serverModule() {
    return state().module;
}

std::shared_ptr<Module> serverContext() {
    auto& s = state();
    if (!s.context)
        s.context = Module::createDefault();
    return s.context;
}

ComPtr<ITypeInfo> typeInfoOf(const GUID& interfaceId) {
    auto& s = state();
    if (!s.typeLibLoaded) {
        s.typeLibLoaded = true;
        const std::wstring path = modulePath(s.module);
        if (path.empty() || FAILED(LoadTypeLibEx(path.c_str(), REGKIND_NONE, &s.typeLib)))
            s.typeLib = nullptr;
    }
    ComPtr<ITypeInfo> info;
    if (s.typeLib != nullptr)
        s.typeLib->GetTypeInfoOfGuid(interfaceId, info.put());
    return info;
}

void releaseServerResources() {
    auto& s = state();
    s.context.reset();
    if (s.typeLib != nullptr)
        std::exchange(s.typeLib, nullptr)->Release();
    s.typeLibLoaded = false;
}

std::wstring modulePath(HMODULE module) {
    std::wstring path(32768, L'\0');
    const DWORD n = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    path.resize(n < path.size() ? n : 0);
    return path;
}

} // namespace velkor6::com
