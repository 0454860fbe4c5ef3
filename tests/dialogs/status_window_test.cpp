// The status window's states over the fake dialog host.
#include "fake/fake_platform.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

TEST(StatusWindow, PartsChangeOnlyWhenGiven) {
    fake::FakePlatform fp;
    lib l{fp.module};
    const Variant missing = Variant::missing();
    auto& host = fp.dialogs;

    l.vkrSendMessage(u"Copying", u"Setup", true, std::int32_t{0}, std::int32_t{40});
    ASSERT_TRUE(host.status());
    EXPECT_EQ(host.status()->title, u"Setup");
    EXPECT_EQ(host.status()->message.text, u"{\\qc Copying}");
    EXPECT_EQ(host.status()->message.plainText, u"Copying");
    EXPECT_TRUE(host.status()->counterVisible);
    EXPECT_EQ(host.status()->counterMax, 40);
    EXPECT_EQ(host.eventsServed(), 1);

    // Only the counter moves; the text stays.
    l.vkrSendMessage(missing, missing, missing, std::int32_t{12}, missing, 0, missing, missing,
                     missing, true);
    EXPECT_EQ(host.status()->counterValue, 12);
    EXPECT_EQ(host.status()->message.text, u"{\\qc Copying}");
    EXPECT_EQ(host.eventsServed(), 1); // NoEvents
    // An empty prompt and values that do not convert leave their parts alone.
    l.vkrSendMessage(u"", missing, missing, u"many", u"", 0, u"wide");
    EXPECT_EQ(host.status()->message.text, u"{\\qc Copying}");
    EXPECT_EQ(host.status()->counterValue, 12);
    EXPECT_EQ(host.status()->counterMax, 40);
    EXPECT_EQ(host.status()->clientSize, (PixelSize{320, 120}));

    // Size in twips; the bar sits 60 pixels above the bottom, the message above it.
    l.vkrSendMessage(missing, missing, missing, missing, missing, 4711, u"6000", 3000, 450);
    EXPECT_EQ(host.status()->clientSize, (PixelSize{400, 200}));
    EXPECT_EQ(host.status()->counterRect.top, 140);
    EXPECT_EQ(host.status()->message.rect.top, 30);
    EXPECT_EQ(host.status()->message.rect.height, 140 - 8 - 30);
    EXPECT_EQ(host.status()->owner, 4711);
    EXPECT_TRUE(host.status()->topMost);

    l.vkrHideMessage();
    EXPECT_FALSE(host.statusVisible());
    l.vkrSendMessage(u"Again");
    EXPECT_TRUE(host.statusVisible());
    EXPECT_EQ(host.status()->title, u"Setup");
    EXPECT_EQ(host.statusCreations(), 1);

    l.vkrClearMessage();
    EXPECT_FALSE(host.status());
    l.vkrSendMessage(u"Fresh");
    EXPECT_EQ(host.status()->title, u"velkor6");
    EXPECT_FALSE(host.status()->counterVisible);
    EXPECT_EQ(host.statusCreations(), 2);
}

TEST(StatusWindow, ShowWaitSetsTheMousePointer) {
    fake::FakePlatform fp;
    lib l{fp.module};
    struct Form final : Object {
        Variant pointer;
        std::u16string typeName() const override { return u"Form"; }
        Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
            if (name == u"MousePointer" && kind == CallKind::PropertyLet)
                pointer = args[0];
            return {};
        }
    };
    auto form = std::make_shared<Form>();
    l.vkrShowWaitLet(form, true);
    EXPECT_EQ(form->pointer.integer(), 11);
    l.vkrShowWaitLet(form, false);
    EXPECT_EQ(form->pointer.integer(), 0);
    l.vkrShowWaitLet(nullptr, true); // no object: nothing happens
}

} // namespace
} // namespace velkor6
