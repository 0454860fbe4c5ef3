// Text through the ANSI code page follows the process's code page. The Wine tests run this
// suite again under Cyrillic and Japanese locales (code pages 1251 and 932).
#include "core/text.h"
#include "platform/ansi.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace velkor6 {
namespace {

TEST(ProcessCodePage, BytesAndCharactersFollowIt) {
    const std::string high = "\x80\xC0\xDF";
    switch (GetACP()) {
    case 1252:
        EXPECT_EQ(fromAnsi(high), u"\u20AC\u00C0\u00DF");
        EXPECT_EQ(charToAnsi(u'\u0416'), -1); // Cyrillic Zhe has no byte here
        break;
    case 1251:
        EXPECT_EQ(fromAnsi(high), u"\u0402\u0410\u042F");
        EXPECT_EQ(toAnsi(u"\u0416\u0436"), "\xC6\xE6");
        EXPECT_EQ(charToAnsi(u'\u0416'), 0xC6);
        break;
    case 932: {
        // Double-byte: one character from two bytes, and no single byte for it.
        const std::u16string hiragana = u"\u3042";
        EXPECT_EQ(toAnsi(hiragana), "\x82\xA0");
        EXPECT_EQ(fromAnsi("\x82\xA0"), hiragana);
        EXPECT_EQ(charToAnsi(hiragana[0]), -1);
        break;
    }
    default:
        GTEST_SKIP() << "no expectations for code page " << GetACP();
    }
    // ASCII is the same in every code page, and what the page lacks becomes "?".
    EXPECT_EQ(toAnsi(u"Key=1\r\n"), "Key=1\r\n");
    EXPECT_EQ(toAnsi(u"\u0E01\U0001F600").find_first_not_of('?'), std::string::npos);
    EXPECT_EQ(fromAnsi(""), u"");
}

} // namespace
} // namespace velkor6
