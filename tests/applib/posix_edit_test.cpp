// Editing on POSIX: the "edit" verb starts the user's editor, and no part of a file name is
// ever read as shell syntax.
#include "fake/temp_folder.h"
#include "platform/memory_registry.h"
#include "velkor6/lib.h"
#include "velkor6/platform/platform.h"

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <thread>

namespace velkor6 {
namespace {

// Sets an environment variable for the life of the object.
class ScopedVariable {
public:
    ScopedVariable(const char* name, const std::string& value) : name_(name) {
        if (const char* old = std::getenv(name))
            old_ = old;
        ::setenv(name, value.c_str(), 1);
    }
    ~ScopedVariable() {
        if (old_)
            ::setenv(name_, old_->c_str(), 1);
        else
            ::unsetenv(name_);
    }

private:
    const char* name_;
    std::optional<std::string> old_;
};

TEST(PosixEditing, TheEditVerbStartsTheUsersEditor) {
    fake::TempFolder folder;
    folder.write("app.ini", "[S]\r\n");
    folder.write("editor.sh", "#!/bin/sh\necho \"$1\" > \"$(dirname \"$1\")/edited\"\n");
    std::filesystem::permissions(folder.path() / "editor.sh", std::filesystem::perms::owner_all);
    const ScopedVariable visual("VISUAL", (folder.path() / "editor.sh").string());

    auto platform = Platform::createNative();
    EXPECT_GT(platform->shell->execute(u"edit", folder.u16("app.ini"), u"", folder.u16(), 6), 32);
    const auto marker = folder.path() / "edited";
    for (int i = 0; i < 100 && !std::filesystem::exists(marker); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_TRUE(std::filesystem::exists(marker));
}

bool waitFor(const std::filesystem::path& file) {
    for (int i = 0; i < 200 && !std::filesystem::exists(file); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(25));
    return std::filesystem::exists(file);
}

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

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
        const ScopedVariable visual("VISUAL", c.visual);
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
        ASSERT_TRUE(waitFor(doneFile));
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
