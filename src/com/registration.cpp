#include "com/registration.h"

#include "com/server_classes.h"
#include "lib/class_ids.h"
#include "platform/win32/wide.h"

#include <olectl.h>
#include <string_view>
#include <utility>
#include <vector>

namespace velkor6::com {
namespace {

// The marshaler of dispatch interfaces, which carries them between apartments.
constexpr std::wstring_view dispatchProxy = L"{00020420-0000-0000-C000-000000000046}";
#ifdef _WIN64
constexpr std::wstring_view platformKey = L"win64";
#else
constexpr std::wstring_view platformKey = L"win32";
#endif

class RegKey {
public:
    RegKey() = default;
    RegKey(const RegKey&) = delete;
    RegKey& operator=(const RegKey&) = delete;
    RegKey(RegKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
    ~RegKey() {
        if (key_ != nullptr)
            RegCloseKey(key_);
    }
    HKEY get() const { return key_; }
    HKEY* put() { return &key_; }

private:
    HKEY key_ = nullptr;
};

HKEY rootOf(Scope scope) {
    return scope == Scope::User ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

std::wstring braced(std::u16string_view guid) {
    return L"{" + win32::wide(guid) + L"}";
}

std::wstring classesPath(std::wstring_view rest) {
    return rest.empty() ? std::wstring(L"Software\\Classes")
                        : L"Software\\Classes\\" + std::wstring(rest);
}

// Creates the key (and its parents) and sets a string value; an empty name is the default.
LONG setString(Scope scope, const std::wstring& key, const wchar_t* name, std::wstring_view value) {
    RegKey k;
    LONG rc = RegCreateKeyExW(rootOf(scope), classesPath(key).c_str(), 0, nullptr,
                              REG_OPTION_NON_VOLATILE, KEY_SET_VALUE, nullptr, k.put(), nullptr);
    if (rc != ERROR_SUCCESS)
        return rc;
    const std::wstring data(value);
    return RegSetValueExW(k.get(), name, 0, REG_SZ, reinterpret_cast<const BYTE*>(data.c_str()),
                          static_cast<DWORD>((data.size() + 1) * sizeof(wchar_t)));
}

LONG deleteTree(Scope scope, const std::wstring& key) {
    const LONG rc = RegDeleteTreeW(rootOf(scope), classesPath(key).c_str());
    if (rc == ERROR_SUCCESS || rc == ERROR_FILE_NOT_FOUND)
        return ERROR_SUCCESS;
    return rc;
}

// Deletes a key that holds nothing (no sub-keys, no values); says whether it is gone.
bool deleteIfEmpty(Scope scope, const std::wstring& key) {
    const std::wstring path = classesPath(key);
    {
        RegKey k;
        if (RegOpenKeyExW(rootOf(scope), path.c_str(), 0, KEY_READ, k.put()) != ERROR_SUCCESS)
            return true;
        DWORD subKeys = 0;
        DWORD values = 0;
        if (RegQueryInfoKeyW(k.get(), nullptr, nullptr, nullptr, &subKeys, nullptr, nullptr,
                             &values, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS ||
            subKeys != 0 || values != 0)
            return false;
    }
    return RegDeleteKeyW(rootOf(scope), path.c_str()) == ERROR_SUCCESS;
}

std::wstring typeLibVersion() {
    return std::to_wstring(typelib::libraryMajor) + L"." + std::to_wstring(typelib::libraryMinor);
}

std::wstring folderOf(const std::wstring& path) {
    const auto slash = path.find_last_of(L"\\/");
    return slash == std::wstring::npos ? std::wstring() : path.substr(0, slash);
}

} // namespace

HRESULT registerServer(Scope scope, const std::wstring& serverPath) {
    const std::wstring library = win32::wide(typelib::libraryName);
    const std::wstring libId = braced(typelib::libraryId);
    const std::wstring version = typeLibVersion();
    const std::wstring typeLibKey = L"TypeLib\\" + libId + L"\\" + version;

    struct Entry {
        std::wstring key;
        const wchar_t* name;
        std::wstring value;
    };
    std::vector<Entry> entries{
        {typeLibKey, nullptr, library},
        {typeLibKey + L"\\0\\" + std::wstring(platformKey), nullptr, serverPath},
        {typeLibKey + L"\\FLAGS", nullptr, L"0"},
        {typeLibKey + L"\\HELPDIR", nullptr, folderOf(serverPath)},
    };
    for (const ClassEntry& c : serverClasses()) {
        const std::wstring name = win32::wide(c.ids.name);
        const std::wstring progId = library + L"." + name;
        const std::wstring versioned = progId + L"." + std::to_wstring(typelib::libraryMajor);
        const std::wstring clsid = braced(c.ids.classId);
        const std::wstring clsidKey = L"CLSID\\" + clsid;
        const std::wstring interfaceKey = L"Interface\\" + braced(c.ids.interfaceId);
        entries.insert(
            entries.end(),
            {
                {clsidKey, nullptr, progId},
                {clsidKey + L"\\InprocServer32", nullptr, serverPath},
                {clsidKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
                {clsidKey + L"\\ProgID", nullptr, versioned},
                {clsidKey + L"\\VersionIndependentProgID", nullptr, progId},
                {clsidKey + L"\\TypeLib", nullptr, libId},
                {clsidKey + L"\\Version", nullptr, version},
                {progId, nullptr, progId},
                {progId + L"\\CLSID", nullptr, clsid},
                {progId + L"\\CurVer", nullptr, versioned},
                {versioned, nullptr, progId},
                {versioned + L"\\CLSID", nullptr, clsid},
                {interfaceKey, nullptr, L"_" + name},
                {interfaceKey + L"\\ProxyStubClsid32", nullptr, std::wstring(dispatchProxy)},
                {interfaceKey + L"\\TypeLib", nullptr, libId},
                {interfaceKey + L"\\TypeLib", L"Version", version},
            });
    }
    for (const Entry& e : entries) {
        if (const LONG rc = setString(scope, e.key, e.name, e.value); rc != ERROR_SUCCESS) {
            unregisterServer(scope);
            return HRESULT_FROM_WIN32(rc);
        }
    }
    return S_OK;
}

HRESULT unregisterServer(Scope scope) {
    const std::wstring library = win32::wide(typelib::libraryName);
    const std::wstring libKey = L"TypeLib\\" + braced(typelib::libraryId);
    const std::wstring versionKey = libKey + L"\\" + typeLibVersion();
    bool ok = deleteTree(scope, versionKey + L"\\0\\" + std::wstring(platformKey)) == ERROR_SUCCESS;
    // The interfaces and the type library's version key are shared with the other bitness's
    // registration: they go with the last one.
    const bool last = deleteIfEmpty(scope, versionKey + L"\\0");
    if (last) {
        for (const wchar_t* sub : {L"\\FLAGS", L"\\HELPDIR", L""})
            ok = deleteTree(scope, versionKey + sub) == ERROR_SUCCESS && ok;
        deleteIfEmpty(scope, libKey);
    }
    for (const ClassEntry& c : serverClasses()) {
        const std::wstring progId = library + L"." + win32::wide(c.ids.name);
        for (const std::wstring& key : {L"CLSID\\" + braced(c.ids.classId), progId,
                                        progId + L"." + std::to_wstring(typelib::libraryMajor)})
            ok = deleteTree(scope, key) == ERROR_SUCCESS && ok;
        if (last)
            ok = deleteTree(scope, L"Interface\\" + braced(c.ids.interfaceId)) == ERROR_SUCCESS &&
                 ok;
    }
    // Parents the registration had to create go too, when nothing else is in them.
    for (const wchar_t* parent : {L"CLSID", L"Interface", L"TypeLib"})
        deleteIfEmpty(scope, parent);
    deleteIfEmpty(scope, L"");
    return ok ? S_OK : SELFREG_E_CLASS;
}

} // namespace velkor6::com
