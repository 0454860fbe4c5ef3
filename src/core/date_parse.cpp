// Reading dates and times from text the way CDate does.
#include "core/calendar.h"
#include "core/date.h"
#include "core/date_names.h"
#include "core/text.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace velkor6 {

namespace {

struct Token {
    enum class Kind { Number, Word, Separator, Colon } kind;
    std::u16string_view text;
    int value = 0; // numbers only
};

bool isLetter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') ||
           (c >= 0xC0 && c < 0x250 && c != 0xD7 && c != 0xF7);
}

bool isBlank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

std::optional<std::vector<Token>> tokenize(std::u16string_view s, const Locale& loc) {
    std::vector<Token> tokens;
    std::size_t i = 0;
    while (i < s.size()) {
        const char16_t c = s[i];
        const std::size_t start = i;
        if (isBlank(c)) {
            ++i;
        } else if (c >= u'0' && c <= u'9') {
            int value = 0;
            while (i < s.size() && s[i] >= u'0' && s[i] <= u'9') {
                if (i - start >= 4) {
                    return std::nullopt; // no part of a date has more than four digits
                }
                value = value * 10 + (s[i] - u'0');
                ++i;
            }
            tokens.push_back({Token::Kind::Number, s.substr(start, i - start), value});
        } else if (isLetter(c)) {
            while (i < s.size() && isLetter(s[i])) {
                ++i;
            }
            tokens.push_back({Token::Kind::Word, s.substr(start, i - start)});
        } else if (c == u':' || c == loc.timeSeparator) {
            tokens.push_back({Token::Kind::Colon, s.substr(i++, 1)});
        } else if (c == u'/' || c == u'.' || c == u'-' || c == u',' || c == loc.dateSeparator) {
            tokens.push_back({Token::Kind::Separator, s.substr(i++, 1)});
        } else {
            return std::nullopt;
        }
    }
    return tokens;
}

enum class Order { DMY, MDY, YMD };

// The order of day, month and year in the locale's short-date picture.
Order dateOrder(const Locale& loc) {
    const std::u16string_view picture = loc.shortDate;
    const auto d = picture.find_first_of(u"dD");
    const auto m = picture.find_first_of(u"mM");
    const auto y = picture.find_first_of(u"yY");
    if (y < d && y < m) {
        return Order::YMD;
    }
    if (d < m) {
        return Order::DMY;
    }
    return Order::MDY;
}

int fullYear(const Token& t) {
    if (t.text.size() <= 2) {
        return t.value < 30 ? 2000 + t.value : 1900 + t.value;
    }
    return t.value;
}

std::optional<std::int64_t> validDay(int year, int month, int day) {
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 ||
        day > daysInMonth(year, month)) {
        return std::nullopt;
    }
    return dayNumber(year, month, day);
}

class Parser {
public:
    Parser(const std::vector<Token>& tokens, const Locale& loc) : t_(tokens), loc_(loc) {}

    std::optional<double> parse() {
        if (t_.empty()) {
            return std::nullopt;
        }
        if (auto day = date(0)) {
            if (pos_ == t_.size()) {
                return composeSerial(*day, 0);
            }
            if (auto second = time(pos_); second && pos_ == t_.size()) {
                return composeSerial(*day, *second);
            }
            return std::nullopt;
        }
        if (auto second = time(0)) {
            if (pos_ == t_.size()) {
                return composeSerial(0, *second);
            }
            if (auto day = date(pos_); day && pos_ == t_.size()) {
                return composeSerial(*day, *second);
            }
        }
        return std::nullopt;
    }

private:
    bool is(std::size_t i, Token::Kind kind) const { return i < t_.size() && t_[i].kind == kind; }

    bool isDateSeparator(std::size_t i, bool allowComma) const {
        return is(i, Token::Kind::Separator) && (allowComma || t_[i].text[0] != u',');
    }

    // 1 for a morning designator, 2 for an afternoon one, 0 for anything else.
    int amPm(std::size_t i) const {
        if (!is(i, Token::Kind::Word)) {
            return 0;
        }
        const std::u16string_view w = t_[i].text;
        const auto eq = [w](std::u16string_view s) {
            return !s.empty() && textEqual(w, s, Compare::Text);
        };
        if (eq(u"AM") || eq(u"A") || eq(loc_.am)) {
            return 1;
        }
        if (eq(u"PM") || eq(u"P") || eq(loc_.pm)) {
            return 2;
        }
        return 0;
    }

