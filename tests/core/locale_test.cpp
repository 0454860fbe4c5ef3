#include "core/text.h"
#include "velkor6/locale.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

TEST(LocalePreset, FindsGermanByAnySpellingElseEnglish) {
    for (const auto name : {u"de-DE", u"de_DE.UTF-8", u"DE-de", u"de_DE@euro"})
        EXPECT_EQ(&Locale::preset(name), &Locale::germanGermany()) << toUtf8(name);
    for (const auto name : {u"en-US", u"en_US", u"fr-FR", u"", u"de", u"de-AT"})
        EXPECT_EQ(&Locale::preset(name), &Locale::englishUS()) << toUtf8(name);
}

} // namespace
} // namespace velkor6
