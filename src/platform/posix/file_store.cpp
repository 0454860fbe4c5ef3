#include "platform/posix/file_store.h"

#include "platform/posix/fd.h"
#include "platform/posix/utf8_path.h"

#include <cerrno>
#include <charconv>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace velkor6::posix {
namespace {

// File systems stamp times from a coarse clock (a few milliseconds, two seconds on FAT), so a
// change within this span of the last one may leave the time as it was.
constexpr std::int64_t timeStampGrainNs = 2'000'000'000;

std::int64_t nanoseconds(const timespec& t) {
    return static_cast<std::int64_t>(t.tv_sec) * 1'000'000'000 + t.tv_nsec;
}

// The file a write must replace: a link stands for its target.
std::string writeTarget(const std::string& path) {
    struct stat st {};
    if (::lstat(path.c_str(), &st) != 0 || !S_ISLNK(st.st_mode))
        return path;
    char resolved[PATH_MAX];
    if (::realpath(path.c_str(), resolved) == nullptr)
        return path;
    return resolved;
}

// Writes in place, for a folder where no new file may be created; not safe from crashes, but
// what the system's profile writer does everywhere.
bool overwrite(const std::string& path, std::string_view bytes) {
    Fd fd(::open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC));
    return fd && writeAll(fd.get(), bytes) && fd.close();
}

// The temporary file of a process writing path.
std::string tempName(const std::string& path, pid_t pid) {
    return path + "." + std::to_string(pid) + ".tmp";
}

// Removes the temporary files that writers of path left when they died before their rename.
// Writers hold the lock, so none of another living process is in use; a file whose number
// belongs to a living process (a number used again) is left, it goes once that process ends.
void removeStaleTemps(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    const std::string prefix = (slash == std::string::npos ? path : path.substr(slash + 1)) + ".";
    constexpr std::string_view suffix = ".tmp";
    std::vector<std::string> stale;
    {
        const std::unique_ptr<DIR, int (*)(DIR*)> dir(::opendir(folder.c_str()), ::closedir);
        if (dir == nullptr)
            return;
        while (const dirent* d = ::readdir(dir.get())) {
            const std::string_view name(d->d_name);
            if (!name.starts_with(prefix) || !name.ends_with(suffix))
                continue;
            const std::string_view digits =
                name.substr(prefix.size(), name.size() - prefix.size() - suffix.size());
            pid_t pid = 0;
            const auto [end, ec] =
                std::from_chars(digits.data(), digits.data() + digits.size(), pid);
            if (ec != std::errc() || end != digits.data() + digits.size() || pid <= 0)
                continue;
            if (pid != ::getpid() && ::kill(pid, 0) != 0 && errno == ESRCH)
                stale.emplace_back(name);
        }
    }
    for (const std::string& name : stale)
        ::unlink((folder + name).c_str());
}

class FlockLock final : public FileStore::Lock {
public:
    explicit FlockLock(int fd) : fd_(fd) {}

private:
    Fd fd_; // closing releases the lock
};

class PosixFileStore final : public FileStore {
public:
    std::optional<FileIdentity> identity(std::u16string_view path) override {
        if (path.empty())
            return std::nullopt;
        struct stat st {};
        if (::stat(nativePath(path).c_str(), &st) != 0)
            return std::nullopt;
        timespec now{};
        ::clock_gettime(CLOCK_REALTIME, &now);
        FileIdentity id;
        id.size = static_cast<std::uint64_t>(st.st_size);
        id.modifiedNs = nanoseconds(st.st_mtim);
        id.inode = static_cast<std::uint64_t>(st.st_ino);
        id.device = static_cast<std::uint64_t>(st.st_dev);
        id.recent = nanoseconds(now) - id.modifiedNs < timeStampGrainNs;
        return id;
    }

    std::unique_ptr<Lock> lock(std::u16string_view path) override {
        if (path.empty())
            return nullptr;
        const std::string p = nativePath(path);
        // A writer renames a new file over the old one, so the lock may be won on a file that is
        // no longer the one under the name; then it is taken again on the new file.
        for (int attempt = 0; attempt < 1000; ++attempt) {
            int raw = ::open(p.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
            if (raw < 0 && (errno == EACCES || errno == EROFS))
                raw = ::open(p.c_str(), O_RDONLY | O_CLOEXEC);
            if (raw < 0)
                return nullptr;
            Fd fd(raw);
            while (::flock(fd.get(), LOCK_EX) != 0) {
                if (errno != EINTR)
                    return nullptr;
            }
            struct stat held {};
            struct stat named {};
            if (::fstat(fd.get(), &held) != 0)
                return nullptr;
            if (::stat(p.c_str(), &named) == 0 && named.st_ino == held.st_ino &&
                named.st_dev == held.st_dev)
                return std::make_unique<FlockLock>(fd.release());
        }
        return nullptr;
    }

    bool replace(std::u16string_view path, std::string_view bytes) override {
        return !path.empty() && replaceFile(nativePath(path), bytes);
    }
};

} // namespace

bool replaceFile(const std::string& path, std::string_view bytes,
                 const std::function<void()>& afterWrite) {
    const std::string target = writeTarget(path);
    struct stat old {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (exists && (S_ISDIR(old.st_mode) || ::access(target.c_str(), W_OK) != 0))
        return false;

    removeStaleTemps(target);
    const std::string temp = tempName(target, ::getpid());
    int raw = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (raw < 0 && errno == EEXIST) {
        // Left by a process of the same number that died before its rename.
        ::unlink(temp.c_str());
        raw = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    }
    if (raw < 0)
        return (errno == EACCES || errno == EROFS) && exists && overwrite(target, bytes);
    Fd fd(raw);
    // On disk before the rename: after a power failure the name holds the old or the new content,
    // never an empty file.
    bool ok = writeAll(fd.get(), bytes) && ::fdatasync(fd.get()) == 0;
    if (ok && exists)
        ::fchmod(fd.get(), old.st_mode & 07777);
    ok = fd.close() && ok;
    if (ok && afterWrite)
        afterWrite();
    if (!ok || ::rename(temp.c_str(), target.c_str()) != 0) {
        ::unlink(temp.c_str());
        return false;
    }
    return true;
}

std::unique_ptr<FileStore> createFileStore() {
    return std::make_unique<PosixFileStore>();
}

} // namespace velkor6::posix
