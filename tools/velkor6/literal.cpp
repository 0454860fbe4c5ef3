#include "literal.h"

#include "core/convert.h"
#include "core/date.h"
#include "core/text.h"
#include "platform/ansi.h"
#include "velkor6/vb_error.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace velkor6::cli {
namespace {

bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}
bool isLetter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}
bool isIdentChar(char16_t c) {
    return isLetter(c) || isDigit(c) || c == u'_';
}

[[noreturn]] void outOfRange(std::u16string_view literal, std::string_view type) {
    throw UsageError("overflow: " + toUtf8(literal) + " is beyond the range of " +
                     std::string(type));
}

// The largest magnitude that still rounds to a finite Single: halfway between the largest
// Single and 2^128.
constexpr double singleLimit = 0x1.ffffffp+127;

// The Currency of "digits[.digits]" exactly, past the fourth decimal rounded half to even as
// VB rounds a Currency; nullopt beyond its range.
std::optional<std::int64_t> exactCurrency(std::string_view text, bool negative) {
    const std::size_t dot = std::min(text.find('.'), text.size());
    const std::string_view whole = text.substr(0, dot);
    const std::string_view fraction = text.substr(std::min(dot + 1, text.size()));
    std::uint64_t scaled = 0;
    auto push = [&scaled](char digit) {
        return !__builtin_mul_overflow(scaled, 10u, &scaled) &&
               !__builtin_add_overflow(scaled, static_cast<unsigned>(digit - '0'), &scaled);
    };
    for (char c : whole)
        if (!push(c))
            return std::nullopt;
    for (std::size_t i = 0; i < 4; ++i)
        if (!push(i < fraction.size() ? fraction[i] : '0'))
            return std::nullopt;
    if (fraction.size() > 4) {
        const std::string_view rest = fraction.substr(4);
        const bool aboveHalf =
            rest[0] > '5' || (rest[0] == '5' && rest.find_first_not_of('0', 1) != rest.npos);
        if (aboveHalf || (rest[0] == '5' && !aboveHalf && scaled % 2 == 1))
            ++scaled;
    }
    const std::uint64_t limit = std::uint64_t{1} << 63;
    if (scaled > (negative ? limit : limit - 1))
        return std::nullopt;
    return negative ? static_cast<std::int64_t>(0 - scaled) : static_cast<std::int64_t>(scaled);
}

// A recursive-descent reader of VB literals; every parse function either consumes a literal
// and returns it or leaves the position where it was and returns nullopt.
class Reader {
public:
    explicit Reader(std::u16string_view s) : s_(s) {}

    bool atEnd() {
        skipSpaces();
        return pos_ >= s_.size();
    }
    std::size_t pos() const { return pos_; }
    void setPos(std::size_t pos) { pos_ = pos; }
    char16_t peek() const { return pos_ < s_.size() ? s_[pos_] : u'\0'; }
    bool accept(char16_t c) {
        skipSpaces();
        if (peek() != c)
            return false;
        ++pos_;
        return true;
    }
    void skipSpaces() {
        while (pos_ < s_.size() && (s_[pos_] == u' ' || s_[pos_] == u'\t'))
            ++pos_;
    }

    std::u16string identifier() {
        skipSpaces();
        const std::size_t start = pos_;
        if (!isLetter(peek()))
            return {};
        while (isIdentChar(peek()))
            ++pos_;
        return std::u16string(s_.substr(start, pos_ - start));
    }

    // expression := term ('&' term)*, where '&' joins texts.
    std::optional<Variant> expression() {
        const std::size_t start = pos_;
        auto first = term();
        if (!first)
            return std::nullopt;
        while (true) {
            const std::size_t before = pos_;
            if (!accept(u'&'))
                break;
            auto next = term();
            if (!next || !first->isString() || !next->isString()) {
                pos_ = before;
                if (!next)
                    break;
                pos_ = start;
                return std::nullopt;
            }
            first->string() += next->string();
        }
        return first;
    }

