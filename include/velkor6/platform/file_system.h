// File-system service: files and folders by path, in the platform's own path style.
#pragma once

#include "velkor6/export.h"
#include "velkor6/platform/path_style.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6 {

// Attribute bits with the numbers clients use (FileAttributeConsts).
namespace fileattr {
inline constexpr std::uint32_t readOnly = 1;
inline constexpr std::uint32_t hidden = 2;
inline constexpr std::uint32_t system = 4;
inline constexpr std::uint32_t directory = 16;
inline constexpr std::uint32_t archive = 32;
} // namespace fileattr

struct FileStatus {
    std::uint32_t attributes = 0;
    std::uint64_t size = 0;
    Date lastModified; // local time, whole seconds
    bool isDirectory() const { return (attributes & fileattr::directory) != 0; }
};

// One entry of a folder listing. The view is valid only during the visit.
struct FolderEntry {
    std::u16string_view name;
    // hidden, system and directory bits; read-only needs status()
    std::uint32_t attributes = 0;
    // A link to a folder elsewhere: listed as a folder, but a tree walk does not enter it.
    bool isLink = false;
    bool isFolder() const { return (attributes & fileattr::directory) != 0; }
};

struct FolderListing {
    std::vector<std::u16string> files;
    std::vector<std::u16string> folders;
};

// A mounted volume (a drive on Windows). Volumes that are not ready or hold no files of their
// own (pseudo file systems) are listed but not searchable.
struct Volume {
    std::u16string root;
    bool searchable = false;
};

class VELKOR6_API FileSystem {
public:
    using EntryVisitor = std::function<bool(const FolderEntry&)>;

    virtual ~FileSystem() = default;

    virtual PathStyle pathStyle() const = 0;

    // Attributes, size and time of a file or folder; nullopt when it cannot be found.
    virtual std::optional<FileStatus> status(std::u16string_view path) = 0;

    // The whole content; nullopt when it cannot be read (missing, no regular file, no access).
    virtual std::optional<std::string> readFile(std::u16string_view path) = 0;
    // Creates or replaces the file with these bytes.
    virtual bool writeFile(std::u16string_view path, std::string_view bytes) = 0;
    // Appends the bytes with one write, creating the file when it is missing.
    virtual bool appendFile(std::u16string_view path, std::string_view bytes) = 0;

    // Calls visit for every entry of the folder, in the platform's order and without "." and
    // "..", until visit returns false. False when the folder cannot be read.
    virtual bool forEachEntry(std::u16string_view folder, const EntryVisitor& visit) = 0;

    // One folder whose parent exists.
    virtual bool createFolder(std::u16string_view path) = 0;
    // Copies the content and the last-modified time, as the system's file copy does.
    virtual bool copyFile(std::u16string_view from, std::u16string_view to, bool overwrite) = 0;
    // A file or an empty folder.
    virtual bool remove(std::u16string_view path) = 0;
    // Renames or moves a file or folder; an existing target file is replaced.
    virtual bool rename(std::u16string_view from, std::u16string_view to) = 0;

    // The absolute form of a path: resolved against the current directory, "." and ".."
    // removed, no trailing separator except at a root. Links are not followed.
    virtual std::u16string fullPath(std::u16string_view path) = 0;
    // The full path with links followed, where the system has them, so that two names of one
    // folder compare equal; as fullPath for what does not exist.
    virtual std::u16string resolvedPath(std::u16string_view path) { return fullPath(path); }
    virtual std::u16string currentDirectory() = 0;
    // Changes the current directory. Where there are drives, this is the directory of the
    // path's drive; it becomes the process's own only when that drive is the current one.
    virtual bool setCurrentDirectory(std::u16string_view path) = 0;
    // Makes the drive named by the first letter of drive current; false where there are none.
    virtual bool setCurrentDrive(std::u16string_view drive) = 0;

    // The user's temporary folder as the system gives it.
    virtual std::u16string tempFolder() = 0;
    // The folder of the operating system (the Windows directory).
    virtual std::u16string windowsFolder() = 0;
    // All volumes, in drive-letter order (on systems without drives: by mount point).
    virtual std::vector<Volume> volumes() = 0;

    bool exists(std::u16string_view path) { return status(path).has_value(); }
    bool isFile(std::u16string_view path) {
        const auto s = status(path);
        return s && !s->isDirectory();
    }
    bool isDirectory(std::u16string_view path) {
        const auto s = status(path);
        return s && s->isDirectory();
    }
    // Files and sub-folders of a folder, each in the platform's order.
    std::optional<FolderListing> listFolder(std::u16string_view folder) {
        FolderListing listing;
        const bool ok = forEachEntry(folder, [&](const FolderEntry& e) {
            (e.isFolder() ? listing.folders : listing.files).emplace_back(e.name);
            return true;
        });
        if (!ok)
            return std::nullopt;
        return listing;
    }
};

} // namespace velkor6
