// The POSIX services over a real temporary folder, and their pure parts (mount table, XDG).
#include "applib/command_line.h"
#include "core/date.h"
#include "fake/temp_folder.h"
#include "platform/posix/command_words.h"
#include "platform/posix/mounts.h"
#include "platform/posix/services.h"
#include "platform/posix/utf8_path.h"
#include "platform/posix/xdg_folders.h"
#include "velkor6/enums.h"
#include "velkor6/platform/platform.h"

#include <dlfcn.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace velkor6::posix {
namespace {

TEST(PosixMounts, PseudoFileSystemsAreNotSearchable) {
    const std::string table = "overlay / overlay rw,relatime 0 0\n"
                              "proc /proc proc rw 0 0\n"
                              "tmpfs /dev tmpfs rw 0 0\n"
                              "sysfs /sys sysfs ro 0 0\n"
                              "/dev/sda1 /media/My\\040Disk ext4 rw 0 0\n"
                              "/dev/sdb1 /home ext4 rw 0 0\n"
                              "/dev/sdc1 /home ext4 rw 0 0\n"
                              "cgroup2 /sys/fs/cgroup cgroup2 rw 0 0\n"
                              "tmpfs /tmp tmpfs rw 0 0\n";
    const std::vector<Volume> volumes = volumesFromMounts(table);
    std::vector<std::u16string> searchable;
    for (const auto& v : volumes) {
        if (v.searchable)
            searchable.push_back(v.root);
    }
    EXPECT_EQ(searchable,
              (std::vector<std::u16string>{u"/", u"/home", u"/media/My Disk", u"/tmp"}));
    EXPECT_EQ(volumes.size(), 8u); // /home once
}

TEST(PosixXdg, SpecialFoldersFollowTheXdgRules) {
    const std::map<std::string, std::string> env = {{"HOME", "/home/eva"},
                                                    {"XDG_DATA_HOME", "/data/eva"},
                                                    {"XDG_CACHE_HOME", "relative/ignored"}};
    const auto lookup = [&](const char* name) -> std::optional<std::string> {
        const auto it = env.find(name);
        return it == env.end() ? std::nullopt : std::optional<std::string>(it->second);
    };
    const auto read = [](const std::string& path) -> std::optional<std::string> {
        if (path != "/home/eva/.config/user-dirs.dirs")
            return std::nullopt;
        return "# written by xdg-user-dirs-update\n"
               "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n"
               "XDG_PICTURES_DIR=\"/srv/bilder/\"\n"
               "XDG_TEMPLATES_DIR=unquoted\n";
    };
    const XdgFolders x = readXdgFolders(lookup, read);
    // $HOME and a trailing separator in user-dirs.dirs, an unquoted entry ignored, a relative
    // XDG variable ignored, the create flag masked off.
    const std::pair<std::int32_t, std::string> cases[] = {
        {CSIDL_DESKTOP, "/home/eva/Schreibtisch"},
        {CSIDL_MYPICTURES, "/srv/bilder"},
        {CSIDL_TEMPLATES, "/home/eva"},
        {CSIDL_APPDATA, "/home/eva/.config"},
        {CSIDL_LOCAL_APPDATA, "/data/eva"},
        {CSIDL_INTERNET_CACHE, "/home/eva/.cache"},
        {CSIDL_APPDATA | CSIDL_FLAG_CREATE, "/home/eva/.config"},
        {CSIDL_COMMON_APPDATA, "/var/lib"},
        {CSIDL_PRINTERS, ""},
    };
    for (const auto& [csidl, path] : cases)
        EXPECT_EQ(specialFolderPath(csidl, x), path) << csidl;
}

class PosixFileSystem : public ::testing::Test {
protected:
    fake::TempFolder tmp;
    std::unique_ptr<FileSystem> fs = createFileSystem();
};

TEST_F(PosixFileSystem, AttributesHaveTheirPosixMeanings) {
    tmp.write("plain.txt", "12345");
    tmp.write(".hidden");
    tmp.write("locked.txt");
    tmp.mkdir("folder");
    ::chmod((tmp.path() / "locked.txt").c_str(), 0444);

    const auto plain = fs->status(tmp.u16("plain.txt"));
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->attributes, 0u);
    EXPECT_EQ(plain->size, 5u);
    EXPECT_EQ(fs->status(tmp.u16(".hidden"))->attributes, fileattr::hidden);
    EXPECT_EQ(fs->status(tmp.u16("folder"))->attributes, fileattr::directory);
    // The superuser may write anything.
    EXPECT_EQ(fs->status(tmp.u16("locked.txt"))->attributes,
              ::geteuid() == 0 ? 0u : fileattr::readOnly);
    EXPECT_FALSE(fs->status(tmp.u16("missing")));

