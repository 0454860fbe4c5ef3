// The list view helpers over a fake list view whose control members and window see one list.
#include "controls/list_headers.h"
#include "controls/list_sort.h"
#include "fake/fake_list_view.h"
#include "fake/fake_platform.h"
#include "lib/lib_members.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>
#include <map>

namespace velkor6 {
namespace {

using Strings = std::vector<std::u16string>;
using controls::ColumnKind;

// An object answering the properties it was given; a method call is counted under its name.
class Bag final : public Object {
public:
    std::u16string typeName() const override { return u"Object"; }
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        const std::u16string key(name);
        if (kind == CallKind::Method && !properties.count(key)) {
            ++calls[key];
            return {};
        }
        if (kind == CallKind::PropertyLet) {
            properties[key] = args.back();
            log.push_back(key);
        }
        return properties.at(key);
    }
    std::map<std::u16string, Variant> properties;
    std::map<std::u16string, int> calls;
    std::vector<std::u16string> log;
};

class ListViewHelpers : public ::testing::Test {
protected:
    ListViewHelpers() {
        view = fake::addListView(fp.windows, 7);
        for (const char16_t* name : {u"Name", u"Amount", u"Date"})
            view->window->columns.push_back({name, u"", 100, 0});
    }
    std::uint32_t state(std::size_t i) const { return view->window->items.at(i).state; }

