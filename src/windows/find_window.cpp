#include "windows/find_window.h"

#include "core/like.h"

namespace velkor6::windows {
namespace {

bool matches(std::u16string_view text, std::u16string_view pattern) {
    return like(text, pattern, Compare::Binary);
}

} // namespace

WindowHandle findWindow(WindowManager& windows, WindowHandle start,
                        std::u16string_view classPattern, std::u16string_view captionPattern,
                        bool findNext) {
    WindowHandle current = start;
    if (start == desktopTop)
        current = windows.topWindow();
    else if (findNext)
        current = windows.nextWindow(start);
    while (current != 0) {
        // The caption first: it is what callers narrow down, so the class is read less often.
        if (matches(windows.caption(current), captionPattern) &&
            matches(windows.className(current), classPattern))
            return current;
        if (const WindowHandle child = windows.firstChild(current); child != 0) {
            if (const WindowHandle found = findWindow(windows, child, classPattern, captionPattern);
                found != 0)
                return found;
        }
        current = windows.nextWindow(current);
    }
    return 0;
}

} // namespace velkor6::windows