    // A backslash is read as a separator.
    std::u16string windowsStyle = tmp.u16("folder");
    windowsStyle += u"\\..\\plain.txt";
    EXPECT_EQ(fs->readFile(windowsStyle), "12345");
}

TEST_F(PosixFileSystem, ListsWritesCopiesAndRenames) {
    tmp.write("a.txt", "a");
    tmp.mkdir("sub");
    std::filesystem::create_symlink(tmp.path() / "sub", tmp.path() / "link");
    std::filesystem::create_symlink(tmp.path() / "a.txt", tmp.path() / "alias.txt");

    std::map<std::u16string, std::pair<bool, bool>> seen; // folder, link
    ASSERT_TRUE(fs->forEachEntry(tmp.u16(), [&](const FolderEntry& e) {
        seen[std::u16string(e.name)] = {e.isFolder(), e.isLink};
        return true;
    }));
    EXPECT_EQ(seen.size(), 4u);
    EXPECT_EQ(seen[u"sub"], std::make_pair(true, false));
    EXPECT_EQ(seen[u"link"], std::make_pair(true, true));
    EXPECT_FALSE(seen[u"alias.txt"].first);
    EXPECT_FALSE(fs->forEachEntry(tmp.u16("missing"), [](const FolderEntry&) { return true; }));

    const std::u16string log = tmp.u16("sub/log.txt");
    EXPECT_TRUE(fs->appendFile(log, "one\r\n"));
    EXPECT_TRUE(fs->appendFile(log, "two\r\n"));
    EXPECT_EQ(fs->readFile(log), "one\r\ntwo\r\n");
    EXPECT_FALSE(fs->writeFile(tmp.u16("nowhere/x.txt"), "x"));

    // A copy keeps the source's time, as the system copy does on Windows.
    const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(48);
    std::filesystem::last_write_time(tmp.path() / "a.txt", old);
    const std::u16string copy = tmp.u16("sub/copy.txt");
    EXPECT_TRUE(fs->copyFile(tmp.u16("a.txt"), copy, false));
    EXPECT_EQ(fs->status(copy)->lastModified, fs->status(tmp.u16("a.txt"))->lastModified);
    EXPECT_FALSE(fs->copyFile(tmp.u16("a.txt"), copy, false));
    EXPECT_TRUE(fs->rename(log, copy));
    EXPECT_EQ(fs->readFile(copy), "one\r\ntwo\r\n");
    EXPECT_TRUE(fs->remove(copy));
    EXPECT_FALSE(fs->exists(copy));
}

TEST_F(PosixFileSystem, PathsAndFolders) {
    fake::CurrentDirectoryGuard guard;
    EXPECT_EQ(fs->fullPath(u"/a//b/./c/../d/"), u"/a/b/d");
    EXPECT_EQ(fs->fullPath(u"/.."), u"/");
    ASSERT_TRUE(fs->setCurrentDirectory(tmp.u16()));
    const std::u16string here = fs->currentDirectory();
    EXPECT_EQ(fs->fullPath(u"x\\y"), here + u"/x/y");
    EXPECT_FALSE(fs->setCurrentDrive(u"C"));

    // Localtime whole seconds, like the file-system object's dates.
    tmp.write("t.txt");
    const Date modified = fs->status(tmp.u16("t.txt"))->lastModified;
    const DateParts parts = splitDate(modified);
    EXPECT_EQ(makeDate(parts), modified);
}

