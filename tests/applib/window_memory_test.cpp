#include "applib/app_fixture.h"
#include "fake/fake_list_view.h"

namespace velkor6::apptest {
namespace {

using Window = fake::FakeWindowManager::Window;

class WindowMemory : public SalesApp {
protected:
    WindowMemory() {
        fp.windows.addMonitor({0, 0, 1920, 1080}, {0, 0, 1920, 1040});
        fp.windows.addWindow(1, Window{0, 0, {100, 50, 500, 350}, 0});
    }
    std::string section(std::string_view name) {
        const std::string text = file(iniPath);
        const std::size_t at = text.find("[" + std::string(name) + "]");
        return at == std::string::npos ? std::string() : text.substr(at);
    }
    void store(std::string text) {
        fp.files.addFile(iniPath, "[Application]\r\nLanguage=2\r\n" + std::move(text));
    }
};

TEST_F(WindowMemory, SavesTheRectangleInTwipsOrOnlyTheState) {
    app().saveWindowPos(1, u"frmMain");
    EXPECT_EQ(section("frmMain"), "[frmMain]\r\nMaximized=no\r\nMinimized=no\r\nLeft=1500\r\n"
                                  "Top=750\r\nWidth=6000\r\nHeight=4500\r\n");

    fp.windows.addWindow(2, Window{winstyle::maximize, 0, {0, 0, 10, 10}, 0});
    app().saveWindowPos(2, u"frmBig");
    EXPECT_EQ(section("frmBig"), "[frmBig]\r\nMaximized=yes\r\nMinimized=no\r\n");

    // A window with a parent is stored relative to it.
    fp.windows.addWindow(3, Window{winstyle::child, 1, {120, 80, 220, 130}, 0});
    app().saveWindowPos(3, u"frmChild");
    EXPECT_NE(section("frmChild").find("Left=300\r\nTop=450\r\nWidth=1500\r\nHeight=750\r\n"),
              std::string::npos);
}

TEST_F(WindowMemory, RestoresInsideTheNearestWorkArea) {
    struct Case {
        std::string stored;
        bool ignoresize;
        fake::FakeWindowManager::Placement expected;
    };
    const Case cases[] = {
        {"Left=1500\r\nTop=750\r\nWidth=6000\r\nHeight=4500\r\n",
         false,
         {1, 100, 50, 400, 300, 28}},
        {"Left=1500\r\nTop=750\r\nWidth=6000\r\nHeight=4500\r\n", true, {1, 100, 50, 400, 300, 29}},
        // Saved on a second monitor that is gone: moved into the work area.
        {"Left=37500\r\nTop=15000\r\nWidth=6000\r\nHeight=4500\r\n",
         false,
         {1, 1520, 740, 400, 300, 28}},
        {"Left=-3000\r\nTop=-150\r\nWidth=6000\r\nHeight=4500\r\n", false, {1, 0, 0, 400, 300, 28}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.stored);
        store("[frmMain]\r\n" + c.stored);
        app().loadWindowPos(1, u"frmMain", c.ignoresize);
        ASSERT_FALSE(fp.windows.placements().empty());
        const auto& p = fp.windows.placements().back();
        EXPECT_EQ(std::tie(p.window, p.x, p.y, p.width, p.height, p.flags),
                  std::tie(c.expected.window, c.expected.x, c.expected.y, c.expected.width,
                           c.expected.height, c.expected.flags));
    }
}

TEST_F(WindowMemory, WithoutARectangleOnlyTheStateIsRestored) {
    store("[frmBig]\r\nMaximized=yes\r\nMinimized=no\r\n");
    app().loadWindowPos(1, u"frmBig");
    EXPECT_TRUE(fp.windows.placements().empty());
    EXPECT_EQ(fp.windows.window(1).shown, showcmd::maximize);
    app().loadWindowPos(1, u"frmNeverSaved");
    EXPECT_TRUE(fp.windows.placements().empty());
}

TEST_F(WindowMemory, ColumnWidthsRoundTrip) {
    const auto view = fake::addListView(fp.windows, 7);
    auto& columns = view->window->columns;
    columns.resize(3);
    const auto widths = [&] {
        std::vector<std::int32_t> w;
        for (const auto& c : columns)
            w.push_back(c.width);
        return w;
    };
    columns[0].width = 120;
    columns[1].width = 80;
    columns[2].width = 200;
    app().saveColWidths(view, u"lvwOrders");
    EXPECT_EQ(section("ColWidths"), "[ColWidths]\r\nlvwOrders=120;80;200\r\n");

    for (auto& c : columns)
        c.width = 0;
    app().loadColWidths(view, u"lvwOrders");
    EXPECT_EQ(widths(), (std::vector<std::int32_t>{120, 80, 200}));

    // Nothing stored changes nothing; an entry that is no number leaves its column alone.
    app().loadColWidths(view, u"lvwOther");
    store("[ColWidths]\r\nlvwOrders=50;x;70;90\r\n");
    app().loadColWidths(view, u"lvwOrders");
    EXPECT_EQ(widths(), (std::vector<std::int32_t>{50, 80, 70}));

    EXPECT_THROW(app().saveColWidths(nullptr, u"lvwOrders"), VbError);
}

} // namespace
} // namespace velkor6::apptest
