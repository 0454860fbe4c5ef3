#include "core/date.h"
#include "core/format.h"
#include "core/text.h"
#include "fake/error_of.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

const Locale& de = Locale::germanGermany();
const Locale& en = Locale::englishUS();

struct Case {
    Variant value;
    const char16_t* mask;
    const char16_t* expected;
};

void expectFormats(const std::vector<Case>& cases, const Locale& loc) {
    for (const Case& c : cases) {
        EXPECT_EQ(toUtf8(format(c.value, c.mask, loc)), toUtf8(c.expected))
            << "mask " << toUtf8(c.mask) << " in " << toUtf8(loc.name);
    }
}

TEST(Format, NumberMasksPadGroupAndRoundOnDecimalDigits) {
    expectFormats(
        {
            {0.0, u"0", u"0"},
            {0.0, u"#", u""},
            {1.0, u"#.#", u"1."},
            {0.0, u"#.#", u"."},
            {17.0, u"#000", u"017"},
            {17.0, u"#.00", u"17.00"},
            {0.17, u"#.00", u".17"},
            {9.9999999, u"#0.000000", u"10.000000"},
            {12345.0, u"0000", u"12345"},
            {100000.0, u"#,###,###,###", u"100,000"},
            {1.0, u"0,000,000,000", u"0,000,000,001"},
            {123456789.0, u"#,#.#", u"123,456,789."},
            {-1234.5, u"#,##0.00", u"-1,234.50"},
            {1234567.0, u"#,##0,", u"1,235"},
            {0.0099, u"#.##", u".01"},
            {0.0995, u"#.##", u".1"},
            {1.5, u"0.0#", u"1.5"},
            {-0.1, u".#", u"-.1"},
            {17.0, u"#3.33", u"173.33"},
            {1.0, u"00\\c\\o\\p\\y", u"01copy"},
            {5.0, u"\"Nr. \"0 \"kg\"", u"Nr. 5 kg"},
            // Half away from zero on the 15-digit text, so the binary value does not leak.
            {2.675, u"0.00", u"2.68"},
            {2.5, u"0", u"3"},
            {-2.5, u"0", u"-3"},
            {-0.4, u"0", u"-0"},
            {123456789012345678.0, u"0", u"123456789012346000"},
            {1e20, u"0", u"100000000000000000000"},
            {0.125, u"0%", u"13%"},
            {1.73245, u"0.0000E+000", u"1.7325E+000"},
            {12345.0, u"0.00e-00", u"1.23e04"},
            {0.00012, u"0.00E+00", u"1.20E-04"},
            {99.95, u"00.0E+00", u"10.0E+01"},
            {0.0, u"0.00E+00", u"0.00E+00"},
        },
        en);
}

TEST(Format, SectionsChooseByTheUnroundedValue) {
    const char16_t* words = u"\"pos\";\"neg\";\"zero\"";
    expectFormats(
        {
            {1.0, words, u"pos"},
            {-1.0, words, u"neg"},
            {0.0, words, u"zero"},
            {-5.0, u"0;(0)", u"(5)"},
            {0.0, u"0;(0)", u"0"},
            {-5.0, u"0;", u"-5"}, // an empty section falls back to the first
            {0.0, u"0.0;;\\-", u"-"},
            {0.001, u"0;-0;\\z\\e\\r\\o", u"0"},
            {Variant::null(), u"0;-0;0;\\n\\/\\a", u"n/a"},
            {Variant::null(), u"0.00", u""},
            {Variant::null(), u"", u""},
            {Variant(), u"0.00", u"0.00"},
        },
        en);
}

TEST(Format, NamedNumberFormsAndValueTypes) {
    const Decimal exact{0, 123456789012345678, 4, true}; // -12345678901234.5678
    expectFormats(
        {
            {1234.5, u"standard", u"1,234.50"},
            {1.0, u"Percent", u"100.00%"},
            {1.0, u"Scientific", u"1.00E+00"},
            {1234.567, u"Fixed", u"1234.57"},
            {1234.5, u"General Number", u"1234.5"},
            {0.0, u"True/False", u"False"},
            {-3.0, u"Yes/No", u"Yes"},
            {1.0, u"On/Off", u"On"},
            {std::int16_t{-32768}, u"#,##0", u"-32,768"},
            {std::uint8_t{7}, u"000", u"007"},
            {true, u"0", u"-1"},
            {Currency{12345678}, u"0.00", u"1234.57"},
            {Currency{-5}, u"0.0000", u"-0.0005"},
            {exact, u"#,##0.000", u"-12,345,678,901,234.568"},
            {0.1f, u"0.000000000", u"0.100000000"},
            {Date{45366.5}, u"0.00", u"45366.50"},
            {u"1,234.5", u"0.0", u"1234.5"},
            {u"abc", u"0.00", u"abc"},
        },
        en);
    expectFormats(
        {
            {1234.5, u"#,##0.00", u"1.234,50"},
            {1234.567, u"Fixed", u"1234,57"},
            {1234.5, u"Standard", u"1.234,50"},
            {u"1234,5", u"#,##0.00", u"1.234,50"},
            {u"1.23", u"0", u"123"},
            {u"15. März 2024", u"0", u"45366"},
            {1.5, u"", u"1,5"},
        },
        de);
}

