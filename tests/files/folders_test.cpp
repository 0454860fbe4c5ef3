// The folder members with Windows paths, over the fake platform.
#include "core/date.h"
#include "fake/fake_platform.h"
#include "velkor6/enums.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

class FoldersOnWindows : public ::testing::Test {
protected:
    fake::FakePlatform fp{Locale::germanGermany()};
    lib l{fp.module};
};

std::vector<std::u16string> names(const Variant& list) {
    std::vector<std::u16string> result;
    for (const auto& item : list.array().items)
        result.push_back(item.string());
    return result;
}

TEST_F(FoldersOnWindows, MakeAndChangeDir) {
    EXPECT_TRUE(l.prfMakeDir(u"C:\\One\\Two\\Three\\"));
    EXPECT_TRUE(fp.files.isDirectory(u"C:\\One\\Two\\Three"));
    EXPECT_TRUE(l.prfMakeDir(u"C:\\"));
    EXPECT_FALSE(l.prfMakeDir(u""));
    fp.files.addFile(u"C:\\file.txt");
    EXPECT_FALSE(l.prfMakeDir(u"C:\\file.txt\\sub"));
    fp.files.addDrive(u'Q', false);
    EXPECT_FALSE(l.prfMakeDir(u"Q:\\x\\y"));

    EXPECT_TRUE(l.prfChangeDir(u"C:\\One\\Two\\"));
    EXPECT_EQ(fp.files.currentDirectory(), u"C:\\One\\Two");
    EXPECT_FALSE(l.prfChangeDir(u"C:\\Missing"));
    EXPECT_EQ(fp.files.currentDirectory(), u"C:\\One\\Two");

    // A folder on another drive: that drive becomes current; its root keeps the backslash.
    fp.files.addDrive(u'X');
    EXPECT_TRUE(l.prfChangeDir(u"X:\\"));
    EXPECT_EQ(fp.files.currentDirectory(), u"X:\\");
}

TEST_F(FoldersOnWindows, GetFileList) {
    auto& f = fp.files;
    f.addFile(u"C:\\List\\Alpha.txt");
    f.addFile(u"C:\\List\\apple.txt");
    f.addFile(u"C:\\List\\b.log");
    f.addFile(u"C:\\List\\another", "", std::nullopt, fileattr::hidden);
    f.addFile(u"C:\\List\\again", "", std::nullopt, fileattr::system);
    f.addFolder(u"C:\\List\\anything");

    const Variant all = l.prfGetFileList(u"C:\\List");
    EXPECT_EQ(all.type(), VarType::String | VarType::Array);
    EXPECT_EQ(names(all), (std::vector<std::u16string>{u"Alpha.txt", u"apple.txt", u"b.log"}));
    EXPECT_EQ(names(l.prfGetFileList(u"C:\\List\\", u"*.*", u"a*")),
              std::vector<std::u16string>{u"apple.txt"});
    EXPECT_EQ(names(l.prfGetFileList(u"C:\\List", u"*.TXT")),
              (std::vector<std::u16string>{u"Alpha.txt", u"apple.txt"}));
    EXPECT_EQ(names(l.prfGetFileList(u"C:\\List", u"?.log", u"[c-z]*")),
              std::vector<std::u16string>{});

    const Variant none = l.prfGetFileList(u"C:\\Missing");
    ASSERT_TRUE(none.isArray());
    EXPECT_EQ(none.array().bounds, (std::vector<ArrayBound>{{0, 0}}));
}

TEST_F(FoldersOnWindows, SpecialFoldersAndAdmin) {
    EXPECT_EQ(l.prfGetSpecialFolder(CSIDL_PROGRAM_FILES), u"C:\\Program Files (x86)");
    EXPECT_EQ(l.prfGetSpecialFolder(CSIDL_PRINTERS), u"");
    EXPECT_FALSE(l.prfIsAdmin());
    fp.environment.setAdmin(true);
    EXPECT_TRUE(l.prfIsAdmin());
}

TEST_F(FoldersOnWindows, CompareFilesCopiesOnlyNewerOrMissing) {
    const Date t = fp.clock.now();
    const Date later{t.serial + 1.0 / 24};
    auto& f = fp.files;
    f.addFile(u"C:\\Src\\newer.txt", "new", later);
    f.addFile(u"C:\\Dst\\newer.txt", "old", t);
    f.addFile(u"C:\\Src\\older.txt", "old", t);
    f.addFile(u"C:\\Dst\\older.txt", "mine", later);
    f.addFile(u"C:\\Src\\missing.txt", "copy me", t);

    EXPECT_TRUE(l.prfCompareFiles(u"newer.txt", u"C:\\Src", u"C:\\Dst\\"));
    EXPECT_EQ(f.readFile(u"C:\\Dst\\newer.txt"), "new");
    EXPECT_EQ(f.status(u"C:\\Dst\\newer.txt")->lastModified, later);
    EXPECT_TRUE(l.prfCompareFiles(u"older.txt", u"C:\\Src", u"C:\\Dst"));
    EXPECT_EQ(f.readFile(u"C:\\Dst\\older.txt"), "mine");
    EXPECT_TRUE(l.prfCompareFiles(u"missing.txt", u"C:\\Src", u"C:\\Dst"));
    EXPECT_EQ(f.readFile(u"C:\\Dst\\missing.txt"), "copy me");
    EXPECT_TRUE(fp.dialogs.forms().empty());

    f.addFile(u"C:\\Src\\newer.txt", "newest", Date{later.serial + 1});
    f.setLocked(u"C:\\Dst\\newer.txt");
    EXPECT_FALSE(l.prfCompareFiles(u"newer.txt", u"C:\\Src", u"C:\\Dst"));
}

