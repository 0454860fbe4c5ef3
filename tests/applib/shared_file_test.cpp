// Settings files shared by processes, on the real file system.
#include "applib/ini_document.h"
#include "applib/profile_file.h"
#include "core/text.h"
#include "fake/temp_folder.h"
#include "platform/posix/file_store.h"
#include "platform/posix_test_env.h"
#include "velkor6/module.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace velkor6::app {
namespace {

using posixtest::contentOf;

// Runs body in a child process and returns its wait status.
template <class F>
int inChild(F body) {
    const pid_t pid = ::fork();
    if (pid == 0) {
        const bool ok = body();
        ::_exit(ok ? 0 : 1);
    }
    int status = 0;
    ::waitpid(pid, &status, 0);
    return status;
}

// A temporary folder in memory where there is one: each write waits for the disk, and what is
// tested here is the locking, not the disk.
class MemoryFolder {
public:
    MemoryFolder() {
        std::string pattern =
            std::filesystem::is_directory("/dev/shm")
                ? "/dev/shm/velkor6-test-XXXXXX"
                : (std::filesystem::temp_directory_path() / "velkor6-test-XXXXXX").string();
        if (::mkdtemp(pattern.data()) != nullptr)
            path_ = pattern;
    }
    MemoryFolder(const MemoryFolder&) = delete;
    MemoryFolder& operator=(const MemoryFolder&) = delete;
    ~MemoryFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    const std::filesystem::path& path() const { return path_; }
    std::u16string u16(std::string_view name) const { return fromUtf8((path_ / name).string()); }

private:
    std::filesystem::path path_;
};

TEST(SharedSettingsFile, TwoProcessesWritingAtOnceKeepAllTheirKeys) {
    MemoryFolder folder;
    ASSERT_FALSE(folder.path().empty());
    const std::u16string path = folder.u16("shared.ini");
    constexpr int writesEach = 1000;

    pid_t writers[2];
    for (int w = 0; w < 2; ++w) {
        writers[w] = ::fork();
        if (writers[w] == 0) {
            auto module = Module::createDefault();
            ProfileFile profile(module->platform());
            bool ok = true;
            for (int i = 0; i < writesEach; ++i) {
                const std::u16string key =
                    fromUtf8("w" + std::to_string(w) + "_" + std::to_string(i));
                ok = profile.write(path, u"Keys", key, key) && ok;
            }
            ::_exit(ok ? 0 : 1);
        }
    }
    for (const pid_t pid : writers) {
        int status = 0;
        ::waitpid(pid, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }

    const IniDocument doc(contentOf(folder.path() / "shared.ini"));
    int found = 0;
    for (int w = 0; w < 2; ++w) {
        for (int i = 0; i < writesEach; ++i) {
            const std::u16string key = fromUtf8("w" + std::to_string(w) + "_" + std::to_string(i));
            found += doc.value(u"Keys", key) == key ? 1 : 0;
        }
    }
    EXPECT_EQ(found, 2 * writesEach);
}

TEST(SharedSettingsFile, ACrashBeforeTheRenameLeavesTheOldFileWhole) {
    fake::TempFolder folder;
    const std::string old = "[S]\r\nold=1\r\n";
    folder.write("app.ini", old);
    const std::string path = (folder.path() / "app.ini").string();

    const int status = inChild(
        [&] { return posix::replaceFile(path, "[S]\r\nnew=2\r\n", [] { std::raise(SIGKILL); }); });
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(contentOf(path), old);

    // The next writer goes on from the old content.
    auto module = Module::createDefault();
    ProfileFile profile(module->platform());
    EXPECT_TRUE(profile.write(folder.u16("app.ini"), u"S", u"next", std::u16string_view(u"3")));
    EXPECT_EQ(contentOf(path), "[S]\r\nold=1\r\nnext=3\r\n");
}

int temporaryFiles(const std::filesystem::path& folder) {
    int n = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        n += entry.path().extension() == ".tmp" ? 1 : 0;
    return n;
}

TEST(SharedSettingsFile, WritersKilledAtAnyMomentLoseNothingAndLeaveNoTemporaryFile) {
    // On disk: the sync before the rename keeps each write open long enough for kills to hit it.
    fake::TempFolder folder;
    const std::u16string path = folder.u16("Demo.ini");
    auto module = Module::createDefault();
    ProfileFile profile(module->platform());
    const auto name = [](std::string_view prefix, int i) {
        return fromUtf8(std::string(prefix) + std::to_string(i));
    };
    for (int i = 0; i < 100; ++i)
        ASSERT_TRUE(profile.write(path, u"Base", name("b", i), std::u16string_view(u"kept")));

    std::mt19937 rng(20240315);
    int killedMidWrite = 0;
    int rounds = 0;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    for (; rounds < 50 && std::chrono::steady_clock::now() < deadline; ++rounds) {
        int ready[2];
        ASSERT_EQ(::pipe(ready), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            ::close(ready[0]);
            auto m = Module::createDefault();
            ProfileFile writer(m->platform());
            for (int i = 0;; ++i) {
                writer.write(path, u"Child", u"count", name("", i));
                if (i == 0 && ::write(ready[1], "x", 1) != 1)
                    ::_exit(1);
            }
        }
        ::close(ready[1]);
        char byte = 0;
        EXPECT_EQ(::read(ready[0], &byte, 1), 1);
        ::close(ready[0]);
        std::this_thread::sleep_for(std::chrono::microseconds(rng() % 3000));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        killedMidWrite += temporaryFiles(folder.path()) > 0 ? 1 : 0;

        ASSERT_TRUE(profile.write(path, u"Parent", name("p", rounds), std::u16string_view(u"1")));
        EXPECT_EQ(temporaryFiles(folder.path()), 0) << "round " << rounds;
    }

    const IniDocument doc(contentOf(folder.path() / "Demo.ini"));
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(doc.value(u"Base", name("b", i)), u"kept") << i;
    for (int i = 0; i < rounds; ++i)
        EXPECT_EQ(doc.value(u"Parent", name("p", i)), u"1") << i;
    EXPECT_TRUE(doc.value(u"Child", u"count").has_value());
    // Else the test proved nothing about files left by a kill.
    EXPECT_GT(killedMidWrite, 0);
}

TEST(SharedSettingsFile, ReadsSeeAnEditInPlaceOfTheSameSize) {
    fake::TempFolder folder;
    folder.write("app.ini", "[S]\r\nk=one\r\n");
    const auto file = folder.path() / "app.ini";
    // Old enough for its parsed content to be kept.
    std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now() -
                                               std::chrono::hours(1));
    auto module = Module::createDefault();
    ProfileFile profile(module->platform());
    EXPECT_EQ(profile.read(folder.u16("app.ini"), u"S", u"k"), u"one");
    EXPECT_EQ(profile.read(folder.u16("app.ini"), u"S", u"k"), u"one");

    std::ofstream(file, std::ios::binary | std::ios::in | std::ios::out) << "[S]\r\nk=two\r\n";
    EXPECT_EQ(profile.read(folder.u16("app.ini"), u"S", u"k"), u"two");
}

TEST(SharedSettingsFile, AReadOnlyFileIsNotReplaced) {
    fake::TempFolder folder;
    folder.write("app.ini", "[S]\r\nk=1\r\n");
    const auto file = folder.path() / "app.ini";
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    if (::access(file.c_str(), W_OK) == 0)
        GTEST_SKIP() << "running with rights that ignore file permissions";
    auto module = Module::createDefault();
    ProfileFile profile(module->platform());
    EXPECT_FALSE(profile.write(folder.u16("app.ini"), u"S", u"k", std::u16string_view(u"2")));
    EXPECT_EQ(contentOf(file), "[S]\r\nk=1\r\n");
}

} // namespace
} // namespace velkor6::app
