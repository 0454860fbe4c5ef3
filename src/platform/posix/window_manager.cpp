#include "platform/posix/window_manager.h"

#include "core/text.h"
#include "platform/posix/qt_loader.h"
#include "platform/posix/x_display.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <X11/extensions/shape.h>
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor6::posix {
namespace {

constexpr std::size_t maxText = 255;

Window xWindow(WindowHandle h) {
    return h <= 0 ? None : static_cast<Window>(static_cast<std::uint32_t>(h));
}
WindowHandle handleOf(Window w) {
    return static_cast<WindowHandle>(static_cast<std::uint32_t>(w));
}

std::u16string cut(std::u16string s) {
    if (s.size() > maxText)
        s.resize(maxText);
    return s;
}

// WM_CLASS is Latin-1.
std::u16string fromLatin1(const char* s) {
    std::u16string out;
    for (; *s != '\0'; ++s)
        out += static_cast<char16_t>(static_cast<unsigned char>(*s));
    return out;
}

// The rows of a rounded rectangle as X rectangles (y-x banded): each row is inset at the corners
// by the ellipse of the given size, as a rounded-rectangle region is drawn.
std::vector<XRectangle> roundedRows(const WindowRect& area, std::int32_t ellipseWidth,
                                    std::int32_t ellipseHeight) {
    std::vector<XRectangle> rows;
    const std::int32_t width = area.width();
    const std::int32_t height = area.height();
    if (width <= 0 || height <= 0)
        return rows;
    const double rx = std::min(std::max(ellipseWidth, 0), width) / 2.0;
    const double ry = std::min(std::max(ellipseHeight, 0), height) / 2.0;
    for (std::int32_t y = 0; y < height; ++y) {
        double inset = 0;
        if (rx >= 1 && ry >= 1) {
            const double fromEdge = std::min(y + 0.5, height - y - 0.5);
            if (fromEdge < ry) {
                const double dy = (ry - fromEdge) / ry;
                inset = rx - rx * std::sqrt(std::max(0.0, 1 - dy * dy));
            }
        }
        const auto left = static_cast<std::int32_t>(std::lround(inset));
        const std::int32_t rowWidth = width - 2 * left;
        if (rowWidth <= 0)
            continue;
        rows.push_back({static_cast<short>(area.left + left), static_cast<short>(area.top + y),
                        static_cast<unsigned short>(rowWidth), 1});
    }
    return rows;
}

// An X window the library created itself, destroyed with it.
class OwnWindow {
public:
    OwnWindow(Display* d, Window w) : display_(d), window_(w) {}
    ~OwnWindow() { XDestroyWindow(display_, window_); }
    OwnWindow(const OwnWindow&) = delete;
    OwnWindow& operator=(const OwnWindow&) = delete;
    Window get() const { return window_; }

private:
    Display* display_;
    Window window_;
};

struct Extents {
    long left = 0, right = 0, top = 0, bottom = 0;
};

class X11WindowManager final : public WindowManager {
public:
    explicit X11WindowManager(std::shared_ptr<XConnection> x) : x_(std::move(x)) {}

    ~X11WindowManager() override {
        std::free(error_);
        if (confine_) {
            XUngrabPointer(x_->openedDisplay(), CurrentTime);
            confine_.reset();
            XFlush(x_->openedDisplay());
        }
    }

    std::uint32_t style(WindowHandle window) override {
        Display* d = x_->display();
        const Window w = xWindow(window);
        if (d == nullptr || w == None)
            return 0;
        XErrorTrap trap(d);
        XWindowAttributes attributes;
        if (XGetWindowAttributes(d, w, &attributes) == 0)
            return 0;
        std::uint32_t style = 0;
        const std::vector<Atom> states = atoms(d, w, "_NET_WM_STATE");
        const auto has = [&](const char* name) {
            return std::find(states.begin(), states.end(), x_->atom(name)) != states.end();
        };
        if (has("_NET_WM_STATE_MAXIMIZED_VERT") && has("_NET_WM_STATE_MAXIMIZED_HORZ"))
            style |= winstyle::maximize;
        if (has("_NET_WM_STATE_HIDDEN") || wmState(d, w) == IconicState)
            style |= winstyle::minimize;
        const Extents e = extents(d, w);
        if (e.top > e.bottom)
            style |= winstyle::caption;
        else if (e.left > 0 || e.right > 0 || e.top > 0 || e.bottom > 0)
            style |= winstyle::border;
        if (parent(window) != 0)
            style |= winstyle::child;
        return style;
    }

    // Top-level windows (on the root, or managed inside a window manager's frame) have none.
    WindowHandle parent(WindowHandle window) override {
        Display* d = x_->display();
        const Window w = xWindow(window);
        if (d == nullptr || w == None)
            return 0;
        XErrorTrap trap(d);
        Window root = None, up = None;
        Window* children = nullptr;
        unsigned int n = 0;
        if (XQueryTree(d, w, &root, &up, &children, &n) == 0)
            return 0;
        XMemory<Window> owned(children);
        if (up == root || up == None || wmState(d, w) >= 0)
            return 0;
        return handleOf(up);
    }

    std::optional<WindowRect> windowRect(WindowHandle window) override {
        Display* d = x_->display();
        if (d == nullptr)
            return std::nullopt;
        XErrorTrap trap(d);
        auto r = ownRect(d, xWindow(window));
        if (!r)
            return std::nullopt;
        const Extents e = margins(d, xWindow(window));
        return WindowRect{static_cast<std::int32_t>(r->left - e.left),
                          static_cast<std::int32_t>(r->top - e.top),
                          static_cast<std::int32_t>(r->right + e.right),
                          static_cast<std::int32_t>(r->bottom + e.bottom)};
    }

    std::optional<WindowRect> clientRect(WindowHandle window) override {
        Display* d = x_->display();
        if (d == nullptr)
            return std::nullopt;
        XErrorTrap trap(d);
        return ownRect(d, xWindow(window));
    }

    // x and y place the outer corner (frame and border included): X places the border's corner
    // there, and with the usual north-west gravity the window manager puts its frame there.
    // Width and height are outer sizes too.
    bool setPosition(WindowHandle window, WindowHandle insertAfter, std::int32_t x, std::int32_t y,
                     std::int32_t width, std::int32_t height, std::uint32_t flags) override {
        Display* d = x_->display();
        const Window w = xWindow(window);
        if (d == nullptr || w == None)
            return false;
        XErrorTrap trap(d, XErrorTrap::Sync::yes);
        XWindowAttributes attributes;
        if (XGetWindowAttributes(d, w, &attributes) == 0)
            return false;
        const Extents e = margins(d, w);
        if ((flags & swp::noMove) == 0)
            XMoveWindow(d, w, x, y);
        if ((flags & swp::noSize) == 0)
            XResizeWindow(d, w, static_cast<unsigned>(std::max<long>(1, width - e.left - e.right)),
                          static_cast<unsigned>(std::max<long>(1, height - e.top - e.bottom)));
        if ((flags & swp::noZOrder) == 0) {
            if (insertAfter == -1)
                setTopMost(window);
            else if (insertAfter == 0)
                XRaiseWindow(d, w);
        }
        return true;
    }

    bool show(WindowHandle window, std::int32_t command) override {
        Display* d = x_->display();
        const Window w = xWindow(window);
        if (d == nullptr || w == None)
            return false;
        XErrorTrap trap(d, XErrorTrap::Sync::yes);
        XWindowAttributes attributes;
        if (XGetWindowAttributes(d, w, &attributes) == 0)
            return false;
        if (command == showcmd::minimize) {
            XIconifyWindow(d, w, DefaultScreen(d));
            return true;
        }
        // Mapping an iconified window brings it back (ICCCM).
        XMapRaised(d, w);
        changeState(d, w, command == showcmd::maximize ? 1 : 0, "_NET_WM_STATE_MAXIMIZED_VERT",
                    "_NET_WM_STATE_MAXIMIZED_HORZ");
        return true;
    }

    // X11 has no window messages.
    std::int32_t sendMessage(WindowHandle, std::uint32_t, std::int32_t, std::int32_t) override {
        return 0;
    }

    // The controls of a Qt program are widgets that velkor6::qt wrapped, not X windows.
    std::shared_ptr<ControlWindow> controlWindow(WindowHandle window) override {
        return qtControlWindow(window);
    }

    std::optional<WindowRect> workArea(std::int32_t, std::int32_t) override {
        Display* d = x_->display();
        if (d == nullptr)
            return std::nullopt;
        XErrorTrap trap(d);
        const std::vector<long> area =
            cardinals(d, DefaultRootWindow(d), x_->atom("_NET_WORKAREA"), 4);
        if (area.size() < 4 || area[2] <= 0 || area[3] <= 0)
            return std::nullopt;
        return WindowRect{static_cast<std::int32_t>(area[0]), static_cast<std::int32_t>(area[1]),
                          static_cast<std::int32_t>(area[0] + area[2]),
                          static_cast<std::int32_t>(area[1] + area[3])};
    }

    std::int32_t screenWidth() override {
        Display* d = x_->display();
        return d == nullptr ? 0 : DisplayWidth(d, DefaultScreen(d));
    }
    std::int32_t screenHeight() override {
        Display* d = x_->display();
        return d == nullptr ? 0 : DisplayHeight(d, DefaultScreen(d));
    }

    // The desktop's font resolution (Xft.dpi) when set; else 96 dots per inch, as the screen's
    // physical size is seldom true on X servers.
    TwipsPerPixel twipsPerPixel() override {
        Display* d = x_->display();
        TwipsPerPixel t;
        if (d == nullptr)
            return t;
        if (const char* dpi = XGetDefault(d, "Xft", "dpi"); dpi != nullptr) {
            const double value = std::atof(dpi);
            if (value >= 24 && value <= 1440)
                t.x = t.y = static_cast<std::int32_t>(1440 / value);
        }
        return t;
    }

    WindowHandle topWindow() override {
        Display* d = x_->display();
        if (d == nullptr)
            return 0;
        // Each search from the top sees the tree as it is now.
        forget();
        const Window root = DefaultRootWindow(d);
        fetch({root});
        return firstChild(handleOf(root));
    }

    WindowHandle nextWindow(WindowHandle window) override {
        const Window w = xWindow(window);
        if (x_->display() == nullptr || w == None)
            return 0;
        forgetWhenOld();
        auto it = positions_.find(w);
        if (it == positions_.end()) {
            // A window the walk has not met: its parent's children are read to find it.
            const Window up = parentOf(w);
            if (up == None)
                return 0;
            fetch({up});
            firstChild(handleOf(up));
            it = positions_.find(w);
            if (it == positions_.end())
                return 0;
        }
        const std::vector<Window>& row = known_[it->second.first].children;
        const std::size_t next = it->second.second + 1;
        return next < row.size() ? handleOf(row[next]) : 0;
    }

    WindowHandle firstChild(WindowHandle window) override {
        const Window w = xWindow(window);
        if (x_->display() == nullptr || w == None)
            return 0;
        const Known& k = look(w);
        if (k.children.empty())
            return 0;
        for (std::size_t i = 0; i < k.children.size(); ++i)
            positions_[k.children[i]] = {w, i};
        return handleOf(k.children.front());
    }

    std::u16string className(WindowHandle window) override {
        const Window w = xWindow(window);
        if (x_->display() == nullptr || w == None)
            return {};
        return look(w).className;
    }

    std::u16string caption(WindowHandle window) override {
        const Window w = xWindow(window);
        if (x_->display() == nullptr || w == None)
            return {};
        return look(w).caption;
    }

    WindowHandle foregroundWindow() override {
        Display* d = x_->display();
        if (d == nullptr)
            return 0;
        XErrorTrap trap(d);
        const std::vector<long> active =
            cardinals(d, DefaultRootWindow(d), x_->atom("_NET_ACTIVE_WINDOW"), 1, XA_WINDOW);
        if (!active.empty() && active[0] != None)
            return handleOf(static_cast<Window>(active[0]));
        Window focus = None;
        int revert = 0;
        XGetInputFocus(d, &focus, &revert);
        return focus == None || focus == PointerRoot ? 0 : handleOf(focus);
    }

    // _NET_WM_STATE_ABOVE is the window manager's to keep; the raise is all that happens
    // without one.
    bool setTopMost(WindowHandle window) override {
        Display* d = x_->display();
        const Window w = xWindow(window);
        if (d == nullptr || w == None)
            return false;
        XErrorTrap trap(d, XErrorTrap::Sync::yes);
        XWindowAttributes attributes;
        if (XGetWindowAttributes(d, w, &attributes) == 0)
            return false;
        changeState(d, w, 1, "_NET_WM_STATE_ABOVE", nullptr);
        XRaiseWindow(d, w);
        return true;
    }

    bool setOwner(WindowHandle window, WindowHandle owner) override {
        Display* d = x_->display();
        const Window w = xWindow(window);
        if (d == nullptr || w == None)
            return false;
        XErrorTrap trap(d, XErrorTrap::Sync::yes);
        XSetTransientForHint(d, w, xWindow(owner));
        return true;
    }

    // The area is measured from the outer corner (frame and border included); the shape is the
    // client window's, measured from its inside, so their share is taken off.
    bool setRoundedShape(WindowHandle window, const WindowRect& area, std::int32_t ellipseWidth,
                         std::int32_t ellipseHeight) override {
        Display* d = x_->display();
        const Window w = xWindow(window);
        int event = 0, error = 0;
        if (d == nullptr || w == None || XShapeQueryExtension(d, &event, &error) == 0)
            return false;
        XErrorTrap trap(d, XErrorTrap::Sync::yes);
        const Extents e = margins(d, w);
        WindowRect own = area;
        own.left -= static_cast<std::int32_t>(e.left);
        own.right -= static_cast<std::int32_t>(e.left);
        own.top -= static_cast<std::int32_t>(e.top);
        own.bottom -= static_cast<std::int32_t>(e.top);
        std::vector<XRectangle> rows = roundedRows(own, ellipseWidth, ellipseHeight);
        XShapeCombineRectangles(d, w, ShapeBounding, 0, 0, rows.data(),
                                static_cast<int>(rows.size()), ShapeSet, YXBanded);
        return true;
    }

    // X11 has no window classes that could carry a shadow; the compositor draws shadows.
    bool addClassDropShadow(WindowHandle) override { return false; }

    bool confinePointer(std::optional<WindowRect> area) override {
        Display* d = x_->display();
        if (d == nullptr)
            return false;
        XErrorTrap trap(d, XErrorTrap::Sync::yes);
        if (!area) {
            XUngrabPointer(d, CurrentTime);
            confine_.reset();
            return true;
        }
        // A grab confines to a window: an input-only one over the area stands in for the
        // rectangle, at least one pixel large.
        const unsigned width = static_cast<unsigned>(std::max(1, area->width()));
        const unsigned height = static_cast<unsigned>(std::max(1, area->height()));
        XSetWindowAttributes attributes{};
        attributes.override_redirect = True;
        const Window root = DefaultRootWindow(d);
        if (!confine_)
            confine_ = std::make_unique<OwnWindow>(
                d, XCreateWindow(d, root, area->left, area->top, width, height, 0, 0, InputOnly,
                                 CopyFromParent, CWOverrideRedirect, &attributes));
        else
            XMoveResizeWindow(d, confine_->get(), area->left, area->top, width, height);
        XMapWindow(d, confine_->get());
        return XGrabPointer(d, root, False, 0, GrabModeAsync, GrabModeAsync, confine_->get(), None,
                            CurrentTime) == GrabSuccess;
    }

    FrameMetrics frameMetrics(WindowHandle window) override {
        Display* d = x_->display();
        if (d == nullptr)
            return {};
        if (window == 0)
            window = foregroundWindow();
        XErrorTrap trap(d);
        const Extents e = extents(d, xWindow(window));
        FrameMetrics m;
        m.sizingFrame = static_cast<std::int32_t>(e.bottom);
        m.dialogFrame = static_cast<std::int32_t>(e.bottom);
        m.titleButton = static_cast<std::int32_t>(std::max(0L, e.top - e.bottom));
        return m;
    }

    // _NET_WM_WINDOW_OPACITY on the window and, under a window manager, on the frame it sits in:
    // compositors read it from the top-level window. Without a compositor nothing changes on the
    // screen, but the value is kept. Full opacity removes the property, as a window without it
    // is opaque.
    bool setOpacity(WindowHandle window, double opacity) override {
        Display* d = x_->display();
        const Window w = xWindow(window);
        if (d == nullptr || w == None)
            return false;
        XErrorTrap trap(d, XErrorTrap::Sync::yes);
        XWindowAttributes attributes;
        if (XGetWindowAttributes(d, w, &attributes) == 0)
            return false;
        const Atom property = x_->atom("_NET_WM_WINDOW_OPACITY");
        const double clamped = std::clamp(opacity, 0.0, 1.0);
        const auto value = static_cast<long>(std::llround(clamped * 4294967295.0));
        std::vector<Window> targets{w};
        if (const Window top = topLevel(d, w); top != None && top != w)
            targets.push_back(top);
        for (const Window t : targets) {
            if (clamped >= 1.0)
                XDeleteProperty(d, t, property);
            else
                XChangeProperty(d, t, property, XA_CARDINAL, 32, PropModeReplace,
                                reinterpret_cast<const unsigned char*>(&value), 1);
        }
        return true;
    }

    std::optional<double> opacity(WindowHandle window) override {
        Display* d = x_->display();
        const Window w = xWindow(window);
        if (d == nullptr || w == None)
            return std::nullopt;
        XErrorTrap trap(d);
        XWindowAttributes attributes;
        if (XGetWindowAttributes(d, w, &attributes) == 0)
            return std::nullopt;
        const std::vector<long> v = cardinals(d, w, x_->atom("_NET_WM_WINDOW_OPACITY"), 1);
        if (v.empty())
            return 1.0;
        return static_cast<double>(static_cast<std::uint32_t>(v[0])) / 4294967295.0;
    }

private:
    // The child of the root that holds the window: the window itself, or the window manager's
    // frame around it.
    Window topLevel(Display* d, Window w) {
        const Window root = DefaultRootWindow(d);
        for (int depth = 0; w != None && depth < 64; ++depth) {
            const Window up = parentOf(w);
            if (up == None || up == root)
                return w;
            w = up;
        }
        return None;
    }

    // What the walk knows of a window: read for a whole row of siblings at once.
    struct Known {
        std::u16string className;
        std::u16string caption;
        std::vector<Window> children; // top first
    };

    // A walk that runs longer than this reads the tree again, so that a window that came or
    // went since is seen as it is.
    static constexpr std::chrono::milliseconds cacheLife{500};

    void forget() {
        known_.clear();
        positions_.clear();
        cachedAt_ = std::chrono::steady_clock::now();
    }
    void forgetWhenOld() {
        if (std::chrono::steady_clock::now() - cachedAt_ > cacheLife)
            forget();
    }

    // The window's class, caption and children; with it those of all its siblings, which the
    // walk asks for next.
    const Known& look(Window w) {
        forgetWhenOld();
        if (const auto it = known_.find(w); it != known_.end())
            return it->second;
        if (const auto at = positions_.find(w); at != positions_.end())
            fetch(known_[at->second.first].children);
        if (known_.find(w) == known_.end())
            fetch({w});
        return known_[w];
    }

    // Class, caption and children of the windows not known yet: every request is sent before the
    // first reply is read, so that a row costs about one round trip however long it is. A window
    // that vanished meanwhile answers errors, and is known with nothing.
    void fetch(const std::vector<Window>& windows) {
        xcb_connection_t* c = x_->batch();
        if (c == nullptr)
            return;
        struct Asked {
            Window window;
            xcb_get_property_cookie_t netName, name, wmClass;
            xcb_query_tree_cookie_t tree;
        };
        const auto netName = static_cast<xcb_atom_t>(x_->atom("_NET_WM_NAME"));
        const auto utf8 = static_cast<xcb_atom_t>(x_->atom("UTF8_STRING"));
        std::vector<Asked> asked;
        asked.reserve(windows.size());
        for (const Window w : windows) {
            if (known_.count(w) != 0)
                continue;
            const auto id = static_cast<xcb_window_t>(w);
            asked.push_back(
                {w, xcb_get_property(c, 0, id, netName, utf8, 0, 1024),
                 xcb_get_property(c, 0, id, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY, 0, 1024),
                 xcb_get_property(c, 0, id, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, 256),
                 xcb_query_tree(c, id)});
        }
        for (const Asked& a : asked) {
            Known k;
            const Reply<xcb_get_property_reply_t> net(
                xcb_get_property_reply(c, a.netName, errorSlot()));
            const Reply<xcb_get_property_reply_t> name(
                xcb_get_property_reply(c, a.name, errorSlot()));
            const Reply<xcb_get_property_reply_t> cls(
                xcb_get_property_reply(c, a.wmClass, errorSlot()));
            const Reply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(c, a.tree, errorSlot()));
            if (net && net->type == utf8 && net->format == 8)
                k.caption = cut(fromUtf8(bytes(net.get())));
            else if (name && name->format == 8 && name->type != XCB_ATOM_NONE)
                k.caption = cut(decodeName(name.get()));
            if (cls && cls->format == 8) {
                // "instance\0class\0": the class part.
                const std::string_view both = bytes(cls.get());
                const std::size_t nul = both.find('\0');
                if (nul != std::string_view::npos) {
                    std::string part(both.substr(nul + 1));
                    part = part.substr(0, part.find('\0'));
                    k.className = cut(fromLatin1(part.c_str()));
                }
            }
            if (tree) {
                const xcb_window_t* children = xcb_query_tree_children(tree.get());
                const int n = xcb_query_tree_children_length(tree.get());
                k.children.assign(std::make_reverse_iterator(children + n),
                                  std::make_reverse_iterator(children));
            }
            known_[a.window] = std::move(k);
        }
    }

    template <class T>
    struct FreeReply {
        void operator()(T* p) const { std::free(p); }
    };
    template <class T>
    using Reply = std::unique_ptr<T, FreeReply<T>>;

    // Errors come back with the replies and are dropped: the window is gone, or never was one.
    xcb_generic_error_t** errorSlot() {
        std::free(error_);
        error_ = nullptr;
        return &error_;
    }

    static std::string_view bytes(xcb_get_property_reply_t* reply) {
        return {static_cast<const char*>(xcb_get_property_value(reply)),
                static_cast<std::size_t>(xcb_get_property_value_length(reply))};
    }

    // WM_NAME in whatever encoding the program chose (Latin-1, UTF-8 or compound text).
    std::u16string decodeName(xcb_get_property_reply_t* reply) {
        const std::string text(bytes(reply));
        if (reply->type == XCB_ATOM_STRING)
            return fromLatin1(text.c_str());
        if (reply->type == static_cast<xcb_atom_t>(x_->atom("UTF8_STRING")))
            return fromUtf8(text);
        XTextProperty property{reinterpret_cast<unsigned char*>(const_cast<char*>(text.c_str())),
                               static_cast<Atom>(reply->type), 8,
                               static_cast<unsigned long>(text.size())};
        char** list = nullptr;
        int n = 0;
        if (Xutf8TextPropertyToTextList(x_->display(), &property, &list, &n) < Success)
            return {};
        std::string joined;
        for (int i = 0; i < n; ++i)
            joined += list[i];
        if (list != nullptr)
            XFreeStringList(list);
        return fromUtf8(joined);
    }

    Window parentOf(Window w) {
        Display* d = x_->display();
        XErrorTrap trap(d);
        Window root = None, up = None;
        Window* children = nullptr;
        unsigned int n = 0;
        if (XQueryTree(d, w, &root, &up, &children, &n) == 0)
            return None;
        XMemory<Window> owned(children);
        return up;
    }

    // Up to `count` 32-bit items of a property (as longs, as Xlib gives them).
    static std::vector<long> cardinals(Display* d, Window w, Atom property, long count,
                                       Atom type = XA_CARDINAL) {
        Atom actual = None;
        int format = 0;
        unsigned long n = 0, after = 0;
        unsigned char* data = nullptr;
        if (w == None || XGetWindowProperty(d, w, property, 0, count, False, type, &actual, &format,
                                            &n, &after, &data) != Success)
            return {};
        XMemory<unsigned char> owned(data);
        if (actual != type || format != 32 || data == nullptr)
            return {};
        const long* items = reinterpret_cast<const long*>(data);
        return std::vector<long>(items, items + n);
    }

    std::vector<Atom> atoms(Display* d, Window w, const char* property) {
        const std::vector<long> items = cardinals(d, w, x_->atom(property), 64, XA_ATOM);
        return std::vector<Atom>(items.begin(), items.end());
    }

    // WM_STATE's state (1 normal, 3 iconic), -1 for a window the window manager does not manage.
    long wmState(Display* d, Window w) {
        const Atom wmStateAtom = x_->atom("WM_STATE");
        const std::vector<long> state = cardinals(d, w, wmStateAtom, 2, wmStateAtom);
        return state.empty() ? -1 : state[0];
    }

    Extents extents(Display* d, Window w) {
        const std::vector<long> e = cardinals(d, w, x_->atom("_NET_FRAME_EXTENTS"), 4);
        if (e.size() < 4)
            return {};
        return {e[0], e[1], e[2], e[3]};
    }

    // The frame extents plus the window's own border: what lies between the outer rectangle and
    // the window's inside.
    Extents margins(Display* d, Window w) {
        Extents e = extents(d, w);
        XWindowAttributes attributes;
        if (w != None && XGetWindowAttributes(d, w, &attributes) != 0) {
            e.left += attributes.border_width;
            e.right += attributes.border_width;
            e.top += attributes.border_width;
            e.bottom += attributes.border_width;
        }
        return e;
    }

    // The window's own rectangle (inside frame and border) in root coordinates.
    static std::optional<WindowRect> ownRect(Display* d, Window w) {
        if (w == None)
            return std::nullopt;
        XWindowAttributes attributes;
        if (XGetWindowAttributes(d, w, &attributes) == 0)
            return std::nullopt;
        int x = 0, y = 0;
        Window child = None;
        if (!XTranslateCoordinates(d, w, attributes.root, 0, 0, &x, &y, &child))
            return std::nullopt;
        return WindowRect{x, y, x + attributes.width, y + attributes.height};
    }

    // Adds (1) or removes (0) up to two _NET_WM_STATE atoms: through the window manager for a
    // mapped window, on the property itself for one not yet mapped (the window manager reads it
    // when the window is mapped).
    void changeState(Display* d, Window w, long add, const char* first, const char* second) {
        XWindowAttributes attributes;
        if (XGetWindowAttributes(d, w, &attributes) == 0)
            return;
        const Atom state = x_->atom("_NET_WM_STATE");
        std::vector<Atom> names{x_->atom(first)};
        if (second != nullptr)
            names.push_back(x_->atom(second));
        if (attributes.map_state == IsUnmapped && wmState(d, w) < 0) {
            std::vector<Atom> now = atoms(d, w, "_NET_WM_STATE");
            for (const Atom a : names) {
                const auto it = std::find(now.begin(), now.end(), a);
                if (add != 0 && it == now.end())
                    now.push_back(a);
                else if (add == 0 && it != now.end())
                    now.erase(it);
            }
            XChangeProperty(d, w, state, XA_ATOM, 32, PropModeReplace,
                            reinterpret_cast<const unsigned char*>(now.data()),
                            static_cast<int>(now.size()));
            return;
        }
        XEvent e{};
        e.xclient.type = ClientMessage;
        e.xclient.window = w;
        e.xclient.message_type = state;
        e.xclient.format = 32;
        e.xclient.data.l[0] = add;
        e.xclient.data.l[1] = static_cast<long>(names[0]);
        e.xclient.data.l[2] = names.size() > 1 ? static_cast<long>(names[1]) : 0;
        e.xclient.data.l[3] = 1; // a normal application asks
        XSendEvent(d, attributes.root, False, SubstructureRedirectMask | SubstructureNotifyMask,
                   &e);
    }

    std::shared_ptr<XConnection> x_;
    // What the current walk has read, and where each window it met sits among its siblings.
    std::unordered_map<Window, Known> known_;
    std::unordered_map<Window, std::pair<Window, std::size_t>> positions_;
    std::chrono::steady_clock::time_point cachedAt_;
    xcb_generic_error_t* error_ = nullptr;
    std::unique_ptr<OwnWindow> confine_;
};

} // namespace

std::unique_ptr<WindowManager> createWindowManager(std::shared_ptr<XConnection> x) {
    return std::make_unique<X11WindowManager>(std::move(x));
}

} // namespace velkor6::posix
