#include "applib/ini_document.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace velkor6::app {
namespace {

using namespace std::string_literals;

const std::string sample = "[section1]\r\nname1=val1\r\nname2=\"val2\"\r\nname3\r\nname4=a\r\n"
                           "[section2]\r\n";

TEST(IniDocument, ReadsLikeTheProfileFunctions) {
    struct Case {
        std::string text;
        std::u16string_view section, key;
        std::optional<std::u16string> expected;
    };
    const std::string crOnly = "[section1]\rname1=val1\rname2=\"val2\"\r";
    const Case cases[] = {
        {sample, u"section1", u"NaMe1", u"val1"},       // keys ignore letter case
        {sample, u"SECTION1", u"name1", u"val1"},       // and so do sections
        {sample, u"  section1  ", u" name1 ", u"val1"}, // arguments are trimmed
        {sample, u"section1", u"name2", u"val2"},       // one pair of quotes goes
        {sample, u"section1", u"name3", std::nullopt},  // a line without "=" has no value
        {sample, u"section2", u"name1", std::nullopt},
        {sample, u"", u"name1", std::nullopt},
        {sample, u"section1", u"", std::nullopt},
        {crOnly, u"section1", u"name2", u"val2"},
        {"[s]\nk=v", u"s", u"k", u"v"},
        {"[ spaced ]\r\n  key  =  v a l  \t\r\n", u"spaced", u"key", u"v a l"},
        {"[s]\r\nk='x'\r\n", u"s", u"k", u"x"},
        {"[s]\r\nk=\"x'\r\n", u"s", u"k", u"\"x'"}, // quotes must match
        {"[s]\r\nk=\"\r\n", u"s", u"k", u"\""},     // one quote is no pair
        {"[s]\r\nk=\"a\" b \"c\"\r\n", u"s", u"k", u"a\" b \"c"},
        {"[s]\r\n;k=comment\r\nk=real\r\n", u"s", u"k", u"real"},
        {"[s]\r\n;k=comment\r\n", u"s", u";k", u"comment"}, // a comment is no exception
        {"[s]\r\n[t\r\nk=v\r\n", u"s", u"k", u"v"},         // "[" without "]" is no header
        {"[s]\r\n[t\r\nk=v\r\n", u"t", u"k", std::nullopt},
        {"[s]\r\nk=first\r\nK=second\r\n", u"s", u"k", u"first"},
        {"[s]\r\nk=1\r\n[S]\r\nk=2\r\nj=3\r\n", u"s", u"j", std::nullopt}, // first section only
        {"k=before\r\n[s]\r\n", u"s", u"k", std::nullopt},
        {"[s] ; note\r\nk=v\r\n", u"s", u"k", u"v"}, // text after "]" is ignored
        {"\xEF\xBB\xBF[s]\r\nk=\xC3\xA4\r\n", u"s", u"k", u"ä"},
        {"\xFF\xFE[\0s\0]\0\n\0k\0=\0v\0"s, u"s", u"k", u"v"},
        {"[s]\r\nk=\xE4\x80\r\n", u"s", u"k", u"ä€"}, // ANSI without a byte-order mark
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(IniDocument(c.text).value(c.section, c.key), c.expected);
    }
}

TEST(IniDocument, ValuesAreCutAfter2047Characters) {
    const std::string longValue(3000, 'x');
    IniDocument plain("[s]\r\nk=" + longValue + "\r\n");
    EXPECT_EQ(plain.value(u"s", u"k")->size(), IniDocument::maxValueLength);
    IniDocument quoted("[s]\r\nk=\"" + longValue + "\"\r\n");
    EXPECT_EQ(*quoted.value(u"s", u"k"), std::u16string(2047, u'x'));
}

TEST(IniDocument, WritesLikeTheProfileFunctions) {
    struct Case {
        std::string before;
        std::u16string_view section, key;
        std::optional<std::u16string_view> value; // nullopt deletes
        std::string after;
    };
    const Case cases[] = {
        {"", u"App", u"key", u"string", "[App]\r\nkey=string\r\n"},
        {"[App]\r\nkey=old\r\n", u"app", u"KEY", u"new", "[App]\r\nkey=new\r\n"},
        {"[App]\r\n  key = old  \n", u"App", u"key", u"new", "[App]\r\nkey=new\n"},
        {"[A]\r\na=1\r\n\r\n[B]\r\nb=2\r\n", u"A", u"c", u"3",
         "[A]\r\na=1\r\nc=3\r\n\r\n[B]\r\nb=2\r\n"}, // at the end of its section, before blanks
        {"[A]\r\na=1", u"B", u"b", u"2", "[A]\r\na=1\r\n[B]\r\nb=2\r\n"},
        {"[A]\r\na=1", u"A", u"b", u"2", "[A]\r\na=1\r\nb=2\r\n"},
        {"[A]\r\n", u"A", u"k", u"", "[A]\r\nk=\r\n"},
        {"[A]\r\nname3\r\n", u"A", u"name3", u"v", "[A]\r\nname3=v\r\n"},
        {"[A]\r\na=1\r\nb=2\r\n", u"A", u"a", std::nullopt, "[A]\r\nb=2\r\n"},
        {"[A]\r\na=1\r\n", u"A", u"a", std::nullopt, "[A]\r\n"}, // an empty section stays
        {"junk\0\r\n[A]\r\na=1\r\n"s, u"A", u"a", u"2", "junk\0\r\n[A]\r\na=2\r\n"s},
        {"[A]\r\n; keep\r\na=1\r\n", u"A", u"a", u"2", "[A]\r\n; keep\r\na=2\r\n"},
        {"[A]\r\n;k=1\r\n", u"A", u";k", u"2", "[A]\r\n;k=2\r\n"},
        {"[A]\r\n[B\r\nk=1\r\n", u"A", u"k", u"2", "[A]\r\n[B\r\nk=2\r\n"},
        {"\xEF\xBB\xBF[A]\r\n", u"A", u"k", u"ä", "\xEF\xBB\xBF[A]\r\nk=\xC3\xA4\r\n"},
        // A file in the code page stays in it; its names match in any encoding.
        {"[\xC4]\r\n", u"ä", u"k", u"ä", "[\xC4]\r\nk=\xE4\r\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.before);
        IniDocument doc(c.before);
        const bool changed =
            c.value ? doc.set(c.section, c.key, *c.value) : doc.remove(c.section, c.key);
        EXPECT_TRUE(changed);
        EXPECT_EQ(doc.bytes(), c.after);
    }
}

TEST(IniDocument, ReportsWhenNothingChanges) {
    IniDocument doc("[A]\r\na=1\r\n");
    EXPECT_FALSE(doc.remove(u"A", u"missing"));
    EXPECT_FALSE(doc.remove(u"Missing", u"a"));
    EXPECT_FALSE(doc.set(u"A", u"a", u"1"));
    EXPECT_FALSE(doc.set(u"", u"a", u"1"));
    EXPECT_FALSE(doc.set(u"A", u"  ", u"1"));
    EXPECT_EQ(doc.bytes(), "[A]\r\na=1\r\n");
}

} // namespace
} // namespace velkor6::app
