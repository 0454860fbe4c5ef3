// The message boxes over the fake dialog host: button sets, results, keys and layout.
#include "dialogs/message_buttons.h"
#include "dialogs/rtf_text.h"
#include "fake/fake_platform.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

using Host = fake::FakeDialogHost;
using Kind = DialogEvent::Kind;

class MessageBoxes : public ::testing::Test {
protected:
    fake::FakePlatform fp;
    lib l{fp.module};

    std::vector<std::u16string> captions(const DialogForm& form) {
        std::vector<std::u16string> c;
        for (const DialogButton& b : form.buttons)
            c.push_back(b.caption);
        return c;
    }
};

TEST_F(MessageBoxes, EveryStyleShowsItsSetAndEscPressesItsCancelButton) {
    struct Case {
        std::int32_t style;
        std::vector<std::u16string> captions;
        std::vector<std::int32_t> results;
        std::int32_t onEsc;
    };
    const std::vector<Case> cases{
        {0, {u"OK"}, {1}, 1},
        {1, {u"OK", u"Cancel"}, {1, 2}, 2},
        {2, {u"&Abort", u"&Retry", u"&Ignore"}, {3, 4, 5}, 5},
        {3, {u"&Yes", u"&No", u"&Cancel"}, {6, 7, 2}, 2},
        {4, {u"&Yes", u"&No"}, {6, 7}, 7},
        {5, {u"&Retry", u"&Cancel"}, {4, 2}, 2},
        {6, {u"&Yes", u"&No"}, {6, 7}, 7}, // bit 4 is tested before the three-button sets
        {7, {u"&Retry", u"&Cancel"}, {4, 2}, 2},
    };
    fp.module->setCurrentLanguage(2);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.style);
        for (std::size_t i = 0; i < c.results.size(); ++i) {
            fp.dialogs.answer(Host::button(static_cast<std::int32_t>(i)));
            EXPECT_EQ(l.vkrMsgBox(u"p", u"d", c.style), c.results[i]);
        }
        EXPECT_EQ(l.vkrMsgBox(u"p", u"d", c.style), c.onEsc); // no script: Esc
        const DialogForm& form = fp.dialogs.forms().back();
        EXPECT_EQ(captions(form), c.captions);
    }
    fp.module->setCurrentLanguage(1);
    l.vkrMsgBox(u"p", u"d", 3);
    EXPECT_EQ(captions(fp.dialogs.forms().back()),
              (std::vector<std::u16string>{u"&Ja", u"&Nein", u"&Abbrechen"}));
}

TEST_F(MessageBoxes, TagsMapToResults) {
    const std::vector<std::pair<std::u16string_view, std::int32_t>> tags{
        {u"ok", 1},    {u"cmdOK", 1},  {u"cancel", 2}, {u"cmdCancel", 2}, {u"abort", 3},
        {u"retry", 4}, {u"ignore", 5}, {u"yes", 6},    {u"no", 7},        {u"other", 2}};
    for (const auto& [tag, result] : tags)
        EXPECT_EQ(dialogs::tagResult(tag), result) << std::string(tag.begin(), tag.end());
}

TEST_F(MessageBoxes, TheLastMatchingDefaultStyleWinsWithinTheShownButtons) {
    // Rows: style 0, 256, 512, 768; columns: 1 to 4 buttons.
    const std::int32_t expected[4][4] = {{0, 0, 0, 0}, {0, 1, 1, 1}, {0, 0, 2, 2}, {0, 1, 2, 3}};
    for (std::int32_t row = 0; row < 4; ++row)
        for (std::size_t count = 1; count <= 4; ++count)
            EXPECT_EQ(dialogs::defaultButtonIndex(row * 256, count), expected[row][count - 1])
                << "style " << row * 256 << ", " << count << " buttons";

    fp.dialogs.answer(Host::key(Kind::enter));
    EXPECT_EQ(l.vkrMsgBox(u"p", u"d", 4 + 256), 7);
    fp.dialogs.answer(Host::key(Kind::enter));
    EXPECT_EQ(l.vkrMsgBox(u"p", u"d", 4 + 512), 6); // past the buttons: the first stays
    fp.dialogs.answer(Host::key(Kind::enter));
    EXPECT_FALSE(l.vkrAsk(u"Sure?", Variant::missing(), true));
    EXPECT_EQ(fp.dialogs.forms().back().kind, DialogForm::Kind::systemMessage);
    EXPECT_EQ(fp.dialogs.forms().back().systemStyle, 36 + 256);
    fp.dialogs.answer(Host::key(Kind::enter));
    EXPECT_TRUE(l.vkrExtAsk(u"Sure?"));
}

