// Editing on POSIX: the "edit" verb starts the user's editor.
#include "fake/temp_folder.h"
#include "velkor6/platform/platform.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
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

} // namespace
} // namespace velkor6
