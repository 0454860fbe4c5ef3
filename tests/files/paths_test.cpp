// The path and file members with Windows paths, over the fake platform.
#include "core/date.h"
#include "fake/fake_platform.h"
#include "lib/lib_members.h"
#include "velkor6/lib.h"
#include "velkor6/record_object.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

class FilesOnWindows : public ::testing::Test {
protected:
    fake::FakePlatform fp;
    lib l{fp.module};
};

TEST_F(FilesOnWindows, FullAbsoluteAndRelativePaths) {
    EXPECT_EQ(l.vkrGetFullPath(u"C:\\App\\", u"\\x.txt"), u"C:\\App\\x.txt");
    EXPECT_EQ(l.vkrGetFullPath(u"C:\\App", u"x.txt"), u"C:\\App\\x.txt");
    EXPECT_EQ(l.vkrGetFullPath(u"", u"x"), u"\\x");
    EXPECT_EQ(l.vkrGetFullPath(u"C:\\App", u"\\\\x"), u"C:\\App\\\\x");

    EXPECT_EQ(l.vkrGetAbsolutePath(u"C:\\App\\Data\\app.ini", u"..\\Logs\\run.log"),
              u"C:\\App\\Logs\\run.log");
    EXPECT_EQ(l.vkrGetAbsolutePath(u"C:\\App\\Data", u"x.ini"), u"C:\\App\\x.ini");
    EXPECT_EQ(l.vkrGetAbsolutePath(u"C:\\App\\Data\\", u"x.ini"), u"C:\\App\\Data\\x.ini");
    EXPECT_EQ(l.vkrGetAbsolutePath(u"C:\\a\\b.ini", u"D:\\x\\..\\.\\y.ini"),
              u"D:\\x\\..\\.\\y.ini");
    EXPECT_EQ(l.vkrGetAbsolutePath(u"C:\\", u"x.ini"), u"C:\\x.ini");

    fp.files.addFolder(u"C:\\App\\Data");
    EXPECT_EQ(l.vkrGetRelativePath(u"C:\\App\\Data", u"C:\\App\\Logs\\run.log"),
              u"..\\Logs\\run.log");
    EXPECT_EQ(l.vkrGetRelativePath(u"C:\\App\\Data\\app.ini", u"C:\\App\\Data\\sub\\a.txt"),
              u".\\sub\\a.txt");
    EXPECT_EQ(l.vkrGetRelativePath(u"C:\\x", u"D:\\y.txt"), u"D:\\y.txt");
    // A folder that does not exist counts as a file, so its parent is the base.
    EXPECT_EQ(l.vkrGetRelativePath(u"C:\\App\\Missing", u"C:\\App\\Logs\\run.log"),
              u".\\Logs\\run.log");
}

TEST_F(FilesOnWindows, SeparateFile) {
    struct Case {
        std::u16string_view full, drive, path, name, ext;
    };
    fp.files.addDrive(u'D');
    fp.files.addFolder(u"D:\\Work");
    ASSERT_TRUE(fp.files.setCurrentDrive(u"D"));
    const Case cases[] = {
        {u"c:\\App\\Data\\report.2024.txt", u"C", u"c:\\App\\Data\\", u"report.2024", u"txt"},
        {u"notes", u"D", u"", u"notes", u""},
        {u"C:file.txt", u"C", u"", u"C:file", u"txt"},
        {u"\\\\srv\\share\\a.txt", u"D", u"\\\\srv\\share\\", u"a", u"txt"},
        {u"C:\\v1.2\\readme", u"C", u"C:\\v1.2\\", u"readme", u""},
    };
    for (const auto& c : cases) {
        typFileInfo info;
        ASSERT_TRUE(l.vkrSeparateFile(c.full, info));
        EXPECT_EQ(info.lpDrive, c.drive);
        EXPECT_EQ(info.lpPath, c.path);
        EXPECT_EQ(info.lpFileName, c.name);
        EXPECT_EQ(info.lpExt, c.ext);
        EXPECT_EQ(info.lpFullName, c.full);
    }
}

