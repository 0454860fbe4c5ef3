// The file system through the wide-character Win32 functions.
#include "platform/win32/file_time.h"
#include "platform/win32/handle.h"
#include "platform/win32/services.h"
#include "platform/win32/wide.h"

#include <string>
#include <vector>
#include <windows.h>

namespace velkor6::win32 {
namespace {

constexpr std::uint32_t keptAttributes = fileattr::readOnly | fileattr::hidden | fileattr::system |
                                         fileattr::directory | fileattr::archive;

// Calls a function that fills a buffer and tells the size it needs when the buffer is short.
template <class Fill>
std::wstring filled(Fill fill) {
    std::wstring buffer(MAX_PATH, L'\0');
    for (;;) {
        const DWORD n = fill(buffer.data(), static_cast<DWORD>(buffer.size()));
        if (n == 0)
            return {};
        if (n < buffer.size()) {
            buffer.resize(n);
            return buffer;
        }
        buffer.resize(n);
    }
}

std::wstring fullPathOf(const std::wstring& path) {
    return filled(
        [&](wchar_t* b, DWORD n) { return GetFullPathNameW(path.c_str(), n, b, nullptr); });
}

bool isRoot(const std::wstring& path) {
    return (path.size() == 3 && path[1] == L':') || path == L"\\";
}

std::wstring withoutTrailingSeparator(std::wstring path) {
    while (path.size() > 1 && (path.back() == L'\\' || path.back() == L'/') && !isRoot(path))
        path.pop_back();
    return path;
}

bool writeAll(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto chunk = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1u << 30));
        if (!WriteFile(file, bytes.data(), chunk, &written, nullptr))
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

wchar_t driveOf(const std::wstring& path) {
    return path.size() >= 2 && path[1] == L':' ? static_cast<wchar_t>(towupper(path[0])) : 0;
}

class Win32FileSystem final : public FileSystem {
public:
    PathStyle pathStyle() const override { return PathStyle::Windows; }

