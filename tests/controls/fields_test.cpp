// Tab strips switching containers, option groups, text selection, focus and control arrays.
#include "fake/fake_control.h"
#include "fake/fake_platform.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

using fake::FakeControl;
using Props = std::map<std::u16string, Variant>;

std::shared_ptr<FakeControl> control(Props props) {
    return std::make_shared<FakeControl>(std::move(props));
}

// A control array of new controls with the given properties, at the given indexes.
std::shared_ptr<fake::FakeControlArray> controlArray(std::initializer_list<std::int32_t> indexes,
                                                     const Props& props) {
    auto array = std::make_shared<fake::FakeControlArray>();
    for (const std::int32_t i : indexes)
        array->elements[i] = control(props);
    return array;
}

bool property(const std::shared_ptr<fake::FakeControlArray>& array, std::int32_t i,
              const std::u16string& name) {
    return (*std::static_pointer_cast<FakeControl>(array->elements.at(i)))[name].boolean();
}

class FieldMembers : public testing::Test {
protected:
    fake::FakePlatform p;
    lib l{p.module};
};

TEST_F(FieldMembers, TabClickShowsOnlyTheSelectedTabsContainer) {
    auto containers = controlArray({1, 2, 3}, {{u"Visible", true}});
    auto form = control({{u"fraTab", ObjectRef(containers)}});
    auto selected = control({{u"Index", std::int32_t{2}}});
    auto strip = control({{u"Tabs", ObjectRef(control({{u"Count", std::int32_t{3}}}))},
                          {u"SelectedItem", ObjectRef(selected)},
                          {u"Parent", ObjectRef(form)}});
    l.vkrOnTabClick(strip, u"fraTab");
    EXPECT_FALSE(property(containers, 1, u"Visible"));
    EXPECT_TRUE(property(containers, 2, u"Visible"));
    EXPECT_FALSE(property(containers, 3, u"Visible"));

    // A hole in the array is passed over; the other containers still switch.
    containers->elements.erase(2);
    (*selected)[u"Index"] = std::int32_t{3};
    l.vkrOnTabClick(strip, u"fraTab");
    EXPECT_FALSE(property(containers, 1, u"Visible"));
    EXPECT_TRUE(property(containers, 3, u"Visible"));

    // No selected tab: every container is hidden. An unknown array changes nothing.
    (*strip)[u"SelectedItem"] = Variant::nothing();
    l.vkrOnTabClick(strip, u"fraTab");
    EXPECT_FALSE(property(containers, 3, u"Visible"));
    l.vkrOnTabClick(strip, u"fraOther");
    l.vkrOnTabClick(nullptr, u"fraTab");
}

TEST_F(FieldMembers, OptionIndexIsTheFirstSetElementOrMinusOne) {
    auto options = controlArray({0, 2, 5}, {{u"Value", false}});
    auto form = control({{u"optKind", ObjectRef(options)}});
    EXPECT_EQ(l.vkrGetOptionIndex(form, u"optKind"), -1);
    (*std::static_pointer_cast<FakeControl>(options->elements[5]))[u"Value"] = true;
    EXPECT_EQ(l.vkrGetOptionIndex(form, u"optKind"), 5);
    (*std::static_pointer_cast<FakeControl>(options->elements[2]))[u"Value"] = true;
    EXPECT_EQ(l.vkrGetOptionIndex(form, u"optKind"), 2);
    EXPECT_EQ(l.vkrGetOptionIndex(form, u"optNone"), -1);
    EXPECT_EQ(l.vkrGetOptionIndex(nullptr, u"optKind"), -1);
}

