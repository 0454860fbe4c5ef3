// The file system through the POSIX calls. Readable names are UTF-8; "\" counts as "/".
#include "core/date.h"
#include "platform/posix/fd.h"
#include "platform/posix/mounts.h"
#include "platform/posix/services.h"
#include "platform/posix/utf8_path.h"

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace velkor6::posix {
namespace {

class Dir {
public:
    explicit Dir(DIR* d) : d_(d) {}
    Dir(const Dir&) = delete;
    Dir& operator=(const Dir&) = delete;
    ~Dir() {
        if (d_ != nullptr)
            ::closedir(d_);
    }
    DIR* get() const { return d_; }

private:
    DIR* d_;
};

Date localDate(std::time_t t) {
    std::tm tm{};
    localtime_r(&t, &tm);
    return makeDate(
        {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec});
}

std::string_view baseName(std::string_view path) {
    while (path.size() > 1 && path.back() == '/')
        path.remove_suffix(1);
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

bool isHiddenName(std::string_view name) {
    return !name.empty() && name[0] == '.' && name != "." && name != "..";
}

// "/" joins, "." and ".." go; a path that climbs above the root stays at the root.
std::string normalise(std::string_view path) {
    std::vector<std::string_view> parts;
    std::size_t i = 0;
    while (i < path.size()) {
        const std::size_t end = std::min(path.find('/', i), path.size());
        const std::string_view part = path.substr(i, end - i);
        if (part == "..") {
            if (!parts.empty())
                parts.pop_back();
        } else if (!part.empty() && part != ".") {
            parts.push_back(part);
        }
        i = end + 1;
    }
    std::string result;
    for (const auto part : parts) {
        result += '/';
        result += part;
    }
    return result.empty() ? std::string("/") : result;
}

std::string workingDirectory() {
    std::string buffer(256, '\0');
    while (::getcwd(buffer.data(), buffer.size()) == nullptr) {
        if (errno != ERANGE)
            return {};
        buffer.resize(buffer.size() * 2);
    }
    buffer.resize(buffer.find('\0'));
    return buffer;
}

class PosixFileSystem final : public FileSystem {
public:
    PathStyle pathStyle() const override { return PathStyle::Posix; }

    std::optional<FileStatus> status(std::u16string_view path) override {
        if (path.empty())
            return std::nullopt;
        const std::string p = nativePath(path);
        struct stat st {};
        if (::stat(p.c_str(), &st) != 0)
            return std::nullopt;
        FileStatus s;
        if (S_ISDIR(st.st_mode))
            s.attributes |= fileattr::directory;
        if (isHiddenName(baseName(p)))
            s.attributes |= fileattr::hidden;
        if (::faccessat(AT_FDCWD, p.c_str(), W_OK, AT_EACCESS) != 0)
            s.attributes |= fileattr::readOnly;
        s.size = static_cast<std::uint64_t>(st.st_size);
        s.lastModified = localDate(st.st_mtim.tv_sec);
        return s;
    }

    std::optional<std::string> readFile(std::u16string_view path) override {
        if (path.empty())
            return std::nullopt;
        // Regular files only: a pipe would wait for a writer forever, a device like /dev/zero never
        // ends. O_NONBLOCK keeps the open itself from waiting on a pipe; a regular file ignores it.
        Fd fd(::open(nativePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
        struct stat st {};
        if (!fd || ::fstat(fd.get(), &st) != 0 || !S_ISREG(st.st_mode))
            return std::nullopt;
        std::string bytes;
        bytes.reserve(static_cast<std::size_t>(st.st_size));
        char buffer[65536];
        for (;;) {
            const ssize_t n = ::read(fd.get(), buffer, sizeof buffer);
            if (n == 0)
                break;
            if (n < 0) {
                if (errno == EINTR)
                    continue;
                return std::nullopt;
            }
            bytes.append(buffer, static_cast<std::size_t>(n));
        }
        return bytes;
    }

    bool writeFile(std::u16string_view path, std::string_view bytes) override {
        return write(path, bytes, O_TRUNC);
    }

    bool appendFile(std::u16string_view path, std::string_view bytes) override {
        return write(path, bytes, O_APPEND);
    }

    bool forEachEntry(std::u16string_view folder, const EntryVisitor& visit) override {
        if (folder.empty())
            return false;
        Dir dir(::opendir(nativePath(folder).c_str()));
        if (dir.get() == nullptr)
            return false;
        std::u16string name;
        while (const dirent* d = ::readdir(dir.get())) {
            const std::string_view raw(d->d_name);
            if (raw == "." || raw == "..")
                continue;
            FolderEntry e;
            switch (d->d_type) {
            case DT_DIR:
                e.attributes = fileattr::directory;
                break;
            case DT_REG:
                break;
            default:
                classify(::dirfd(dir.get()), d->d_name, e);
                break;
            }
            if (raw[0] == '.')
                e.attributes |= fileattr::hidden;
            name.clear();
            appendUtf8(name, raw);
            e.name = name;
            if (!visit(e))
                break;
        }
        return true;
    }

    bool createFolder(std::u16string_view path) override {
        return !path.empty() && ::mkdir(nativePath(path).c_str(), 0777) == 0;
    }

    bool copyFile(std::u16string_view from, std::u16string_view to, bool overwrite) override {
        if (from.empty() || to.empty())
            return false;
        Fd source(::open(nativePath(from).c_str(), O_RDONLY | O_CLOEXEC));
        struct stat st {};
        if (!source || ::fstat(source.get(), &st) != 0 || S_ISDIR(st.st_mode))
            return false;
        const int flags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | (overwrite ? 0 : O_EXCL);
        Fd target(::open(nativePath(to).c_str(), flags, st.st_mode & 0777));
        if (!target)
            return false;
        char buffer[65536];
        for (;;) {
            const ssize_t n = ::read(source.get(), buffer, sizeof buffer);
            if (n == 0)
                break;
            if (n < 0) {
                if (errno == EINTR)
                    continue;
                return false;
            }
            if (!writeAll(target.get(), std::string_view(buffer, static_cast<std::size_t>(n))))
                return false;
        }
        const timespec times[2] = {st.st_atim, st.st_mtim};
        ::futimens(target.get(), times);
        return target.close();
    }

    bool remove(std::u16string_view path) override {
        if (path.empty())
            return false;
        const std::string p = nativePath(path);
        struct stat st {};
        if (::lstat(p.c_str(), &st) != 0)
            return false;
        return (S_ISDIR(st.st_mode) ? ::rmdir(p.c_str()) : ::unlink(p.c_str())) == 0;
    }

    bool rename(std::u16string_view from, std::u16string_view to) override {
        return !from.empty() && !to.empty() &&
               ::rename(nativePath(from).c_str(), nativePath(to).c_str()) == 0;
    }

    std::u16string fullPath(std::u16string_view path) override {
        std::string p = nativePath(path);
        if (p.empty() || p[0] != '/')
            p = workingDirectory() + "/" + p;
        return fromNative(normalise(p));
    }

    std::u16string resolvedPath(std::u16string_view path) override {
        const std::u16string full = fullPath(path);
        char* real = ::realpath(nativePath(full).c_str(), nullptr);
        if (real == nullptr)
            return full;
        const std::unique_ptr<char, decltype(&std::free)> owned(real, &std::free);
        return fromNative(real);
    }

    std::u16string currentDirectory() override { return fromNative(workingDirectory()); }

    bool setCurrentDirectory(std::u16string_view path) override {
        return !path.empty() && ::chdir(nativePath(path).c_str()) == 0;
    }

    bool setCurrentDrive(std::u16string_view) override { return false; }

    std::u16string tempFolder() override {
        const char* tmp = std::getenv("TMPDIR");
        return fromNative(tmp != nullptr && *tmp != '\0' ? tmp : "/tmp");
    }

    // The system's settings folder, as the Windows folder held win.ini and system.ini; it holds
    // none of the folders that stand in for the program-files folders.
    std::u16string windowsFolder() override { return u"/etc"; }

    std::vector<Volume> volumes() override {
        std::ifstream in("/proc/self/mounts");
        std::ostringstream text;
        text << in.rdbuf();
        std::vector<Volume> result = volumesFromMounts(text.str());
        if (result.empty())
            result.push_back({u"/", true});
        return result;
    }

private:
    static bool write(std::u16string_view path, std::string_view bytes, int mode) {
        if (path.empty())
            return false;
        Fd fd(::open(nativePath(path).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | mode, 0666));
        return fd && writeAll(fd.get(), bytes) && fd.close();
    }

    // Entries whose kind readdir does not tell: links, and file systems without d_type.
    static void classify(int dirFd, const char* name, FolderEntry& e) {
        struct stat st {};
        if (::fstatat(dirFd, name, &st, AT_SYMLINK_NOFOLLOW) != 0)
            return;
        if (S_ISLNK(st.st_mode)) {
            e.isLink = true;
            if (::fstatat(dirFd, name, &st, 0) != 0)
                return;
        }
        if (S_ISDIR(st.st_mode))
            e.attributes = fileattr::directory;
    }
};

} // namespace

std::unique_ptr<FileSystem> createFileSystem() {
    return std::make_unique<PosixFileSystem>();
}

} // namespace velkor6::posix
