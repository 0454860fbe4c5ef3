// The library's own connection to the X server, shared by the window manager, the input state and
// the user interface: opened on the first call that needs it, never at load, and closed with the
// platform.
#pragma once

#include <X11/Xlib.h>
#include <memory>
#include <string>
#include <unordered_map>
#include <xcb/xcb.h>

namespace velkor6::posix {

class XConnection {
public:
    XConnection() = default;
    XConnection(const XConnection&) = delete;
    XConnection& operator=(const XConnection&) = delete;

    // The display, opened on the first call; nullptr when there is none (no DISPLAY, or the
    // server refused). Only the first call tries.
    Display* display();
    // The display if it is open already; never opens it.
    Display* openedDisplay() const { return display_.get(); }
    // The atom of a name, asked from the server once.
    Atom atom(const char* name);
    // A second connection to the same server, for requests sent many at a time before their
    // replies are read (the window tree walk); nullptr when there is no display.
    xcb_connection_t* batch();

private:
    struct Closer {
        void operator()(Display* d) const;
        void operator()(xcb_connection_t* c) const;
    };
    std::unique_ptr<Display, Closer> display_;
    std::unique_ptr<xcb_connection_t, Closer> batch_;
    bool triedBatch_ = false;
    bool tried_ = false;
    std::unordered_map<std::string, Atom> atoms_;
};

// While alive, X errors are ignored: other programs' windows vanish at any moment, and a request
// about one that is gone must not end the process. Requests with a reply meet their errors
// inside; after requests without one (changes), sync is needed so that theirs arrive inside too.
class XErrorTrap {
public:
    enum class Sync { no, yes };
    explicit XErrorTrap(Display* d, Sync sync = Sync::no);
    ~XErrorTrap();
    XErrorTrap(const XErrorTrap&) = delete;
    XErrorTrap& operator=(const XErrorTrap&) = delete;

private:
    Display* display_;
    Sync sync_;
    int (*previous_)(Display*, XErrorEvent*);
};

// Memory Xlib hands out, freed with XFree.
struct XFreeDeleter {
    void operator()(void* p) const {
        if (p != nullptr)
            XFree(p);
    }
};
template <class T>
using XMemory = std::unique_ptr<T, XFreeDeleter>;

} // namespace velkor6::posix
