// Editing on POSIX: the "edit" verb starts the user's editor, and no part of a file name is
// ever read as shell syntax.
#include "fake/temp_folder.h"
#include "platform/memory_registry.h"
#include "platform/posix_test_env.h"
#include "velkor6/lib.h"
#include "velkor6/platform/platform.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <thread>

namespace velkor6 {
namespace {

using posixtest::contentOf;
using posixtest::ScopedEnv;

TEST(PosixEditing, AFolderNameIsNeverReadAsCommandSyntax) {
    fake::TempFolder tmp;
    const fake::CurrentDirectoryGuard cwd;
    std::filesystem::current_path(tmp.path());
    // The editor records its arguments, one a line, then says it is done.
    const auto argvFile = tmp.path() / "argv";
    const auto doneFile = tmp.path() / "done";
    tmp.write("record.sh", "#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + argvFile.string() + "'\n: > '" +
                               doneFile.string() + "'\n");
    std::filesystem::permissions(tmp.path() / "record.sh", std::filesystem::perms::owner_all);
    const std::string folderName = "a$(touch X);b'\"c";
    tmp.mkdir(folderName);
    const std::string record = (tmp.path() / "record.sh").string();

    const std::string command = "'" + record + "' --edit \\\"%1\\\"";
    struct Case {
        const char* name;
        std::string visual; // the user's editor
        std::string argumentsBefore;
    };
    const Case cases[] = {
        {"the user's editor", record, ""},
        // With no editor to be had, the registered command, its words quoted either way.
        {"the registered command", (tmp.path() / "no-editor").string(), "--edit\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::filesystem::remove(argvFile);
        std::filesystem::remove(doneFile);
        const ScopedEnv visual("VISUAL", c.visual.c_str());
        auto platform = Platform::createNative();
        auto registry = std::make_unique<MemoryRegistry>();
        ASSERT_TRUE(registry->load("REGEDIT4\r\n\r\n[HKEY_CLASSES_ROOT\\.ini]\r\n"
                                   "@=\"inifile\"\r\n\r\n"
                                   "[HKEY_CLASSES_ROOT\\inifile\\shell\\edit\\command]\r\n"
                                   "@=\"" +
                                   command + "\"\r\n"));
        platform->registry = std::move(registry);
        lib l(std::make_shared<Module>(std::move(platform), Locale::englishUS()));
        auto app = l.vkrInitApp(HostApp{tmp.u16(folderName), u"EditTest", 1, 0, 0}, u"EditTest");
        const std::string iniFile = (tmp.path() / folderName / "EditTest.ini").string();
        ASSERT_TRUE(std::filesystem::exists(iniFile));

        app->editINIFile();
        for (int i = 0; i < 200 && !std::filesystem::exists(doneFile); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(25));
        ASSERT_TRUE(std::filesystem::exists(doneFile));
        EXPECT_EQ(contentOf(argvFile), c.argumentsBefore + iniFile + "\n");
        EXPECT_FALSE(std::filesystem::exists(tmp.path() / "X"));
        EXPECT_FALSE(std::filesystem::exists(tmp.path() / folderName / "X"));
        // The editor is no child of ours: nothing is left to reap.
        errno = 0;
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
        EXPECT_EQ(errno, ECHILD);
    }
}

} // namespace
} // namespace velkor6
