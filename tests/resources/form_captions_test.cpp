// Form captions from a captions document, and the language chooser, over the fake platform.
#include "core/text.h"
#include "resources/xml_fixture.h"
#include "velkor6/lib.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>
#include <map>

namespace velkor6 {
namespace {

// A form or control answering Name, Index (array elements only), and Caption or Text.
class Control : public Object {
public:
    Control(std::u16string name, std::int32_t index = -1, std::u16string textProperty = u"Caption")
        : name_(std::move(name)), index_(index), property_(std::move(textProperty)) {}
    std::u16string typeName() const override { return u"Control"; }
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        if (name == u"Name")
            return name_;
        if (name == u"Index" && index_ >= 0)
            return index_;
        if (name == property_ && kind == CallKind::PropertyLet) {
            text = args[0].string();
            return {};
        }
        if (name == u"Controls" && !controls.empty())
            return Variant(ObjectRef(std::make_shared<List>(controls)));
        throw VbError(name == u"Index" ? 343 : vberr::noSuchMember);
    }
    std::u16string text = u"(unset)";
    std::vector<ObjectRef> controls;

private:
    class List final : public Object {
    public:
        explicit List(std::vector<ObjectRef> items) : items_(std::move(items)) {}
        std::u16string typeName() const override { return u"Object"; }
        Variant call(std::u16string_view name, CallKind, std::span<Variant> args) override {
            if (name == u"Count")
                return static_cast<std::int32_t>(items_.size());
            return Variant(items_.at(static_cast<std::size_t>(args[0].longValue())));
        }

    private:
        std::vector<ObjectRef> items_;
    };
    std::u16string name_;
    std::int32_t index_;
    std::u16string property_;
};

constexpr std::u16string_view captions = uR"(
  <resources>
    <item form="frmMain" name="frmMain" langid="2" text="Customers"/>
    <item form="frmMain" name="frmMain" langid="1" text="Kunden"/>
    <item form="FRMMAIN" name="cmdOK" langid="2" text="&amp;Save"/>
    <item form="frmMain" name="cmdOK" langid="1" text="&amp;Speichern"/>
    <item form="frmMain" name="txtNote" langid="1" text="Notiz"/>
    <item form="frmMain" name="lblField" number="1" langid="2" text="City"/>
    <item form="frmMain" name="lblField" number="0" langid="1" text="Name"/>
    <item form="frmMain" name="lblField" langid="2" text="no array element"/>
    <item form="frmMain" name="cmdGone" langid="2" text="Gone"/>
    <item form="frmOther" name="cmdOK" langid="2" text="Other"/>
  </resources>)";

class FormCaptions : public test::WithXml {
protected:
    void SetUp() override {
        WithXml::SetUp();
        if (IsSkipped())
            return;
        p.files.addFolder(u"C:\\App");
        app = l.vkrInitApp(HostApp{u"C:\\App", u"App", 1, 0, 0}, u"App");
        form = std::make_shared<Control>(u"frmMain");
        controls = {{u"cmdOK", std::make_shared<Control>(u"cmdOK")},
                    {u"txtNote", std::make_shared<Control>(u"txtNote", -1, u"Text")},
                    {u"lblField(0)", std::make_shared<Control>(u"lblField", 0)},
                    {u"lblField(1)", std::make_shared<Control>(u"lblField", 1)}};
        for (const auto& [key, control] : controls)
            form->controls.push_back(control);
    }
    std::u16string textOf(const std::u16string& key) { return controls.at(key)->text; }

    lib l{p.module};
    std::shared_ptr<applib> app;
    std::shared_ptr<Control> form;
    std::map<std::u16string, std::shared_ptr<Control>> controls;
};