TEST(Format, DateMasksFollowTheMinuteRuleAndLocaleSeparators) {
    const Date noon{2.525}; // 1900-01-01 12:36:00
    const Date friday{dateSerial(2024, 3, 15).serial + (13 * 3600 + 45 * 60 + 7) / 86400.0};
    const Date quarterTo{dateSerial(2024, 3, 15).serial + (13 * 3600 + 45 * 60) / 86400.0};
    expectFormats(
        {
            {noon, u"yy", u"00"},
            {noon, u"y", u"1"},
            {noon, u"q", u"1"},
            {noon, u"ddd", u"Mon"},
            {noon, u"mmmm", u"January"},
            {noon, u"A/P", u"P"},
            {noon, u"dd mm yyyy hh:mm:ss", u"01 01 1900 12:36:00"},
            {noon, u"mm :mm:ss", u"01 :01:00"},
            {noon, u"hh :mm:mm", u"12 :36:01"},
            {noon, u"hh:dd :mm:mm", u"12:01 :01:01"},
            {noon, u"dd :mm:nn", u"01 :01:36"},
            {friday, u"hhnnss", u"134507"},
            {friday, u"d/m/yy", u"15/3/24"},
            {friday, u"h:nn am/pm", u"1:45 pm"},
            {friday, u"hh:nn AMPM", u"01:45 PM"},
            {friday, u"w ww", u"6 11"},
            {friday, u"ddddd", u"3/15/2024"},
            {friday, u"dddddd", u"Friday, March 15, 2024"},
            {friday, u"ttttt", u"1:45:07 PM"},
            {friday, u"c", u"3/15/2024 1:45:07 PM"},
            {friday, u"\"on \"dddd", u"on Friday"},
            {quarterTo, u"\\#yyyy\\/mm\\/dd hh\\:nn\\:ss\\#", u"#2024/03/15 13:45:00#"},
            {Date{-1.25}, u"yyyy-mm-dd hh:nn", u"1899-12-29 06:00"},
            {45366.5, u"yyyy-mm-dd hh:nn", u"2024-03-15 12:00"},
            {u"2024-03-15", u"mmm d", u"Mar 15"},
            {u"abc", u"yyyy", u"abc"},
            {Variant(), u"yyyy-mm-dd", u"1899-12-30"},
            {Variant::null(), u"yyyy", u""},
        },
        en);
    expectFormats(
        {
            {friday, u"dd/mm/yyyy", u"15.03.2024"},
            {friday, u"dd\\/mm\\/yyyy", u"15/03/2024"},
            {friday, u"dddd, d. mmmm yyyy", u"Freitag, 15. März 2024"},
            {friday, u"ddd mmm", u"Fr Mrz"},
            {friday, u"hh:nn AMPM", u"01:45 "},
            {friday, u"hh:nn AM/PM", u"01:45 PM"},
            {u"15.03.2024", u"yyyy-mm-dd", u"2024-03-15"},
        },
        de);
}

TEST(Format, NamedDateFormsPerLocale) {
    const Date friday{dateSerial(2024, 3, 15).serial + (13 * 3600 + 45 * 60 + 7) / 86400.0};
    const Date midnight = dateSerial(2024, 3, 15);
    struct Row {
        Date value;
        const char16_t* form;
        const char16_t* en;
        const char16_t* de;
    };
    const Row rows[] = {
        {friday, u"General Date", u"3/15/2024 1:45:07 PM", u"15.03.2024 13:45:07"},
        {friday, u"Short Date", u"3/15/2024", u"15.03.2024"},
        {friday, u"Short Time", u"13:45", u"13:45"},
        {friday, u"Long Time", u"1:45:07 PM", u"13:45:07"},
        {friday, u"Medium Time", u"01:45 PM", u"01:45 PM"},
        {friday, u"Long Date", u"Friday, March 15, 2024", u"Freitag, 15. März 2024"},
        {friday, u"medium date", u"15-Mar-24", u"15-Mrz-24"},
        {midnight, u"General Date", u"3/15/2024", u"15.03.2024"},
        {midnight, u"Long Time", u"12:00:00 AM", u"00:00:00"},
        {Date{0}, u"General Date", u"12:00:00 AM", u"00:00:00"},
    };
    for (const Row& r : rows) {
        EXPECT_EQ(toUtf8(format(r.value, r.form, en)), toUtf8(r.en)) << toUtf8(r.form);
        EXPECT_EQ(toUtf8(format(r.value, r.form, de)), toUtf8(r.de)) << toUtf8(r.form);
    }
    EXPECT_EQ(formatGeneralDate(Date{-49192.24}, en), u"4/24/1765 5:45:36 AM");
    EXPECT_EQ(format(friday, u"", de), u"15.03.2024 13:45:07");
}

TEST(Format, RejectsValuesWithoutAText) {
    for (const Variant& v : {Variant::array({Variant(1.0)}), Variant::nothing()})
        EXPECT_EQ(errorOf([&] { format(v, u"0", en); }), vberr::typeMismatch);
}

} // namespace
} // namespace velkor6
