#include "core/format_date.h"

#include "core/calendar.h"
#include "core/date_names.h"
#include "core/text.h"

#include <array>

namespace velkor6 {

namespace {

struct Moment {
    std::int64_t dayNum = 0;
    std::int64_t secondOfDay = 0;
    int year = 1899, month = 12, day = 30;
    int hour = 0, minute = 0, second = 0;
    int weekday = 7; // 1 = Sunday
};

Moment momentOf(Date d) {
    const auto [dayNum, secondOfDay] = splitSerial(d.serial);
    const CivilDate c = civilDate(dayNum);
    return {dayNum,
            secondOfDay,
            static_cast<int>(c.year),
            c.month,
            c.day,
            static_cast<int>(secondOfDay / 3600),
            static_cast<int>(secondOfDay / 60 % 60),
            static_cast<int>(secondOfDay % 60),
            static_cast<int>(floorMod(dayNum + 6, 7)) + 1};
}

int dayOfYear(const Moment& m) {
    return static_cast<int>(m.dayNum - dayNumber(m.year, 1, 1)) + 1;
}

// Weeks counted from Sunday, the week holding January 1st being the first.
int weekOfYear(const Moment& m) {
    const int jan1Weekday = static_cast<int>(floorMod(dayNumber(m.year, 1, 1) + 6, 7)) + 1;
    return (dayOfYear(m) - 1 + jan1Weekday - 1) / 7 + 1;
}

void appendNumber(std::u16string& out, int value, int width) {
    std::array<char16_t, 12> buf{};
    int n = 0;
    do {
        buf[n++] = static_cast<char16_t>(u'0' + value % 10);
        value /= 10;
    } while (value > 0);
    for (int i = n; i < width; ++i) {
        out += u'0';
    }
    while (n > 0) {
        out += buf[--n];
    }
}

int hour12(int hour) {
    return hour % 12 == 0 ? 12 : hour % 12;
}

char16_t lower(char16_t c) {
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
}

bool startsWithNoCase(std::u16string_view s, std::size_t at, std::u16string_view prefix) {
    if (s.size() - at < prefix.size()) {
        return false;
    }
    for (std::size_t i = 0; i < prefix.size(); ++i) {
        if (lower(s[at + i]) != prefix[i]) {
            return false;
        }
    }
    return true;
}

std::size_t runLength(std::u16string_view s, std::size_t at) {
    std::size_t n = 1;
    while (at + n < s.size() && lower(s[at + n]) == lower(s[at])) {
        ++n;
    }
    return n;
}

// The length of an AM/PM token at a position ("am/pm", "a/p" or "ampm"), 0 when there is none.
std::size_t amPmLength(std::u16string_view s, std::size_t at) {
    for (std::u16string_view token : {u"am/pm", u"ampm", u"a/p"}) {
        if (startsWithNoCase(s, at, token)) {
            return token.size();
        }
    }
    return 0;
}

// Long and medium dates have no picture in the locale; these are the usual ones per language.
std::u16string_view longDatePicture(const Locale& loc) {
    return dateLanguage(loc) == DateLanguage::German ? u"dddd, d. MMMM yyyy"
                                                     : u"dddd, MMMM d, yyyy";
}

std::u16string generalDate(const Moment& m, Date d, const Locale& loc) {
    // A zero date part or a zero time part is left out; midnight of day 0 shows the time.
    if (m.dayNum == 0) {
        return formatDatePicture(d, loc.longTime, loc);
    }
    std::u16string out = formatDatePicture(d, loc.shortDate, loc);
    if (m.secondOfDay != 0) {
        out += u' ';
        out += formatDatePicture(d, loc.longTime, loc);
    }
    return out;
}

std::u16string renderMask(Date d, std::u16string_view mask, const Locale& loc) {
    const Moment m = momentOf(d);
    const DateLanguage lang = dateLanguage(loc);

    bool twelveHour = false;
    for (std::size_t i = 0; i < mask.size(); ++i) {
        if (mask[i] == u'\\') {
            ++i;
        } else if (mask[i] == u'"') {
            i = std::min(mask.find(u'"', i + 1), mask.size());
        } else if (amPmLength(mask, i) != 0) {
            twelveHour = true;
        }
    }
    const int hour = twelveHour ? hour12(m.hour) : m.hour;

    std::u16string out;
    bool afterHour = false; // "m" right after "h" (literals aside) means minutes
    for (std::size_t i = 0; i < mask.size();) {
        const char16_t c = mask[i];
        const std::size_t amPm = amPmLength(mask, i);
        if (amPm != 0) {
            const bool pm = m.hour >= 12;
            if (amPm == 4) {
                out += pm ? loc.pm : loc.am;
            } else {
                out += amPm == 5 ? mask.substr(pm ? i + 3 : i, 2) : mask.substr(pm ? i + 2 : i, 1);
            }
            i += amPm;
            afterHour = false;
            continue;
        }
        if (c == u'\\') {
            if (i + 1 < mask.size()) {
                out += mask[i + 1];
            }
            i += 2;
            continue;
        }
        if (c == u'"') {
            const std::size_t close = std::min(mask.find(u'"', i + 1), mask.size());
            out += mask.substr(i + 1, close - i - 1);
            i = close + 1;
            continue;
        }
        if (c == u'/') {
            out += loc.dateSeparator;
            ++i;
            continue;
        }
        if (c == u':') {
            out += loc.timeSeparator;
            ++i;
            continue;
        }
        const std::size_t run = runLength(mask, i);
        std::size_t take = 1;
        bool isHour = false;
        switch (lower(c)) {
        case u'd':
            take = std::min<std::size_t>(run, 6);
            switch (take) {
            case 1:
            case 2:
                appendNumber(out, m.day, static_cast<int>(take));
                break;
            case 3:
                out += dayAbbreviation(m.weekday, lang);
                break;
            case 4:
                out += dayName(m.weekday, lang);
                break;
            case 5:
                out += formatDatePicture(d, loc.shortDate, loc);
                break;
            default:
                out += formatDatePicture(d, longDatePicture(loc), loc);
                break;
            }
            break;
        case u'm':
            take = std::min<std::size_t>(run, 4);
            if (afterHour && take <= 2) {
                appendNumber(out, m.minute, static_cast<int>(take));
            } else if (take <= 2) {
                appendNumber(out, m.month, static_cast<int>(take));
            } else {
                out += take == 3 ? monthAbbreviation(m.month, lang) : monthName(m.month, lang);
            }
            break;
        case u'y':
            take = run >= 4 ? 4 : run >= 2 ? 2 : 1;
            if (take == 1) {
                appendNumber(out, dayOfYear(m), 1);
            } else {
                appendNumber(out, take == 2 ? m.year % 100 : m.year, static_cast<int>(take));
            }
            break;
        case u'q':
            appendNumber(out, (m.month - 1) / 3 + 1, 1);
            break;
        case u'w':
            take = std::min<std::size_t>(run, 2);
            appendNumber(out, take == 1 ? m.weekday : weekOfYear(m), 1);
            break;
        case u'h':
            take = std::min<std::size_t>(run, 2);
            appendNumber(out, hour, static_cast<int>(take));
            isHour = true;
            break;
        case u'n':
            take = std::min<std::size_t>(run, 2);
            appendNumber(out, m.minute, static_cast<int>(take));
            break;
        case u's':
            take = std::min<std::size_t>(run, 2);
            appendNumber(out, m.second, static_cast<int>(take));
            break;
        case u'c':
            out += generalDate(m, d, loc);
            break;
        case u't':
            if (run >= 5) {
                take = 5;
                out += formatDatePicture(d, loc.longTime, loc);
                break;
            }
            out += c;
            ++i;
            continue; // a literal: it leaves the hour rule alone
        default:
            out += c;
            ++i;
            continue;
        }
        afterHour = isHour;
        i += take;
    }
    return out;
}

} // namespace

bool isDateMask(std::u16string_view mask) {
    bool dateTokens = false;
    for (std::size_t i = 0; i < mask.size(); ++i) {
        const char16_t c = lower(mask[i]);
        if (c == u'\\') {
            ++i;
        } else if (c == u'"') {
            i = std::min(mask.find(u'"', i + 1), mask.size());
        } else if (c == u'0' || c == u'#') {
            return false;
        } else if (std::u16string_view(u"dmyqwhnsc").find(c) != std::u16string_view::npos ||
                   amPmLength(mask, i) != 0 || (c == u't' && runLength(mask, i) >= 5)) {
            dateTokens = true;
        }
    }
    return dateTokens;
}

bool isNamedDateForm(std::u16string_view mask) {
    for (std::u16string_view name : {u"General Date", u"Long Date", u"Medium Date", u"Short Date",
                                     u"Long Time", u"Medium Time", u"Short Time"}) {
        if (textEqual(mask, name, Compare::Text)) {
            return true;
        }
    }
    return false;
}

std::u16string formatNamedDate(Date d, std::u16string_view name, const Locale& loc) {
    const auto is = [name](std::u16string_view form) {
        return textEqual(name, form, Compare::Text);
    };
    if (is(u"General Date")) {
        return generalDate(momentOf(d), d, loc);
    }
    if (is(u"Long Date")) {
        return formatDatePicture(d, longDatePicture(loc), loc);
    }
    if (is(u"Medium Date")) {
        return formatDatePicture(d, u"dd-MMM-yy", loc);
    }
    if (is(u"Short Date")) {
        return formatDatePicture(d, loc.shortDate, loc);
    }
    if (is(u"Long Time")) {
        return formatDatePicture(d, loc.longTime, loc);
    }
    if (is(u"Medium Time")) {
        return renderMask(d, u"hh:nn AM/PM", loc);
    }
    return renderMask(d, u"hh:nn", loc); // Short Time: 24 hours in every locale
}

std::u16string formatDateMask(Date d, std::u16string_view mask, const Locale& loc) {
    return renderMask(d, mask, loc);
}

std::u16string formatDatePicture(Date d, std::u16string_view picture, const Locale& loc) {
    const Moment m = momentOf(d);
    const DateLanguage lang = dateLanguage(loc);
    std::u16string out;
    for (std::size_t i = 0; i < picture.size();) {
        const char16_t c = picture[i];
        if (c == u'\'') {
            const std::size_t close = std::min(picture.find(u'\'', i + 1), picture.size());
            out += close == i + 1 ? u"'" : picture.substr(i + 1, close - i - 1);
            i = close + 1;
            continue;
        }
        std::size_t run = 1;
        while (i + run < picture.size() && picture[i + run] == c) {
            ++run;
        }
        const int width = run >= 2 ? 2 : 1;
        switch (c) {
        case u'd':
            if (run <= 2) {
                appendNumber(out, m.day, width);
            } else {
                out += run == 3 ? dayAbbreviation(m.weekday, lang) : dayName(m.weekday, lang);
            }
            break;
        case u'M':
            if (run <= 2) {
                appendNumber(out, m.month, width);
            } else {
                out += run == 3 ? monthAbbreviation(m.month, lang) : monthName(m.month, lang);
            }
            break;
        case u'y':
            if (run <= 2) {
                appendNumber(out, m.year % 100, width);
            } else {
                appendNumber(out, m.year, 1);
            }
            break;
        case u'h':
            appendNumber(out, hour12(m.hour), width);
            break;
        case u'H':
            appendNumber(out, m.hour, width);
            break;
        case u'm':
            appendNumber(out, m.minute, width);
            break;
        case u's':
            appendNumber(out, m.second, width);
            break;
        case u't': {
            const std::u16string& designator = m.hour < 12 ? loc.am : loc.pm;
            out += run == 1 ? designator.substr(0, 1) : designator;
            break;
        }
        case u'g':
            break; // era: none in the Gregorian calendar pictures we meet
        default:
            out.append(run, c);
            break;
        }
        i += run;
    }
    return out;
}

} // namespace velkor6
