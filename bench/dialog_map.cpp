// How long a dialog takes to appear: from the call (or the start of a program) to the X server's
// MapNotify of its window, seen by a watcher on the root window with its own connection. The
// watcher closes each dialog through WM_DELETE_WINDOW, as a close box would.
//
//   velkor6_dialog_map calls N        N message boxes in this process, one line each: the
//                                     first loads Qt, the others reuse it
//   velkor6_dialog_map exec PROGRAM [ARG ...]
//                                     the time from starting the program to its window
//   velkor6_dialog_map zoom TEXT      the zoom editor over a text box holding TEXT, without a
//                                     watcher (for screenshots; the box prints its text on OK)
#include "velkor6/lib.h"
#include "velkor6/vb_error.h"

#include <X11/Xlib.h>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>

extern char** environ;

namespace {

using Clock = std::chrono::steady_clock;

class MapWatcher {
public:
    MapWatcher() {
        // A busy server refuses a connection now and then.
        for (int attempt = 0; attempt < 10 && display_ == nullptr; ++attempt) {
            if (attempt > 0)
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
            display_ = XOpenDisplay(nullptr);
        }
        if (display_ == nullptr) {
            std::fprintf(stderr, "dialog_map: no X display\n");
            std::exit(2);
        }
        XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
        XSync(display_, False);
        thread_ = std::thread([this] { watch(); });
    }
    ~MapWatcher() {
        thread_.detach();
        // The thread blocks in XNextEvent; the process ends right after.
    }

    // The time the next top-level window was mapped; its window gets a close request.
    std::optional<Clock::time_point> nextMap(std::chrono::seconds timeout) {
        std::unique_lock lock(mutex_);
        if (!changed_.wait_for(lock, timeout, [this] { return mapped_.has_value(); }))
            return std::nullopt;
        const auto t = *mapped_;
        mapped_.reset();
        return t;
    }

private:
    void watch() {
        const Atom protocols = XInternAtom(display_, "WM_PROTOCOLS", False);
        const Atom deleteWindow = XInternAtom(display_, "WM_DELETE_WINDOW", False);
        for (;;) {
            XEvent e;
            XNextEvent(display_, &e);
            if (e.type != MapNotify || e.xmap.override_redirect)
                continue;
            const auto now = Clock::now();
            {
                std::lock_guard lock(mutex_);
                mapped_ = now;
            }
            changed_.notify_all();
            XEvent close{};
            close.xclient.type = ClientMessage;
            close.xclient.window = e.xmap.window;
            close.xclient.message_type = protocols;
            close.xclient.format = 32;
            close.xclient.data.l[0] = static_cast<long>(deleteWindow);
            close.xclient.data.l[1] = CurrentTime;
            XSendEvent(display_, e.xmap.window, False, NoEventMask, &close);
            XFlush(display_);
        }
    }

    Display* display_ = nullptr;
    std::thread thread_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::optional<Clock::time_point> mapped_;
};

double millis(Clock::duration d) {
    return std::chrono::duration<double, std::milli>(d).count();
}

int calls(int count) {
    MapWatcher watcher;
    velkor6::lib library(velkor6::Module::createDefault());
    for (int i = 0; i < count; ++i) {
        // The watcher's thread closes the box; the call returns then.
        const auto start = Clock::now();
        library.vkrMsgBox(u"Save changes?", u"The file was changed.", 4, u"dialog_map");
        const auto mapped = watcher.nextMap(std::chrono::seconds(10));
        if (!mapped) {
            std::fprintf(stderr, "dialog_map: call %d showed no window\n", i + 1);
            return 1;
        }
        std::printf("%s %.2f ms\n", i == 0 ? "first" : "later", millis(*mapped - start));
    }
    return 0;
}

// A caller's text box as far as the zoom editor reads and writes it.
class TextBox final : public velkor6::Object {
public:
    explicit TextBox(std::u16string text) : text_(std::move(text)) {}
    std::u16string typeName() const override { return u"TextBox"; }
    velkor6::Variant call(std::u16string_view name, velkor6::CallKind kind,
                          std::span<velkor6::Variant> args) override {
        if (name == u"Text" && kind == velkor6::CallKind::PropertyLet && !args.empty()) {
            text_ = args[0].string();
            return {};
        }
        if (name == u"Text")
            return velkor6::Variant(text_);
        if (name == u"Enabled")
            return velkor6::Variant(true);
        if (name == u"Locked")
            return velkor6::Variant(false);
        if (name == u"ToolTipText")
            return velkor6::Variant(std::u16string(u"Notes"));
        throw velkor6::VbError(438);
    }
    const std::u16string& text() const { return text_; }

private:
    std::u16string text_;
};

int zoom(const char* text) {
    velkor6::lib library(velkor6::Module::createDefault());
    std::u16string wide;
    for (const char* p = text; *p != '\0'; ++p)
        wide += static_cast<char16_t>(static_cast<unsigned char>(*p));
    const auto box = std::make_shared<TextBox>(wide);
    library.vkrZoomTextBox(library.ownApp(), box, u"Notes");
    std::printf("%zu characters\n", box->text().size());
    return 0;
}

int exec(char** argv) {
    MapWatcher watcher;
    const auto start = Clock::now();
    pid_t pid = 0;
    if (posix_spawnp(&pid, argv[0], nullptr, nullptr, argv, environ) != 0) {
        std::fprintf(stderr, "dialog_map: cannot start %s\n", argv[0]);
        return 1;
    }
    const auto mapped = watcher.nextMap(std::chrono::seconds(10));
    int status = 0;
    if (!mapped)
        kill(pid, SIGKILL);
    waitpid(pid, &status, 0);
    if (!mapped) {
        std::fprintf(stderr, "dialog_map: %s showed no window\n", argv[0]);
        return 1;
    }
    std::printf("exec %.2f ms\n", millis(*mapped - start));
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    // The watcher thread and Qt each have their own connection.
    XInitThreads();
    const std::string mode = argc > 1 ? argv[1] : "";
    if (mode == "calls" && argc == 3)
        return calls(std::atoi(argv[2]));
    if (mode == "exec" && argc > 2)
        return exec(argv + 2);
    if (mode == "zoom" && argc == 3)
        return zoom(argv[2]);
    std::fprintf(stderr,
                 "usage: velkor6_dialog_map calls N | exec PROGRAM [ARG ...] | zoom TEXT\n");
    return 2;
}
