#include "core/date_names.h"

#include "core/text.h"

#include <array>

namespace velkor6 {

namespace {

using Names = std::array<std::u16string_view, 12>;
using DayNames = std::array<std::u16string_view, 7>;

constexpr Names englishMonths = {u"January",   u"February", u"March",    u"April",
                                 u"May",       u"June",     u"July",     u"August",
                                 u"September", u"October",  u"November", u"December"};
constexpr Names germanMonths = {u"Januar",    u"Februar", u"März",     u"April",
                                u"Mai",       u"Juni",    u"Juli",     u"August",
                                u"September", u"Oktober", u"November", u"Dezember"};
constexpr Names englishMonthAbbreviations = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                             u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
// The classic Windows abbreviations of a German locale.
constexpr Names germanMonthAbbreviations = {u"Jan", u"Feb", u"Mrz", u"Apr", u"Mai", u"Jun",
                                            u"Jul", u"Aug", u"Sep", u"Okt", u"Nov", u"Dez"};
constexpr DayNames englishDays = {u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                  u"Thursday", u"Friday", u"Saturday"};
constexpr DayNames germanDays = {u"Sonntag",    u"Montag",  u"Dienstag", u"Mittwoch",
                                 u"Donnerstag", u"Freitag", u"Samstag"};
constexpr DayNames englishDayAbbreviations = {u"Sun", u"Mon", u"Tue", u"Wed",
                                              u"Thu", u"Fri", u"Sat"};
constexpr DayNames germanDayAbbreviations = {u"So", u"Mo", u"Di", u"Mi", u"Do", u"Fr", u"Sa"};

bool sameWord(std::u16string_view a, std::u16string_view b) {
    return textEqual(a, b, Compare::Text);
}

} // namespace

DateLanguage dateLanguage(const Locale& loc) {
    const std::u16string_view name = loc.name;
    if (name.size() >= 2 && (name[0] == u'd' || name[0] == u'D') &&
        (name[1] == u'e' || name[1] == u'E') &&
        (name.size() == 2 || name[2] == u'-' || name[2] == u'_' || name[2] == u'.')) {
        return DateLanguage::German;
    }
    return DateLanguage::English;
}

std::u16string_view monthName(int month, DateLanguage lang) {
    return (lang == DateLanguage::German ? germanMonths : englishMonths).at(month - 1);
}

std::u16string_view monthAbbreviation(int month, DateLanguage lang) {
    return (lang == DateLanguage::German ? germanMonthAbbreviations : englishMonthAbbreviations)
        .at(month - 1);
}

std::u16string_view dayName(int weekday, DateLanguage lang) {
    return (lang == DateLanguage::German ? germanDays : englishDays).at(weekday - 1);
}

std::u16string_view dayAbbreviation(int weekday, DateLanguage lang) {
    return (lang == DateLanguage::German ? germanDayAbbreviations : englishDayAbbreviations)
        .at(weekday - 1);
}

int monthFromName(std::u16string_view word) {
    for (int m = 1; m <= 12; ++m) {
        for (const Names* names : {&englishMonths, &germanMonths, &englishMonthAbbreviations,
                                   &germanMonthAbbreviations}) {
            if (sameWord(word, (*names)[m - 1])) {
                return m;
            }
        }
    }
    // Other abbreviations in common use.
    if (sameWord(word, u"Mär")) {
        return 3;
    }
    if (sameWord(word, u"Sept")) {
        return 9;
    }
    return 0;
}

bool isDayName(std::u16string_view word) {
    for (const DayNames* names :
         {&englishDays, &germanDays, &englishDayAbbreviations, &germanDayAbbreviations}) {
        for (std::u16string_view name : *names) {
            if (sameWord(word, name)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace velkor6