    std::optional<Variant> term() {
        skipSpaces();
        const std::size_t start = pos_;
        const char16_t c = peek();
        std::optional<Variant> v;
        if (c == u'"')
            v = stringLiteral();
        else if (c == u'#')
            v = dateLiteral();
        else if (c == u'&')
            v = radixLiteral();
        else if (isDigit(c) || c == u'-' || c == u'+' || c == u'.')
            v = numberLiteral();
        else if (isLetter(c))
            v = named();
        if (!v)
            pos_ = start;
        return v;
    }

private:
    std::optional<Variant> stringLiteral() {
        ++pos_; // opening quote
        std::u16string text;
        while (pos_ < s_.size()) {
            if (s_[pos_] == u'"') {
                if (pos_ + 1 < s_.size() && s_[pos_ + 1] == u'"') {
                    text += u'"';
                    pos_ += 2;
                    continue;
                }
                ++pos_;
                return Variant(std::move(text));
            }
            text += s_[pos_++];
        }
        return std::nullopt;
    }

    std::optional<int> digits(int count) {
        int value = 0;
        for (int i = 0; i < count; ++i) {
            if (!isDigit(peek()))
                return std::nullopt;
            value = value * 10 + (s_[pos_++] - u'0');
        }
        return value;
    }

    // #yyyy-mm-dd#, #yyyy-mm-dd hh:nn#, #yyyy-mm-dd hh:nn:ss#
    std::optional<Variant> dateLiteral() {
        const std::size_t start = pos_;
        ++pos_;
        DateParts p;
        auto y = digits(4);
        if (!y || peek() != u'-')
            return std::nullopt;
        ++pos_;
        auto m = digits(2);
        if (!m || peek() != u'-')
            return std::nullopt;
        ++pos_;
        auto d = digits(2);
        if (!d)
            return std::nullopt;
        p.year = *y;
        p.month = *m;
        p.day = *d;
        if (peek() == u' ') {
            ++pos_;
            auto h = digits(2);
            if (!h || peek() != u':')
                return std::nullopt;
            ++pos_;
            auto n = digits(2);
            if (!n)
                return std::nullopt;
            p.hour = *h;
            p.minute = *n;
            if (peek() == u':') {
                ++pos_;
                auto sec = digits(2);
                if (!sec)
                    return std::nullopt;
                p.second = *sec;
            }
        }
        if (peek() != u'#')
            return std::nullopt;
        ++pos_;
        // A Date holds the years 100 to 9999; four digits leave no two-digit year to read.
        if (p.year < 100)
            throw UsageError("date " + toUtf8(s_.substr(start, pos_ - start)) +
                             " is before the year 100, the first a Date holds");
        if (p.month < 1 || p.month > 12 || p.day < 1 || p.day > 31 || p.hour > 23 ||
            p.minute > 59 || p.second > 59)
            return std::nullopt;
        const Date date = makeDate(p);
        if (splitDate(date) != p)
            return std::nullopt; // 2024-02-30 and the like
        return Variant(date);
    }

