// The answer, input and zoom dialogs over the fake dialog host.
#include "fake/fake_platform.h"
#include "lib/lib_members.h"
#include "velkor6/lib.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>
#include <map>

namespace velkor6 {
namespace {

using Host = fake::FakeDialogHost;
using Kind = DialogEvent::Kind;

// A control answering Text and, where given, Enabled, Locked and ToolTipText.
class FakeControl final : public Object {
public:
    FakeControl(std::u16string type, std::map<std::u16string, Variant> properties)
        : type_(std::move(type)), properties(std::move(properties)) {}
    std::u16string typeName() const override { return type_; }
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        const auto it = properties.find(std::u16string(name));
        if (it == properties.end())
            throw VbError(vberr::noSuchMember);
        if (kind == CallKind::PropertyLet)
            it->second = args[0];
        return it->second;
    }

private:
    std::u16string type_;

public:
    std::map<std::u16string, Variant> properties;
};

class SmallDialogs : public ::testing::Test {
protected:
    fake::FakePlatform fp;
    lib l{fp.module};
};

TEST_F(SmallDialogs, AnswerGivesTheButtonNumber) {
    const VariantArray captions{VarType::Variant, {{0, 3}}, {u"&Save", u"Save && &Close", u"Drop"}};
    fp.dialogs.answer(Host::button(2));
    EXPECT_EQ(l.vkrGetAnswer(u"Changed", u"Keep it?", u"Editor", captions), 3);
    EXPECT_EQ(l.vkrGetAnswer(u"Changed", u"Keep it?", u"Editor", captions), 0); // Esc
    fp.dialogs.answer(Host::key(Kind::letter, u'c'));
    EXPECT_EQ(l.vkrGetAnswer(u"Changed", u"Keep it?", u"Editor", captions), 2);
    fp.dialogs.answer(Host::key(Kind::closeBox));
    EXPECT_EQ(l.vkrGetAnswer(u"Changed", u"Keep it?", u"Editor", captions), 0);

    const DialogForm& form = fp.dialogs.forms().back();
    EXPECT_EQ(form.title, u"Editor");
    ASSERT_EQ(form.buttons.size(), 3u);
    EXPECT_EQ(form.buttons[1].hotKey, u'C');
    EXPECT_EQ(form.buttons[2].hotKey, 0);
    EXPECT_EQ(form.buttons[0].rect.left, 160 - (3 * 81 + 2 * 8) / 2);
}

TEST_F(SmallDialogs, InputLimitsTypesAndCancels) {
    fp.module->setCurrentLanguage(1);
    std::u16string value = u"old";
    fp.dialogs.answer(Host::button(0, u"A1234567"));
    EXPECT_EQ(l.vkrInputValue(u"08|Code", u"Login", value, u"def"), 1);
    EXPECT_EQ(value, u"A1234567");
    const DialogForm& form = fp.dialogs.forms().back();
    EXPECT_EQ(form.texts[0].text, u"Code");
    ASSERT_TRUE(form.field);
    EXPECT_EQ(form.field->maxLength, 8);
    EXPECT_EQ(form.field->text, u"def");
    EXPECT_EQ(form.field->passwordChar, 0);
    EXPECT_EQ(form.buttons[1].caption, u"Abbrechen");
    EXPECT_GT(form.field->rect.top, form.texts[0].rect.top + form.texts[0].rect.height);

    value = u"old";
    fp.dialogs.answer(Host::key(Kind::escape));
    EXPECT_EQ(l.vkrInputValue(u"08|Code", u"Login", value), 2);
    EXPECT_EQ(value, u"old");
    fp.dialogs.answer(Host::key(Kind::closeBox));
    EXPECT_EQ(l.vkrInputValue(u"Name", u"Login", value), 2);
    EXPECT_EQ(fp.dialogs.forms().back().field->maxLength, 0);
    EXPECT_EQ(value, u"old");

    fp.dialogs.answer(Host::key(Kind::enter));
    EXPECT_EQ(l.vkrInputCode(u"8|Pin", u"Login", value, u"1234"), 1);
    EXPECT_EQ(value, u"1234");
    EXPECT_EQ(fp.dialogs.forms().back().field->passwordChar, u'*');
    EXPECT_EQ(fp.dialogs.forms().back().texts[0].text, u"8|Pin"); // one digit is no limit
}

TEST_F(SmallDialogs, ZoomEditsTheSourceAndKeepsItsSize) {
    fp.files.addFolder(u"C:\\App");
    auto app = l.vkrInitApp(HostApp{u"C:\\App", u"App", 1, 0, 0}, u"App");
    auto box = std::make_shared<FakeControl>(
        u"TextBox", std::map<std::u16string, Variant>{
                        {u"Text", u"short"}, {u"Locked", true}, {u"ToolTipText", u"Notes"}});
    DialogEvent ok = Host::button(0, u"long text");
    ok.clientSize = {500, 300};
    fp.dialogs.answer(ok);
    l.vkrZoomTextBox(*app, box, u"Notes");
    EXPECT_EQ(box->properties[u"Text"].string(), u"long text");
    const DialogForm& form = fp.dialogs.forms().back();
    EXPECT_EQ(form.title, u"Notes");
    EXPECT_TRUE(form.resizable);
    EXPECT_EQ(form.field->text, u"short");
    EXPECT_TRUE(form.field->locked);
    EXPECT_TRUE(form.field->enabled); // the text box has no Enabled: left alone
    EXPECT_EQ(form.field->toolTip, u"Notes");
    EXPECT_EQ(app->longValue(u"ZoomWindow", u"Width"), 7500);
    EXPECT_EQ(app->longValue(u"ZoomWindow", u"Height"), 4500);

    l.vkrZoomTextBox(*app, box, u"", true); // Esc: nothing changes but the stored size
    EXPECT_EQ(box->properties[u"Text"].string(), u"long text");
    EXPECT_EQ(fp.dialogs.forms().back().clientSize, (PixelSize{500, 300}));
    EXPECT_FALSE(fp.dialogs.forms().back().field->locked);

    auto label = std::make_shared<FakeControl>(u"Label", std::map<std::u16string, Variant>{});
    try {
        l.vkrZoomTextBox(*app, label);
        ADD_FAILURE() << "a label is no source";
    } catch (const VbError& e) {
        EXPECT_EQ(e.number(), 5);
    }
    EXPECT_EQ(fp.dialogs.forms().size(), 2u);
}

} // namespace
} // namespace velkor6
