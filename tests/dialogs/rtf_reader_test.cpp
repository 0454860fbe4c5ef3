#include "dialogs/rtf_reader.h"

#include <gtest/gtest.h>

namespace velkor6::dialogs {
namespace {

struct Case {
    std::u16string_view rtf;
    std::u16string_view html;
};

constexpr std::u16string_view open = u"<p style=\"margin-top:0; margin-bottom:0;\">";
constexpr std::u16string_view centred =
    u"<p style=\"margin-top:0; margin-bottom:0; text-align:center;\">";

std::u16string para(std::u16string_view body, std::u16string_view start = open) {
    return std::u16string(start) + std::u16string(body) + u"</p>";
}

TEST(RtfReader, TextEscapesAndSymbols) {
    const Case cases[] = {
        {u"", u""},
        {u"{}", u""},
        {u"plain", u"plain"},
        {u"a<b>&\"c\"", u"a&lt;b&gt;&amp;&quot;c&quot;"},
        {u"\\{x\\}\\\\", u"{x}\\"},
        {u"two  blanks", u"two &#160;blanks"},
        {u"\\'e4\\'80\\'9f\\'81", u"\u00E4\u20AC\u0178\u0081"},
        {u"\\'zz\\'4", u"zz4"},
        {u"\\u8364?x", u"\u20ACx"},
        {u"\\u-3913?", u"\uF0B7"},
        {u"\\uc2\\u8364\\'80\\'80x", u"\u20ACx"},
        {u"\\uc0\\u228 x", u"\u00E4x"},
        {u"{\\u228}x", u"\u00E4x"},
        {u"a\\~b\\_c\\-d", u"a\u00A0b-cd"},
        {u"\\emdash\\bullet\\ldblquote x\\rdblquote", u"\u2014\u2022\u201Cx\u201D"},
        {u"\\tab x", u"&#160;&#160;&#160;&#160;x"},
        {u"line\r\nbreaks\n", u"linebreaks"},
        {u"Gr\u00FC\u00DFe", u"Gr\u00FC\u00DFe"},
        {u"}}x{{", u"x"},
        {u"\\bin3 {}\\x", u"x"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(rtfToHtml(c.rtf), para(c.html)) << std::string(c.rtf.begin(), c.rtf.end());
}

TEST(RtfReader, CharacterFormattingFollowsGroups) {
    const Case cases[] = {
        {u"{\\b bold} not", u"<span style=\"font-weight:700;\">bold</span> not"},
        {u"\\b x\\b0 y", u"<span style=\"font-weight:700;\">x</span>y"},
        {u"\\i\\ul a\\ulnone b\\plain c",
         u"<span style=\"font-style:italic;text-decoration:underline;\">a</span>"
         u"<span style=\"font-style:italic;\">b</span>c"},
        {u"{\\fs20 a}{\\fs21 b}", u"<span style=\"font-size:10pt;\">a</span>"
                                  u"<span style=\"font-size:10.5pt;\">b</span>"},
        {u"{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green128\\blue255;}{\\cf1 r}{\\cf2 b}"
         u"\\cf0 a\\cf9 z",
         u"<span style=\"color:#ff0000;\">r</span><span style=\"color:#0080ff;\">b</span>az"},
        {u"{\\colortbl ;\\red300\\green-5\\blue1;}\\cf1 x",
         u"<span style=\"color:#ff0001;\">x</span>"},
        {u"{\\b a\\line b}", u"<span style=\"font-weight:700;\">a<br />b</span>"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(rtfToHtml(c.rtf), para(c.html)) << std::string(c.rtf.begin(), c.rtf.end());
}

TEST(RtfReader, ParagraphsAndAlignment) {
    // The status window's message is one centred group; the group ends before the text does.
    EXPECT_EQ(rtfToHtml(u"{\\qc Working...}"), para(u"Working...", centred));
    EXPECT_EQ(rtfToHtml(u"a\\par b"), para(u"a") + para(u"b"));
    EXPECT_EQ(rtfToHtml(u"a\\par "), para(u"a"));
    EXPECT_EQ(rtfToHtml(u"\\par\\par x"), para(u"") + para(u"") + para(u"x"));
    EXPECT_EQ(rtfToHtml(u"\\qr r\\par\\pard l\\par\\qj j"),
              para(u"r", u"<p style=\"margin-top:0; margin-bottom:0; text-align:right;\">") +
                  para(u"l") +
                  para(u"j", u"<p style=\"margin-top:0; margin-bottom:0; text-align:justify;\">"));
    EXPECT_EQ(rtfToHtml(u"a\\\nb"), para(u"a") + para(u"b"));
}

TEST(RtfReader, DestinationsAndUnknownWordsAreSkipped) {
    const Case cases[] = {
        {u"{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}"
         u"{\\*\\generator Riched20 10.0;}\\viewkind4\\f0 Hello}",
         u"Hello"},
        {u"{\\*\\unknown {nested {deep}} text}shown", u"shown"},
        {u"{\\stylesheet{\\s0 Normal;}}{\\info{\\title T}}x", u"x"},
        {u"{\\field{\\*\\fldinst HYPERLINK \"u\"}{\\fldrslt link}}", u"link"},
        {u"\\frobnicate42 \\foo-7x", u"x"},
        {u"{\\pict\\pngblip 89504e47}after", u"after"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(rtfToHtml(c.rtf), para(c.html)) << std::string(c.rtf.begin(), c.rtf.end());
}

} // namespace
} // namespace velkor6::dialogs
