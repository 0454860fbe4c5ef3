// A file descriptor that closes itself.
#pragma once

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

} // namespace velkor6::posix