    // A time of day at token i: h:mm[:ss] [AM|PM] or h AM|PM. Sets pos_ past it.
    std::optional<std::int64_t> time(std::size_t i) {
        if (!is(i, Token::Kind::Number) || t_[i].text.size() > 2) {
            return std::nullopt;
        }
        int parts[3] = {t_[i].value, 0, 0};
        int count = 1;
        ++i;
        while (count < 3 && is(i, Token::Kind::Colon) && is(i + 1, Token::Kind::Number) &&
               t_[i + 1].text.size() <= 2) {
            parts[count++] = t_[i + 1].value;
            i += 2;
        }
        const int designator = amPm(i);
        if (count == 1 && designator == 0) {
            return std::nullopt;
        }
        int hour = parts[0];
        if (designator != 0) {
            if (hour > 12) {
                return std::nullopt;
            }
            hour = hour % 12 + (designator == 2 ? 12 : 0);
            ++i;
        }
        if (hour > 23 || parts[1] > 59 || parts[2] > 59) {
            return std::nullopt;
        }
        pos_ = i;
        return std::int64_t{hour} * 3600 + parts[1] * 60 + parts[2];
    }

    // A calendar date at token i, with an optional leading day name. Sets pos_ past it.
    std::optional<std::int64_t> date(std::size_t i) {
        if (is(i, Token::Kind::Word) && isDayName(t_[i].text)) {
            ++i;
            if (isDateSeparator(i, true)) {
                ++i;
            }
        }
        if (is(i, Token::Kind::Word)) {
            return monthFirst(i);
        }
        if (!is(i, Token::Kind::Number)) {
            return std::nullopt;
        }
        std::size_t j = i + 1;
        if (isDateSeparator(j, true)) {
            ++j;
        }
        if (is(j, Token::Kind::Word)) {
            return monthInMiddle(i, j);
        }
        return numeric(i);
    }

    // "March 15, 2024", "Mar-15-24"
    std::optional<std::int64_t> monthFirst(std::size_t i) {
        const int month = monthFromName(t_[i].text);
        if (month == 0) {
            return std::nullopt;
        }
        std::size_t j = i + 1;
        if (isDateSeparator(j, true)) {
            ++j;
        }
        if (!is(j, Token::Kind::Number)) {
            return std::nullopt;
        }
        const Token& day = t_[j++];
        if (isDateSeparator(j, true)) {
            ++j;
        }
        if (!is(j, Token::Kind::Number) || day.text.size() > 2) {
            return std::nullopt;
        }
        pos_ = j + 1;
        return validDay(fullYear(t_[j]), month, day.value);
    }

    // "15. März 2024", "15-Mar-24", "2024-Mar-15"
    std::optional<std::int64_t> monthInMiddle(std::size_t i, std::size_t j) {
        const int month = monthFromName(t_[j].text);
        if (month == 0) {
            return std::nullopt;
        }
        std::size_t k = j + 1;
        if (isDateSeparator(k, true)) {
            ++k;
        }
        if (!is(k, Token::Kind::Number)) {
            return std::nullopt;
        }
        pos_ = k + 1;
        if (t_[i].text.size() > 2) {
            return t_[k].text.size() <= 2 ? validDay(t_[i].value, month, t_[k].value)
                                          : std::nullopt;
        }
        return validDay(fullYear(t_[k]), month, t_[i].value);
    }

    // Three numbers in the locale's order, or year first when the first has four digits.
    std::optional<std::int64_t> numeric(std::size_t i) {
        const Token* n[3];
        for (int k = 0; k < 3; ++k) {
            if (k > 0 && isDateSeparator(i, false)) {
                ++i;
            }
            if (!is(i, Token::Kind::Number)) {
                return std::nullopt;
            }
            n[k] = &t_[i++];
        }
        pos_ = i;
        Order order = dateOrder(loc_);
        if (n[0]->text.size() > 2) {
            order = Order::YMD;
        } else if (order == Order::YMD && n[2]->text.size() > 2) {
            order = Order::MDY; // a four-digit year at the end: read it the English way
        }
        const Token* year = order == Order::YMD ? n[0] : n[2];
        const Token* month = order == Order::DMY ? n[1] : order == Order::MDY ? n[0] : n[1];
        const Token* day = order == Order::DMY ? n[0] : order == Order::MDY ? n[1] : n[2];
        if (month->text.size() > 2 || day->text.size() > 2) {
            return std::nullopt;
        }
        if (auto d = validDay(fullYear(*year), month->value, day->value)) {
            return d;
        }
        // Like CDate, a day and month that only make sense the other way round are swapped.
        return validDay(fullYear(*year), day->value, month->value);
    }

    const std::vector<Token>& t_;
    const Locale& loc_;
    std::size_t pos_ = 0;
};

} // namespace

std::optional<Date> parseDate(std::u16string_view text, const Locale& loc) {
    const auto tokens = tokenize(text, loc);
    if (!tokens) {
        return std::nullopt;
    }
    if (auto serial = Parser(*tokens, loc).parse()) {
        return Date{*serial};
    }
    return std::nullopt;
}

} // namespace velkor6
