// Settings files shared between processes: byte-range locks and replacement by rename.
#include "platform/win32/file_time.h"
#include "platform/win32/handle.h"
#include "platform/win32/services.h"
#include "platform/win32/wide.h"

#include <string>
#include <windows.h>

namespace velkor6::win32 {
namespace {

// File systems stamp times from a coarse clock (two seconds on FAT).
constexpr std::int64_t timeStampGrainNs = 2'000'000'000;

std::optional<BY_HANDLE_FILE_INFORMATION> information(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION info{};
    if (!GetFileInformationByHandle(file, &info))
        return std::nullopt;
    return info;
}

bool sameFile(const BY_HANDLE_FILE_INFORMATION& a, const BY_HANDLE_FILE_INFORMATION& b) {
    return a.dwVolumeSerialNumber == b.dwVolumeSerialNumber &&
           a.nFileIndexHigh == b.nFileIndexHigh && a.nFileIndexLow == b.nFileIndexLow;
}

HANDLE openShared(const std::wstring& path, DWORD access, DWORD disposition) {
    return CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

class RangeLock final : public FileStore::Lock {
public:
    explicit RangeLock(Handle file) : file_(std::move(file)) {}
    ~RangeLock() override {
        OVERLAPPED whole{};
        UnlockFileEx(file_.get(), 0, MAXDWORD, MAXDWORD, &whole);
    }

private:
    Handle file_;
};

bool writeAll(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        if (!WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr))
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

class Win32FileStore final : public FileStore {
public:
    std::optional<FileIdentity> identity(std::u16string_view path) override {
        if (path.empty())
            return std::nullopt;
        Handle file(openShared(wide(path), FILE_READ_ATTRIBUTES, OPEN_EXISTING));
        if (!file.valid())
            return std::nullopt;
        const auto info = information(file.get());
        if (!info)
            return std::nullopt;
        FILETIME now{};
        GetSystemTimeAsFileTime(&now);
        FileIdentity id;
        id.size = (static_cast<std::uint64_t>(info->nFileSizeHigh) << 32) | info->nFileSizeLow;
        id.modifiedNs = static_cast<std::int64_t>(ticks(info->ftLastWriteTime)) * 100;
        id.inode = (static_cast<std::uint64_t>(info->nFileIndexHigh) << 32) | info->nFileIndexLow;
        id.device = info->dwVolumeSerialNumber;
        id.recent = static_cast<std::int64_t>(ticks(now)) * 100 - id.modifiedNs < timeStampGrainNs;
        return id;
    }

    std::unique_ptr<Lock> lock(std::u16string_view path) override {
        if (path.empty())
            return nullptr;
        const std::wstring p = wide(path);
        // A writer renames a new file over the old one, so the lock may be won on a file that
        // is no longer the one under the name; then it is taken again on the new file.
        for (int attempt = 0; attempt < 1000; ++attempt) {
            Handle file(openShared(p, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS));
            if (!file.valid())
                file = Handle(openShared(p, GENERIC_READ, OPEN_EXISTING));
            if (!file.valid())
                return nullptr;
            OVERLAPPED whole{};
            if (!LockFileEx(file.get(), LOCKFILE_EXCLUSIVE_LOCK, 0, MAXDWORD, MAXDWORD, &whole))
                return nullptr;
            const auto held = information(file.get());
            Handle named(openShared(p, FILE_READ_ATTRIBUTES, OPEN_EXISTING));
            const auto current = named.valid() ? information(named.get()) : std::nullopt;
            if (held && current && sameFile(*held, *current))
                return std::make_unique<RangeLock>(std::move(file));
            UnlockFileEx(file.get(), 0, MAXDWORD, MAXDWORD, &whole);
        }
        return nullptr;
    }

    bool replace(std::u16string_view path, std::string_view bytes) override {
        if (path.empty())
            return false;
        const std::wstring target = wide(path);
        const DWORD attributes = GetFileAttributesW(target.c_str());
        const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
        if (exists && (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0)
            return false;
        const std::wstring temp = target + L"." + std::to_wstring(GetCurrentProcessId()) + L".tmp";
        {
            Handle file(CreateFileW(temp.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
            if (!file.valid()) {
                // A folder where no new file may be made: write in place, as the system's
                // profile writer does everywhere.
                Handle inPlace(openShared(target, GENERIC_WRITE, TRUNCATE_EXISTING));
                return exists && inPlace.valid() && writeAll(inPlace.get(), bytes);
            }
            if (!writeAll(file.get(), bytes) || !FlushFileBuffers(file.get())) {
                DeleteFileW(temp.c_str());
                return false;
            }
        }
        if (MoveFileExW(temp.c_str(), target.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return true;
        DeleteFileW(temp.c_str());
        // A name the system will not replace while the file is open (the writer's own lock
        // holds it): write in place, as the profile writer does.
        Handle inPlace(openShared(target, GENERIC_WRITE, TRUNCATE_EXISTING));
        return inPlace.valid() && writeAll(inPlace.get(), bytes);
    }
};

} // namespace

std::unique_ptr<FileStore> createFileStore() {
    return std::make_unique<Win32FileStore>();
}

} // namespace velkor6::win32
