// Window search and the waits over a scripted window tree and clock.
#include "fake/fake_platform.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>
#include <vector>

namespace velkor6 {
namespace {

using Window = fake::FakeWindowManager::Window;

Window named(std::u16string cls, std::u16string caption, WindowHandle parent = 0) {
    Window w;
    w.parent = parent;
    w.className = std::move(cls);
    w.caption = std::move(caption);
    return w;
}

// A form that records what Enabled was set to.
class RecordingForm final : public Object {
public:
    std::u16string typeName() const override { return u"Form"; }
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        if (name == u"Enabled" && kind == CallKind::PropertyLet)
            enabled.push_back(args[0].boolean());
        return {};
    }
    std::vector<bool> enabled;
};

class Windows : public ::testing::Test {
protected:
    fake::FakePlatform fp;
    lib l{fp.module};
};

TEST_F(Windows, SearchesDepthFirstWithCaseSensitivePatterns) {
    // 10 (a frame without class) holds 11, the client; 20 is below 10 and has the same class.
    fp.windows.addWindow(10, named(u"", u""));
    fp.windows.addWindow(11, named(u"Xmessage", u"Saved 3 files", 10));
    fp.windows.addWindow(12, named(u"Button", u"OK", 11));
    fp.windows.addWindow(20, named(u"Xmessage", u"Saved 4 files"));

    EXPECT_EQ(l.vkrFindWindow(-1, u"*", u"*"), 10);
    EXPECT_EQ(l.vkrFindWindow(-1, u"Xmessage", u"*"), 11);
    EXPECT_EQ(l.vkrFindWindow(-1, u"Button", u"OK"), 12);
    EXPECT_EQ(l.vkrFindWindow(-1, u"Xmessage", u"Saved # files"), 11);
    EXPECT_EQ(l.vkrFindWindow(-1, u"Xmessage", u"*[!3] files"), 20);
    EXPECT_EQ(l.vkrFindWindow(-1, u"xmessage", u"*"), 0);
    EXPECT_EQ(l.vkrFindWindow(-1, u"Xmessage", u"saved*"), 0);
    // An empty caption matches "" and "*", not a pattern that wants a character.
    EXPECT_EQ(l.vkrFindWindow(-1, u"", u""), 10);
    EXPECT_EQ(l.vkrFindWindow(-1, u"*", u"?*"), 11);

    // From a found window on: its children are skipped, the search ends with its siblings.
    EXPECT_EQ(l.vkrFindWindow(10, u"Xmessage", u"*", true), 20);
    EXPECT_EQ(l.vkrFindWindow(11, u"Xmessage", u"*", true), 0);
    EXPECT_EQ(l.vkrFindWindow(10, u"Xmessage", u"*"), 11);
    EXPECT_EQ(l.vkrFindWindow(99, u"Xmessage", u"*"), 0);
}

TEST_F(Windows, AZeroSecondWaitLooksOnlyInTheSecondHalfOfASecond) {
    fp.clock.setReadStep(0.001);
    fp.windows.addWindow(5, named(u"Other", u"x"));

    fp.clock.setSecondsSinceMidnight(36000.3);
    EXPECT_FALSE(l.vkrWaitForClassStarted(u"Xmessage", u"*", 0));
    EXPECT_EQ(fp.windows.searches(), 0);
    EXPECT_EQ(fp.ui.eventsServed(), 0);

    fp.clock.setSecondsSinceMidnight(36000.7);
    EXPECT_FALSE(l.vkrWaitForClassStarted(u"Xmessage", u"*", 0));
    EXPECT_EQ(fp.windows.searches(), 1);
    EXPECT_GT(fp.ui.eventsServed(), 0);

    // Found on the first look, after the first pause.
    fp.windows.addWindow(6, named(u"Xmessage", u"x"));
    fp.clock.setSecondsSinceMidnight(36000.7);
    EXPECT_TRUE(l.vkrWaitForClassStarted(u"Xmessage", u"*", 0));
}

TEST_F(Windows, AWaitPastMidnightDoesNotTimeOut) {
    fp.clock.setReadStep(0.01);
    fp.clock.setSecondsSinceMidnight(86398.0);
    fp.windows.onSearch([this](int search) {
        // About 7 s later: the clock shows 5 s after midnight, far below the deadline 86401.
        if (search == 14)
            fp.windows.addWindow(7, named(u"Xmessage", u"done"));
    });
    EXPECT_TRUE(l.vkrWaitForClassStarted(u"Xmessage", u"done", 3));
    EXPECT_EQ(fp.windows.searches(), 14);
    EXPECT_LT(fp.clock.secondsSinceMidnight(), 100);
}

TEST_F(Windows, TheParentFormIsEnabledAfterEveryWait) {
    fp.clock.setReadStep(0.01);
    fp.clock.setSecondsSinceMidnight(100.0);
    auto form = std::make_shared<RecordingForm>();
    EXPECT_FALSE(l.vkrWaitForClassStarted(u"Xmessage", u"*", 2, form));
    EXPECT_EQ(form->enabled, (std::vector<bool>{false, true}));

    fp.windows.addWindow(8, named(u"Xmessage", u"x"));
    EXPECT_FALSE(l.vkrWaitForClassFinished(u"Xmessage", u"*", 2, form));
    EXPECT_EQ(form->enabled, (std::vector<bool>{false, true, false, true}));
}

TEST_F(Windows, AFinishedWaitNeedsTwoMissesInARow) {
    fp.clock.setReadStep(0.01);
    fp.clock.setSecondsSinceMidnight(500.0);
    fp.windows.addWindow(8, named(u"Xmessage", u"x"));
    // Gone on the second look, back on the third (replaced by a new window), gone for good
    // from the fourth on.
    fp.windows.onSearch([this](int search) {
        if (search == 2 || search == 4)
            fp.windows.removeWindow(8);
        if (search == 3)
            fp.windows.addWindow(8, named(u"Xmessage", u"x"));
    });
    EXPECT_TRUE(l.vkrWaitForClassFinished(u"Xmessage", u"*", 30));
    EXPECT_EQ(fp.windows.searches(), 5);
    EXPECT_EQ(fp.ui.eventsServed(), 2); // after each round that still saw a window
}

TEST_F(Windows, PausesServeTheUserInterfaceOrSleep) {
    fp.clock.setSecondsSinceMidnight(1000.0);
    fp.clock.setReadStep(0.004);
    l.vkrWait(0);
    // Single precision at 1000 s resolves about 0.06 ms: the first step is enough.
    EXPECT_EQ(fp.ui.eventsServed(), 1);

    fp.clock.setReadStep(0.1);
    fp.clock.setSecondsSinceMidnight(86399.8);
    l.vkrWait(1000); // across midnight: ends all the same
    EXPECT_LT(fp.clock.secondsSinceMidnight(), 2);

    fp.clock.setReadStep(0);
    fp.clock.setSecondsSinceMidnight(10.0);
    const int served = fp.ui.eventsServed();
    l.vkrWait(1500, false);
    EXPECT_DOUBLE_EQ(fp.clock.secondsSinceMidnight(), 11.5);
    EXPECT_EQ(fp.ui.eventsServed(), served);
}

} // namespace
} // namespace velkor6