TEST(PosixShell, StartsWithoutWaitingAndReportsMissingPrograms) {
    fake::TempFolder tmp;
    auto shell = createShell();
    EXPECT_LE(shell->execute(u"open", tmp.u16("missing.txt"), u"", u"", 6), 32);
    EXPECT_FALSE(shell->startWithFile(u"", u"f", 2));
    EXPECT_FALSE(shell->startWithFile(tmp.u16("no-such-program") + u" %1", u"f", 2));
    EXPECT_FALSE(shell->startWithFile(u"touch '%1", tmp.u16("unclosed"), 2));

    const std::filesystem::path marker = tmp.path() / "started";
    ASSERT_TRUE(shell->startWithFile(u"touch %1", tmp.u16("started"), 2));
    for (int i = 0; i < 200 && !std::filesystem::exists(marker); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_TRUE(std::filesystem::exists(marker));
}

TEST(PosixEnvironment, CommandLineReadsBackAsTheProcessArguments) {
    std::ifstream in("/proc/self/cmdline", std::ios::binary);
    std::string raw((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::vector<std::u16string> expected;
    for (std::size_t start = 0, end; start < raw.size(); start = end + 1) {
        end = raw.find('\0', start);
        if (end == std::string::npos)
            end = raw.size();
        expected.push_back(fromNative(raw.substr(start, end - start)));
    }
    ASSERT_FALSE(expected.empty());
    expected.erase(expected.begin()); // the program
    std::vector<std::u16string> words;
    for (auto& w : app::splitCommandWords(createEnvironment()->commandLine(), true))
        words.push_back(w.text);
    EXPECT_EQ(words, expected);
}

TEST(PosixEnvironment, ArgumentsJoinIntoAWindowsCommandLine) {
    const std::vector<std::u16string> args = {
        u"/usr/bin/my prog",    u"a b",      u"",  u"x\"y", u"back\\",
        u"back\\\"q",           u"/out=a b", u"-", u"-\"",  u"tab\there",
        u"\\\\server\\share\\", u"plain"};
    const std::u16string line = windowsCommandLine(args);
    const auto words = app::splitCommandWords(line, true);
    ASSERT_EQ(words.size(), args.size() - 1) << std::string(line.begin(), line.end());
    for (std::size_t i = 0; i < words.size(); ++i)
        EXPECT_EQ(words[i].text, args[i + 1]);
    EXPECT_FALSE(words[5].quotedStart); // "/out=a b" is still a switch
    EXPECT_EQ(line.substr(line.size() - 6), u" plain");
}

TEST(PosixFonts, FontconfigListsTheInstalledFamilies) {
    const std::vector<std::u16string> families = createFonts()->families();
    if (families.empty())
        GTEST_SKIP() << "fontconfig knows no fonts on this machine";
    for (const auto& name : families)
        EXPECT_FALSE(name.empty());
}

// A program that never wrapped a Qt widget gets no control window and never loads Qt for one.
TEST(PosixWindowManager, ControlWindowsNeverLoadTheQtLibrary) {
    const std::unique_ptr<Platform> platform = Platform::createNative();
    EXPECT_EQ(platform->windowManager->controlWindow(0x60000000), nullptr);
    EXPECT_EQ(platform->windowManager->controlWindow(0x1200007), nullptr);
    EXPECT_EQ(::dlopen("libvelkor6-qt.so", RTLD_NOW | RTLD_NOLOAD), nullptr);
}

} // namespace
} // namespace velkor6::posix