TEST_F(FieldMembers, SelectingTheWholeTextAndShowingTheTip) {
    auto field = control({{u"Text", u"Hello"},
                          {u"SelStart", std::int32_t{2}},
                          {u"SelLength", std::int32_t{0}},
                          {u"ToolTipText", u"Your name"}});
    EXPECT_FALSE(l.vkrIsSelected(field));
    auto panel = control({{u"Text", u""}});
    l.vkrSelectField(field, false, panel);
    EXPECT_EQ((*field)[u"SelStart"], Variant(std::int32_t{0}));
    EXPECT_EQ((*field)[u"SelLength"], Variant(std::int32_t{5}));
    EXPECT_TRUE(l.vkrIsSelected(field));
    EXPECT_EQ((*panel)[u"Text"], Variant(u"Your name"));

    // A selection the user made stays unless the caller asks to change it.
    (*field)[u"SelStart"] = std::int32_t{1};
    (*field)[u"SelLength"] = std::int32_t{2};
    l.vkrSelectField(field);
    EXPECT_EQ((*field)[u"SelLength"], Variant(std::int32_t{2}));
    l.vkrSelectField(field, true);
    EXPECT_TRUE(l.vkrIsSelected(field));

    // A check box has no selection but shows its tip; an empty text box counts as selected.
    l.vkrSelectField(control({{u"ToolTipText", u"Agree"}}), false, panel);
    EXPECT_EQ((*panel)[u"Text"], Variant(u"Agree"));
    EXPECT_TRUE(l.vkrIsSelected(control(
        {{u"Text", u""}, {u"SelStart", std::int32_t{0}}, {u"SelLength", std::int32_t{0}}})));
    EXPECT_FALSE(l.vkrIsSelected(control({})));
}

TEST_F(FieldMembers, ControlArraysAndContainers) {
    auto element = control({{u"Name", u"txtField"}, {u"Index", std::int32_t{2}}});
    auto single = control({{u"Name", u"cmdOK"}});
    auto controls = std::make_shared<fake::FakeCollection>();
    controls->items = {single, element};
    auto form = control({{u"Controls", ObjectRef(controls)}});

    EXPECT_TRUE(l.vkrHasIndex(element));
    EXPECT_FALSE(l.vkrHasIndex(single));
    EXPECT_FALSE(l.vkrHasIndex(nullptr));
    EXPECT_TRUE(l.vkrIsControl(form, u"CMDOK"));
    EXPECT_TRUE(l.vkrIsControl(form, u"txtField", 2));
    EXPECT_FALSE(l.vkrIsControl(form, u"txtField", 1));
    EXPECT_FALSE(l.vkrIsControl(form, u"cmdOK", 0)) << "not an array";
    EXPECT_FALSE(l.vkrIsControl(form, u"lstNone"));
    EXPECT_FALSE(l.vkrIsControl(element, u"txtField"));

    auto frame = control({});
    EXPECT_EQ(l.vkrGetContainer(control({{u"Container", ObjectRef(frame)}})), frame);
    EXPECT_EQ(l.vkrGetContainer(
                  control({{u"Container", Variant::nothing()}, {u"Parent", ObjectRef(form)}})),
              form);
    EXPECT_EQ(l.vkrGetContainer(control({{u"Parent", ObjectRef(form)}})), form);
    EXPECT_EQ(l.vkrGetContainer(single), nullptr);
}

TEST_F(FieldMembers, FocusGoesOnlyToVisibleEnabledControls) {
    int focused = 0;
    const auto field = [&](bool visible, bool enabled) {
        auto c = control({{u"Visible", visible}, {u"Enabled", enabled}});
        c->members[u"SetFocus"] = [&](CallKind, std::span<Variant>) -> Variant {
            ++focused;
            return {};
        };
        return c;
    };
    l.vkrSetFocus(field(false, true));
    l.vkrSetFocus(field(true, false));
    l.vkrSetFocus(nullptr);
    EXPECT_EQ(focused, 0);
    l.vkrSetFocus(field(true, true));
    EXPECT_EQ(focused, 1);

    // A form not shown yet refuses the focus; the error stays inside.
    auto refusing = control({{u"Visible", true}, {u"Enabled", true}});
    refusing->members[u"SetFocus"] = [](CallKind, std::span<Variant>) -> Variant {
        throw VbError(vberr::invalidCall);
    };
    EXPECT_NO_THROW(l.vkrSetFocus(refusing));
}

} // namespace
} // namespace velkor6
