#include "core/text.h"
#include "lib/lib_members.h"
#include "platform/ansi.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace velkor6::dispatch {
namespace {

class GlobalVar : public ::testing::Test {
protected:
    Variant call(std::vector<Variant> values) {
        std::vector<Argument> args;
        for (Variant& v : values)
            args.push_back({&v, u""});
        return invoke(libMembers(), target, u"vkrGlobalVar", CallKind::Method, args,
                      target.locale());
    }
    std::u16string text(std::u16string_view name, std::u16string_view s) {
        return call({Variant(name), Variant(s)}).string();
    }
    VbError error(std::vector<Variant> values) {
        try {
            call(std::move(values));
        } catch (const VbError& e) {
            return e;
        }
        return VbError(0, u"no error");
    }

    lib target{Module::createDefault()};
};

TEST_F(GlobalVar, NamesInAnyLetterCase) {
    const std::u16string s = u"TOBEORNOTTOBEORTOBEORNOT";
    const std::u16string packed = text(u"Deflate", s);
    EXPECT_EQ(text(u"DEFLATE", s), packed);
    EXPECT_EQ(text(u"deflate", s), packed);
    EXPECT_LT(packed.size(), s.size());
    for (const char16_t* name :
         {u"Inflate", u"INFLATE", u"inflate", u"InflateStrict", u"INFLATESTRICT", u"inflateStrict"})
        EXPECT_EQ(text(name, packed), s) << toUtf8(name);
}

TEST_F(GlobalVar, CharactersStandForTheirAnsiBytes) {
    // Every byte value, in an order that repeats pairs often enough to clear the dictionary.
    std::mt19937 rng(1252);
    std::string bytes;
    for (int i = 0; i < 20000; ++i)
        bytes += static_cast<char>(i % 7 ? rng() % 256 : i % 256);
    const std::u16string s = fromAnsi(bytes);
    const std::u16string packed = text(u"Deflate", s);
    for (char16_t c : packed)
        ASSERT_GE(charToAnsi(c), 0);
    EXPECT_EQ(text(u"InflateStrict", packed), s);

    EXPECT_EQ(text(u"InflateStrict", text(u"Deflate", u"a\u4E00b")), u"a?b");
    // A number is taken as its text.
    EXPECT_EQ(call({Variant(u"Deflate"), Variant(std::int32_t{12345})}),
              Variant(text(u"Deflate", u"12345")));
}

TEST_F(GlobalVar, PackedTextIsWindows1252OneCharacterPerByte) {
    // Stored compressed text moves between systems unchanged: each character is the
    // Windows-1252 character of one byte, also where files are UTF-8. "ä€" is bytes E4 80, codes
    // 256 228 128 257 0, packed C9 01 0A 08 ("É" and three controls).
    EXPECT_EQ(text(u"Deflate", u"\u00E4\u20AC"), u"\u00C9\x01\x0A\x08");
    EXPECT_EQ(text(u"Inflate", u"\u00C9\x01\x0A\x08"), u"\u00E4\u20AC");
    // Characters outside the code page are one byte each in the packed text, not UTF-8 bytes:
    // "?", and on Windows the code page's best fit ("L", "z") where it has one.
    const std::u16string back = text(u"Inflate", text(u"Deflate", u"\u0141\u00F3d\u017A"));
#ifdef _WIN32
    EXPECT_EQ(back.size(), 4u);
#else
    EXPECT_EQ(back, u"?\u00F3d?");
#endif
}

TEST_F(GlobalVar, OtherNamesAndMissingText) {
    for (const char16_t* name : {u"Compress", u"", u"Deflate ", u"FadeAway"}) {
        const VbError e = error({Variant(name), Variant(u"x")});
        EXPECT_EQ(e.number(), vberr::noSuchMember) << toUtf8(name);
        EXPECT_EQ(e.source(), u"velkor6.vkrGlobalVar");
        EXPECT_EQ(e.description(), u"Object doesn't support this property or method");
    }
    EXPECT_EQ(error({Variant(u"Deflate")}).number(), vberr::argumentNotOptional);
    EXPECT_EQ(error({Variant(u"Inflate"), Variant(u"")}).number(), vberr::subscriptOutOfRange);
}

} // namespace
} // namespace velkor6::dispatch