TEST_F(FormCaptions, AppliesTheLanguageWithFallbackByNameAndIndex) {
    app->languageLet(2);
    // Form caption, cmdOK, lblField(1) in English; txtNote and lblField(0) from German (the
    // default fallback); the item without number finds no control outside an array; cmdGone
    // is no control.
    EXPECT_EQ(app->loadFormCaption(form, captions), 5);
    EXPECT_EQ(form->text, u"Customers");
    EXPECT_EQ(textOf(u"cmdOK"), u"&Save");
    EXPECT_EQ(textOf(u"txtNote"), u"Notiz"); // a text box takes Text
    EXPECT_EQ(textOf(u"lblField(0)"), u"Name");
    EXPECT_EQ(textOf(u"lblField(1)"), u"City");

    // A language without items gets the fallback's captions; the root may name another fallback.
    app->languageLet(5);
    EXPECT_EQ(app->loadFormCaption(form, captions), 4);
    EXPECT_EQ(form->text, u"Kunden");
    EXPECT_EQ(textOf(u"cmdOK"), u"&Speichern");
    std::u16string english(captions);
    english.replace(english.find(u"<resources>"), 11, u"<resources fallback=\"2\">");
    EXPECT_EQ(app->loadFormCaption(form, english), 3);
    EXPECT_EQ(form->text, u"Customers");

    // Another form's items by the name given; a file holding the document.
    app->languageLet(2);
    EXPECT_EQ(app->loadFormCaption(form, captions, u"frmother"), 1);
    EXPECT_EQ(textOf(u"cmdOK"), u"Other");
    p.files.addFile(u"C:\\App\\captions.xml", toUtf8(captions));
    EXPECT_EQ(app->loadFormCaption(form, u"C:\\App\\captions.xml"), 5);
    EXPECT_EQ(textOf(u"cmdOK"), u"&Save");
}

TEST_F(FormCaptions, TrapsEveryFailure) {
    EXPECT_EQ(app->loadFormCaption(nullptr, captions), 0);
    EXPECT_EQ(app->loadFormCaption(form, u"C:\\App\\none.xml"), 0);
    EXPECT_EQ(app->loadFormCaption(form, u"<resources><item"), 0);
    EXPECT_EQ(form->text, u"(unset)");
    // A form without Controls still gets its own caption.
    app->languageLet(2);
    auto bare = std::make_shared<Control>(u"frmMain");
    EXPECT_EQ(app->loadFormCaption(bare, captions), 1);
    EXPECT_EQ(bare->text, u"Customers");
}

TEST_F(FormCaptions, ChooserListsTheInstalledLanguagesAndStoresTheChoice) {
    app->stringValueLet(u"Application", u"ResourceDLL", u"C:\\App\\Res%L.dll");
    // Nothing on disk: no dialog.
    EXPECT_EQ(app->chooseLanguage(), 0);
    EXPECT_TRUE(p.dialogs.forms().empty());

    for (const auto name : {u"ResDE.dll", u"ResEN.dll", u"ResFR.dll"})
        p.files.addFile(u"C:\\App\\" + std::u16string(name), "MZ");
    app->languageLet(2);
    p.dialogs.answer(fake::FakeDialogHost::button(2)); // Français
    EXPECT_EQ(app->chooseLanguage(), 3);
    const DialogForm& form = p.dialogs.forms().back();
    ASSERT_EQ(form.buttons.size(), 4u);
    EXPECT_EQ(form.title, u"Language");
    EXPECT_EQ(form.buttons[0].caption, u"Deutsch (DE)");
    EXPECT_EQ(form.buttons[1].result, 2);
    EXPECT_EQ(form.defaultButton, 1); // the language before the choice
    EXPECT_EQ(form.buttons[3].caption, u"Cancel");
    EXPECT_EQ(form.cancelButton, 3);
    // Buttons stacked inside the form, none overlapping.
    for (std::size_t i = 1; i < form.buttons.size(); ++i)
        EXPECT_GE(form.buttons[i].rect.top,
                  form.buttons[i - 1].rect.top + form.buttons[i - 1].rect.height);
    EXPECT_LE(form.buttons.back().rect.top + form.buttons.back().rect.height,
              form.clientSize.height);
    EXPECT_EQ(app->language(), 3);
    EXPECT_EQ(app->longValue(u"Application", u"Language", 0), 3);

    // Enter takes the default (now French); Esc and the close box cancel and change nothing.
    p.dialogs.answer(fake::FakeDialogHost::key(DialogEvent::Kind::enter));
    EXPECT_EQ(app->chooseLanguage(), 3);
    app->languageLet(1);
    p.dialogs.answer(fake::FakeDialogHost::key(DialogEvent::Kind::escape));
    EXPECT_EQ(app->chooseLanguage(), 0);
    EXPECT_EQ(p.dialogs.forms().back().title, u"Sprache");
    EXPECT_EQ(p.dialogs.forms().back().buttons.back().caption, u"Abbrechen");
    EXPECT_EQ(app->chooseLanguage(), 0); // no script: Esc, then the close box
    EXPECT_EQ(app->language(), 1);
}

} // namespace
} // namespace velkor6