    // &HFF, &O17, with an optional % or & suffix. Up to 4 hex digits make an Integer (so &HFFFF
    // is -1), up to 8 a Long.
    std::optional<Variant> radixLiteral() {
        ++pos_;
        const char16_t kind = toUpper(peek());
        if (kind != u'H' && kind != u'O')
            return std::nullopt;
        ++pos_;
        const unsigned base = kind == u'H' ? 16 : 8;
        std::uint64_t value = 0;
        int count = 0;
        while (true) {
            const char16_t c = toUpper(peek());
            unsigned digit = 0;
            if (isDigit(c))
                digit = c - u'0';
            else if (base == 16 && c >= u'A' && c <= u'F')
                digit = c - u'A' + 10;
            else
                break;
            if (digit >= base)
                return std::nullopt;
            value = value * base + digit;
            if (value > 0xFFFFFFFFu)
                return std::nullopt;
            ++pos_;
            ++count;
        }
        if (count == 0)
            return std::nullopt;
        const bool fitsInteger = value <= 0xFFFFu;
        if (peek() == u'&') {
            ++pos_;
            return Variant(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
        }
        if (peek() == u'%') {
            ++pos_;
            if (!fitsInteger)
                return std::nullopt;
            return Variant(static_cast<std::int16_t>(static_cast<std::uint16_t>(value)));
        }
        if (fitsInteger)
            return Variant(static_cast<std::int16_t>(static_cast<std::uint16_t>(value)));
        return Variant(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
    }

    std::optional<Variant> numberLiteral() {
        const std::size_t start = pos_;
        bool negative = false;
        if (peek() == u'-' || peek() == u'+') {
            negative = peek() == u'-';
            ++pos_;
        }
        std::string text;
        bool fractional = false;
        while (isDigit(peek()))
            text += static_cast<char>(s_[pos_++]);
        if (peek() == u'.') {
            fractional = true;
            text += '.';
            ++pos_;
            while (isDigit(peek()))
                text += static_cast<char>(s_[pos_++]);
        }
        if (text.empty() || text == ".")
            return std::nullopt;
        if (peek() == u'E' || peek() == u'e') {
            std::size_t save = pos_;
            std::string exponent = "e";
            ++pos_;
            if (peek() == u'+' || peek() == u'-')
                exponent += static_cast<char>(s_[pos_++]);
            if (isDigit(peek())) {
                while (isDigit(peek()))
                    exponent += static_cast<char>(s_[pos_++]);
                text += exponent;
                fractional = true;
            } else {
                pos_ = save;
            }
        }
        double magnitude = 0;
        const auto parsed = std::from_chars(text.data(), text.data() + text.size(), magnitude);
        const bool fitsDouble = parsed.ec == std::errc();
        if (!fitsDouble && parsed.ec != std::errc::result_out_of_range)
            return std::nullopt;
        const double value = negative ? -magnitude : magnitude;

        // A number with a suffix only makes a literal when no word goes on after it; then a
        // value its type cannot hold is an overflow, not a text.
        auto suffixed = [&](bool fits, std::string_view type) {
            ++pos_;
            if (isIdentChar(peek()))
                return false;
            if (!fits)
                outOfRange(s_.substr(start, pos_ - start), type);
            return true;
        };
        const char16_t suffix = peek();
        switch (suffix) {
        case u'%':
            if (fractional)
                return std::nullopt;
            if (!suffixed(fitsDouble && magnitude <= 32767.0 + (negative ? 1 : 0), "an Integer"))
                return std::nullopt;
            return Variant(static_cast<std::int16_t>(value));
        case u'&':
            // A following "H" or "O" would be another literal; "1&" alone is a Long.
            if (pos_ + 1 < s_.size() && isIdentChar(s_[pos_ + 1]))
                break;
            if (fractional)
                return std::nullopt;
            if (!suffixed(fitsDouble && magnitude <= 2147483647.0 + (negative ? 1 : 0), "a Long"))
                return std::nullopt;
            return Variant(static_cast<std::int32_t>(value));
        case u'!': {
            if (!suffixed(fitsDouble && magnitude < singleLimit, "a Single"))
                return std::nullopt;
            // Rounded once, from the digits: rounding through a Double could land on the
            // next Single. The reader gives up on denormals, which the Double path serves.
            float single = 0;
            if (std::from_chars(text.data(), text.data() + text.size(), single).ec != std::errc())
                single = static_cast<float>(magnitude);
            return Variant(negative ? -single : single);
        }
        case u'#':
            if (!suffixed(fitsDouble, "a Double"))
                return std::nullopt;
            return Variant(value);
        case u'@': {
            // Digits alone are read exactly: a Double holds only 15 or so of a Currency's 19.
            std::optional<std::int64_t> scaled;
            if (text.find('e') == text.npos) {
                scaled = exactCurrency(text, negative);
            } else if (const double d = value * 10000.0; std::fabs(d) < 9.2233720368547758e18) {
                scaled = std::llround(d);
            }
            if (!suffixed(fitsDouble && scaled.has_value(), "a Currency"))
                return std::nullopt;
            return Variant(Currency{*scaled});
        }
        default:
            break;
        }
        if (isIdentChar(suffix))
            return std::nullopt;
        if (!fitsDouble)
            outOfRange(s_.substr(start, pos_ - start), "a Double");
        if (fractional)
            return Variant(value);
        // VB types a literal by its magnitude before the sign applies: -32768 is a Long.
        if (magnitude <= 32767)
            return Variant(static_cast<std::int16_t>(value));
        if (magnitude <= 2147483647)
            return Variant(static_cast<std::int32_t>(value));
        return Variant(value);
    }

    std::optional<Variant> named() {
        const std::u16string word = identifier();
        auto is = [&](std::u16string_view w) { return textEqual(word, w, Compare::Text); };
        if (is(u"True"))
            return Variant(true);
        if (is(u"False"))
            return Variant(false);
        if (is(u"Null"))
            return Variant::null();
        if (is(u"Empty"))
            return Variant();
        if (is(u"Nothing"))
            return Variant::nothing();
        if (is(u"Missing"))
            return Variant::missing();
        if (is(u"Chr") || is(u"ChrW") || is(u"Chr$")) {
            if (!accept(u'('))
                return std::nullopt;
            auto code = numberLiteral();
            if (!code || !accept(u')'))
                return std::nullopt;
            const int n = code->type() == VarType::Integer ? code->integer()
                          : code->type() == VarType::Long  ? code->longValue()
                                                           : -1;
            if (n < 0 || n > 0xFFFF)
                return std::nullopt;
            const char16_t ch = is(u"ChrW") || n > 255 ? static_cast<char16_t>(n)
                                                       : ansiToChar(static_cast<unsigned char>(n));
            return Variant(std::u16string(1, ch));
        }
        if (is(u"Array")) {
            if (!accept(u'('))
                return std::nullopt;
            if (depth_ == maxArrayDepth)
                throw UsageError("Array(...) nested deeper than " + std::to_string(maxArrayDepth) +
                                 " levels");
            struct Level {
                int& depth;
                explicit Level(int& d) : depth(++d) {}
                ~Level() { --depth; }
            } level(depth_);
            std::vector<Variant> items;
            if (!accept(u')')) {
                do {
                    auto item = expression();
                    if (!item)
                        return std::nullopt;
                    items.push_back(std::move(*item));
                } while (accept(u','));
                if (!accept(u')'))
                    return std::nullopt;
            }
            return Variant::array(std::move(items));
        }
        return std::nullopt;
    }

    std::u16string_view s_;
    std::size_t pos_ = 0;
    int depth_ = 0; // of Array(...) nesting; each level recurses
};

// "name:=" at the reader's position, or "" (and the position unchanged).
std::u16string argumentName(Reader& r) {
    const std::size_t start = r.pos();
    std::u16string name = r.identifier();
    r.skipSpaces();
    if (!name.empty() && r.peek() == u':') {
        r.setPos(r.pos() + 1);
        if (r.peek() == u'=') {
            r.setPos(r.pos() + 1);
            return name;
        }
    }
    r.setPos(start);
    return {};
}

bool startsWithWord(std::u16string_view text, std::u16string_view word) {
    return text.size() >= word.size() &&
           textEqual(text.substr(0, word.size()), word, Compare::Text);
}

// A comment runs from ' or the word Rem to the end of the line.
bool atComment(Reader& r, std::u16string_view line) {
    if (r.atEnd())
        return false;
    const std::u16string_view rest = line.substr(r.pos());
    return rest.front() == u'\'' || (startsWithWord(rest, u"Rem") &&
                                     (rest.size() == 3 || rest[3] == u' ' || rest[3] == u'\t'));
}

bool atStatementEnd(Reader& r, std::u16string_view line) {
    return r.atEnd() || r.peek() == u':' || atComment(r, line);
}

std::string column(const Reader& r) {
    return std::to_string(r.pos() + 1);
}

// One call up to the end of its statement: member(arg, , name:=value), member arg, arg, either
// with "= value" after it for a property assignment.
ParsedCall readCall(Reader& r, std::u16string_view line) {
    ParsedCall call;
    std::u16string word = r.identifier();
    if (textEqual(word, u"Print", Compare::Text))
        word = r.identifier();
    else if (word.empty() && r.accept(u'?'))
        word = r.identifier();
    if (word.empty())
        throw UsageError("syntax error: expected a member name at column " + column(r));
    call.member = word;

    auto argumentList = [&](char16_t close) {
        while (true) {
            r.skipSpaces();
            if (r.peek() == u',' || (close != 0 && r.peek() == close) ||
                (close == 0 && atStatementEnd(r, line))) {
                call.arguments.push_back({u"", Variant::missing()});
            } else {
                ParsedArgument arg;
                arg.name = argumentName(r);
                auto v = r.expression();
                if (!v)
                    throw UsageError("syntax error: expected a literal at column " + column(r));
                arg.value = std::move(*v);
                call.arguments.push_back(std::move(arg));
            }
            if (!r.accept(u','))
                break;
        }
        // "f()" and "f" have no arguments rather than one omitted one.
        if (call.arguments.size() == 1 && call.arguments[0].name.empty() &&
            call.arguments[0].value.isMissing())
            call.arguments.clear();
    };

    if (r.accept(u'(')) {
        argumentList(u')');
        if (!r.accept(u')'))
            throw UsageError("syntax error: expected ) at column " + column(r));
    } else if (!atStatementEnd(r, line) && r.peek() != u'=') {
        argumentList(0);
    }
    if (r.accept(u'=')) {
        auto v = r.expression();
        if (!v)
            throw UsageError("syntax error: expected a value after = at column " + column(r));
        call.assigned = std::move(*v);
    }
    if (!atStatementEnd(r, line))
        throw UsageError("syntax error: unexpected text at column " + column(r));
    return call;
}

// Why a text that starts like a literal is none, or nullopt when it does not start like one.
std::optional<std::string> literalProblem(std::u16string_view text) {
    const std::u16string_view t = trimSpaces(text);
    if (t.empty())
        return std::nullopt;
    const std::string quoted = "'" + toUtf8(t) + "'";
    Reader r(t);
    if (t.front() == u'"') {
        if (!r.term())
            return quoted + ": the string has no closing \"";
        r.skipSpaces();
        return quoted + ": unexpected text after a string at column " + column(r);
    }
    if (t.size() > 1 && t.front() == u'#' && t.back() == u'#')
        return quoted + ": no date #yyyy-mm-dd[ hh:nn[:ss]]# (month 1 to 12, a day of that month)";
    if (startsWithWord(t, u"&H") || startsWithWord(t, u"&O"))
        return quoted + (toUpper(t[1]) == u'H' ? ": no hexadecimal" : ": no octal") +
               " number of up to 32 bits";
    if (startsWithWord(t, u"Array(") || startsWithWord(t, u"Chr(") || startsWithWord(t, u"ChrW(")) {
        int depth = 0;
        bool inString = false;
        for (char16_t c : t) {
            if (c == u'"')
                inString = !inString;
            else if (!inString && c == u'(')
                ++depth;
            else if (!inString && c == u')')
                --depth;
        }
        if (inString)
            return quoted + ": a string in it has no closing \"";
        if (depth != 0)
            return quoted + ": unbalanced parentheses";
        return quoted + ": no literal (Array(literal, ...), Chr(number))";
    }
    return std::nullopt;
}

// The shortest digits that read back to the same value, laid out as VB shows a literal: plain
// notation for exponents from -5 to 14, E notation beyond.
// Infinities and NaNs, which no literal writes, come out as VB shows them.
std::u16string numberText(double d, bool single) {
    if (d == 0)
        return std::signbit(d) ? u"-0" : u"0";
    if (std::isinf(d))
        return d < 0 ? u"-1.#INF" : u"1.#INF";
    if (std::isnan(d))
        return std::signbit(d) ? u"-1.#IND" : u"1.#QNAN";
    char buf[64];
    const auto res = single
                         ? std::to_chars(buf, buf + sizeof buf, static_cast<float>(d),
                                         std::chars_format::scientific)
                         : std::to_chars(buf, buf + sizeof buf, d, std::chars_format::scientific);
    const std::string sci(buf, res.ptr); // "-1.2345e+03"
    const std::size_t e = sci.find('e');
    if (res.ec != std::errc() || e == std::string::npos)
        return fromUtf8(sci);
    const bool negative = sci[0] == '-';
    std::string digits;
    for (std::size_t i = negative ? 1 : 0; i < e; ++i)
        if (sci[i] != '.')
            digits += sci[i];
    int exponent = 0;
    std::from_chars(sci.data() + e + (sci[e + 1] == '+' ? 2 : 1), sci.data() + sci.size(),
                    exponent);
    std::string out = negative ? "-" : "";
    if (exponent < -5 || exponent >= 15) {
        out += digits.substr(0, 1);
        if (digits.size() > 1)
            out += "." + digits.substr(1);
        out += exponent < 0 ? "E-" : "E+";
        out += std::to_string(std::abs(exponent));
    } else if (exponent < 0) {
        out += "0." + std::string(-exponent - 1, '0') + digits;
    } else if (static_cast<std::size_t>(exponent) + 1 >= digits.size()) {
        out += digits + std::string(exponent + 1 - digits.size(), '0');
    } else {
        out += digits.substr(0, exponent + 1) + "." + digits.substr(exponent + 1);
    }
    return fromUtf8(out);
}

std::u16string two(int n) {
    return {static_cast<char16_t>(u'0' + n / 10), static_cast<char16_t>(u'0' + n % 10)};
}

std::u16string stringLiteralText(std::u16string_view s) {
    std::u16string out;
    bool open = false;
    auto piece = [&] {
        if (!out.empty())
            out += u" & ";
    };
    for (char16_t c : s) {
        if (c < 32) {
            if (open) {
                out += u'"';
                open = false;
            }
            piece();
            out += u"Chr(" + fromUtf8(std::to_string(static_cast<int>(c))) + u")";
            continue;
        }
        if (!open) {
            piece();
            out += u'"';
            open = true;
        }
        if (c == u'"')
            out += u'"';
        out += c;
    }
    if (open)
        out += u'"';
    if (out.empty())
        out = u"\"\"";
    return out;
}

} // namespace

std::optional<Variant> parseLiteral(std::u16string_view text) {
    Reader r(text);
    auto v = r.expression();
    if (!v || !r.atEnd())
        return std::nullopt;
    return v;
}

ParsedArgument parseCommandArgument(std::u16string_view text) {
    Reader r(text);
    ParsedArgument arg;
    arg.name = argumentName(r);
    const std::u16string_view rest = text.substr(r.pos());
    if (auto v = parseLiteral(rest))
        arg.value = std::move(*v);
    else if (auto problem = literalProblem(rest))
        throw UsageError(*problem);
    else
        arg.value = Variant(rest);
    return arg;
}

std::vector<ParsedCall> parseScriptLine(std::u16string_view line) {
    if (line.starts_with(u"\uFEFF"))
        line.remove_prefix(1);
    Reader r(line);
    std::vector<ParsedCall> calls;
    while (true) {
        if (r.atEnd() || atComment(r, line))
            break;
        if (!r.accept(u':'))
            calls.push_back(readCall(r, line));
        else
            continue;
        if (!r.accept(u':'))
            break;
    }
    return calls;
}

std::u16string typedLiteral(const Variant& v) {
    switch (v.type()) {
    case VarType::Empty:
        return u"Empty";
    case VarType::Null:
        return u"Null";
    case VarType::Integer:
        return fromUtf8(std::to_string(v.integer())) + u"%";
    case VarType::Long:
        return fromUtf8(std::to_string(v.longValue())) + u"&";
    case VarType::Single:
        return numberText(v.single(), true) + u"!";
    case VarType::Double:
        return numberText(v.doubleValue(), false) + u"#";
    case VarType::Currency: {
        const std::int64_t scaled = v.currency().scaled;
        const std::uint64_t mag = scaled < 0 ? 0 - static_cast<std::uint64_t>(scaled)
                                             : static_cast<std::uint64_t>(scaled);
        std::string text = std::to_string(mag / 10000);
        std::string frac = std::to_string(mag % 10000 + 10000).substr(1);
        while (!frac.empty() && frac.back() == '0')
            frac.pop_back();
        if (!frac.empty())
            text += "." + frac;
        return fromUtf8((scaled < 0 ? "-" : "") + text) + u"@";
    }
    case VarType::Date: {
        const double serial = v.date().serial;
        if (!(serial > minDateSerial - 1 && serial < maxDateSerial))
            return u"CDate(" + numberText(serial, false) + u"#)";
        const DateParts p = splitDate(v.date());
        std::u16string out =
            u"#" + two(p.year / 100) + two(p.year % 100) + u"-" + two(p.month) + u"-" + two(p.day);
        if (p.hour != 0 || p.minute != 0 || p.second != 0)
            out += u" " + two(p.hour) + u":" + two(p.minute) + u":" + two(p.second);
        return out + u"#";
    }
    case VarType::String:
        return stringLiteralText(v.string());
    case VarType::Boolean:
        return v.boolean() ? u"True" : u"False";
    case VarType::Byte:
        return u"CByte(" + fromUtf8(std::to_string(v.byte())) + u")";
    case VarType::Error:
        if (v.isMissing())
            return u"Missing";
        return u"CVErr(" + fromUtf8(std::to_string(v.error().scode)) + u")";
    case VarType::Object:
        if (!v.object())
            return u"Nothing";
        return u"Object(" + v.object()->typeName() + u")";
    default:
        break;
    }
    if (v.type() == VarType::Decimal)
        return u"CDec(\"" + decimalToText(v.decimal(), Locale::englishUS()) + u"\")";
    std::u16string out = u"Array(";
    const auto& items = v.array().items;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i > 0)
            out += u", ";
        out += typedLiteral(items[i]);
    }
    return out + u")";
}

} // namespace velkor6::cli
