// A file descriptor that closes itself, and whole writes to one.
#pragma once

#include <cerrno>
#include <cstddef>
#include <string_view>
#include <unistd.h>

namespace velkor6::posix {

class Fd {
public:
    explicit Fd(int fd = -1) : fd_(fd) {}
    Fd(const Fd&) = delete;
    Fd& operator=(const Fd&) = delete;
    ~Fd() {
        if (fd_ >= 0)
            ::close(fd_);
    }
    int get() const { return fd_; }
    explicit operator bool() const { return fd_ >= 0; }
    // Hands the descriptor to the caller, who closes it.
    int release() {
        const int fd = fd_;
        fd_ = -1;
        return fd;
    }
    // Closes now and reports whether the last writes reached the file.
    bool close() {
        const int fd = fd_;
        fd_ = -1;
        return ::close(fd) == 0;
    }

private:
    int fd_;
};

// Writes all of bytes, resuming after short writes and interruptions; false on an error.
inline bool writeAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

} // namespace velkor6::posix
