#include "applib/app_fixture.h"
#include "core/text.h"

namespace velkor6::apptest {
namespace {

using Settings = SalesApp;

TEST_F(Settings, AutoCreateStoresTheDefaultAndEmptyDeletes) {
    app();
    EXPECT_EQ(app().stringValue(u"Print", u"Printer", u"HP 1", true), u"HP 1");
    EXPECT_EQ(file(iniPath), "[Application]\r\nLanguage=2\r\n[Print]\r\nPrinter=HP 1\r\n");
    EXPECT_EQ(app().stringValue(u"print", u"PRINTER", u"other"), u"HP 1");
    EXPECT_EQ(app().stringValue(u"Print", u"Missing", u"x"), u"x");

    app().stringValueLet(u"Print", u"Printer", u"");
    EXPECT_EQ(file(iniPath), "[Application]\r\nLanguage=2\r\n[Print]\r\n");
    EXPECT_EQ(app().stringValue(u"Print", u"Printer", u"gone"), u"gone");
}

TEST_F(Settings, TypedValuesReadTheStoredText) {
    fp.files.addFile(iniPath, "[T]\r\nja=Ja\r\nwahr=WAHR\r\nminus=-1\r\noff=off\r\nmixed=12abc\r\n"
                              "neg=-5\r\nhuge=99999999999\r\nhalf=2.5\r\nempty=\r\n");
    struct BoolCase {
        std::u16string_view key;
        bool defaultValue, expected;
    };
    for (const auto& c : {BoolCase{u"ja", false, true}, BoolCase{u"wahr", false, true},
                          BoolCase{u"minus", false, true}, BoolCase{u"off", true, false},
                          BoolCase{u"missing", true, true}, BoolCase{u"empty", true, true},
                          BoolCase{u"neg", true, false}}) {
        EXPECT_EQ(app().boolValue(u"T", c.key, c.defaultValue), c.expected) << toUtf8(c.key);
    }
    struct LongCase {
        std::u16string_view key;
        std::int32_t expected;
    };
    for (const auto& c : {LongCase{u"neg", -5}, LongCase{u"mixed", 7}, LongCase{u"huge", 7},
                          LongCase{u"missing", 7}, LongCase{u"half", 2}, LongCase{u"ja", 7}}) {
        EXPECT_EQ(app().longValue(u"T", c.key, 7), c.expected) << toUtf8(c.key);
    }
}

TEST_F(Settings, TypedValuesAreStoredAsText) {
    app().longValueLet(u"N", u"a", -5);
    app().boolValueLet(u"N", u"b", true);
    app().boolValueLet(u"N", u"c", false);
    EXPECT_EQ(app().longValue(u"N", u"d", 42, true), 42);
    EXPECT_TRUE(app().boolValue(u"N", u"e", true, true));
    EXPECT_EQ(file(iniPath),
              "[Application]\r\nLanguage=2\r\n[N]\r\na=-5\r\nb=yes\r\nc=no\r\nd=42\r\ne=yes\r\n");
}

TEST_F(Settings, FoldersAreStoredAsPlaceholders) {
    const std::u16string data = appFolder + u"\\Data\\sales.mdb";
    app().stringValueLet(u"Db", u"File", data);
    EXPECT_NE(file(iniPath).find("File=%AppPath%\\Data\\sales.mdb\r\n"), std::string::npos);
    EXPECT_EQ(app().stringValue(u"Db", u"File"), data);

    // Unchanged values are not written again; a full path left by hand is rewritten.
    const int writes = fp.fileStore.replacements();
    app().stringValueLet(u"Db", u"File", data);
    EXPECT_EQ(fp.fileStore.replacements(), writes);
    fp.files.addFile(iniPath, "[Db]\r\nFile=C:\\Apps\\Sales\\Data\\sales.mdb\r\n");
    app().stringValueLet(u"Db", u"File", data);
    EXPECT_EQ(file(iniPath), "[Db]\r\nFile=%AppPath%\\Data\\sales.mdb\r\n");
}

TEST_F(Settings, AnEditByAnotherProgramIsSeenAtOnce) {
    app().stringValueLet(u"S", u"k", u"one");
    EXPECT_EQ(app().stringValue(u"S", u"k"), u"one");
    fp.files.addFile(iniPath, "[S]\r\nk=two\r\n");
    EXPECT_EQ(app().stringValue(u"S", u"k"), u"two");
}

TEST_F(Settings, AFileThatCannotBeWrittenKeepsItsContent) {
    app();
    fp.files.setAttributes(iniPath, fileattr::readOnly);
    app().stringValueLet(u"S", u"k", u"v");
    EXPECT_EQ(app().stringValue(u"S", u"k", u"default"), u"default");
    EXPECT_EQ(file(iniPath), "[Application]\r\nLanguage=2\r\n");
}

} // namespace
} // namespace velkor6::apptest
