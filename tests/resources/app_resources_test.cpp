#include "core/text.h"
#include "resources/pe_builder.h"
#include "resources/xml_fixture.h"
#include "velkor6/lib.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace velkor6 {
namespace {

std::string xmlLibrary(std::string xml) {
    return test::buildResourceLibrary({{u"XML", std::uint16_t{1}, 0, std::move(xml)}});
}

// The languages' extensions come from the library's own XML document.
class AppResources : public test::WithXml {
protected:
    void SetUp() override {
        WithXml::SetUp();
        if (IsSkipped())
            return;
        p.files.addFolder(u"C:\\App");
        app = l.vkrInitApp(HostApp{u"C:\\App", u"App", 1, 0, 0}, u"App");
        app->stringValueLet(u"Application", u"ResourceDLL", u"C:\\App\\Res%L.dll");
    }

    std::string log() { return p.files.readFile(app->logFile()).value_or(""); }

    lib l{p.module};
    std::shared_ptr<applib> app;
};

std::vector<std::u16string> texts(const VariantArray& list) {
    std::vector<std::u16string> result;
    for (const Variant& v : list.items)
        result.push_back(v.string());
    return result;
}

TEST_F(AppResources, ListsTheLanguagesWhoseLibrariesExist) {
    VariantArray list = app->getLanguagesList();
    EXPECT_EQ(list.element, VarType::String);
    EXPECT_EQ(list.bounds, (std::vector<ArrayBound>{{0, 0}}));

    for (const auto name :
         {u"ResDE.dll", u"Resen.dll", u"ResXX.dll", u"Res.dll", u"ResFRA.dll", u"OtherIT.dll"})
        p.files.addFile(u"C:\\App\\" + std::u16string(name), "MZ");
    list = app->getLanguagesList();
    EXPECT_EQ(texts(list), (std::vector<std::u16string>{u"1;Deutsch;DE", u"2;English;EN"}));
    EXPECT_EQ(list.bounds, (std::vector<ArrayBound>{{0, 2}}));

    // One library for all languages names none of them.
    app->stringValueLet(u"Application", u"ResourceDLL", u"C:\\App\\ResDE.dll");
    EXPECT_TRUE(app->getLanguagesList().items.empty());
    app->stringValueLet(u"Application", u"ResourceDLL", u"");
    EXPECT_TRUE(app->getLanguagesList().items.empty());
}

TEST_F(AppResources, LoadsXmlFromTheLibraryOfTheLanguage) {
    p.files.addFile(u"C:\\App\\ResEN.dll", xmlLibrary("\xEF\xBB\xBF<resources>EN</resources>"));
    p.files.addFile(u"C:\\App\\ResDE.dll", xmlLibrary("<resources>DE</resources>"));
    ASSERT_EQ(app->language(), 2);
    EXPECT_EQ(app->loadRes(1, u"XML"), u"<resources>EN</resources>");
    EXPECT_EQ(app->loadRes(1, u"xml"), u"<resources>EN</resources>");
    EXPECT_EQ(app->loadRes(2, u"XML"), u"");
    EXPECT_EQ(app->loadRes(1, u"#23"), u"");
    // The library found first stays, whatever the language becomes.
    app->languageLet(1);
    EXPECT_EQ(app->loadRes(1, u"XML"), u"<resources>EN</resources>");

    // Without a library of its language an application gets the German one.
    auto french = l.vkrInitApp(HostApp{u"C:\\App", u"App", 1, 0, 0}, u"App");
    french->languageLet(3);
    EXPECT_EQ(french->loadRes(1, u"XML"), u"<resources>DE</resources>");
    EXPECT_TRUE(p.dialogs.forms().empty());
}

TEST_F(AppResources, KeepsTextThatDoesNotStartLikeXml) {
    p.files.addFile(u"C:\\App\\ResEN.dll",
                    test::buildResourceLibrary({{u"XML", std::uint16_t{1}, 0, "<a>\xE4</a>"},
                                                {u"XML", std::uint16_t{2}, 0, "plain \xE4"},
                                                {u"XML", std::uint16_t{3}, 0, "x<y"}}));
    EXPECT_EQ(app->loadRes(1, u"XML"), u"<a>ä</a>"); // ANSI text
    EXPECT_EQ(app->loadRes(2, u"XML"), u"plain ä");
    EXPECT_EQ(app->loadRes(3, u"XML"), u"<y");
}

TEST_F(AppResources, ReportsMissingAndBrokenLibraries) {
    EXPECT_EQ(app->loadRes(1, u"XML"), u"");
    EXPECT_NE(log().find("ERR=-2147221504 'Resourcefile entry 'ResourceDLL' in INI-File "
                         "'C:\\App\\App.ini' not found or file does not exists.' "
                         "(Source=velkor6.loadRes)"),
              std::string::npos)
        << log();
    ASSERT_EQ(p.dialogs.forms().size(), 1u);
    EXPECT_EQ(p.dialogs.forms()[0].title, u"velkor6.loadRes");
    EXPECT_EQ(p.dialogs.forms()[0].texts[0].text, u"Runtime error '&H80040000':");

    p.files.addFile(u"C:\\App\\ResEN.dll", "no library");
    EXPECT_EQ(app->loadRes(1, u"XML"), u"");
    EXPECT_NE(log().find("ERR=193 'LoadLibrary 'C:\\App\\ResEN.dll' failed.' "
                         "(Source=velkor6.loadRes [App])"),
              std::string::npos)
        << log();
    EXPECT_EQ(p.dialogs.forms().size(), 1u); // logged only
}

TEST_F(AppResources, ReadsStringsFromTheLibraryOfTheLanguageNumber) {
    app->stringValueLet(u"Application", u"ResourceDLL", u"C:\\App\\Str%L");
    const std::u16string longText(40000, u'x');
    std::array<std::u16string, 16> block;
    block[1] = u"Hello \u0159";
    block[2] = longText;
    p.files.addFile(u"C:\\App\\Str2.dll",
                    test::buildResourceLibrary(
                        {{std::uint16_t{6}, std::uint16_t{2}, 0, test::stringBlock(block)}}));
    EXPECT_EQ(l.vkrRes(*app, 17), u"Hello \u0159");
    EXPECT_EQ(l.vkrRes(*app, 18), longText.substr(0, 32766));
    EXPECT_EQ(l.vkrRes(*app, 19), u"");
    EXPECT_EQ(l.vkrRes(*app, -17), u"");
    EXPECT_EQ(log().find("LoadLibrary"), std::string::npos);

    app->languageLet(1);
    EXPECT_EQ(l.vkrRes(*app, 17), u"");
    EXPECT_NE(log().find("ERR=126 'LoadLibrary 'C:\\App\\Str1' failed.' (Source=velkor6.vkrRes)"),
              std::string::npos)
        << log();
    EXPECT_TRUE(p.dialogs.forms().empty());
}

TEST_F(AppResources, ReadsALibraryTheResourceCompilerMade) {
#ifdef VELKOR6_WINDRES_DLL
    std::ifstream in(VELKOR6_WINDRES_DLL, std::ios::binary);
    ASSERT_TRUE(in);
    p.files.addFile(u"C:\\App\\ResEN.dll", std::string(std::istreambuf_iterator<char>(in),
                                                       std::istreambuf_iterator<char>()));
    EXPECT_TRUE(app->loadRes(1, u"XML").starts_with(u"<?xml version=\"1.0\"?>"));
    app->stringValueLet(u"Application", u"ResourceDLL", u"C:\\App\\ResEN.dll");
    EXPECT_EQ(l.vkrRes(*app, 1), u"One");
    EXPECT_EQ(l.vkrRes(*app, 17), u"Seventeen");
    EXPECT_EQ(l.vkrRes(*app, 100), u"Hundert ä");
#else
    GTEST_SKIP() << "no mingw-w64 resource compiler";
#endif
}

} // namespace
} // namespace velkor6
