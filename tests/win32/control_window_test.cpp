// Real list-view and edit windows of this process, reached through the window manager's
// control windows.
#include "platform/win32/services.h"

#include <gtest/gtest.h>
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on

#include <stdexcept>
#include <string>
#include <vector>

namespace velkor6 {
namespace {

WindowHandle handleOf(HWND w) {
    return static_cast<WindowHandle>(reinterpret_cast<LONG_PTR>(w));
}

// A hidden top-level window holding a report-style list view with three columns.
class ListViewWindow : public testing::Test {
protected:
    void SetUp() override {
        INITCOMMONCONTROLSEX init{sizeof init, ICC_LISTVIEW_CLASSES};
        InitCommonControlsEx(&init);
        frame_ = CreateWindowExW(0, L"STATIC", L"frame", WS_OVERLAPPEDWINDOW, 0, 0, 400, 300,
                                 nullptr, nullptr, nullptr, nullptr);
        list_ = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 380,
                                280, frame_, nullptr, nullptr, nullptr);
        ASSERT_NE(list_, nullptr);
        for (int c = 0; c < 3; ++c) {
            LVCOLUMNW column{};
            column.mask = LVCF_WIDTH;
            column.cx = 60;
            SendMessageW(list_, LVM_INSERTCOLUMNW, c, reinterpret_cast<LPARAM>(&column));
        }
        windows_ = win32::createWindowManager();
        control_ = windows_->controlWindow(handleOf(list_));
        ASSERT_NE(control_, nullptr);
    }
    void TearDown() override { DestroyWindow(frame_); }

