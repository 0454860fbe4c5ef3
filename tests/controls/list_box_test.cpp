// Bit-flag list boxes and items found by their ItemData.
#include "fake/fake_control.h"
#include "fake/fake_list_box.h"
#include "fake/fake_platform.h"
#include "lib/lib_members.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

class ListBoxMembers : public testing::Test {
protected:
    void fill(std::initializer_list<std::int32_t> flags) {
        for (const std::int32_t f : flags)
            list->entries.push_back({u"item", f});
    }
    std::vector<bool> selection() const {
        std::vector<bool> out;
        for (const auto& e : list->entries)
            out.push_back(e.selected);
        return out;
    }

    fake::FakePlatform p;
    lib l{p.module};
    std::shared_ptr<fake::FakeListBox> list = std::make_shared<fake::FakeListBox>();
};

TEST_F(ListBoxMembers, FlagSumsSelectTheItemsWhoseBitsLieInTheValue) {
    fill({1, 2, 4, 5});
    list->entries[1].selected = true;
    l.vkrListBoxItemSumLet(list, 5);
    EXPECT_EQ(selection(), (std::vector<bool>{true, false, true, true}));
    EXPECT_EQ(l.vkrListBoxItemSum(list), 5);

    list->entries[1].selected = true;
    EXPECT_EQ(l.vkrListBoxItemSum(list), 7);
    l.vkrListBoxItemSumLet(list, 1);
    EXPECT_EQ(selection(), (std::vector<bool>{true, false, false, false}));
    l.vkrListBoxItemSumLet(list, 0);
    EXPECT_EQ(l.vkrListBoxItemSum(list), 0);

    // Neither Nothing nor a control without a list raises.
    l.vkrListBoxItemSumLet(nullptr, 5);
    EXPECT_EQ(l.vkrListBoxItemSum(nullptr), 0);
    EXPECT_EQ(l.vkrListBoxItemSum(std::make_shared<fake::FakeControl>()), 0);
}

TEST_F(ListBoxMembers, ItemDataOfTheCurrentOrTheLastAddedItem) {
    std::array<Variant, 1> text{Variant(u"a")};
    list->call(u"AddItem", CallKind::Method, text);
    list->call(u"AddItem", CallKind::Method, text);
    l.vkrListBoxDataLet(list, -1, 20); // the item just added
    l.vkrListBoxDataLet(list, 0, 10);
    EXPECT_EQ(list->entries[0].itemData, 10);
    EXPECT_EQ(list->entries[1].itemData, 20);

    EXPECT_EQ(l.vkrListBoxData(list), 0) << "no current item";
    list->listIndex = 1;
    std::array<Variant, 1> args{Variant(ObjectRef(list))};
    std::vector<dispatch::Argument> byName{{&args[0], {}}};
    EXPECT_EQ(dispatch::invoke(dispatch::libMembers(), l, u"vkrListBoxData", CallKind::PropertyGet,
                               byName, l.locale()),
              Variant(std::int32_t{20}));
    EXPECT_EQ(l.vkrListBoxData(list, 0), 10);
    EXPECT_EQ(l.vkrListBoxData(list, 7), 0);
    l.vkrListBoxDataLet(list, 7, 1); // out of range: trapped

    // After Clear nothing was added: the current item is written, and none without one.
    list->call(u"Clear", CallKind::Method, {});
    fill({0, 0});
    l.vkrListBoxDataLet(list, -1, 5);
    EXPECT_EQ(list->entries[0].itemData + list->entries[1].itemData, 0);
    list->listIndex = 1;
    l.vkrListBoxDataLet(list, -1, 5);
    EXPECT_EQ(list->entries[1].itemData, 5);
}

TEST_F(ListBoxMembers, SelectsTheFirstItemWithTheValue) {
    fill({10, 20, 20});
    EXPECT_TRUE(l.vkrSelectListBoxItem(list, 20));
    EXPECT_EQ(list->listIndex, 1);
    EXPECT_FALSE(l.vkrSelectListBoxItem(list, 99));
    EXPECT_EQ(list->listIndex, 1);
    EXPECT_FALSE(l.vkrSelectListBoxItem(nullptr, 10));
}

} // namespace
} // namespace velkor6
