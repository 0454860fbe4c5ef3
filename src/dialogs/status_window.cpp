#include "dialogs/status_window.h"

#include "core/convert.h"
#include "dialogs/message_buttons.h"
#include "dialogs/rtf_text.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace velkor6::dialogs {
namespace {

constexpr std::int32_t margin = 8;
constexpr std::int32_t barOffset = 60; // the bar's top above the window's bottom edge
constexpr std::int32_t barHeight = 20;
constexpr PixelSize designedSize{320, 120};

bool given(const Variant& v) {
    return !v.isMissing();
}

// Each statement stands alone: a value that does not convert skips only its own part.
void step(const std::function<void()>& statement) {
    try {
        statement();
    } catch (const std::exception&) {
    }
}

std::int32_t whole(const Variant& v, const Locale& locale) {
    const double d = toDouble(v, locale);
    if (!std::isfinite(d) || d < -2147483648.0 || d > 2147483647.0)
        throw std::range_error("out of range");
    return static_cast<std::int32_t>(roundHalfEven(d));
}

// The bar sits barOffset pixels above the bottom; the message fills the room above it.
void fitParts(StatusWindow& w) {
    const PixelSize c = w.clientSize;
    w.counterRect = {margin, c.height - barOffset, std::max(0, c.width - 2 * margin), barHeight};
    w.message.rect.left = margin;
    w.message.rect.width = std::max(0, c.width - 2 * margin);
    w.message.rect.height = std::max(0, w.counterRect.top - margin - w.message.rect.top);
}

StatusWindow freshWindow() {
    StatusWindow w;
    w.title = std::u16string(statusDefaultTitle);
    w.message.rich = true;
    w.message.wordWrap = true;
    w.message.rect.top = margin;
    w.clientSize = designedSize;
    fitParts(w);
    return w;
}

} // namespace

void sendMessage(Module& module, const StatusUpdate& u) {
    const Locale& locale = module.locale();
    std::optional<StatusWindow>& state = module.statusWindow();
    if (!state)
        state = freshWindow();
    StatusWindow& w = *state;

    if (given(u.title))
        step([&] { w.title = toString(u.title, locale); });
    if (given(u.prompt) && !u.prompt.isEmpty() && !u.prompt.isNull())
        step([&] {
            const std::u16string prompt = toString(u.prompt, locale);
            if (prompt.empty())
                return;
            w.message.text = u"{\\qc " + prompt + u"}";
            w.message.plainText = rtfPlainText(w.message.text);
        });
    if (given(u.showCounter))
        step([&] { w.counterVisible = toBoolean(u.showCounter, locale); });
    if (given(u.widthTwips))
        step(
            [&] { w.clientSize.width = std::max(0, whole(u.widthTwips, locale) / twipsPerPixel); });
    if (given(u.heightTwips))
        step([&] {
            w.clientSize.height = std::max(0, whole(u.heightTwips, locale) / twipsPerPixel);
        });
    if (given(u.msgTopTwips))
        step([&] {
            w.message.rect.top = std::max(0, whole(u.msgTopTwips, locale) / twipsPerPixel);
        });
    fitParts(w);
    // A progress bar refuses a maximum of 0 or less and a value outside 0 to its maximum.
    if (given(u.maxCount))
        step([&] {
            const std::int32_t max = whole(u.maxCount, locale);
            if (max > 0)
                w.counterMax = max;
        });
    if (given(u.curCount))
        step([&] {
            const std::int32_t value = whole(u.curCount, locale);
            if (value >= 0 && value <= w.counterMax)
                w.counterValue = value;
        });
    if (u.parentHwnd != 0) {
        w.owner = u.parentHwnd;
        w.topMost = u.openAsTopMost;
    }
    DialogHost& host = *module.platform().dialogs;
    host.showStatus(w);
    if (!u.noEvents)
        host.serveEvents();
}

void hideMessage(Module& module) {
    if (module.statusWindow())
        module.platform().dialogs->hideStatus();
}

void clearMessage(Module& module) {
    if (module.statusWindow())
        module.platform().dialogs->closeStatus();
    module.statusWindow().reset();
}

} // namespace velkor6::dialogs
