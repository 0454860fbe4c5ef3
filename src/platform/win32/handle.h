// Owners of Win32 handles.
#pragma once

#include <utility>
#include <windows.h>

namespace velkor6::win32 {

// A kernel object handle; INVALID_HANDLE_VALUE and nullptr both mean none.
class Handle {
public:
    explicit Handle(HANDLE h = nullptr) : h_(h) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    Handle(Handle&& other) noexcept : h_(std::exchange(other.h_, nullptr)) {}
    Handle& operator=(Handle&& other) noexcept {
        if (this != &other) {
            close();
            h_ = std::exchange(other.h_, nullptr);
        }
        return *this;
    }
    ~Handle() { close(); }
    HANDLE get() const { return h_; }
    bool valid() const { return h_ != nullptr && h_ != INVALID_HANDLE_VALUE; }

private:
    void close() {
        if (valid())
            CloseHandle(h_);
        h_ = nullptr;
    }

    HANDLE h_;
};

class FindHandle {
public:
    explicit FindHandle(HANDLE h) : h_(h) {}
    FindHandle(const FindHandle&) = delete;
    FindHandle& operator=(const FindHandle&) = delete;
    ~FindHandle() {
        if (h_ != INVALID_HANDLE_VALUE)
            FindClose(h_);
    }
    HANDLE get() const { return h_; }
    bool valid() const { return h_ != INVALID_HANDLE_VALUE; }

private:
    HANDLE h_;
};

} // namespace velkor6::win32
