// Z-order, centring, shape, metrics, key and button state, and open forms.
#include "core/collection.h"
#include "fake/fake_platform.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>
#include <vector>

namespace velkor6 {
namespace {

using Window = fake::FakeWindowManager::Window;

Window at(WindowRect rect, std::uint32_t style = 0) {
    Window w;
    w.style = style;
    w.rect = rect;
    return w;
}

// A collection of loaded forms as VB gives it: Count, and a default member indexed from 0.
class Forms final : public Object {
public:
    explicit Forms(std::vector<ObjectRef> forms) : forms_(std::move(forms)) {}
    std::u16string typeName() const override { return u"Forms"; }
    Variant call(std::u16string_view name, CallKind, std::span<Variant> args) override {
        if (name == u"Count")
            return static_cast<std::int32_t>(forms_.size());
        return Variant(forms_.at(static_cast<std::size_t>(args[0].longValue())));
    }

private:
    std::vector<ObjectRef> forms_;
};

class Named final : public Object {
public:
    explicit Named(std::u16string name) : name_(std::move(name)) {}
    std::u16string typeName() const override { return u"Form"; }
    Variant call(std::u16string_view, CallKind, std::span<Variant>) override { return name_; }

private:
    std::u16string name_;
};

class Placement : public ::testing::Test {
protected:
    fake::FakePlatform fp;
    lib l{fp.module};
};

TEST_F(Placement, CentresOwnsAndKeepsOnTop) {
    fp.windows.setScreen(1920, 1080);
    fp.windows.setFrameMetrics({4, 3, 18});
    fp.windows.addWindow(1, at({0, 0, 301, 200}));
    fp.windows.addWindow(2, at({0, 0, 800, 600}));

    l.vkrOpenTopMost(1, true);
    const auto& p = fp.windows.placements().back();
    EXPECT_EQ(p.x, 809); // (1920 - 301) / 2 rounded down
    EXPECT_EQ(p.y, 429); // (1080 - (18 + 4) - 200) / 2
    EXPECT_EQ(p.flags, swp::noSize | swp::noZOrder);
    EXPECT_EQ(fp.windows.window(1).shown, showcmd::normal);
    EXPECT_TRUE(fp.windows.window(1).topMost);

    l.vkrOpenApplicationTopMost(2, 1, false);
    EXPECT_EQ(fp.windows.window(2).owner, 1);
    EXPECT_NE(fp.windows.window(2).style & winstyle::popup, 0u);
    EXPECT_FALSE(fp.windows.window(2).topMost);
    l.vkrOpenApplicationTopMost(2, 0, true); // needs both handles
    EXPECT_EQ(fp.windows.placements().size(), 1u);

    // The foreground window owns the client, unless it is the client itself.
    fp.windows.addWindow(3, at({0, 0, 10, 10}));
    fp.windows.setForeground(2);
    l.vkrApplicationTopMost(3);
    EXPECT_EQ(fp.windows.window(3).owner, 2);
    fp.windows.setForeground(3);
    l.vkrApplicationTopMost(3);
    EXPECT_TRUE(fp.windows.window(3).topMost);
    l.vkrTopMost(0);
    l.vkrOpenTopMost(0, true);
    EXPECT_EQ(fp.windows.placements().size(), 1u);
}

TEST_F(Placement, ShapesConfinesAndMeasures) {
    fp.windows.setFrameMetrics({4, 3, 18});
    fp.windows.addWindow(1, at({100, 100, 400, 300}, winstyle::caption));
    fp.windows.addWindow(2, at({0, 0, 10, 10}, winstyle::border));
    fp.windows.addWindow(3, at({0, 0, 10, 10}));
    fp.windows.window(1).client = WindowRect{104, 122, 204, 172};
    fp.windows.window(2).client = WindowRect{150, 150, 250, 250};

    l.vkrRoundWindow(1, 20, 10, 5, 7);
    const auto& shape = *fp.windows.window(1).shape;
    EXPECT_EQ(shape.area, (WindowRect{5, 7, 295, 193}));
    EXPECT_EQ(shape.ellipseWidth, 20);
    l.vkrWindowShadow(3);
    EXPECT_TRUE(fp.windows.window(3).classShadow);

    l.vkrClipCursor(1, 2);
    l.vkrClipCursor(1);
    l.vkrClipCursor();
    const auto& c = fp.windows.confinements();
    ASSERT_EQ(c.size(), 3u);
    EXPECT_EQ(c[0], (WindowRect{150, 150, 204, 172}));
    EXPECT_EQ(c[1], (WindowRect{104, 122, 204, 172}));
    EXPECT_EQ(c[2], std::nullopt);

    EXPECT_EQ(l.vkrGetFrameSize(1), 3);
    EXPECT_EQ(l.vkrGetFrameSize(2), 4);
    EXPECT_EQ(l.vkrGetFrameSize(3), 0);
    EXPECT_EQ(l.vkrGetFrameSize(0), 4);
    EXPECT_EQ(l.vkrGetMenuHeight(), 22);

    SIZE size{7, 8};
    l.vkrGetInternalFormSize(1, size);
    EXPECT_EQ(size.CX, 1500);
    EXPECT_EQ(size.CY, 750);
    SIZE untouched{7, 8};
    l.vkrGetInternalFormSize(0, untouched);
    EXPECT_EQ(untouched.CX, 7);
}

TEST_F(Placement, KeysAreAskedTwiceButtonsOnce) {
    // Pressed and released since the last query: not down for a key, down for a button.
    fp.input.setDown(27, true);
    fp.input.setDown(27, false);
    EXPECT_FALSE(l.vkrIsKeyDown(27));
    EXPECT_EQ(fp.input.queries(27), 2);
    fp.input.setDown(1, true);
    fp.input.setDown(1, false);
    EXPECT_TRUE(l.vkrIsMouseButtonDown(1));
    EXPECT_EQ(fp.input.queries(1), 1);

    fp.input.setMouseButtonsSwapped(true);
    fp.input.setDown(1, true);
    EXPECT_TRUE(l.vkrIsMouseButtonDown(2));
    EXPECT_FALSE(l.vkrIsMouseButtonDown(1));
    fp.input.setDown(3, true);
    EXPECT_TRUE(l.vkrIsMouseButtonDown(4));
    EXPECT_EQ(fp.input.queries(4), 0);
    fp.input.setDown(16, true);
    EXPECT_TRUE(l.vkrIsMouseButtonDown(16));
}

TEST_F(Placement, FindsOpenFormsByNameInAnyCase) {
    auto second = std::make_shared<Named>(u"frmMain");
    const ObjectRef forms = std::make_shared<Forms>(
        std::vector<ObjectRef>{std::make_shared<Named>(u"frmSplash"), second});
    Variant found(u"unchanged");
    EXPECT_FALSE(l.vkrIsFormOpen(forms, u"frmOther", &found));
    EXPECT_EQ(found.string(), u"unchanged");
    EXPECT_TRUE(l.vkrIsFormOpen(forms, u"FRMMAIN", &found));
    EXPECT_EQ(found.object(), second);
    EXPECT_TRUE(l.vkrIsFormOpen(forms, u"frmsplash"));
    // A collection that cannot be read is no open form.
    EXPECT_FALSE(l.vkrIsFormOpen(std::make_shared<Collection>(), u"frmMain"));
}

} // namespace
} // namespace velkor6
