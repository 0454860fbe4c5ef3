// Owners of the window-system objects a dialog makes: windows, fonts and loaded libraries.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <utility>

namespace velkor6::ui::win32 {

// Holds one handle and gives it back to the system with Release when it goes.
template <class H, auto Release>
class Owned {
public:
    Owned() = default;
    explicit Owned(H h) : h_(h) {}
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    Owned(Owned&& other) noexcept : h_(std::exchange(other.h_, nullptr)) {}
    Owned& operator=(Owned&& other) noexcept {
        if (this != &other) {
            reset();
            h_ = std::exchange(other.h_, nullptr);
        }
        return *this;
    }
    ~Owned() { reset(); }

    H get() const { return h_; }
    explicit operator bool() const { return h_ != nullptr; }
    // Gives the handle up without releasing it.
    H release() { return std::exchange(h_, nullptr); }
    void reset(H h = nullptr) {
        if (h_ != nullptr)
            Release(h_);
        h_ = h;
    }

private:
    H h_ = nullptr;
};

inline void destroyWindow(HWND h) {
    DestroyWindow(h);
}
inline void deleteFont(HFONT h) {
    DeleteObject(h);
}
inline void freeLibrary(HMODULE h) {
    FreeLibrary(h);
}

using Window = Owned<HWND, destroyWindow>;
using Font = Owned<HFONT, deleteFont>;
using Library = Owned<HMODULE, freeLibrary>;

} // namespace velkor6::ui::win32
