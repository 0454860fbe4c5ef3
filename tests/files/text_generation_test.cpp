#include "core/date.h"
#include "core/text.h"
#include "fake/error_of.h"
#include "fake/fake_platform.h"
#include "files/text_generation.h"
#include "lib/lib_members.h"
#include "platform/text_file.h"
#include "velkor6/lib.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

Date at(int y, int m, int d, int h = 0, int n = 0, int s = 0) {
    return makeDate(DateParts{y, m, d, h, n, s});
}

TEST(PredefinedExpressions, ExpandCallerPairsThenTheFixedOnesInOrder) {
    fake::FakePlatform fp(Locale::germanGermany());
    fp.clock.set(at(2024, 3, 15, 13, 45, 7));
    lib l(fp.module);

    std::u16string s = u"Report_%DATE!!%.txt|%date!%|%TIME%|%Time!%|%crlf%|%TAB%|%DATE%";
    l.prfReplacePredefinedExpressions(s);
    EXPECT_EQ(s, u"Report_20240315.txt|240315|13:45|134507|\r\n|\t|15.03.2024");

    s = u"%DATETIME%";
    l.prfReplacePredefinedExpressions(s);
    EXPECT_EQ(s, u"15.03.2024 13:45:07");

    // Caller values come first, so a value holding a fixed placeholder is expanded as well.
    Variant pairs = Variant::array({Variant(u"NAME"), Variant(u"Smith"), Variant(u"WHEN"),
                                    Variant(u"%DATE%"), Variant(u"N"), Variant(1.5)});
    s = u"Dear %name%, %WHEN% %N%";
    l.prfReplacePredefinedExpressions(s, &pairs);
    EXPECT_EQ(s, u"Dear Smith, 15.03.2024 1,5");

    // An odd list fails after the complete pairs, before any fixed placeholder.
    Variant odd = Variant::array({Variant(u"A"), Variant(u"1"), Variant(u"B")});
    s = u"%A% %B% %TAB%";
    EXPECT_EQ(errorOf([&] { l.prfReplacePredefinedExpressions(s, &odd); }),
              vberr::subscriptOutOfRange);
    EXPECT_EQ(s, u"1 %B% %TAB%");
}

TEST(PredefinedExpressions, LastDayTurnsAfterTheTwentieth) {
    const std::pair<Date, Date> cases[] = {
        {at(2024, 3, 5), at(2024, 2, 29)},  {at(2024, 3, 20), at(2024, 2, 29)},
        {at(2024, 3, 21), at(2024, 3, 31)}, {at(2024, 3, 31, 23, 59), at(2024, 3, 31)},
        {at(2024, 1, 1), at(2023, 12, 31)}, {at(2023, 12, 28), at(2023, 12, 31)},
    };
    for (const auto& [now, expected] : cases)
        EXPECT_EQ(files::lastDayFor(now).serial, expected.serial) << now.serial;
}

TEST(TextStream, ReadsAnsiOrLittleEndianUtf16) {
    fake::FakePlatform fp;
    lib l(fp.module);
    fp.files.addFile(u"C:\\a.txt", "caf\xE9\r\n");
    fp.files.addFile(u"C:\\w.txt", std::string("\xFF\xFE"
                                               "A\0\x01\x04",
                                               6));
    fp.files.addFile(u"C:\\u8.txt", "\xEF\xBB\xBFx");
    fp.files.addFile(u"C:\\empty.txt", "");
    EXPECT_EQ(l.prfTextStream(u"C:\\a.txt"), u"caf\u00E9\r\n");
    EXPECT_EQ(l.prfTextStream(u"C:\\w.txt"), u"A\u0401");
    // UTF-8 where files are (its mark is a character of the text), else the code page.
    const bool utf8 = newTextEncoding() == TextEncoding::Utf8;
    EXPECT_EQ(l.prfTextStream(u"C:\\u8.txt"), utf8 ? u"\uFEFFx" : u"\u00EF\u00BB\u00BFx");
    EXPECT_EQ(l.prfTextStream(u"C:\\empty.txt"), u"");
    EXPECT_EQ(l.prfTextStream(u"C:\\missing.txt"), u"");
}

TEST(PreFormatXml, IndentsOneElementPerLine) {
    const std::pair<std::u16string_view, std::u16string_view> cases[] = {
        {u"<a><b>x</b><c/></a>", u"<a>\r\n\t<b>x\r\n\t</b>\r\n\t<c/>\r\n</a>"},
        {u"<a>\r\n<b/>\r\n</a>", u"<a>\r\n\t<b/>\r\n</a>"},
        {u"<?xml v=\"1\"?><r/>", u"<?xml v=\"1\"?>\r\n\t<r/>"},
        {u"<a t=\"x\ty\">\t</a>", u"<a t=\"x\ty\">\r\n</a>"},
        {u"</a></b>x", u"\r\n</a>\r\n</b>x"},
        {u"", u""},
    };
    for (const auto& [in, out] : cases)
        EXPECT_EQ(toUtf8(files::preFormatXml(in)), toUtf8(out)) << toUtf8(in);
}

TEST(PredefinedExpressions, RowsWriteBackTheText) {
    fake::FakePlatform fp;
    lib l(fp.module);
    Variant text(u"a%X%b"), pairs = Variant::array({Variant(u"x"), Variant(u"-")});
    std::vector<dispatch::Argument> args{{&text, u""}, {&pairs, u""}};
    dispatch::invoke(dispatch::libMembers(), l, u"prfReplacePredefinedExpressions",
                     CallKind::Method, args, l.locale());
    EXPECT_EQ(text, Variant(u"a-b"));
}

} // namespace
} // namespace velkor6
