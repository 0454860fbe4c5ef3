#include "windows/fade.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace velkor6::windows {

std::vector<FadeStep> fadeSchedule(double from, double to, std::int32_t milliseconds) {
    if (milliseconds <= 0)
        return {{0, to}};
    const std::int32_t n = std::min<std::int32_t>(
        maxFadeSteps,
        static_cast<std::int32_t>((std::int64_t{milliseconds} + fadeStepMilliseconds - 1) /
                                  fadeStepMilliseconds));
    std::vector<FadeStep> steps;
    steps.reserve(static_cast<std::size_t>(n));
    std::int64_t reached = 0;
    for (std::int32_t k = 1; k <= n; ++k) {
        const auto at = static_cast<std::int64_t>(
            std::llround(static_cast<double>(k) * milliseconds / static_cast<double>(n)));
        const double opacity = k == n ? to : from + (to - from) * k / n;
        steps.push_back({static_cast<std::int32_t>(at - reached), opacity});
        reached = at;
    }
    return steps;
}

bool fade(Clock& clock, UserInterface& ui, WindowManager& windows, WindowHandle window, double to,
          std::int32_t milliseconds) {
    const std::optional<double> from = windows.opacity(window);
    if (!from)
        return false;
    for (const FadeStep& step : fadeSchedule(*from, to, milliseconds)) {
        if (step.pauseMilliseconds > 0) {
            ui.serveEvents();
            clock.sleep(std::chrono::milliseconds(step.pauseMilliseconds));
        }
        if (!windows.setOpacity(window, step.opacity))
            return false;
    }
    return true;
}

} // namespace velkor6::windows
