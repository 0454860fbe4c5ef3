// Files meant for people on a system without a code page of its own: UTF-8 when the whole file is
// valid UTF-8, Windows-1252 otherwise, written back in the encoding they came in.
#include "applib/app_fixture.h"
#include "platform/text_file.h"

namespace velkor6::apptest {
namespace {

using TextFilesOnPosix = SalesApp;

const std::u16string lodz = u"\u0141\u00F3d\u017A"; // Łódź
const std::string lodzUtf8 = "\xC5\x81\xC3\xB3"
                             "d\xC5\xBA";

TEST(TextFileEncoding, ValidUtf8OrElseWindows1252) {
    // Bytes, the encoding they are read in, their text.
    const std::tuple<std::string, TextEncoding, std::u16string> cases[] = {
        {"", TextEncoding::Utf8, u""},
        {"plain", TextEncoding::Utf8, u"plain"},
        {lodzUtf8, TextEncoding::Utf8, lodz},
        {"\xEF\xBF\xBD", TextEncoding::Utf8, u"\uFFFD"}, // a real replacement character
        {"K\xE4se", TextEncoding::Ansi, u"K\u00E4se"},
        {"\x80 \xC3", TextEncoding::Ansi, u"\u20AC \u00C3"},         // a cut sequence
        {"\xC0\xAF", TextEncoding::Ansi, u"\u00C0\u00AF"},           // overlong
        {"\xED\xA0\x80", TextEncoding::Ansi, u"\u00ED\u00A0\u20AC"}, // an encoded surrogate
        {"\xEF\xBB\xBF"
         "a\xC3\xA4",
         TextEncoding::Utf8Mark, u"a\u00E4"},
        {std::string("\xFF\xFE\x41\x01", 4), TextEncoding::Utf16Le, u"\u0141"},
        {std::string("\xFE\xFF\x01\x41", 4), TextEncoding::Utf16Be, u"\u0141"},
    };
    for (const auto& [bytes, encoding, text] : cases) {
        EXPECT_EQ(textEncoding(bytes), encoding) << bytes;
        EXPECT_EQ(decodeText(bytes, encoding), text) << bytes;
        EXPECT_EQ(encodeText(text, encoding), bytes) << bytes;
    }
    EXPECT_EQ(newTextEncoding(), TextEncoding::Utf8);
    // A Windows-1252 file stays so while it can hold the text, else it becomes UTF-8.
    EXPECT_EQ(writeEncoding(TextEncoding::Ansi, u"K\u00E4se \u20AC"), TextEncoding::Ansi);
    EXPECT_EQ(writeEncoding(TextEncoding::Ansi, lodz), TextEncoding::Utf8);
    EXPECT_EQ(writeEncoding(TextEncoding::Utf16Be, lodz), TextEncoding::Utf16Be);
    // Text whose Windows-1252 bytes happen to be UTF-8 ("\u00C3\u00A4" is the UTF-8 of "\u00E4")
    // would read back as other text: it goes out as UTF-8 too.
    const std::u16string mojibake = u"k=\u00C3\u00A4";
    EXPECT_EQ(writeEncoding(TextEncoding::Ansi, mojibake), TextEncoding::Utf8);
    const std::string bytes = encodeText(mojibake, writeEncoding(TextEncoding::Ansi, mojibake));
    EXPECT_EQ(decodeText(bytes, plainTextEncoding(bytes)), mojibake);
    EXPECT_EQ(encodeText(u"x", TextEncoding::Utf16Le, false), std::string("x\0", 2));
}

TEST_F(TextFilesOnPosix, EveryCharacterSurvivesSettingsLogAndFileStream) {
    app().stringValueLet(u"Stadt", lodz, lodz);
    EXPECT_EQ(app().stringValue(u"STADT", u"\u0142\u00D3D\u0179"), lodz);
    EXPECT_EQ(file(iniPath),
              "[Application]\r\nLanguage=2\r\n[Stadt]\r\n" + lodzUtf8 + "=" + lodzUtf8 + "\r\n");

    app().logAction(lodz);
    const std::string log = file(logPath);
    EXPECT_EQ(log.substr(log.size() - lodzUtf8.size() - 2), lodzUtf8 + "\r\n");

    lib& l = library();
    const std::u16string text = u"C:\\Apps\\Sales\\city.txt";
    l.vkrFileStreamLet(text, lodz);
    EXPECT_EQ(l.vkrFileStream(text), lodz + u"\r\n");
    l.vkrFileStreamLet(text, l.vkrFileStream(text));
    EXPECT_EQ(l.vkrFileStream(text), lodz + u"\r\n\r\n");
    EXPECT_EQ(file(text), lodzUtf8 + "\r\n\r\n");
    EXPECT_EQ(l.prfTextStream(text), lodz + u"\r\n\r\n");
}

TEST_F(TextFilesOnPosix, AWindows1252FileIsReadAndWrittenInItsEncoding) {
    app();
    fp.files.addFile(iniPath, "[Gr\xFC\xDF\x65]\r\nK\xE4se=\xE4\r\n");
    EXPECT_EQ(app().stringValue(u"GR\u00DC\u00DFE", u"K\u00C4SE"), u"\u00E4");
    app().stringValueLet(u"Gr\u00FC\u00DF\x65", u"K\u00E4se", u"\u00F6");
    EXPECT_EQ(file(iniPath), "[Gr\xFC\xDF\x65]\r\nK\xE4se=\xF6\r\n");
    // A character the code page lacks turns the whole file to UTF-8 rather than into "?".
    app().stringValueLet(u"Gr\u00FC\u00DF\x65", u"Stadt", lodz);
    EXPECT_EQ(file(iniPath),
              "[Gr\xC3\xBC\xC3\x9F\x65]\r\nK\xC3\xA4se=\xC3\xB6\r\nStadt=" + lodzUtf8 + "\r\n");
    EXPECT_EQ(app().stringValue(u"gr\u00FC\u00DF\x65", u"k\u00E4se"), u"\u00F6");

    // A log in Windows-1252 (kept from an earlier version) gets its entries in it too.
    fp.files.addFile(logPath, "\xE4\r\n");
    app().logAction(u"\u00F6");
    const std::string log = file(logPath);
    EXPECT_EQ(log.substr(log.size() - 3), "\xF6\r\n");
    EXPECT_EQ(log.substr(0, 3), "\xE4\r\n");

    const std::u16string text = u"C:\\Apps\\Sales\\old.txt";
    fp.files.addFile(text, "K\xE4se");
    EXPECT_EQ(library().vkrFileStream(text), u"K\u00E4se");
    library().vkrFileStreamLet(text, u"\u00E4");
    EXPECT_EQ(file(text), "\xE4\r\n");
}

} // namespace
} // namespace velkor6::apptest