TEST_F(FilesOnWindows, SeparateFileThroughTheDispatchTable) {
    Variant name(u"C:\\App\\run.log");
    Variant record; // the caller's variable, filled with a new typFileInfo
    std::vector<dispatch::Argument> args = {{&name, {}}, {&record, {}}};
    const Variant ok = dispatch::invoke(dispatch::libMembers(), l, u"vkrSeparateFile",
                                        CallKind::Method, args, l.locale());
    EXPECT_EQ(ok, Variant(true));
    ASSERT_TRUE(record.isObject());
    auto* info = dynamic_cast<RecordObject*>(record.object().get());
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->typeName(), u"typFileInfo");
    ASSERT_EQ(info->fields().size(), 5u);
    EXPECT_EQ(info->fields()[0].name, u"lpDrive");
    EXPECT_EQ(record.object()->call(u"lpExt", CallKind::PropertyGet, {}), Variant(u"log"));

    // A record passed in is filled in place.
    const ObjectRef same = record.object();
    Variant other(u"D:\\x.txt");
    args = {{&other, {}}, {&record, {}}};
    dispatch::invoke(dispatch::libMembers(), l, u"vkrSeparateFile", CallKind::Method, args,
                     l.locale());
    EXPECT_EQ(record.object(), same);
    EXPECT_EQ(*info->field(u"LPDRIVE"), Variant(u"D"));
}

TEST_F(FilesOnWindows, ChangeToPathDropsTheLastComponent) {
    fp.files.addFolder(u"C:\\App\\Data");
    l.vkrChangeToPath(u"C:\\App\\Data\\app.exe");
    EXPECT_EQ(fp.files.currentDirectory(), u"C:\\App\\Data");
    l.vkrChangeToPath(u"C:\\App\\Data");
    EXPECT_EQ(fp.files.currentDirectory(), u"C:\\App");
    l.vkrChangeToPath(u"C:\\Missing\\x.exe");
    EXPECT_EQ(fp.files.currentDirectory(), u"C:\\App");

    // Another drive becomes the current drive as well.
    fp.files.addDrive(u'D');
    fp.files.addFolder(u"D:\\Tools");
    l.vkrChangeToPath(u"D:\\Tools\\run.exe");
    EXPECT_EQ(fp.files.currentDirectory(), u"D:\\Tools");
}

TEST(FilesOnWindowsCaches, SystemAndTempFolder) {
    // The temporary folder is read once for the module, at the latest by the first lib object.
    fake::FakePlatform fp;
    fp.files.setTempFolder(u"C:\\Temp");
    fp.files.addFolder(u"C:\\Temp");
    lib l(fp.module);
    EXPECT_EQ(l.vkrTempDir(), u"C:\\Temp\\");
    fp.files.setTempFolder(u"D:\\Other\\");
    lib second(fp.module);
    EXPECT_EQ(second.vkrTempDir(), u"C:\\Temp\\");

    // The Windows directory is read once per object.
    EXPECT_EQ(l.vkrSystemDir(), u"C:\\Windows");
    fp.files.setWindowsFolder(u"C:\\WINNT");
    EXPECT_EQ(l.vkrSystemDir(), u"C:\\Windows");
    EXPECT_EQ(second.vkrSystemDir(), u"C:\\WINNT");
}

TEST_F(FilesOnWindows, FileStreamAndExistence) {
    fp.files.addFile(u"C:\\Data\\umlaut.txt", "\xE4\r\nx");
    fp.files.addFile(u"C:\\Data\\empty.txt", "");
    EXPECT_EQ(l.vkrFileStream(u"C:\\Data\\umlaut.txt"), u"ä\r\nx");
    EXPECT_EQ(l.vkrFileStream(u"C:\\Data\\empty.txt"), u"");
    EXPECT_EQ(l.vkrFileStream(u"C:\\Data\\missing.txt"), u"");
    EXPECT_EQ(l.vkrFileStream(u"C:\\Data"), u"");

    // Replacing a file in the code page keeps the code page.
    fp.files.addFile(u"C:\\Data\\out.txt", "\xE4");
    l.vkrFileStreamLet(u"C:\\Data\\out.txt", u"Grüße");
    EXPECT_EQ(fp.files.readFile(u"C:\\Data\\out.txt"), "Gr\xFC\xDF"
                                                       "e\r\n");
    fp.files.setLocked(u"C:\\Data\\out.txt");
    l.vkrFileStreamLet(u"C:\\Data\\out.txt", u"lost");
    l.vkrFileStreamLet(u"C:\\NoSuchFolder\\out.txt", u"lost");
    EXPECT_FALSE(fp.files.exists(u"C:\\NoSuchFolder\\out.txt"));

    EXPECT_TRUE(l.vkrFileExists(u"c:\\data\\EMPTY.txt"));
    EXPECT_FALSE(l.vkrFileExists(u"C:\\Data"));
    EXPECT_FALSE(l.vkrFileExists(u""));
    EXPECT_TRUE(l.vkrPathExists(u"C:\\Data\\"));
    EXPECT_FALSE(l.vkrPathExists(u"C:\\Data\\empty.txt"));
}

