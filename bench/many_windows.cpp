// Creates top-level X windows (class "BenchWindow", captions "bench window 1" ...) on $DISPLAY,
// prints "ready" and keeps them until standard input closes.
// usage: many_windows [COUNT]
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

int main(int argc, char** argv) {
    const int count = argc > 1 ? std::atoi(argv[1]) : 1000;
    struct Closer {
        void operator()(Display* d) const { XCloseDisplay(d); }
    };
    const std::unique_ptr<Display, Closer> display(XOpenDisplay(nullptr));
    if (!display)
        return 1;
    Display* d = display.get();
    char name[] = "bench";
    char cls[] = "BenchWindow";
    XClassHint hint{name, cls};
    for (int i = 1; i <= count; ++i) {
        const Window w =
            XCreateSimpleWindow(d, DefaultRootWindow(d), i % 500, i % 300, 40, 30, 0, 0, 0);
        const std::string caption = "bench window " + std::to_string(i);
        XStoreName(d, w, caption.c_str());
        XSetClassHint(d, w, &hint);
        XMapWindow(d, w);
    }
    XSync(d, False);
    std::puts("ready");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}