// A splash form that records what was done to it.
class Splash final : public Object {
public:
    std::u16string typeName() const override { return u"Form"; }
    Variant call(std::u16string_view name, CallKind, std::span<Variant>) override {
        calls.emplace_back(name);
        if (name == u"Hide")
            visible = false;
        if (name == u"Show")
            visible = true;
        return name == u"Visible" ? Variant(visible) : Variant();
    }
    bool visible = true;
    std::vector<std::u16string> calls;
};

TEST_F(FoldersOnWindows, CompareFoldersCopiesSkipsAndAsks) {
    const Date t = makeDate({2024, 3, 15, 10, 30, 0});
    const Date later = makeDate({2024, 3, 15, 11, 30, 0});
    auto& f = fp.files;
    f.addFile(u"C:\\Setup\\new.txt", "new", t);
    f.addFile(u"C:\\Setup\\newer.txt", "setup", later);
    f.addFile(u"C:\\App\\newer.txt", "in use", t);
    f.addFile(u"C:\\Setup\\newer2.txt", "setup", later);
    f.addFile(u"C:\\App\\newer2.txt", "in use", t);
    f.addFile(u"C:\\Setup\\older.txt", "setup", t);
    f.addFile(u"C:\\App\\older.txt", "edited by the user", later);
    f.addFile(u"C:\\Setup\\same.txt", "setup", t);
    f.addFile(u"C:\\App\\same.txt", "in use", t);
    f.addFile(u"C:\\Setup\\locked.txt", "setup", t);
    f.setLocked(u"C:\\Setup\\locked.txt");
    f.addFile(u"C:\\Setup\\skip.dat", "not in the mask", t);
    f.addFile(u"C:\\Setup\\secret.txt", "hidden", t, fileattr::hidden);

    auto splash = std::make_shared<Splash>();
    fp.dialogs.answer(fake::FakeDialogHost::button(1)); // no
    fp.dialogs.answer(fake::FakeDialogHost::button(0)); // yes
    EXPECT_TRUE(l.prfCompareFolders(u"C:\\Setup", u"C:\\App", u"*.txt", splash));

    EXPECT_EQ(f.readFile(u"C:\\App\\new.txt"), "new");
    EXPECT_EQ(f.readFile(u"C:\\App\\newer.txt"), "in use");
    EXPECT_EQ(f.readFile(u"C:\\App\\newer2.txt"), "setup");
    EXPECT_EQ(f.readFile(u"C:\\App\\older.txt"), "edited by the user");
    EXPECT_EQ(f.readFile(u"C:\\App\\same.txt"), "in use");
    EXPECT_FALSE(f.exists(u"C:\\App\\locked.txt"));
    EXPECT_FALSE(f.exists(u"C:\\App\\skip.dat"));
    EXPECT_FALSE(f.exists(u"C:\\App\\secret.txt"));

    const auto& asked = fp.dialogs.forms();
    ASSERT_EQ(asked.size(), 2u);
    EXPECT_EQ(asked[0].title, u"Dateivergleich");
    EXPECT_EQ(asked[0].systemStyle, 68);
    EXPECT_EQ(asked[0].texts[0].text,
              u"Die Datei 'newer.txt' aus dem Installationsverzeichnis ist neuer als die bei Ihnen "
              u"aktuell verwendete Datei.\\n\\nMöchten Sie die Datei vom 15.03.2024 10:30:00 mit "
              u"der Originaldatei vom 15.03.2024 11:30:00 überschreiben?\\n\\nWenn Sie 'Nein' "
              u"wählen, sollten Sie die Datei 'C:/Setup/newer.txt' umbenennen, löschen oder mit "
              u"der Datei aus Ihrem Anwendungsverzeichnis 'C:/App' ersetzen, da Sie sonst bei "
              u"jedem Programmstart diese Meldung erhalten werden.\\n\\nBeachten Sie dabei, dass "
              u"Sie hierfür Administratorrechte brauchen werden.");
    EXPECT_EQ(fp.dialogs.eventsServed(), 6); // once per listed file
    EXPECT_EQ(splash->calls, (std::vector<std::u16string>{u"Visible", u"Hide", u"Show"}));
}

TEST_F(FoldersOnWindows, CompareFoldersCreatesTheTargetAndKnowsItsOwnFolder) {
    fp.files.addFile(u"C:\\Setup\\a.txt", "a");
    EXPECT_TRUE(l.prfCompareFolders(u"C:\\Setup", u"C:\\Data\\New\\App"));
    EXPECT_EQ(fp.files.readFile(u"C:\\Data\\New\\App\\a.txt"), "a");

    fp.files.addFile(u"C:\\Setup\\a.txt", "changed", Date{fp.clock.now().serial + 1});
    EXPECT_TRUE(l.prfCompareFolders(u"C:\\Setup\\", u"C:\\Setup"));
    EXPECT_TRUE(fp.dialogs.forms().empty());
    EXPECT_FALSE(l.prfCompareFolders(u"C:\\NoSetup", u"C:\\Data"));
}

} // namespace
} // namespace velkor6
