// Window-style switches of text boxes and buttons, the splitter pointer and drag, and grid and
// list-view columns filling their control.
#include "fake/fake_control.h"
#include "fake/fake_platform.h"
#include "fake/fake_style_window.h"
#include "velkor6/enums.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

using fake::FakeControl;
using Props = std::map<std::u16string, Variant>;

std::shared_ptr<FakeControl> control(Props props) {
    return std::make_shared<FakeControl>(std::move(props));
}

class LayoutMembers : public testing::Test {
protected:
    fake::FakePlatform p;
    lib l{p.module};
};

TEST_F(LayoutMembers, DigitsOnlyAndButtonAlignmentChangeTheirBitsOnly) {
    constexpr std::uint32_t plainEdit = 0x50010080;
    auto edit = std::make_shared<fake::FakeStyleWindow>(plainEdit);
    p.windows.addControlWindow(100, edit);
    EXPECT_EQ(l.vkrSetNoNumbers(100, false), static_cast<std::int32_t>(plainEdit));
    EXPECT_EQ(edit->style(), plainEdit);
    EXPECT_EQ(l.vkrSetNoNumbers(100, true), static_cast<std::int32_t>(plainEdit));
    EXPECT_EQ(edit->style(), plainEdit | 8192);
    EXPECT_EQ(l.vkrSetNoNumbers(100, false), static_cast<std::int32_t>(plainEdit | 8192));
    EXPECT_EQ(edit->style(), plainEdit);
    EXPECT_EQ(l.vkrSetNoNumbers(999, true), 0) << "no window";

    constexpr std::uint32_t pushButton = 0x50010000;
    auto window = std::make_shared<fake::FakeStyleWindow>(pushButton | BS_CENTER);
    p.windows.addControlWindow(200, window);
    auto button = control({{u"hWnd", std::int32_t{200}}});
    int refreshed = 0;
    button->members[u"Refresh"] = [&](CallKind, std::span<Variant>) -> Variant {
        ++refreshed;
        return {};
    };
    l.vkrAlignText(button, BS_RIGHT);
    EXPECT_EQ(window->style(), pushButton | BS_RIGHT);
    EXPECT_EQ(refreshed, 1);
    l.vkrAlignText(button, BS_TOP);
    l.vkrAlignText(button, BS_LEFT);
    EXPECT_EQ(window->style(), pushButton | BS_TOP | BS_LEFT) << "BS_TOP is never taken away";

    (*button)[u"hWnd"] = std::int32_t{999};
    l.vkrAlignText(button, BS_RIGHT);
    EXPECT_EQ(refreshed, 3) << "no window, no refresh";
    l.vkrAlignText(nullptr, BS_RIGHT);
}

struct Splitter {
    std::shared_ptr<FakeControl> box;
    std::shared_ptr<FakeControl> inner;
};

Splitter splitter(std::int16_t align, float left = 0, float top = 0) {
    return {control({{u"Align", align}, {u"Width", 3000.0f}, {u"Height", 2000.0f}}),
            control({{u"Left", left}, {u"Top", top}, {u"MousePointer", std::int16_t{0}}})};
}

TEST_F(LayoutMembers, SplitterPointerForEveryDockedSide) {
    struct Case {
        std::int16_t align;
        float inX, inY, outX, outY;
        std::int16_t pointer;
    };
    // The grip is 90 twips wide along the inner edge; the control sits 60 in from the box's
    // top-left corner, so the limits move by 60 in its coordinates.
    const Case cases[] = {
        {3, 2850, 0, 2849, 1990, 9}, // left: x >= 3000 - 60 - 90
        {4, 29, 1000, 30, 0, 9},     // right: x < 90 - 60
        {1, 0, 1850, 2990, 1849, 7}, // top: y >= 2000 - 60 - 90
        {2, 1000, 29, 0, 30, 7},     // bottom: y < 90 - 60
    };
    for (const Case& c : cases) {
        auto [box, inner] = splitter(c.align, 60, 60);
        l.vkrCheckMouseMove(inner, box, c.inX, c.inY);
        EXPECT_EQ((*inner)[u"MousePointer"], Variant(c.pointer)) << "Align " << c.align;
        l.vkrCheckMouseMove(inner, box, c.outX, c.outY);
        EXPECT_EQ((*inner)[u"MousePointer"], Variant(std::int16_t{0})) << "Align " << c.align;
    }
    auto [box, inner] = splitter(0);
    l.vkrCheckMouseMove(inner, box, 2999, 1999);
    EXPECT_EQ((*inner)[u"MousePointer"], Variant(std::int16_t{0})) << "not docked";
    l.vkrCheckMouseMove(nullptr, box, 0, 0);
}