    std::optional<FileStatus> status(std::u16string_view path) override {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        if (path.empty() || !GetFileAttributesExW(wide(path).c_str(), GetFileExInfoStandard, &data))
            return std::nullopt;
        FileStatus s;
        s.attributes = data.dwFileAttributes & keptAttributes;
        s.size = (static_cast<std::uint64_t>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
        s.lastModified = localDate(data.ftLastWriteTime);
        return s;
    }

    std::optional<std::string> readFile(std::u16string_view path) override {
        if (path.empty())
            return std::nullopt;
        Handle file(CreateFileW(wide(path).c_str(), GENERIC_READ,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        LARGE_INTEGER size{};
        if (!file.valid() || !GetFileSizeEx(file.get(), &size))
            return std::nullopt;
        std::string bytes;
        bytes.reserve(static_cast<std::size_t>(size.QuadPart));
        char buffer[65536];
        for (;;) {
            DWORD n = 0;
            if (!ReadFile(file.get(), buffer, sizeof buffer, &n, nullptr))
                return std::nullopt;
            if (n == 0)
                break;
            bytes.append(buffer, n);
        }
        return bytes;
    }

    bool writeFile(std::u16string_view path, std::string_view bytes) override {
        if (path.empty())
            return false;
        Handle file(CreateFileW(wide(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        return file.valid() && writeAll(file.get(), bytes);
    }

    bool appendFile(std::u16string_view path, std::string_view bytes) override {
        if (path.empty())
            return false;
        // With append access only, every write goes to the end as one piece.
        Handle file(CreateFileW(wide(path).c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                                OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        return file.valid() && writeAll(file.get(), bytes);
    }

    bool forEachEntry(std::u16string_view folder, const EntryVisitor& visit) override {
        if (folder.empty())
            return false;
        std::wstring pattern = wide(folder);
        if (pattern.back() != L'\\' && pattern.back() != L'/')
            pattern += L'\\';
        pattern += L'*';
        WIN32_FIND_DATAW data{};
        FindHandle find(FindFirstFileW(pattern.c_str(), &data));
        if (!find.valid())
            return GetLastError() == ERROR_FILE_NOT_FOUND; // an empty drive root
        std::u16string name;
        do {
            const std::wstring_view raw(data.cFileName);
            if (raw == L"." || raw == L"..")
                continue;
            name = fromWide(raw);
            FolderEntry e;
            e.name = name;
            e.attributes =
                data.dwFileAttributes & (fileattr::hidden | fileattr::system | fileattr::directory);
            e.isLink = (data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
                       (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
            if (!visit(e))
                return true;
        } while (FindNextFileW(find.get(), &data));
        return true;
    }

    bool createFolder(std::u16string_view path) override {
        return !path.empty() && CreateDirectoryW(wide(path).c_str(), nullptr);
    }

    bool copyFile(std::u16string_view from, std::u16string_view to, bool overwrite) override {
        return CopyFileW(wide(from).c_str(), wide(to).c_str(), overwrite ? FALSE : TRUE);
    }

    bool remove(std::u16string_view path) override {
        const std::wstring p = wide(path);
        const DWORD attributes = GetFileAttributesW(p.c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES)
            return false;
        if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
            return RemoveDirectoryW(p.c_str());
        return DeleteFileW(p.c_str());
    }

    bool rename(std::u16string_view from, std::u16string_view to) override {
        return MoveFileExW(wide(from).c_str(), wide(to).c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED);
    }

    std::u16string fullPath(std::u16string_view path) override {
        return fromWide(withoutTrailingSeparator(fullPathOf(wide(path.empty() ? u"." : path))));
    }

    std::u16string currentDirectory() override {
        return fromWide(filled([](wchar_t* b, DWORD n) { return GetCurrentDirectoryW(n, b); }));
    }

    bool setCurrentDirectory(std::u16string_view path) override {
        const std::wstring full = withoutTrailingSeparator(fullPathOf(wide(path)));
        const DWORD attributes = GetFileAttributesW(full.c_str());
        if (full.empty() || attributes == INVALID_FILE_ATTRIBUTES ||
            (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            return false;
        const wchar_t drive = driveOf(full);
        const std::wstring current = wide(currentDirectory());
        if (drive == 0 || drive == driveOf(current))
            return SetCurrentDirectoryW(full.c_str());
        // Another drive's current directory lives in the environment as "=X:".
        const wchar_t name[] = {L'=', drive, L':', 0};
        return SetEnvironmentVariableW(name, full.c_str());
    }

    bool setCurrentDrive(std::u16string_view drive) override {
        if (drive.empty() || !iswalpha(drive[0]))
            return false;
        const wchar_t spec[] = {static_cast<wchar_t>(towupper(drive[0])), L':', 0};
        // "X:" alone names that drive's current directory.
        const std::wstring target = fullPathOf(spec);
        return !target.empty() && SetCurrentDirectoryW(target.c_str());
    }

    std::u16string tempFolder() override {
        return fromWide(filled([](wchar_t* b, DWORD n) { return GetTempPathW(n, b); }));
    }

    std::u16string windowsFolder() override {
        return fromWide(filled([](wchar_t* b, DWORD n) { return GetWindowsDirectoryW(b, n); }));
    }

    std::vector<Volume> volumes() override {
        const std::wstring roots =
            filled([](wchar_t* b, DWORD n) { return GetLogicalDriveStringsW(n, b); });
        std::vector<Volume> result;
        // Asking an empty floppy or card drive must not bring up the system's error box.
        const UINT previous = SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
        for (std::size_t i = 0; i < roots.size();) {
            const std::wstring root(roots.c_str() + i);
            i += root.size() + 1;
            if (root.empty())
                break;
            const UINT type = GetDriveTypeW(root.c_str());
            const bool ready = GetVolumeInformationW(root.c_str(), nullptr, 0, nullptr, nullptr,
                                                     nullptr, nullptr, 0) != 0;
            result.push_back({fromWide(root), ready && type != DRIVE_NO_ROOT_DIR});
        }
        SetErrorMode(previous);
        return result;
    }
};

} // namespace

std::unique_ptr<FileSystem> createFileSystem() {
    return std::make_unique<Win32FileSystem>();
}

} // namespace velkor6::win32
