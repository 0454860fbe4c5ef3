#include "core/text.h"
#include "platform/posix/time_picture.h"
#include "platform/posix_test_env.h"
#include "velkor6/platform/platform.h"

#include <gtest/gtest.h>
#include <locale.h>

namespace velkor6 {
namespace {

using posixtest::ScopedEnv;

TEST(NativeLocale, StrftimePicturesBecomeWindowsPictures) {
    struct Case {
        std::u16string_view in, out;
    };
    const Case cases[] = {
        {u"%d.%m.%Y", u"dd.MM.yyyy"},
        {u"%m/%d/%Y", u"MM/dd/yyyy"},
        {u"%D", u"MM/dd/yyyy"},
        {u"%H:%M:%S", u"HH:mm:ss"},
        {u"%T", u"HH:mm:ss"},
        {u"%r", u"hh:mm:ss tt"},
        {u"%I:%M:%S %p", u"hh:mm:ss tt"},
        {u"%Y-%m-%d", u"yyyy-MM-dd"},
        {u"%-d.%-m.%Y", u"d.M.yyyy"},
        {u"%e %B %Y", u"d MMMM yyyy"},
        {u"%Hh%M", u"HH'h'mm"},
        {u"%Ey", u"yy"},
        {u"o'clock %k", u"'o''clock' H"},
        {u"100%%", u"100%"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(posix::windowsPicture(c.in), c.out) << toUtf8(c.in);
    EXPECT_EQ(posix::pictureSeparator(u"dd.MM.yyyy", u'/'), u'.');
    EXPECT_EQ(posix::pictureSeparator(u"yyyy-MM-dd", u'/'), u'-');
    EXPECT_EQ(posix::pictureSeparator(u"HH'h'mm", u':'), u':');
}

bool localeInstalled(const char* name) {
    const locale_t loc = newlocale(LC_ALL_MASK, name, locale_t{});
    if (loc == locale_t{})
        return false;
    freelocale(loc);
    return true;
}

TEST(NativeLocale, FollowsTheEnvironment) {
    for (const char* name : {"C", "POSIX", "C.UTF-8", "xx_YY.UTF-8"}) {
        const ScopedEnv all("LC_ALL", name);
        const Locale l = nativeLocale();
        EXPECT_EQ(l.name, u"en-US") << name;
        EXPECT_EQ(l.shortDate, u"M/d/yyyy") << name;
    }
    if (!localeInstalled("de_DE.UTF-8"))
        GTEST_SKIP() << "de_DE.UTF-8 is not installed";
    const ScopedEnv all("LC_ALL", "de_DE.UTF-8");
    const Locale l = nativeLocale();
    EXPECT_EQ(l.name, u"de-DE");
    EXPECT_EQ(l.decimal, u',');
    EXPECT_EQ(l.grouping, u'.');
    EXPECT_EQ(l.currencySymbol, u"€");
    EXPECT_EQ(l.dateSeparator, u'.');
    EXPECT_EQ(l.shortDate, u"dd.MM.yyyy");
    EXPECT_EQ(l.longTime, u"HH:mm:ss");
    EXPECT_EQ(l.am, u"");
    EXPECT_EQ(l.country, u"Deutschland");
}

} // namespace
} // namespace velkor6
