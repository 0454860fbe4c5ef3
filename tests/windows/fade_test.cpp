// Fading windows in and out through the call-by-name member, on the fake clock.
#include "fake/error_of.h"
#include "fake/fake_platform.h"
#include "velkor6/lib.h"
#include "windows/fade.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

Variant pair(std::int32_t window, Variant milliseconds) {
    VariantArray a;
    a.element = VarType::Variant;
    a.items = {Variant(window), std::move(milliseconds)};
    a.bounds = {ArrayBound{0, 2}};
    return Variant(std::move(a));
}

TEST(Fade, ScheduleSpreadsTheDurationAndEndsExactly) {
    // 50 ms: three steps at 17, 33 and 50 ms.
    const auto steps = windows::fadeSchedule(1.0, 0.0, 50);
    ASSERT_EQ(steps.size(), 3u);
    EXPECT_EQ(steps[0].pauseMilliseconds, 17);
    EXPECT_EQ(steps[1].pauseMilliseconds, 16);
    EXPECT_EQ(steps[2].pauseMilliseconds, 17);
    EXPECT_NEAR(steps[0].opacity, 2.0 / 3, 1e-12);
    EXPECT_NEAR(steps[1].opacity, 1.0 / 3, 1e-12);
    EXPECT_EQ(steps[2].opacity, 0.0);
    // A partial last step, and no duration at all.
    EXPECT_EQ(windows::fadeSchedule(0.25, 1.0, 41).size(), 3u);
    EXPECT_EQ(windows::fadeSchedule(0.3, 1.0, 41).back().opacity, 1.0);
    // A very long fade takes longer steps, not more of them.
    const auto longest = windows::fadeSchedule(0.0, 1.0, 2147483647);
    ASSERT_EQ(longest.size(), 1000u);
    EXPECT_EQ(longest[0].pauseMilliseconds, 2147484);
    const auto at_once = windows::fadeSchedule(1.0, 0.0, 0);
    ASSERT_EQ(at_once.size(), 1u);
    EXPECT_EQ(at_once[0].pauseMilliseconds, 0);
    EXPECT_EQ(at_once[0].opacity, 0.0);
}

TEST(Fade, InitOutAndInOnTheFakeClockServeEventsAndTakeTheirTime) {
    fake::FakePlatform fake;
    fake.windows.addWindow(7, {});
    lib l(fake.module);
    const double start = fake.clock.secondsSinceMidnight();

    // FadeInit: transparent at once, no pause, no events.
    EXPECT_EQ(l.vkrGlobalVar(u"fadeinit", Variant(7)), Variant(true));
    EXPECT_EQ(fake.windows.window(7).opacity, 0.0);
    EXPECT_EQ(fake.windows.opacityChanges().size(), 1u);
    EXPECT_EQ(fake.clock.secondsSinceMidnight(), start);
    EXPECT_EQ(fake.ui.eventsServed(), 0);

    // FadeIn over 100 ms: five steps up from 0, events served before each pause.
    EXPECT_EQ(l.vkrGlobalVar(u"FadeIn", pair(7, Variant(100))), Variant(true));
    const auto& changes = fake.windows.opacityChanges();
    ASSERT_EQ(changes.size(), 6u);
    for (std::size_t k = 1; k < changes.size(); ++k) {
        EXPECT_EQ(changes[k].window, 7);
        EXPECT_NEAR(changes[k].opacity, 0.2 * static_cast<double>(k), 1e-12);
    }
    EXPECT_EQ(changes.back().opacity, 1.0);
    EXPECT_NEAR(fake.clock.secondsSinceMidnight() - start, 0.1, 1e-6);
    EXPECT_EQ(fake.ui.eventsServed(), 5);

    // FadeOut with the default duration, from a window half faded.
    fake.windows.window(7).opacity = 0.5;
    const double before = fake.clock.secondsSinceMidnight();
    EXPECT_EQ(l.vkrGlobalVar(u"FADEOUT", Variant(7)), Variant(true));
    EXPECT_EQ(fake.windows.opacityChanges().size(), 6u + 25u);
    EXPECT_NEAR(fake.windows.opacityChanges()[6].opacity, 0.48, 1e-12);
    EXPECT_EQ(fake.windows.window(7).opacity, 0.0);
    EXPECT_NEAR(fake.clock.secondsSinceMidnight() - before, 0.5, 1e-6);

    // A negative duration is none; a one-element array is the handle alone.
    VariantArray one;
    one.element = VarType::Variant;
    one.items = {Variant(u"7")};
    one.bounds = {ArrayBound{1, 1}};
    EXPECT_EQ(l.vkrGlobalVar(u"FadeIn", pair(7, Variant(-30))), Variant(true));
    EXPECT_EQ(fake.windows.window(7).opacity, 1.0);
    EXPECT_EQ(l.vkrGlobalVar(u"FadeOut", Variant(std::move(one))), Variant(true));
}

TEST(Fade, NoWindowNoOpacityAndBadArguments) {
    fake::FakePlatform fake;
    fake::FakeWindowManager::Window plain;
    plain.noOpacity = true;
    fake.windows.addWindow(8, plain);
    lib l(fake.module);
    const double start = fake.clock.secondsSinceMidnight();
    // No window, or a system without opacity: False at once, without waiting.
    EXPECT_EQ(l.vkrGlobalVar(u"FadeOut", pair(99, Variant(1000))), Variant(false));
    EXPECT_EQ(l.vkrGlobalVar(u"FadeIn", pair(8, Variant(1000))), Variant(false));
    EXPECT_EQ(fake.clock.secondsSinceMidnight(), start);
    EXPECT_TRUE(fake.windows.opacityChanges().empty());

    EXPECT_EQ(errorOf([&] { l.vkrGlobalVar(u"FadeIn"); }), 449);
    EXPECT_EQ(errorOf([&] { l.vkrGlobalVar(u"FadeIn", Variant(u"abc")); }), 13);
    EXPECT_EQ(errorOf([&] { l.vkrGlobalVar(u"FadeIn", pair(8, Variant(u"soon"))); }), 13);
    VariantArray three;
    three.element = VarType::Variant;
    three.items = {Variant(8), Variant(1), Variant(2)};
    three.bounds = {ArrayBound{0, 3}};
    EXPECT_EQ(errorOf([&] { l.vkrGlobalVar(u"FadeIn", Variant(std::move(three))); }), 5);
    // Only vkrGlobalVar fades; the unknown names keep their error.
    EXPECT_EQ(errorOf([&] { l.vkrGlobalObj(u"FadeIn", Variant(8)); }), 438);
    EXPECT_EQ(errorOf([&] { l.vkrGlobalVar(u"FadeAway", Variant(8)); }), 438);
}

} // namespace
} // namespace velkor6
