// A real folder for tests on the native platform, created empty and removed with all it holds.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace velkor6::fake {

class TempFolder {
public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    const std::filesystem::path& path() const { return path_; }
    // The folder, or a path below it, as the library takes it.
    std::u16string u16(std::string_view relative = {}) const;

    // Creates the file (and its folders) below the folder.
    void write(std::string_view relative, std::string_view bytes = {}) const;
    void mkdir(std::string_view relative) const;

private:
    std::filesystem::path path_;
};

// Restores the process's current directory when it ends.
class CurrentDirectoryGuard {
public:
    CurrentDirectoryGuard() : saved_(std::filesystem::current_path()) {}
    CurrentDirectoryGuard(const CurrentDirectoryGuard&) = delete;
    CurrentDirectoryGuard& operator=(const CurrentDirectoryGuard&) = delete;
    ~CurrentDirectoryGuard() { std::filesystem::current_path(saved_); }

private:
    std::filesystem::path saved_;
};

} // namespace velkor6::fake
