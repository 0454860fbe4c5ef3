#include "windows/waits.h"

#include "core/convert.h"
#include "windows/find_window.h"

#include <chrono>
#include <exception>

namespace velkor6::windows {
namespace {

constexpr double secondsPerDay = 86400;

// Seconds from `start` to now on a clock that restarts at 0 at midnight: a pause that spans
// midnight ends as any other instead of waiting for a time the clock never shows.
double elapsedSince(const Clock& clock, double start) {
    const double now = clock.secondsSinceMidnight();
    return now >= start ? now - start : now + secondsPerDay - start;
}

double wholeSeconds(double seconds) {
    return roundHalfEven(seconds);
}

// Disables the caller's form for the length of a wait and enables it again however the wait
// ends, also when it was disabled before.
class DisabledForm {
public:
    explicit DisabledForm(const ObjectRef& form) : form_(form) { setEnabled(false); }
    ~DisabledForm() {
        try {
            setEnabled(true);
        } catch (const std::exception&) {
        }
    }
    DisabledForm(const DisabledForm&) = delete;
    DisabledForm& operator=(const DisabledForm&) = delete;

private:
    void setEnabled(bool enabled) {
        if (!form_)
            return;
        Variant value(enabled);
        form_->call(u"Enabled", CallKind::PropertyLet, std::span<Variant>(&value, 1));
    }
    const ObjectRef& form_;
};

} // namespace

void pause(Clock& clock, UserInterface& ui, std::int32_t milliseconds, bool active) {
    if (!active) {
        clock.sleep(std::chrono::milliseconds(milliseconds > 0 ? milliseconds : 0));
        return;
    }
    const auto start = static_cast<float>(clock.secondsSinceMidnight());
    const float length = static_cast<float>(milliseconds) / 1000.0f;
    const float target = start + length;
    for (;;) {
        ui.serveEvents();
        const auto now = static_cast<float>(clock.secondsSinceMidnight());
        if (now > target)
            return;
        // The clock restarted at midnight.
        if (now < start && now + static_cast<float>(secondsPerDay) > target)
            return;
    }
}

bool waitForClassStarted(WaitServices s, std::u16string_view classPattern,
                         std::u16string_view captionPattern, std::int32_t maxSeconds,
                         const ObjectRef& parentForm) {
    const double deadline = wholeSeconds(s.clock.secondsSinceMidnight() + maxSeconds);
    try {
        const DisabledForm disabled(parentForm);
        while (s.clock.secondsSinceMidnight() < deadline) {
            pause(s.clock, s.ui, 500, true);
            if (findWindow(s.windows, desktopTop, classPattern, captionPattern) != 0)
                return true;
        }
    } catch (const std::exception&) {
    }
    return false;
}

bool waitForClassFinished(WaitServices s, std::u16string_view classPattern,
                          std::u16string_view captionPattern, std::int32_t maxSeconds,
                          const ObjectRef& parentForm) {
    const double deadline = wholeSeconds(s.clock.secondsSinceMidnight() + maxSeconds);
    try {
        const DisabledForm disabled(parentForm);
        while (s.clock.secondsSinceMidnight() < deadline) {
            // A short spin to the nearest whole second after now + 0.1 s: from no time at all
            // to about 0.6 s; the user interface is not served meanwhile.
            const double start = s.clock.secondsSinceMidnight();
            const double target = wholeSeconds(start + 0.1);
            while (elapsedSince(s.clock, start) < target - start) {
            }
            // Two looks in a row: a program may be replacing one window by another.
            if (findWindow(s.windows, desktopTop, classPattern, captionPattern) == 0 &&
                findWindow(s.windows, desktopTop, classPattern, captionPattern) == 0)
                return true;
            s.ui.serveEvents();
        }
    } catch (const std::exception&) {
    }
    return false;
}

} // namespace velkor6::windows
