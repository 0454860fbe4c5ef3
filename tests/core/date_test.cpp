#include "core/date.h"
#include "core/text.h"
#include "fake/error_of.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

TEST(Date, SplitsSerialsRoundingToTheSecond) {
    struct Case {
        double serial;
        DateParts parts;
    };
    const Case cases[] = {
        {0, {1899, 12, 30, 0, 0, 0}},
        {-1, {1899, 12, 29, 0, 0, 0}},
        {-1.25, {1899, 12, 29, 6, 0, 0}}, // the fraction stays a positive time
        {-0.5, {1899, 12, 30, 12, 0, 0}},
        {2.525, {1900, 1, 1, 12, 36, 0}},
        {2.02083, {1900, 1, 1, 0, 30, 0}},
        {-49192.24, {1765, 4, 24, 5, 45, 36}},
        {60, {1900, 2, 28, 0, 0, 0}},
        {61, {1900, 3, 1, 0, 0, 0}},
        {45366 + 49507.0 / 86400, {2024, 3, 15, 13, 45, 7}},
        {45366.9999999, {2024, 3, 16, 0, 0, 0}},
        {-657434, {100, 1, 1, 0, 0, 0}},
        {2958465.9999999, {9999, 12, 31, 23, 59, 59}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(splitDate(Date{c.serial}), c.parts) << c.serial;
    }
    EXPECT_EQ(errorOf([] { splitDate(Date{2958466}); }), vberr::overflow);
    EXPECT_EQ(errorOf([] { splitDate(Date{-657435}); }), vberr::overflow);
}

TEST(Date, RollsOverLikeDateSerialAndTimeSerial) {
    const auto serial = [](int y, int m, int d) { return dateSerial(y, m, d).serial; };
    EXPECT_EQ(serial(2024, 3, 15), 45366);
    EXPECT_EQ(serial(2000, 14, 2), serial(2001, 2, 2));
    EXPECT_EQ(serial(2024, 3, 0), serial(2024, 2, 29));
    EXPECT_EQ(serial(2024, 1, -1), serial(2023, 12, 30));
    EXPECT_EQ(serial(2024, 0, 1), serial(2023, 12, 1));
    EXPECT_EQ(serial(0, 1, 1), serial(2000, 1, 1));
    EXPECT_EQ(serial(29, 1, 1), serial(2029, 1, 1));
    EXPECT_EQ(serial(30, 1, 1), serial(1930, 1, 1));
    EXPECT_EQ(splitDate(dateSerial(100, 1, 1)).year, 100);

    EXPECT_EQ(splitDate(makeDate({1899, 12, 30, 25, 2, 1})), (DateParts{1899, 12, 31, 1, 2, 1}));
    EXPECT_EQ(splitDate(makeDate({1899, 12, 30, 10, 60, 2})), (DateParts{1899, 12, 30, 11, 0, 2}));
    EXPECT_EQ(splitDate(makeDate({2024, 3, 1, 0, 0, -1})), (DateParts{2024, 2, 29, 23, 59, 59}));
    EXPECT_DOUBLE_EQ(makeDate({1899, 12, 30, -1, 0, 0}).serial, -1 - 23.0 / 24);

    for (auto [y, m, d] : {std::tuple{10000, 1, 1}, {9999, 13, 1}, {-10000, 1, 1}, {100, 0, 1}}) {
        EXPECT_EQ(errorOf([&] { dateSerial(y, m, d); }), vberr::invalidCall) << y << "-" << m;
    }
    EXPECT_EQ(splitDate(dateSerial(9999, 12, 31)).day, 31);
}

TEST(Date, WeekdayCountsFromSunday) {
    EXPECT_EQ(weekday(dateSerial(2000, 1, 1)), 7);
    EXPECT_EQ(weekday(Date{0}), 7);
    EXPECT_EQ(weekday(Date{-1.5}), 6);
    EXPECT_EQ(weekday(Date{1.99}), 1);
}

TEST(Date, ParsesWhatCDateReadsInTheLocale) {
    const double friday = 45366;
    const double time = (13 * 3600 + 45 * 60) / 86400.0;
    const double seconds = 7 / 86400.0;
    struct Case {
        const char16_t* text;
        std::optional<double> de, en;
    };
    const Case cases[] = {
        {u"15.03.2024", friday, friday},
        {u"15.3.24", friday, friday}, // en-US swaps a day and month that only fit that way
        {u"3/15/2024", friday, friday},
        {u"03-15-24", friday, friday},
        {u"4/3/2024", friday - 11, friday + 19}, // 4 March in de-DE, April 3 in en-US
        {u"2024-03-15", friday, friday},
        {u"  15.03.2024 13:45 ", friday + time, friday + time},
        {u"2024-03-15 13:45:07", friday + time + seconds, friday + time + seconds},
        {u"3/15/2024 1:45:07 PM", friday + time + seconds, friday + time + seconds},
        {u"13:45 15.03.2024", friday + time, friday + time},
        {u"15. März 2024", friday, friday},
        {u"15-Mar-24", friday, friday},
        {u"15 mrz 2024", friday, friday},
        {u"March 15, 2024", friday, friday},
        {u"Freitag, 15. März 2024", friday, friday},
        {u"2024-Mar-15", friday, friday},
        {u"13:45", time, time},
        {u"1:45 pm", time, time},
        {u"12:00 AM", 0.0, 0.0},
        {u"12 PM", 0.5, 0.5},
        {u"31.12.29", dateSerial(2029, 12, 31).serial, dateSerial(2029, 12, 31).serial},
        {u"1.1.30", dateSerial(1930, 1, 1).serial, dateSerial(1930, 1, 1).serial},
        {u"24.04.1765 05:45:36", -49192.24, -49192.24},
        {u"", std::nullopt, std::nullopt},
        {u"abc", std::nullopt, std::nullopt},
        {u"1.5", std::nullopt, std::nullopt}, // a day and month without a year
        {u"1", std::nullopt, std::nullopt},
        {u"32.01.2024", std::nullopt, std::nullopt},
        {u"29.02.2023", std::nullopt, std::nullopt},
        {u"1.2.3.4", std::nullopt, std::nullopt},
        {u"25:00", std::nullopt, std::nullopt},
        {u"13:60", std::nullopt, std::nullopt},
        {u"13:45 PM", std::nullopt, std::nullopt},
        {u"15.03.2024 13", std::nullopt, std::nullopt},
        {u"15.03.99999", std::nullopt, std::nullopt},
        {u"15.03.2024 x", std::nullopt, std::nullopt},
    };
    for (const Case& c : cases) {
        for (auto [loc, expected] :
             {std::pair{&Locale::germanGermany(), c.de}, std::pair{&Locale::englishUS(), c.en}}) {
            const auto got = parseDate(c.text, *loc);
            SCOPED_TRACE(toUtf8(c.text) + " in " + toUtf8(loc->name));
            ASSERT_EQ(got.has_value(), expected.has_value());
            if (got) {
                EXPECT_DOUBLE_EQ(got->serial, *expected);
            }
        }
    }
}

} // namespace
} // namespace velkor6
