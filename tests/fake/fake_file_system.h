// An in-memory file system with Windows paths: drive letters and UNC shares, "\" (or "/")
// separators, names that ignore letter case and list in sorted order, a current directory per
// drive, read-only files the system refuses to change, and locked files for failure tests.
#pragma once

#include "velkor6/platform/clock.h"
#include "velkor6/platform/file_system.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velkor6::fake {

class FakeFileSystem final : public FileSystem {
public:
    // Drive C: with C:\Windows and the temporary folder; C:\ is current. New and written files
    // take their time from clock.
    explicit FakeFileSystem(const Clock& clock);
    ~FakeFileSystem() override;

    // --- Setting up ---------------------------------------------------------------------
    void addDrive(char16_t letter, bool ready = true);
    // "\\server\share"
    void addShare(std::u16string_view root);
    // Creates the folder and its missing parents.
    void addFolder(std::u16string_view path);
    // Creates or replaces a file (parents created); the time defaults to the clock's now.
    void addFile(std::u16string_view path, std::string_view bytes = {},
                 std::optional<Date> modified = std::nullopt,
                 std::uint32_t attributes = fileattr::archive);
    void setAttributes(std::u16string_view path, std::uint32_t attributes);
    void setLastModified(std::u16string_view path, Date modified);
    // A locked file can neither be read, written, copied, renamed nor removed.
    void setLocked(std::u16string_view path, bool locked = true);
    void setTempFolder(std::u16string folder) { tempFolder_ = std::move(folder); }
    void setWindowsFolder(std::u16string folder) { windowsFolder_ = std::move(folder); }

    // --- FileSystem ---------------------------------------------------------------------
    PathStyle pathStyle() const override { return PathStyle::Windows; }
    std::optional<FileStatus> status(std::u16string_view path) override;
    std::optional<std::string> readFile(std::u16string_view path) override;
    bool writeFile(std::u16string_view path, std::string_view bytes) override;
    bool appendFile(std::u16string_view path, std::string_view bytes) override;
    bool forEachEntry(std::u16string_view folder, const EntryVisitor& visit) override;
    bool createFolder(std::u16string_view path) override;
    bool copyFile(std::u16string_view from, std::u16string_view to, bool overwrite) override;
    bool remove(std::u16string_view path) override;
    bool rename(std::u16string_view from, std::u16string_view to) override;
    std::u16string fullPath(std::u16string_view path) override;
    std::u16string currentDirectory() override;
    bool setCurrentDirectory(std::u16string_view path) override;
    bool setCurrentDrive(std::u16string_view drive) override;
    std::u16string tempFolder() override { return tempFolder_; }
    std::u16string windowsFolder() override { return windowsFolder_; }
    std::vector<Volume> volumes() override;

private:
    struct Node;
    struct Root;
    struct Location; // a resolved path: its root and components

    std::optional<Location> resolve(std::u16string_view path) const;
    Node* find(const Location& where) const;
    Node* find(std::u16string_view path) const;
    // The folder that holds the last component, or nullptr.
    Node* parentOf(const Location& where) const;
    Node* makeFolders(const Location& where);
    Node* writable(std::u16string_view path);
    Date wholeSecondNow() const;

    const Clock& clock_;
    std::map<std::u16string, Root> roots_; // "C:", "\\SERVER\SHARE"
    std::u16string currentDrive_ = u"C:";
    std::u16string tempFolder_ = u"C:\\Users\\Test\\AppData\\Local\\Temp\\";
    std::u16string windowsFolder_ = u"C:\\Windows";
};

} // namespace velkor6::fake
