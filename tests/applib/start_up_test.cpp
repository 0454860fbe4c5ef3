#include "applib/app_fixture.h"
#include "applib/app_log.h"
#include "applib/host_app.h"
#include "platform/text_file.h"
#include "velkor6/enums.h"

namespace velkor6::apptest {
namespace {

const std::string stamp = "15.03.2024 10:30:00         ";

std::string initLine(std::string_view append) {
    return stamp +
           "velkor6.applib for application 'Sales' initalized (exe=Sales, "
           "version=6.01.0023, inifile=C:\\Apps\\Sales\\Sales.ini, "
           "logfile=C:\\Users\\Test\\AppData\\Local\\Temp\\Sales.log, append=" +
           std::string(append) + ")\r\n";
}

using StartUp = SalesApp;

TEST_F(StartUp, FreshFolderGetsTheFirstLogLineAndTheLanguage) {
    fp.files.addFile(logPath, "an earlier run\r\n");
    app();
    EXPECT_EQ(file(logPath), initLine("no"));
    EXPECT_EQ(file(iniPath), "[Application]\r\nLanguage=2\r\n");
    EXPECT_EQ(app().iniFile(), iniPath);
    EXPECT_EQ(app().dataFolder(), appFolder);
    EXPECT_EQ(fp.module->currentLanguage(), 2);

    // The library's own context logged too, although its folder has no settings file.
    const std::string own = file(u"C:\\Users\\Test\\AppData\\Local\\Temp\\velkor6.log");
    EXPECT_EQ(own.rfind(stamp + "velkor6.applib for application 'velkor6' initalized (exe=velkor6, "
                                "version=6.",
                        0),
              0u)
        << own;
}

TEST_F(StartUp, EachInitialisationEmptiesTheSharedLogUnlessLogsAreKept) {
    app();
    auto second = library().vkrInitApp(salesHost(), u"Sales");
    EXPECT_EQ(file(logPath), initLine("no"));
    EXPECT_EQ(second->iniFile(), app().iniFile());

    // The library's own settings decide, read when a lib is created.
    fp.files.addFile(libraryIni, "[Application]\r\nKeepLogFiles=Ja\r\n");
    lib keeping(fp.module);
    EXPECT_TRUE(fp.module->keepLogFiles());
    keeping.vkrInitApp(salesHost(), u"Sales");
    EXPECT_EQ(file(logPath), initLine("no") + initLine("yes"));

    // Another application name does not read the switch; "velkor6" does.
    fp.files.addFile(libraryIni, "[Application]\r\nKeepLogFiles=no\r\n");
    keeping.vkrInitApp(salesHost(), u"Sales");
    EXPECT_TRUE(fp.module->keepLogFiles());
    keeping.vkrInitApp({u"C:\\Program Files (x86)\\velkor6", u"velkor6", 6, 0, 0}, u"velkor6");
    EXPECT_FALSE(fp.module->keepLogFiles());
}

TEST_F(StartUp, SettingsInTheOstrakFolderOnlyWhenNoneBesideTheProgram) {
    const std::u16string ostrak = u"C:\\Windows\\SysWOW64\\ostrak";
    fp.files.addFile(ostrak + u"\\Sales.ini", "[Application]\r\nLanguage=1\r\n");
    EXPECT_EQ(app().iniFile(), ostrak + u"\\Sales.ini");
    EXPECT_EQ(app().dataFolder(), ostrak);
    EXPECT_EQ(app().language(), 1);

    fp.files.addFile(iniPath, "");
    auto beside = library().vkrInitApp(salesHost(), u"Sales");
    EXPECT_EQ(beside->iniFile(), iniPath);
    EXPECT_EQ(beside->dataFolder(), appFolder);
}

TEST_F(StartUp, AnUninitialisedContextTouchesNoSettingsFile) {
    applib bare(fp.module);
    EXPECT_EQ(bare.appName(), u"globals");
    EXPECT_EQ(bare.stringValue(u"S", u"k", u"fallback", true), u"fallback");
    EXPECT_EQ(bare.iniFile(), u"\\globals.ini");
    EXPECT_EQ(bare.logFile(), u"C:\\Users\\Test\\AppData\\Local\\Temp\\globals.log");
}

TEST(ApplicationTexts, VersionAndMultiLineLogEntries) {
    const auto version = [](std::int16_t major, std::int16_t minor, std::int16_t revision) {
        return app::versionText({u"", u"", major, minor, revision});
    };
    EXPECT_EQ(version(1, 2, 12345), u"1.02.12345"); // wider numbers are not cut
    EXPECT_EQ(version(10, 100, 0), u"10.100.0000");
    EXPECT_EQ(version(0, -1, -5), u"0.-01.-0005");

    const DateParts at{2024, 1, 2, 3, 4, 5};
    EXPECT_EQ(app::logLine(at, u"a\r\nb").substr(28), u"a\r\nb\r\n");
}

TEST_F(StartUp, LogEntriesAppendAndAFailedWriteIsSilent) {
    app();
    fp.clock.advance(61);
    app().logAction(u"Ä action");
    app().logError(53, u"File not found", u"Main.Load");
    // A new log is in the system's encoding for new files: UTF-8, or the code page on Windows.
    const std::string umlaut = newTextEncoding() == TextEncoding::Utf8 ? "\xC3\x84" : "\xC4";
    EXPECT_EQ(file(logPath), initLine("no") + "15.03.2024 10:31:01         " + umlaut +
                                 " action\r\n" +
                                 "15.03.2024 10:31:01         ERR=53 'File not found' "
                                 "(Source=Main.Load)\r\n");
    EXPECT_TRUE(fp.dialogs.forms().empty());

    fp.files.setAttributes(logPath, fileattr::readOnly);
    const std::string before = file(logPath);
    app().logError(5, u"Invalid call", u"X", true);
    EXPECT_EQ(file(logPath), before);
    ASSERT_EQ(fp.dialogs.forms().size(), 1u); // the box is shown all the same
    EXPECT_EQ(fp.dialogs.forms()[0].texts[0].text, u"Runtime error '5':");
    EXPECT_EQ(fp.dialogs.forms()[0].texts[1].text, u"Invalid call");
}

TEST_F(StartUp, LanguageComesFromTheSettingsThenTheDefaultThenTheSystem) {
    fp.files.addFile(iniPath, "[Application]\r\nDefaultLanguage=3\r\n");
    EXPECT_EQ(app().language(), 3);
    EXPECT_EQ(file(iniPath), "[Application]\r\nDefaultLanguage=3\r\nLanguage=3\r\n");

    app().languageLet(5);
    EXPECT_EQ(fp.module->currentLanguage(), 5);
    EXPECT_EQ(app().longValue(u"Application", u"Language"), 5);

    app().stringValueLet(u"Application", u"Language", u"70000");
    EXPECT_EQ(app().language(), 0); // no Integer: neutral, the module keeps its language
    EXPECT_EQ(fp.module->currentLanguage(), 5);
}

class GermanStartUp : public SalesApp {
protected:
    GermanStartUp() : SalesApp(Locale::germanGermany()) {}
};

TEST_F(GermanStartUp, GermanSystemsStartInGerman) {
    EXPECT_EQ(app().language(), 1);
    EXPECT_EQ(file(iniPath), "[Application]\r\nLanguage=1\r\n");
}

} // namespace
} // namespace velkor6::apptest