TEST_F(FilesOnWindows, CheckAttributesReportsTheFirstForbiddenOne) {
    using namespace fileattr;
    fp.files.addFile(u"C:\\f.txt", "", std::nullopt, readOnly | hidden | archive);
    fp.files.addFolder(u"C:\\dir");

    EXPECT_FALSE(l.vkrCheckAttributes(u"C:\\f.txt", 0));
    EXPECT_FALSE(l.vkrCheckAttributes(u"C:\\f.txt", 1));
    EXPECT_TRUE(l.vkrCheckAttributes(u"C:\\f.txt", 3));
    EXPECT_FALSE(l.vkrCheckAttributes(u"C:\\dir", 0));
    EXPECT_TRUE(l.vkrCheckAttributes(u"C:\\dir", 16));
    EXPECT_FALSE(l.vkrCheckAttributes(u"C:\\missing.txt", 0));

    const auto& shown = fp.dialogs.forms();
    ASSERT_EQ(shown.size(), 3u);
    EXPECT_EQ(shown[0].kind, DialogForm::Kind::richMessage);
    EXPECT_EQ(shown[0].icon, DialogIcon::critical);
    EXPECT_EQ(shown[0].texts[0].text,
              u"{Diese Datei ist schreibgeschützt und kann deshalb nicht geöffnet "
              u"werden.\n\nBitte ändern Sie die Dateiattribute bevor Sie die Datei "
              u"erneut öffnen.}");
    EXPECT_EQ(shown[1].texts[0].text.substr(0, 28), u"{Diese Datei ist versteckt u");
    EXPECT_EQ(shown[2].texts[0].text.substr(0, 49),
              u"{Der eingegebene Name zeigt auf ein Verzeichnis u");
}

TEST_F(FilesOnWindows, FindFile) {
    auto& f = fp.files;
    f.addFile(u"C:\\App\\AAA\\deep.ini");
    f.addFile(u"C:\\App\\app.ini");
    f.addFile(u"C:\\App\\readme.txt");
    f.addFile(u"C:\\App\\sub\\data7.dat");

    // The folder's own file wins over the sub-folder that lists first.
    EXPECT_EQ(l.vkrFindFile(u"*.INI", u"C:\\App"), u"C:\\App\\app.ini");
    EXPECT_EQ(l.vkrFindFile(u"deep.*", u"C:\\App\\"), u"C:\\App\\AAA\\deep.ini");
    EXPECT_EQ(l.vkrFindFile(u"DATA#.dat", u"C:\\App"), u"C:\\App\\sub\\data7.dat");
    EXPECT_EQ(l.vkrFindFile(u"nothing", u"C:\\App"), u"");
    EXPECT_EQ(l.vkrFindFile(u"*.ini", u"C:\\Missing"), u"");
    EXPECT_EQ(l.vkrFindFile(u"[a", u"C:\\App"), u"");

    // Without a folder every ready drive is searched in letter order.
    f.addDrive(u'E');
    f.addFile(u"E:\\only.on.e");
    f.addDrive(u'D', false);
    EXPECT_EQ(l.vkrFindFile(u"only.on.e"), u"E:\\only.on.e");
}

TEST_F(FilesOnWindows, FindFileStopsOnEscape) {
    for (int i = 0; i < 20; ++i)
        fp.files.addFile(u"C:\\Tree\\f" + std::u16string(1, char16_t(u'a' + i)) + u".txt");
    fp.files.addFile(u"C:\\Tree\\zz\\target.ini");

    fp.input.pressAt(vkey::escape, 10);
    EXPECT_EQ(l.vkrFindFile(u"target.ini", u"C:\\Tree"), u"#BREAK#");
    EXPECT_EQ(fp.input.queries(vkey::escape), 10); // stopped at the press, not at the end

    fp.input.setDown(vkey::escape, false);
    EXPECT_EQ(l.vkrFindFile(u"target.ini", u"C:\\Tree"), u"C:\\Tree\\zz\\target.ini");
}

} // namespace
} // namespace velkor6
