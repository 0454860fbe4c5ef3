#include "app_options.h"
#include "literal.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace velkor6::cli {
namespace {

TEST(CliAppOptions, VersionIsUpToThreeIntegers) {
    struct Case {
        std::string_view text;
        std::int16_t major, minor, revision;
    };
    const Case good[] = {
        {"6.1.23", 6, 1, 23}, {"7", 7, 0, 0}, {"", 0, 0, 0}, {"32767.0.9", 32767, 0, 9}};
    for (const auto& c : good) {
        HostApp host;
        host.major = 99;
        readAppVersion(c.text, host);
        EXPECT_EQ(host.major, c.major) << c.text;
        EXPECT_EQ(host.minor, c.minor) << c.text;
        EXPECT_EQ(host.revision, c.revision) << c.text;
    }
    for (std::string_view bad :
         {"x", "40000", "6.32768", "6..1", "6.1.", "-1", "+1", "1.2.3.4", " 1", "1e3"}) {
        HostApp host;
        EXPECT_THROW(readAppVersion(bad, host), UsageError) << bad;
    }

    Options options;
    options.appVersion = "40000";
    EXPECT_THROW(resolveAppOptions(options), UsageError);
    options.appVersion = "1.2";
    EXPECT_TRUE(std::filesystem::path(resolveAppOptions(options).appPath).is_absolute());
}

} // namespace
} // namespace velkor6::cli
