// The path, file and folder members with their POSIX meanings, over a real temporary tree.
#include "core/text.h"
#include "fake/temp_folder.h"
#include "velkor6/lib.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace velkor6 {
namespace {

class FilesOnPosix : public ::testing::Test {
protected:
    fake::TempFolder tmp;
    lib l{Module::createDefault()};
};

TEST_F(FilesOnPosix, PathsUseSlashesAndNoDrives) {
    EXPECT_EQ(l.vkrGetFullPath(u"/srv/app", u"x.ini"), u"/srv/app/x.ini");
    EXPECT_EQ(l.vkrGetFullPath(u"/srv/app/", u"/x.ini"), u"/srv/app/x.ini");
    EXPECT_EQ(l.vkrGetFullPath(u"C:\\App\\", u"\\x.ini"), u"C:\\App\\x.ini");
    EXPECT_EQ(l.vkrGetAbsolutePath(u"/srv/app/data/app.ini", u"..\\logs\\run.log"),
              u"/srv/app/logs/run.log");
    EXPECT_EQ(l.vkrGetAbsolutePath(u"/srv/app/data/app.ini", u"/etc/x"), u"/etc/x");

    tmp.mkdir("app/data");
    EXPECT_EQ(l.vkrGetRelativePath(tmp.u16("app/data"), tmp.u16("app/logs/run.log")),
              u"../logs/run.log");
    EXPECT_EQ(l.vkrGetRelativePath(tmp.u16("app/data/app.ini"), tmp.u16("app/data/sub/a.txt")),
              u"./sub/a.txt");

    typFileInfo info;
    ASSERT_TRUE(l.vkrSeparateFile(u"/srv/app\\data/report.2024.txt", info));
    EXPECT_EQ(info.lpDrive, u"");
    EXPECT_EQ(info.lpPath, u"/srv/app\\data/");
    EXPECT_EQ(info.lpFileName, u"report.2024");
    EXPECT_EQ(info.lpExt, u"txt");

    const std::u16string temp = l.vkrTempDir();
    ASSERT_FALSE(temp.empty());
    EXPECT_EQ(temp.back(), u'/');
    EXPECT_EQ(l.vkrSystemDir(), u"/etc");
}

TEST_F(FilesOnPosix, FilesAndAttributes) {
    const std::u16string file = tmp.u16("text.txt");
    l.vkrFileStreamLet(file, u"Grüße");
    EXPECT_EQ(l.vkrFileStream(file), u"Grüße\r\n");
    EXPECT_TRUE(l.vkrFileExists(file));
    EXPECT_FALSE(l.vkrFileExists(tmp.u16()));
    EXPECT_TRUE(l.vkrPathExists(tmp.u16()));
    EXPECT_FALSE(l.vkrPathExists(file));

    tmp.write(".profile");
    testing::internal::CaptureStderr();
    EXPECT_TRUE(l.vkrCheckAttributes(file, 0));
    EXPECT_FALSE(l.vkrCheckAttributes(tmp.u16(".profile"), 0));
    EXPECT_TRUE(l.vkrCheckAttributes(tmp.u16(".profile"), 2));
    EXPECT_FALSE(l.vkrCheckAttributes(tmp.u16(), 0));
    const std::string shown = testing::internal::GetCapturedStderr();
    EXPECT_NE(
        shown.find("--- velkor6 ---\n(critical)\nDiese Datei ist versteckt und kann deshalb nicht"),
        std::string::npos);
    EXPECT_NE(shown.find("Der eingegebene Name zeigt auf ein Verzeichnis"), std::string::npos);
}

TEST_F(FilesOnPosix, WholeFileReadsTakeRegularFilesOnly) {
    ASSERT_EQ(::mkfifo((tmp.path() / "fifo").c_str(), 0600), 0);
    const std::u16string names[] = {tmp.u16("fifo"), u"/dev/zero", tmp.u16("missing")};
    // In a child, so that a read that never ends fails the test instead of hanging it.
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        bool ok = true;
        for (const std::u16string& name : names)
            ok = ok && l.vkrFileStream(name).empty() && l.prfTextStream(name).empty();
        ::_exit(ok ? 0 : 1);
    }
    int status = 0;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (::waitpid(child, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > deadline) {
            ::kill(child, SIGKILL);
            ::waitpid(child, &status, 0);
            FAIL() << "reading a pipe or a device did not return";
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

TEST_F(FilesOnPosix, FindFileTriesAFoldersFilesFirst) {
    tmp.write("a/b/c/target.ini");
    tmp.write("a/b/other.INI");
    tmp.write("a/z/notes.txt");
    std::filesystem::create_symlink(tmp.path() / "a", tmp.path() / "a/b/loop");

    EXPECT_EQ(l.vkrFindFile(u"*.ini", tmp.u16("a")), tmp.u16("a/b/other.INI"));
    EXPECT_EQ(l.vkrFindFile(u"TARGET.INI", tmp.u16("a")), tmp.u16("a/b/c/target.ini"));
    EXPECT_EQ(l.vkrFindFile(u"n?tes.*", tmp.u16() + u"\\a\\"), tmp.u16("a/z/notes.txt"));
    EXPECT_EQ(l.vkrFindFile(u"missing", tmp.u16()), u"");
}

TEST_F(FilesOnPosix, Folders) {
    fake::CurrentDirectoryGuard guard;
    EXPECT_TRUE(l.prfMakeDir(tmp.u16("one/two/three/")));
    EXPECT_TRUE(std::filesystem::is_directory(tmp.path() / "one/two/three"));
    EXPECT_TRUE(l.prfMakeDir(u"/"));
    tmp.write("file");
    EXPECT_FALSE(l.prfMakeDir(tmp.u16("file/sub")));

    EXPECT_TRUE(l.prfChangeDir(tmp.u16("one/two") + u"\\"));
    EXPECT_EQ(std::filesystem::current_path(), tmp.path() / "one/two");
    EXPECT_TRUE(l.prfChangeDir(u"/"));
    EXPECT_FALSE(l.prfChangeDir(tmp.u16("missing")));

    tmp.write("list/A.txt");
    tmp.write("list/a.txt");
    tmp.write("list/.a-hidden.txt");
    tmp.mkdir("list/a-folder");
    const Variant kept = l.prfGetFileList(tmp.u16("list"), u"*.*", u"a*");
    ASSERT_EQ(kept.array().items.size(), 1u);
    EXPECT_EQ(kept.array().items[0], Variant(u"a.txt"));
    EXPECT_EQ(l.prfGetFileList(tmp.u16("list"), u"*.TXT").array().items.size(), 2u);

    EXPECT_EQ(l.prfIsAdmin(), ::geteuid() == 0);
}

TEST_F(FilesOnPosix, FoldersCompareAsTheFileSystemNamesThem) {
    fake::CurrentDirectoryGuard guard;
    tmp.mkdir("data/sub");
    tmp.mkdir("Data");
    std::filesystem::create_directory_symlink(tmp.path() / "data", tmp.path() / "link");
    const auto data = std::filesystem::canonical(tmp.path() / "data");
    const auto upper = std::filesystem::canonical(tmp.path() / "Data");
    struct Case {
        std::u16string folder;
        bool current; // what prfChangeDir answers
        std::filesystem::path after;
    };
    const Case changeDir[] = {
        {tmp.u16("DATA"), false, data}, // no such folder
        {tmp.u16("Data"), true, upper},
        {tmp.u16("link/"), true, data},
        {tmp.u16("link/sub"), true, data / "sub"},
        {u"sub", true, data / "sub"},
        {u"", false, data},
    };
    for (const Case& c : changeDir) {
        SCOPED_TRACE(toUtf8(c.folder));
        std::filesystem::current_path(data);
        EXPECT_EQ(l.prfChangeDir(c.folder), c.current);
        EXPECT_EQ(std::filesystem::current_path(), c.after);
    }
    // The last component goes: the folder of a file becomes current.
    const Case changeToPath[] = {
        {tmp.u16("Data/x.ini"), true, upper},
        {tmp.u16("link/x.ini"), true, data},
        {tmp.u16("DATA/x.ini"), false, data},
    };
    for (const Case& c : changeToPath) {
        SCOPED_TRACE(toUtf8(c.folder));
        std::filesystem::current_path(data);
        l.vkrChangeToPath(c.folder);
        EXPECT_EQ(std::filesystem::current_path(), c.after);
    }
}

TEST_F(FilesOnPosix, CompareFoldersNeverLosesANewerTarget) {
    tmp.write("setup/new.txt", "new");
    tmp.write("setup/newer.txt", "setup");
    tmp.write("setup/older.txt", "setup");
    tmp.write("app/newer.txt", "in use");
    tmp.write("app/older.txt", "edited");
    const auto now = std::filesystem::file_time_type::clock::now();
    std::filesystem::last_write_time(tmp.path() / "app/newer.txt", now - std::chrono::hours(2));
    std::filesystem::last_write_time(tmp.path() / "setup/older.txt", now - std::chrono::hours(2));

    // Without a display and without answers the question goes to standard error and is answered
    // as Esc would: no.
    testing::internal::CaptureStderr();
    EXPECT_TRUE(l.prfCompareFolders(tmp.u16("setup"), tmp.u16("app")));
    const std::string asked = testing::internal::GetCapturedStderr();

    const auto read = [&](const char* name) { return l.vkrFileStream(tmp.u16(name)); };
    EXPECT_EQ(read("app/new.txt"), u"new");
    EXPECT_EQ(read("app/newer.txt"), u"in use");
    EXPECT_EQ(read("app/older.txt"), u"edited");
    EXPECT_NE(asked.find("--- Dateivergleich ---\n(information)\nDie Datei 'newer.txt'"),
              std::string::npos);
    EXPECT_EQ(asked.find("older.txt"), std::string::npos);
}

} // namespace
} // namespace velkor6