TEST_F(LayoutMembers, SplitterDragFollowsTheMouseWhileTheButtonIsDown) {
    auto [left, leftInner] = splitter(3);
    p.input.setDown(1, true);
    l.vkrCheckMouseDown(leftInner, left, 2950, 100);
    EXPECT_EQ((*leftInner)[u"MousePointer"], Variant(std::int16_t{9}));
    l.vkrCheckMouseMove(leftInner, left, 3450, 100);
    EXPECT_EQ((*left)[u"Width"], Variant(3500.0f));
    l.vkrCheckMouseMove(leftInner, left, 3400, 100);
    EXPECT_EQ((*left)[u"Width"], Variant(3450.0f));
    l.vkrCheckMouseMove(leftInner, left, -5000, 100);
    EXPECT_EQ((*left)[u"Width"], Variant(90.0f)) << "never narrower than the grip";
    p.input.setDown(1, false);
    l.vkrCheckMouseMove(leftInner, left, 5000, 100);
    EXPECT_EQ((*left)[u"Width"], Variant(90.0f)) << "the drag ended with the button";

    // Docked at the bottom the control moves with the edge: the grip stays under the mouse.
    auto [bottom, bottomInner] = splitter(2);
    p.input.setDown(1, true);
    l.vkrCheckMouseDown(bottomInner, bottom, 500, 10);
    l.vkrCheckMouseMove(bottomInner, bottom, 500, -490);
    l.vkrCheckMouseMove(bottomInner, bottom, 500, 10 - 100);
    EXPECT_EQ((*bottom)[u"Height"], Variant(2600.0f));

    // A press outside the grip starts nothing.
    auto [top, topInner] = splitter(1);
    l.vkrCheckMouseDown(topInner, top, 500, 10);
    l.vkrCheckMouseMove(topInner, top, 500, 1000);
    EXPECT_EQ((*top)[u"Height"], Variant(2000.0f));
}

// A form whose scale is twips (1) or pixels (3, 15 twips each), converting with ScaleX.
std::shared_ptr<FakeControl> form(std::int16_t scaleMode) {
    auto f = control({{u"ScaleMode", scaleMode}});
    f->members[u"ScaleX"] = [](CallKind, std::span<Variant> a) -> Variant {
        const auto twips = [](const Variant& mode) { return mode.longValue() == 3 ? 15.0 : 1.0; };
        return static_cast<float>(a[0].single() * twips(a[1]) / twips(a[2]));
    };
    return f;
}

TEST_F(LayoutMembers, GridAndListViewColumnsFillTheFreeWidth) {
    std::vector<std::int32_t> widths{1000, 2000, 1500};
    auto grid = control({{u"Cols", std::int32_t{3}},
                         {u"Width", 6000.0f},
                         {u"BorderStyle", std::int16_t{1}},
                         {u"Container", ObjectRef(form(1))}});
    grid->members[u"ColWidth"] = [&](CallKind kind, std::span<Variant> a) -> Variant {
        auto& w = widths.at(static_cast<std::size_t>(a[0].longValue()));
        if (kind == CallKind::PropertyLet)
            w = a[1].longValue();
        return w;
    };
    l.vkrResizeGridCol(grid, 1);
    EXPECT_EQ(widths[1], 6000 - 4 * 15 - 2500);
    l.vkrResizeGridCol(grid, 1, 800);
    EXPECT_EQ(widths[1], 800);
    widths[0] = 7000;
    l.vkrResizeGridCol(grid, 1);
    EXPECT_EQ(widths[1], 800) << "no room left: unchanged";

    // A list view on a form measured in pixels: headers from 1, widths in pixels.
    auto headers = std::make_shared<fake::FakeCollection>();
    for (const float w : {100.0f, 50.0f, 80.0f})
        headers->items.push_back(control({{u"Width", w}}));
    auto headerList = control({{u"Count", std::int32_t{3}}});
    headerList->members[u"Item"] = [&](CallKind, std::span<Variant> a) -> Variant {
        return headers->items.at(static_cast<std::size_t>(a[0].longValue() - 1));
    };
    auto listView = control({{u"ColumnHeaders", ObjectRef(headerList)},
                             {u"Width", 400.0f},
                             {u"BorderStyle", std::int16_t{1}},
                             {u"Container", ObjectRef(form(3))}});
    l.vkrResizeGridCol(listView, 2);
    EXPECT_EQ((*std::static_pointer_cast<FakeControl>(headers->items[1]))[u"Width"],
              Variant(400.0f - 4 - 180));
    l.vkrResizeGridCol(nullptr, 1);
}

} // namespace
} // namespace velkor6