    void addItems(const std::vector<std::wstring>& texts, const std::vector<LPARAM>& data) {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            LVITEMW item{};
            item.mask = LVIF_TEXT | LVIF_PARAM;
            item.iItem = static_cast<int>(i);
            item.pszText = const_cast<wchar_t*>(texts[i].c_str());
            item.lParam = data[i];
            SendMessageW(list_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
    }
    LPARAM itemData(int i) {
        LVITEMW item{};
        item.mask = LVIF_PARAM;
        item.iItem = i;
        SendMessageW(list_, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return item.lParam;
    }
    std::vector<std::u16string> column(int subItem) {
        std::vector<std::u16string> texts;
        for (int i = 0; i < control_->itemCount(); ++i)
            texts.push_back(control_->itemText(i, subItem));
        return texts;
    }
    // Sorts by the numbers of the first column, read before the sort: the list is in flux
    // while it sorts.
    bool sortByNumber(bool descending) {
        std::vector<int> numbers;
        for (const auto& text : column(0))
            numbers.push_back(std::stoi(std::string(text.begin(), text.end())));
        return control_->sortItems([&](std::int32_t a, std::int32_t b) {
            const int x = descending ? numbers.at(b) : numbers.at(a);
            const int y = descending ? numbers.at(a) : numbers.at(b);
            return x < y ? 0 : x == y ? 1 : 2;
        });
    }

    HWND frame_ = nullptr;
    HWND list_ = nullptr;
    std::unique_ptr<WindowManager> windows_;
    std::shared_ptr<ControlWindow> control_;
};

TEST_F(ListViewWindow, OnlyWindowsOfThisProcess) {
    EXPECT_EQ(windows_->controlWindow(0), nullptr);
    // The desktop window belongs to the system's own process.
    EXPECT_EQ(windows_->controlWindow(handleOf(GetDesktopWindow())), nullptr);
    const HWND gone =
        CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(gone);
    EXPECT_EQ(windows_->controlWindow(handleOf(gone)), nullptr);
}

TEST_F(ListViewWindow, CellTextsAndSearch) {
    addItems({L"alpha", L"Beta", L"beta", L"gamma"}, {0, 0, 0, 0});
    // Characters of no single code page come and go exactly.
    const std::u16string mixed = u"\u0416\u00E9\u4E2D\U0001F600 x";
    EXPECT_TRUE(control_->setItemText(1, 2, mixed));
    EXPECT_EQ(control_->itemText(1, 2), mixed);
    EXPECT_EQ(control_->itemText(1, 0), u"Beta");
    EXPECT_EQ(control_->itemText(1, 1), u"");
    EXPECT_TRUE(control_->setItemText(0, 0, u"Alpha"));
    EXPECT_EQ(control_->itemText(0, 0), u"Alpha");
    // A text longer than the buffer comes back cut to it.
    EXPECT_TRUE(control_->setItemText(3, 1, std::u16string(5000, u'w')));
    EXPECT_EQ(control_->itemText(3, 1).size(), 4095U);
    EXPECT_EQ(control_->itemText(9, 0), u"");

    // Whole texts without regard to case, from the item after start.
    EXPECT_EQ(control_->findItem(u"BETA", -1), 1);
    EXPECT_EQ(control_->findItem(u"beta", 1), 2);
    EXPECT_EQ(control_->findItem(u"gam", -1), -1);
    EXPECT_EQ(control_->findItem(u"delta", -1), -1);
}

TEST_F(ListViewWindow, StatesColumnsAndStyles) {
    control_->setExtendedStyle(control_->extendedStyle() | LVS_EX_CHECKBOXES);
    EXPECT_EQ(control_->extendedStyle() & LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    addItems({L"a", L"b", L"c"}, {1, 2, 3});
    EXPECT_EQ(control_->itemCount(), 3);

    EXPECT_TRUE(control_->setItemState(-1, lvis::checked, lvis::stateImageMask));
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(control_->itemState(i, lvis::stateImageMask), lvis::checked) << i;
    EXPECT_TRUE(control_->setItemState(1, lvis::unchecked, lvis::stateImageMask));
    EXPECT_EQ(control_->itemState(1, 0xFFFFFFFF) & lvis::stateImageMask, lvis::unchecked);
    EXPECT_EQ(control_->itemState(0, lvis::stateImageMask), lvis::checked);

    EXPECT_EQ(control_->selectedCount(), 0);
    EXPECT_TRUE(control_->setItemState(0, lvis::selected, lvis::selected));
    EXPECT_TRUE(control_->setItemState(2, lvis::selected, lvis::selected));
    EXPECT_EQ(control_->selectedCount(), 2);
    EXPECT_EQ(control_->itemState(2, lvis::selected), lvis::selected);
    EXPECT_TRUE(control_->setItemState(-1, 0, lvis::selected));
    EXPECT_EQ(control_->selectedCount(), 0);
    // The selection bit alone leaves the check marks as they were.
    EXPECT_EQ(control_->itemState(2, lvis::stateImageMask), lvis::checked);

    EXPECT_EQ(control_->columnWidth(1), 60);
    EXPECT_TRUE(control_->setColumnWidth(1, 123));
    EXPECT_EQ(control_->columnWidth(1), 123);
    EXPECT_EQ(control_->columnWidth(0), 60);
    EXPECT_EQ(control_->horizontalScroll(), 0);

    const std::uint32_t before = control_->style();
    EXPECT_EQ(before & LVS_TYPEMASK, static_cast<std::uint32_t>(LVS_REPORT));
    EXPECT_EQ(control_->setStyle(before | LVS_SHOWSELALWAYS), before);
    EXPECT_EQ(control_->style(), before | LVS_SHOWSELALWAYS);
}

TEST_F(ListViewWindow, SortsByTheIndexesBeforeTheSort) {
    // Equal lParams (nobody set them) are replaced for the sort and given back afterwards.
    addItems({L"12", L"2", L"10", L"2"}, {7, 7, 7, 7});
    EXPECT_TRUE(sortByNumber(false));
    EXPECT_EQ(column(0), (std::vector<std::u16string>{u"2", u"2", u"10", u"12"}));
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(itemData(i), 7) << i;
    EXPECT_TRUE(sortByNumber(true));
    EXPECT_EQ(column(0), (std::vector<std::u16string>{u"12", u"10", u"2", u"2"}));

    // Distinct lParams (an object per item) stay with their items.
    SendMessageW(list_, LVM_DELETEALLITEMS, 0, 0);
    addItems({L"30", L"-5", L"100"}, {300, 400, 500});
    EXPECT_TRUE(sortByNumber(false));
    EXPECT_EQ(column(0), (std::vector<std::u16string>{u"-5", u"30", u"100"}));
    EXPECT_EQ(itemData(0), 400);
    EXPECT_EQ(itemData(1), 300);
    EXPECT_EQ(itemData(2), 500);

    // A comparer that fails: its exception comes through, the items keep their own lParams.
    SendMessageW(list_, LVM_DELETEALLITEMS, 0, 0);
    addItems({L"b", L"a", L"c"}, {0, 0, 0});
    EXPECT_THROW(control_->sortItems([](std::int32_t, std::int32_t) -> int {
        throw std::runtime_error("comparer");
    }),
                 std::runtime_error);
    EXPECT_EQ(control_->itemCount(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(itemData(i), 0) << i;
}

TEST_F(ListViewWindow, OtherControlsAnswerNeutrally) {
    const HWND edit = CreateWindowExW(0, L"EDIT", L"text", WS_CHILD, 0, 0, 50, 20, frame_, nullptr,
                                      nullptr, nullptr);
    const auto control = windows_->controlWindow(handleOf(edit));
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(control->findItem(u"text", -1), -1);
    EXPECT_EQ(control->itemText(0, 0), u"");
    EXPECT_EQ(control->itemCount(), 0);
    EXPECT_FALSE(control->setItemText(0, 0, u"x"));
    EXPECT_FALSE(control->sortItems([](std::int32_t, std::int32_t) { return 0; }));

    const std::uint32_t plain = control->style();
    EXPECT_EQ(plain & ES_NUMBER, 0U);
    EXPECT_EQ(control->setStyle(plain | ES_NUMBER), plain);
    EXPECT_EQ(control->setStyle(plain), plain | ES_NUMBER);
    EXPECT_EQ(control->style(), plain);
}

} // namespace
} // namespace velkor6