    fake::FakePlatform fp;
    lib l{fp.module};
    std::shared_ptr<fake::FakeListView> view;
};

TEST_F(ListViewHelpers, SortsByTheTypeOfTheFirstFilledCell) {
    view->add({u"e", u"", u"12/25/2023"});
    view->add({u"b", u"12", u"3/1/2024"});
    view->add({u"A", u"2", u"1/15/2024"});
    view->add({u"c", u"10", u""});
    view->add({u"d", u"-1", u"2/1/2024"});

    // Numbers, not texts: "12" decides, an empty cell counts as 0.
    l.vkrSortListView(view, 1);
    EXPECT_EQ(view->texts(1), (Strings{u"-1", u"", u"2", u"10", u"12"}));
    EXPECT_FALSE(view->sorted);
    EXPECT_EQ(std::tie(view->sortKey, view->sortOrder), std::tuple(1, 0));
    EXPECT_EQ(fp.module->listSort().column, 1);
    EXPECT_FALSE(fp.module->listSort().descending);
    EXPECT_EQ(view->mousePointers, (std::vector<std::int16_t>{11, 0}));
    EXPECT_EQ(view->window->textReads, 5); // each cell once, not once per comparison

    l.vkrSortListView(view, 1);
    EXPECT_EQ(view->texts(1), (Strings{u"12", u"10", u"2", u"", u"-1"}));
    EXPECT_EQ(view->sortOrder, 1);
    EXPECT_TRUE(fp.module->listSort().descending);

    // Another column starts ascending; dates by their value, an empty date first.
    l.vkrSortListView(view, 2);
    EXPECT_EQ(view->texts(2),
              (Strings{u"", u"12/25/2023", u"1/15/2024", u"2/1/2024", u"3/1/2024"}));
    EXPECT_EQ(std::tie(view->sortKey, view->sortOrder), std::tuple(2, 0));
    EXPECT_EQ(view->window->sorts, 3);

    // Text is the control's own sort.
    l.vkrSortListView(view, 0);
    EXPECT_TRUE(view->sorted);
    EXPECT_EQ(view->window->sorts, 3);
    EXPECT_EQ(view->texts(), (Strings{u"A", u"b", u"c", u"d", u"e"}));
    l.vkrSortListView(view, 0);
    EXPECT_EQ(view->texts(), (Strings{u"e", u"d", u"c", u"b", u"A"}));

    // A cell that is no number sorts as 0; once it comes first, it makes the column text.
    view->window->items.clear();
    view->sorted = false;
    for (const char16_t* amount : {u"3", u"n/a", u"2"})
        view->add({u"x", amount});
    l.vkrSortListView(view, 1);
    EXPECT_EQ(view->texts(1), (Strings{u"n/a", u"2", u"3"}));
    EXPECT_FALSE(view->sorted);
    l.vkrSortListView(view, 1);
    EXPECT_EQ(view->texts(1), (Strings{u"n/a", u"3", u"2"})); // descending text
    EXPECT_TRUE(view->sorted);

    // The hourglass goes again when the sort fails half-way.
    view->mousePointers.clear();
    view->failOn = u"SortOrder";
    EXPECT_NO_THROW(l.vkrSortListView(view, 1));
    EXPECT_EQ(view->mousePointers, (std::vector<std::int16_t>{11, 0}));
    EXPECT_NO_THROW(l.vkrSortListView(nullptr, 1));
}

TEST_F(ListViewHelpers, SortKeysAndTheComparersScale) {
    const Locale& loc = Locale::englishUS();
    EXPECT_EQ(controls::sortKey(u"2.5", ColumnKind::Number, loc), 2);
    EXPECT_EQ(controls::sortKey(u"3.5", ColumnKind::Number, loc), 4);
    EXPECT_EQ(controls::sortKey(u"1e12", ColumnKind::Number, loc), 0); // beyond a Long
    EXPECT_EQ(controls::sortKey(u"x", ColumnKind::Date, loc), 0);
    EXPECT_EQ(controls::sortKey(u"1/2/1900", ColumnKind::Date, loc), 3);
    EXPECT_EQ(controls::compareKeys(1, 2, false), 0);
    EXPECT_EQ(controls::compareKeys(2, 2, false), 1);
    EXPECT_EQ(controls::compareKeys(3, 2, false), 2);
    EXPECT_EQ(controls::compareKeys(1, 2, true), 2);
    EXPECT_EQ(controls::compareKeys(3, 2, true), 0);

    // Only the first filled cell counts: a later number does not make a text column numeric.
    view->add({u"x", u"", u"abc"});
    view->add({u"y", u"", u"5"});
    EXPECT_EQ(controls::columnKind(controls::ListView(view, &fp.windows, loc), 2),
              ColumnKind::Text);
    EXPECT_EQ(controls::columnKind(controls::ListView(view, &fp.windows, loc), 1),
              ColumnKind::Text);
}

TEST_F(ListViewHelpers, HeadersFromASpec) {
    EXPECT_EQ(controls::parseHeaders(u"<Name|2000|name ;>Amount|1200;^State;Plain|1|k|z"),
              (std::vector<controls::HeaderSpec>{{u"Name", 0, u"2000", u"name"},
                                                 {u"Amount", 1, u"1200", std::nullopt},
                                                 {u"State", 2, std::nullopt, std::nullopt},
                                                 {u"Plain", 0, u"1", std::nullopt}}));

    view->add({u"kept"});
    l.vkrSetListViewHeaders(view, u"<Name|2000|name;>Amount|1200;^State");
    const auto& c = view->window->columns;
    ASSERT_EQ(c.size(), 3u);
    EXPECT_EQ(std::tie(c[0].text, c[0].width, c[0].key, c[0].alignment),
              std::tuple(u"Name", 2000 / 15, u"name", 0));
    EXPECT_EQ(std::tie(c[1].text, c[1].width, c[1].key, c[1].alignment),
              std::tuple(u"Amount", 1200 / 15, u"", 1));
    EXPECT_EQ(std::tie(c[2].text, c[2].width, c[2].alignment), std::tuple(u"State", 96, 2));
    EXPECT_EQ(view->window->items.size(), 1u);

    // A width that is no number drops its column only; the next one takes its place.
    l.vkrSetListViewHeaders(view, u"A|wide|a;B|300;C", true);
    ASSERT_EQ(c.size(), 2u);
    EXPECT_EQ(std::tie(c[0].text, c[0].width), std::tuple(u"B", 20));
    EXPECT_EQ(c[1].text, u"C");
    EXPECT_TRUE(view->window->items.empty());

    l.vkrSetListViewHeaders(view, u"");
    ASSERT_EQ(c.size(), 1u);
    EXPECT_EQ(c[0].text, u"");
}

TEST_F(ListViewHelpers, CheckAndSelectionStateBits) {
    view->add({u"one"});
    view->add({u"two"});
    view->add({u"three"});
    auto& changes = view->window->stateChanges;

    l.vkrListCheckAllItemsLet(view, true);
    ASSERT_EQ(changes.size(), 1u);
    EXPECT_EQ(std::tie(changes[0].item, changes[0].state, changes[0].mask),
              std::tuple(-1, 8192u, 61440u));
    EXPECT_EQ(l.vkrListCheckedItems(view), 3);

    l.vkrListItemCheckedLet(view, Variant(view->item(1)), false);
    EXPECT_EQ(state(1), 4096u);
    EXPECT_FALSE(l.vkrListItemChecked(view, Variant(std::int32_t{1})));
    EXPECT_TRUE(l.vkrListItemChecked(view, Variant(std::int16_t{2})));
    EXPECT_EQ(l.vkrListCheckedItems(view), 2);
    // State image 3 has the checked bit but is no state image 2.
    view->window->items[0].state = 0x3000;
    EXPECT_TRUE(l.vkrListItemChecked(view, Variant(0.0)));
    EXPECT_EQ(l.vkrListCheckedItems(view), 1);

    // Null, an unknown item and a negative number change nothing: -1 would be every item.
    const std::size_t before = changes.size();
    l.vkrListItemCheckedLet(view, Variant::null(), true);
    l.vkrListItemSelectedLet(view, Variant(std::int32_t{-1}), true);
    l.vkrListItemSelectedLet(view, Variant(u"nowhere"), true);
    EXPECT_EQ(changes.size(), before);
    EXPECT_FALSE(l.vkrListItemChecked(view, Variant::null()));

    l.vkrListItemSelectedLet(view, Variant(view->item(2)), true);
    EXPECT_EQ(std::tie(changes.back().item, changes.back().state, changes.back().mask),
              std::tuple(2, 2u, 2u));
    EXPECT_TRUE(l.vkrListItemSelected(view, Variant(std::int32_t{2})));
    EXPECT_FALSE(l.vkrListItemSelected(view, Variant(std::int32_t{1})));
    EXPECT_EQ(l.vkrSelItemCount(view), 1);
    EXPECT_EQ(l.vkrListSelectedItems(view), 1);
    l.vkrListSelectItems(view, true);
    EXPECT_EQ(l.vkrSelItemCount(view), 3);
    l.vkrListSelectItems(view, false);
    EXPECT_EQ(l.vkrListSelectedItems(view), 0);

    l.vkrListItemTextLet(view, Variant(std::int32_t{1}), 2, u"sub");
    EXPECT_EQ(l.vkrListItemText(view, Variant(view->item(1)), 2), u"sub");
    EXPECT_EQ(l.vkrListItemText(view, Variant(std::int32_t{1})), u"two");
    view->window->items[0].cells[0] = std::u16string(5000, u'x');
    EXPECT_EQ(l.vkrListItemText(view, Variant(std::int32_t{0})).size(), 4095u);
}

TEST_F(ListViewHelpers, ItemIndexSortedUnsortedNullAndNumber) {
    view->add({u"Pear"});
    view->add({u"apple"});
    view->add({u"Apple"});
    const ObjectRef third = view->item(2);
    EXPECT_EQ(l.vkrListItemIndex(view, Variant(third)), 2);
    EXPECT_EQ(l.vkrListItemIndex(view, Variant(u"Pear")), -1); // a text has no Index
    EXPECT_EQ(l.vkrListItemIndex(view, Variant::null()), -1);
    EXPECT_EQ(l.vkrListItemIndex(view, Variant(std::int32_t{1})), -1);

    // Sorted: found by text through the window, the first of equal texts.
    view->sorted = true;
    EXPECT_EQ(l.vkrListItemIndex(view, Variant(third)), 1);
    EXPECT_EQ(l.vkrListItemIndex(view, Variant(u"PEAR")), 0);
    EXPECT_EQ(l.vkrListItemIndex(view, Variant(u"Plum")), -1);
    const auto windowless = std::make_shared<fake::FakeListView>(view->window, 99);
    windowless->sorted = true;
    EXPECT_EQ(l.vkrListItemIndex(windowless, Variant(u"Pear")), -1);
    EXPECT_EQ(l.vkrListItemIndex(nullptr, Variant(third)), -1);

    // The selected item: Nothing without one; forced, it is highlighted too.
    view->sorted = false;
    EXPECT_FALSE(l.vkrHasSelectedItem(view));
    EXPECT_EQ(l.vkrSelectedItem(view), nullptr);
    view->window->items[1].state = 1; // focused, not highlighted
    EXPECT_TRUE(l.vkrHasSelectedItem(view));
    const ObjectRef selected = l.vkrSelectedItem(view);
    ASSERT_NE(selected, nullptr);
    EXPECT_EQ(selected->call(u"Text", CallKind::PropertyGet, {}), Variant(u"apple"));
    EXPECT_EQ(state(1), 1u);
    l.vkrSelectedItem(view, true);
    EXPECT_EQ(state(1), 3u);
}

class KeystrokeSearch : public ListViewHelpers {
protected:
    KeystrokeSearch() { fp.clock.setSecondsSinceMidnight(36000); }
    // Types a key `after` seconds after the last one; the selected texts afterwards.
    Strings type(char16_t key, double after = 0.2, bool deselect = true) {
        fp.clock.advance(after);
        std::int16_t ascii = static_cast<std::int16_t>(key);
        found = l.vkrSearchListItem(view, ascii, deselect);
        keyLeft = ascii;
        Strings selected;
        for (const auto& i : view->window->items) {
            if ((i.state & 2u) != 0)
                selected.push_back(i.cells[0]);
        }
        return selected;
    }
    void fill(std::initializer_list<Strings> rows) {
        view->window->items.clear();
        for (const Strings& r : rows)
            view->add(r);
    }
    bool found = false;
    std::int16_t keyLeft = 0;
};

TEST_F(KeystrokeSearch, LettersTypedWithinASecondNarrowTheSearch) {
    fill({{u"10 Apples", u"Spain"},
          {u"Banana 2", u"Peru"},
          {u"Brie 3", u"France"},
          {u"Cheddar 4", u"England"}});
    EXPECT_EQ(type(u'b', 5), Strings{u"Banana 2"});
    EXPECT_TRUE(found);
    EXPECT_EQ(keyLeft, 0);
    EXPECT_EQ(type(u'r', 1.0), Strings{u"Brie 3"}); // BR: a second is not yet a pause
    EXPECT_EQ(view->ensuredVisible, view->window->items[2].id);
    EXPECT_EQ(type(u'c', 1.5), Strings{u"Cheddar 4"}); // a pause restarts: C, not BRC
    // Digits: the number value decides as well as the pattern.
    EXPECT_EQ(type(u'3', 2), Strings{u"Brie 3"});
    // No text starts with F: a sub-item does.
    EXPECT_EQ(type(u'f', 2), Strings{u"Brie 3"});
    EXPECT_EQ(type(u'r', 0.1), Strings{u"Brie 3"}); // FR
    // Nothing starts with D: contained in a text.
    EXPECT_EQ(type(u'd', 2), Strings{u"Cheddar 4"});
    // Nothing anywhere: false, the key and the selection stay.
    EXPECT_EQ(type(u'q', 2), Strings{u"Cheddar 4"});
    EXPECT_FALSE(found);
    EXPECT_EQ(keyLeft, u'q');
    // Without deselecting first the earlier selection stays.
    EXPECT_EQ(type(u'b', 2, false), (Strings{u"Banana 2", u"Cheddar 4"}));
}

TEST_F(KeystrokeSearch, ATextWithoutNumberMatchesAnyLetters) {
    fill({{u"10 Apples"}, {u"Gouda"}, {u"Banana 2"}});
    // vkrVal of "B*" and of "Gouda" are both 0: Gouda comes first.
    EXPECT_EQ(type(u'b', 5), Strings{u"Gouda"});
    EXPECT_EQ(type(u'1', 5), Strings{u"10 Apples"});
}

TEST_F(KeystrokeSearch, SpaceTogglesOrSelectsTheSelectedItem) {
    fill({{u"one"}, {u"two"}});
    EXPECT_EQ(type(u' '), Strings{});
    EXPECT_EQ(keyLeft, 0);
    view->window->items[1].state = 1; // focused
    EXPECT_EQ(type(u' '), Strings{u"two"});
    EXPECT_EQ(type(u' '), Strings{u"two"});
    EXPECT_FALSE(found);
    view->multiSelect = true;
    EXPECT_EQ(type(u' '), Strings{});
    EXPECT_EQ(type(u' '), Strings{u"two"});
    // Space is no search key: "o" after it starts a search of its own.
    EXPECT_EQ(type(u'o', 0.1), Strings{u"one"});
}

TEST_F(ListViewHelpers, ColumnUnderXWithScroll) {
    view->window->columns[1].width = 50;
    view->window->columns[2].width = 80;
    const auto at = [&](std::int32_t x) { return l.vkrGetListViewCol(view, x); };
    EXPECT_EQ((std::vector<int>{at(0), at(99), at(100), at(149), at(150), at(229), at(230)}),
              (std::vector<int>{0, 0, 1, 1, 2, 2, 0}));
    view->window->scroll = 120;
    EXPECT_EQ((std::vector<int>{at(-30), at(0), at(29), at(30), at(109), at(110)}),
              (std::vector<int>{0, 1, 1, 2, 2, 0}));
    EXPECT_EQ(l.vkrGetListViewCol(std::make_shared<fake::FakeListView>(view->window, 99), 150), 0);
}

TEST_F(ListViewHelpers, StyleIsAddedOnlyForTrueItself) {
    auto& style = view->window->extendedStyleBits;
    style = 0x1;
    l.vkrSetListViewStyle(7, 0x24);
    EXPECT_EQ(style, 0x25u);
    l.vkrSetListViewStyle(7, 0x20, Variant(std::int32_t{1}));
    EXPECT_EQ(style, 0x5u);
    l.vkrSetListViewStyle(7, 0x20, Variant(std::int16_t{-1}));
    EXPECT_EQ(style, 0x25u);
    l.vkrSetListViewStyle(7, 0x4, false);
    EXPECT_EQ(style, 0x21u);
    EXPECT_NO_THROW(l.vkrSetListViewStyle(8, 0x4));
}

TEST_F(ListViewHelpers, TooltipShowsTheCellUnderTheMouse) {
    const auto form = std::make_shared<Bag>();
    const auto tip = std::make_shared<Bag>();
    form->properties[u"p_cTooltip"] = ObjectRef(tip);
    view->parent = form;
    view->add({u"Brie", u"3", u"1/1/2024"});
    view->add({u"Gouda", u"5"});

    l.vkrShowListViewTooltip(view, 100, 10, Variant(u"none"));
    EXPECT_EQ(tip->properties[u"ToolText"], Variant(u"Brie"));
    l.vkrShowListViewTooltip(view, 1600, 100, Variant(u"none"));
    EXPECT_EQ(tip->properties[u"ToolText"], Variant(u"3"));
    EXPECT_EQ(tip->calls[u"Reset"], 1); // the same item
    l.vkrShowListViewTooltip(view, 3100, 300, Variant(u"none"));
    EXPECT_EQ(tip->properties[u"ToolText"], Variant(u""));
    EXPECT_EQ(tip->calls[u"Reset"], 2);
    l.vkrShowListViewTooltip(view, 100, 5000, Variant(u"none"));
    EXPECT_EQ(tip->properties[u"ToolText"], Variant(u"none"));
    l.vkrShowListViewTooltip(view, 4500, 10); // right of the last column
    EXPECT_EQ(tip->properties[u"ToolText"], Variant(u""));
    EXPECT_EQ(tip->calls[u"Reset"], 4);

    view->parent = nullptr;
    EXPECT_NO_THROW(l.vkrShowListViewTooltip(view, 100, 10));
}

TEST_F(ListViewHelpers, CopyMakesColumnsAndItemsAnew) {
    view->add({u"Brie", u"3", u"France"});
    view->add({u"Gouda", u"5", u"Holland"});
    view->window->items[1].icon = Variant(std::int32_t{2});
    view->window->columns[1].alignment = 1;
    view->icons = Variant(ObjectRef(std::make_shared<Bag>()));
    const auto target = fake::addListView(fp.windows, 8);
    target->window->columns.push_back({u"Old", u"", 10, 0});
    target->add({u"old"});

    l.vkrCopyListView(view, target);
    EXPECT_EQ(target->texts(), (Strings{u"Brie", u"Gouda"}));
    EXPECT_EQ(target->texts(2), (Strings{u"France", u"Holland"}));
    ASSERT_EQ(target->window->columns.size(), 3u);
    EXPECT_EQ(std::tie(target->window->columns[1].text, target->window->columns[1].width,
                       target->window->columns[1].alignment),
              std::tuple(u"Amount", 100, 1));
    EXPECT_EQ(target->window->items[1].icon, Variant(std::int32_t{2}));
    EXPECT_TRUE(target->window->items[0].icon.isEmpty());
    EXPECT_EQ(target->icons, view->icons);
}

TEST_F(ListViewHelpers, RowsWriteKeyAsciiBackAndTakeAnyBAdd) {
    view->add({u"Brie"});
    fp.clock.setSecondsSinceMidnight(100);
    const auto call = [&](std::u16string_view name, std::vector<Variant>& values,
                          CallKind kind = CallKind::Method) {
        std::vector<dispatch::Argument> args;
        for (Variant& v : values)
            args.push_back({&v, u""});
        return dispatch::invoke(dispatch::libMembers(), l, name, kind, args, l.locale());
    };
    std::vector<Variant> search{Variant(ObjectRef(view)), Variant(std::int16_t{u'b'})};
    EXPECT_EQ(call(u"vkrSearchListItem", search), Variant(true));
    EXPECT_EQ(search[1], Variant(std::int16_t{0}));

    std::vector<Variant> style{Variant(std::int32_t{7}), Variant(std::int32_t{4}),
                               Variant(std::int32_t{1})};
    view->window->extendedStyleBits = 5;
    call(u"vkrSetListViewStyle", style);
    EXPECT_EQ(view->window->extendedStyleBits, 1u);
    style.pop_back();
    call(u"vkrSetListViewStyle", style);
    EXPECT_EQ(view->window->extendedStyleBits, 5u);

    std::vector<Variant> check{Variant(ObjectRef(view)), Variant(true)};
    call(u"vkrListCheckAllItems", check, CallKind::PropertyLet);
    EXPECT_EQ(state(0) & 0xF000u, 0x2000u);
    std::vector<Variant> selected{Variant(ObjectRef(view))};
    EXPECT_EQ(
        call(u"vkrSelectedItem", selected).object()->call(u"Index", CallKind::PropertyGet, {}),
        Variant(std::int32_t{1}));
    std::vector<Variant> callback{Variant(std::int32_t{4242})};
    EXPECT_EQ(call(u"vkrLVWCallback", callback), Variant(std::int32_t{4242}));
}

} // namespace
} // namespace velkor6
