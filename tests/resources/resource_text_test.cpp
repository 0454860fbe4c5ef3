#include "resources/resource_text.h"
#include "resources/xml_fixture.h"

#include <array>
#include <gtest/gtest.h>

namespace velkor6::resources {
namespace {

using ResourceText = test::WithXml;

constexpr std::array<std::u16string_view, 10> keys = {
    u"cmdOK",  u"cmdCancel", u"cancel", u"abort",      u"retry",
    u"ignore", u"yes",       u"no",     u"openresdll", u"openresdlltitle"};

TEST_F(ResourceText, LooksUpCaptionsByNameAndLanguage) {
    Module& m = *p.module;
    struct Case {
        std::u16string_view name;
        std::int16_t langid;
        std::u16string_view expected;
    };
    const Case cases[] = {
        {u"cmdCancel", 2, u"Cancel"},
        {u"cmdCancel", 1, u"Abbrechen"},
        {u"abort", 2, u"&Abort"},
        {u"openresdll", 1, u"Resource Bibliothek (*.DLL)|*.DLL"},
        {u"retry", 3, u"&Répéter"},
        {u"yes", 4, u"&Sì"},
        {u"retry", 5, u"&Recomprobación"},
        {u"openresdlltitle", 5, u"Please define german (DE) resource library"},
        {u"cancel", 6, u"&Zrušit"},
        {u"retry", 7, u"&Ponów"},
        {u"ignore", 8, u"&Ignorieren"},
        {u"CMDCANCEL", 2, u""}, // names keep their letter case
        {u"nothing", 2, u""},
        {u"cmdOK", 0, u""},
        {u"cmdOK", 9, u""},
        {u"----------", 1, u""}, // separators have no text
        {u"cmdOK\"][@langid=\"1", 2, u""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.name.begin(), c.name.end()) + " " + std::to_string(c.langid));
        EXPECT_EQ(resText(m, c.name, c.langid), c.expected);
    }
}

TEST_F(ResourceText, EveryLanguageHasEveryKey) {
    Module& m = *p.module;
    for (std::int16_t langid = 1; langid <= 8; ++langid) {
        for (const auto key : keys) {
            SCOPED_TRACE(std::string(key.begin(), key.end()) + " " + std::to_string(langid));
            EXPECT_NE(resText(m, key, langid), u"");
        }
    }
    // Language 8 speaks German.
    for (const auto key : keys)
        EXPECT_EQ(resText(m, key, 8), resText(m, key, 1));
}

TEST_F(ResourceText, KnowsTheExtensionOfEachLanguage) {
    const std::u16string_view expected[] = {u"",   u"DE", u"EN", u"FR", u"IT",
                                            u"ES", u"CZ", u"PL", u"HP", u""};
    for (std::int16_t langid = 0; langid <= 9; ++langid)
        EXPECT_EQ(langExtension(*p.module, langid), expected[langid]) << langid;

    const auto langs = languages(*ownDocument(*p.module, p.module->resourceDocument()));
    ASSERT_EQ(langs.size(), 8u);
    EXPECT_EQ(langs[2].name, u"Français");
    EXPECT_EQ(langs[4].name, u"Espanõl");
    EXPECT_EQ(langs[7].langid, u"8");
}

} // namespace
} // namespace velkor6::resources
