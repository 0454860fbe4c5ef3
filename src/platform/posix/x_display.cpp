#include "platform/posix/x_display.h"

#include <cstdlib>

namespace velkor6::posix {
namespace {

int ignoreError(Display*, XErrorEvent*) {
    return 0;
}

} // namespace

void XConnection::Closer::operator()(Display* d) const {
    XCloseDisplay(d);
}

void XConnection::Closer::operator()(xcb_connection_t* c) const {
    xcb_disconnect(c);
}

xcb_connection_t* XConnection::batch() {
    if (!triedBatch_ && display() != nullptr) {
        triedBatch_ = true;
        batch_.reset(xcb_connect(DisplayString(display_.get()), nullptr));
        // A failed connection is an object too, one that answers nothing.
        if (batch_ && xcb_connection_has_error(batch_.get()) != 0)
            batch_.reset();
    }
    return batch_.get();
}

Display* XConnection::display() {
    if (!tried_) {
        tried_ = true;
        const char* name = std::getenv("DISPLAY");
        // A connection made right after another program closed one is sometimes refused for a
        // moment; a second try then succeeds.
        for (int attempt = 0; attempt < 3 && name != nullptr && *name != '\0' && !display_;
             ++attempt)
            display_.reset(XOpenDisplay(nullptr));
    }
    return display_.get();
}

Atom XConnection::atom(const char* name) {
    const auto it = atoms_.find(name);
    if (it != atoms_.end())
        return it->second;
    const Atom a = XInternAtom(display_.get(), name, False);
    atoms_.emplace(name, a);
    return a;
}

XErrorTrap::XErrorTrap(Display* d, Sync sync)
    : display_(d), sync_(sync), previous_(XSetErrorHandler(ignoreError)) {}

XErrorTrap::~XErrorTrap() {
    if (sync_ == Sync::yes)
        XSync(display_, False);
    XSetErrorHandler(previous_);
}

} // namespace velkor6::posix