TEST_F(MessageBoxes, HotKeysSpaceAndTheCloseBox) {
    EXPECT_EQ(dialogs::hotKey(u"Save && &Close"), u'C');
    EXPECT_EQ(dialogs::hotKey(u"&yes"), u'Y');
    EXPECT_EQ(dialogs::hotKey(u"OK"), 0);
    EXPECT_EQ(dialogs::hotKey(u"Fish && Chips"), 0);
    EXPECT_EQ(dialogs::hotKey(u"End&"), 0);
    EXPECT_EQ(dialogs::hotKey(u"&&&No"), u'N');

    fp.module->setCurrentLanguage(2);
    fp.dialogs.answer(Host::key(Kind::letter, u'N'));
    EXPECT_EQ(l.vkrMsgBox(u"p", u"d", 3), 7);
    fp.dialogs.answer({Host::key(Kind::letter, u'X'), Host::key(Kind::letter, u'R')});
    EXPECT_EQ(l.vkrMsgBox(u"p", u"d", 2), 4); // X is nobody's key: the box stays open
    fp.dialogs.answer(Host::key(Kind::letter, u'O'));
    EXPECT_EQ(l.vkrMsgBox(u"p", u"d", 1), 2); // "OK" has no hot key: Esc ends it
    fp.dialogs.answer({Host::key(Kind::space), Host::key(Kind::space, 0, 1)});
    EXPECT_EQ(l.vkrMsgBox(u"p", u"d", 3), 7); // Space without a focused button does nothing
    fp.dialogs.answer(Host::key(Kind::closeBox));
    EXPECT_EQ(l.vkrMsgBox(u"p", u"d", 4), 0);
    EXPECT_EQ(l.vkrMsgBox(u"p", u"d", 0, u"", 16), 0); // no such colour: nothing shown
    EXPECT_EQ(fp.dialogs.forms().size(), 5u);
}

TEST_F(MessageBoxes, LayoutFollowsTheLabels) {
    // The fake measures 6 pixels a character and 13 a line.
    fp.dialogs.answer(Host::button(0));
    l.vkrErrorMsg(53, u"File not found", u"Main.Load");
    const DialogForm& error = fp.dialogs.forms().back();
    EXPECT_EQ(error.title, u"Main.Load");
    EXPECT_EQ(error.icon, DialogIcon::exclamation);
    EXPECT_EQ(error.texts[0].text, u"Runtime error '53':");
    EXPECT_TRUE(error.texts[0].font.bold);
    EXPECT_EQ(error.texts[0].font.pointSize, 10);
    EXPECT_EQ(error.iconRect, (PixelRect{12, 12, 32, 32}));
    EXPECT_EQ(error.texts[0].rect, (PixelRect{54, 12, 114, 13}));
    EXPECT_EQ(error.texts[1].rect, (PixelRect{54, 35, 84, 13}));
    EXPECT_EQ(error.buttons[0].rect, (PixelRect{120, 63, 81, 25})); // centred on 4800 / 30
    EXPECT_EQ(error.clientSize, (PixelSize{320, 100}));

    l.vkrErrorMsg(-2147221504, u"", u"");
    EXPECT_EQ(fp.dialogs.forms().back().texts[0].text, u"Runtime error '&H80040000':");

    // A wide detail widens the form; without a symbol the labels take its place.
    const std::u16string wide(60, u'x');
    l.vkrMsgBox(u"Head", wide, 1, u"", 4, 12, false);
    const DialogForm& box = fp.dialogs.forms().back();
    EXPECT_EQ(box.title, u"velkor6");
    EXPECT_EQ(box.texts[0].font.color, 0x800000u);
    EXPECT_EQ(box.texts[1].rect, (PixelRect{12, 35, 360, 13}));
    EXPECT_EQ(box.clientSize.width, 384); // Int(360 + 12 + 12) pixels
    EXPECT_EQ(box.buttons[0].rect.left, 192 - 85);
    EXPECT_EQ(box.buttons[1].rect.left, 192 - 85 + 89);
}

TEST_F(MessageBoxes, RichBoxSizesFromThePromptOrTheArguments) {
    l.vkrExtMsgBox(u"\\b Bold\\b0, plain|6000|3000", 64);
    const DialogForm& sized = fp.dialogs.forms().back();
    EXPECT_EQ(sized.kind, DialogForm::Kind::richMessage);
    EXPECT_EQ(sized.clientSize, (PixelSize{400, 200}));
    EXPECT_TRUE(sized.texts[0].rich);
    EXPECT_EQ(sized.texts[0].text, u"{\\b Bold\\b0, plain}");
    EXPECT_EQ(sized.texts[0].plainText, u"Bold, plain");
    EXPECT_EQ(sized.icon, DialogIcon::information);

    l.vkrExtMsgBox(u"x|6000|3000", 0, u"T", 7500, 1500);
    EXPECT_EQ(fp.dialogs.forms().back().clientSize, (PixelSize{500, 100}));
    l.vkrExtMsgBox(u"x|junk", 0);
    EXPECT_EQ(fp.dialogs.forms().back().clientSize, (PixelSize{400, 240})); // designed size
}

TEST(RtfText, MarkupGoesAndEscapesStay) {
    EXPECT_EQ(dialogs::rtfPlainText(u"{\\qc Zeile 1\\par Gr\\'fc\\'dfe \\{x\\}}"),
              u"Zeile 1\nGrüße {x}");
    EXPECT_EQ(dialogs::rtfPlainText(u"{{\\fonttbl{\\f0 Arial;}}\\f0 a\\tab b}"), u"a\tb");
    EXPECT_EQ(dialogs::rtfPlainText(u"{\\*\\gen x}y\\"), u"y");
}

} // namespace
} // namespace velkor6
