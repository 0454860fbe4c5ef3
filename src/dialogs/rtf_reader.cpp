#include "dialogs/rtf_reader.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace velkor6::dialogs {
namespace {

// Windows-1252 at 80 to 9F; the five bytes it leaves undefined keep their own value, as the
// system's conversion does.
constexpr std::array<char16_t, 32> cp1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t fromCp1252(unsigned byte) {
    return byte >= 0x80 && byte < 0xA0 ? cp1252High[byte - 0x80] : static_cast<char16_t>(byte);
}

constexpr std::u16string_view skippedDestinations[] = {u"fonttbl",      u"stylesheet",
                                                       u"info",         u"pict",
                                                       u"header",       u"headerl",
                                                       u"headerr",      u"headerf",
                                                       u"footer",       u"footerl",
                                                       u"footerr",      u"footerf",
                                                       u"footnote",     u"fldinst",
                                                       u"listtable",    u"listoverridetable",
                                                       u"revtbl",       u"rsidtbl",
                                                       u"generator",    u"xmlnstbl",
                                                       u"themedata",    u"colorschememapping",
                                                       u"latentstyles", u"datastore",
                                                       u"object",       u"objdata",
                                                       u"filetbl",      u"annotation",
                                                       u"atnid",        u"atnauthor",
                                                       u"private",      u"userprops",
                                                       u"shp"};

enum class Align { left, center, right, justify };

struct CharFormat {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    std::int32_t halfPoints = 0; // 0: the widget's size
    std::int32_t colorIndex = 0; // into the colour table; 0: the widget's colour
};

// What a span says: the format with its colour looked up.
struct RunStyle {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    std::int32_t halfPoints = 0;
    std::optional<std::uint32_t> color;
    friend bool operator==(const RunStyle&, const RunStyle&) = default;
};

enum class Destination { text, skipped, colorTable };

struct GroupState {
    CharFormat chars;
    Align align = Align::left;
    std::int32_t unicodeSkip = 1;
    Destination destination = Destination::text;
};

bool isLetter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}
bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

int hexValue(char16_t c) {
    if (isDigit(c))
        return c - u'0';
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return -1;
}

void appendAscii(std::u16string& out, std::string_view s) {
    out.append(s.begin(), s.end());
}

void appendNumber(std::u16string& out, std::int64_t n) {
    appendAscii(out, std::to_string(n));
}

class Reader {
public:
    explicit Reader(std::u16string_view rtf) : in_(rtf) {}

    std::u16string read() {
        while (pos_ < in_.size()) {
            const char16_t c = in_[pos_++];
            switch (c) {
            case u'{':
                pendingSkip_ = 0;
                stack_.push_back(state_);
                break;
            case u'}':
                pendingSkip_ = 0;
                if (!stack_.empty()) {
                    state_ = stack_.back();
                    stack_.pop_back();
                }
                break;
            case u'\\':
                controlWord();
                break;
            case u'\r':
            case u'\n':
                break;
            case u'\t':
                character(u'\t');
                break;
            default:
                character(c);
                break;
            }
        }
        if (paragraphUsed_ || html_.empty())
            endParagraph();
        return std::move(html_);
    }

private:
    void controlWord() {
        if (pos_ >= in_.size())
            return;
        const char16_t first = in_[pos_];
        if (!isLetter(first)) {
            ++pos_;
            controlSymbol(first);
            return;
        }
        const std::size_t start = pos_;
        while (pos_ < in_.size() && isLetter(in_[pos_]))
            ++pos_;
        const std::u16string_view word = in_.substr(start, pos_ - start);
        std::optional<std::int64_t> parameter;
        bool negative = false;
        if (pos_ + 1 < in_.size() && in_[pos_] == u'-' && isDigit(in_[pos_ + 1])) {
            negative = true;
            ++pos_;
        }
        if (pos_ < in_.size() && isDigit(in_[pos_])) {
            std::int64_t n = 0;
            while (pos_ < in_.size() && isDigit(in_[pos_])) {
                n = std::min<std::int64_t>(n * 10 + (in_[pos_] - u'0'), 1'000'000'000);
                ++pos_;
            }
            parameter = negative ? -n : n;
        }
        if (pos_ < in_.size() && in_[pos_] == u' ')
            ++pos_;
        applyWord(word, parameter);
    }

    void controlSymbol(char16_t symbol) {
        switch (symbol) {
        case u'\\':
        case u'{':
        case u'}':
            character(symbol);
            return;
        case u'~':
            character(u'\u00A0');
            return;
        case u'_':
            character(u'-');
            return;
        case u'\r':
        case u'\n':
            if (consumeSkip())
                return;
            paragraph();
            return;
        case u'\'': {
            const int high = pos_ < in_.size() ? hexValue(in_[pos_]) : -1;
            const int low = pos_ + 1 < in_.size() ? hexValue(in_[pos_ + 1]) : -1;
            if (high < 0 || low < 0)
                return;
            pos_ += 2;
            character(fromCp1252(static_cast<unsigned>(high * 16 + low)));
            return;
        }
        case u'*': // a destination this reader need not know
            state_.destination = Destination::skipped;
            return;
        default: // \- (optional hyphen) and the rest show nothing
            consumeSkip();
            return;
        }
    }

    void applyWord(std::u16string_view word, std::optional<std::int64_t> parameter) {
        const std::int64_t value = parameter.value_or(1);
        if (word == u"bin") {
            // Binary data: that many raw characters follow, whatever they are.
            pos_ += static_cast<std::size_t>(
                std::clamp<std::int64_t>(value, 0, static_cast<std::int64_t>(in_.size() - pos_)));
            return;
        }
        if (std::find(std::begin(skippedDestinations), std::end(skippedDestinations), word) !=
            std::end(skippedDestinations)) {
            state_.destination = Destination::skipped;
            return;
        }
        if (word == u"colortbl") {
            if (state_.destination == Destination::text) {
                state_.destination = Destination::colorTable;
                colors_.clear();
                red_ = green_ = blue_ = 0;
                colorGiven_ = false;
            }
            return;
        }
        if (state_.destination == Destination::colorTable) {
            const auto component =
                static_cast<std::uint32_t>(std::clamp<std::int64_t>(value, 0, 255));
            if (word == u"red")
                red_ = component, colorGiven_ = true;
            else if (word == u"green")
                green_ = component, colorGiven_ = true;
            else if (word == u"blue")
                blue_ = component, colorGiven_ = true;
            return;
        }
        if (word == u"u") {
            if (!parameter)
                return;
            if (consumeSkip())
                return;
            std::int64_t unit = *parameter;
            if (unit < 0)
                unit += 65536;
            if (unit >= 0 && unit <= 0xFFFF)
                character(static_cast<char16_t>(unit));
            pendingSkip_ = state_.unicodeSkip;
            return;
        }
        if (consumeSkip())
            return;
        CharFormat& f = state_.chars;
        const bool on = value != 0;
        if (word == u"b")
            f.bold = on;
        else if (word == u"i")
            f.italic = on;
        else if (word == u"ul")
            f.underline = on;
        else if (word == u"ulnone")
            f.underline = false;
        else if (word == u"fs")
            f.halfPoints =
                value > 0 ? static_cast<std::int32_t>(std::min<std::int64_t>(value, 3276)) : 0;
        else if (word == u"cf")
            f.colorIndex = static_cast<std::int32_t>(std::clamp<std::int64_t>(value, 0, 65535));
        else if (word == u"plain")
            f = CharFormat{};
        else if (word == u"pard")
            state_.align = Align::left;
        else if (word == u"ql")
            state_.align = Align::left;
        else if (word == u"qc")
            state_.align = Align::center;
        else if (word == u"qr")
            state_.align = Align::right;
        else if (word == u"qj")
            state_.align = Align::justify;
        else if (word == u"uc")
            state_.unicodeSkip = static_cast<std::int32_t>(std::clamp<std::int64_t>(value, 0, 16));
        else if (word == u"par")
            paragraph();
        else if (word == u"line")
            lineBreak();
        else if (word == u"tab")
            character(u'\t');
        else if (word == u"emdash")
            character(u'\u2014');
        else if (word == u"endash")
            character(u'\u2013');
        else if (word == u"bullet")
            character(u'\u2022');
        else if (word == u"lquote")
            character(u'\u2018');
        else if (word == u"rquote")
            character(u'\u2019');
        else if (word == u"ldblquote")
            character(u'\u201C');
        else if (word == u"rdblquote")
            character(u'\u201D');
    }

    // After \uN the next characters are the stand-in for readers without Unicode: they are
    // dropped, each text character, \'hh or control word counting as one.
    bool consumeSkip() {
        if (pendingSkip_ == 0)
            return false;
        --pendingSkip_;
        return true;
    }

    void character(char16_t c) {
        if (state_.destination == Destination::skipped)
            return;
        if (consumeSkip())
            return;
        if (state_.destination == Destination::colorTable) {
            if (c == u';') {
                colors_.push_back(
                    colorGiven_ ? std::optional<std::uint32_t>(red_ << 16 | green_ << 8 | blue_)
                                : std::nullopt);
                red_ = green_ = blue_ = 0;
                colorGiven_ = false;
            }
            return;
        }
        if (c < 0x20 && c != u'\t')
            return;
        switchStyle();
        paragraphUsed_ = true;
        paragraphAlign_ = state_.align;
        const bool space = c == u' ';
        switch (c) {
        case u'&':
            appendAscii(paragraph_, "&amp;");
            break;
        case u'<':
            appendAscii(paragraph_, "&lt;");
            break;
        case u'>':
            appendAscii(paragraph_, "&gt;");
            break;
        case u'"':
            appendAscii(paragraph_, "&quot;");
            break;
        case u'\t':
            appendAscii(paragraph_, "&#160;&#160;&#160;&#160;");
            break;
        case u' ':
            // HTML would fold a run of blanks into one; the box shows each.
            if (afterSpace_)
                appendAscii(paragraph_, "&#160;");
            else
                paragraph_ += u' ';
            break;
        default:
            paragraph_ += c;
            break;
        }
        afterSpace_ = space || c == u'\t';
    }

    void lineBreak() {
        if (state_.destination != Destination::text)
            return;
        switchStyle();
        paragraphUsed_ = true;
        appendAscii(paragraph_, "<br />");
        afterSpace_ = true;
    }

    void paragraph() {
        if (state_.destination != Destination::text)
            return;
        if (!paragraphUsed_)
            paragraphAlign_ = state_.align;
        endParagraph();
    }

    void endParagraph() {
        closeSpan();
        appendAscii(html_, "<p style=\"margin-top:0; margin-bottom:0;");
        constexpr std::string_view aligns[] = {"", " text-align:center;", " text-align:right;",
                                               " text-align:justify;"};
        appendAscii(html_, aligns[static_cast<int>(paragraphAlign_)]);
        appendAscii(html_, "\">");
        html_ += paragraph_;
        appendAscii(html_, "</p>");
        paragraph_.clear();
        paragraphUsed_ = false;
        paragraphAlign_ = Align::left;
        afterSpace_ = true;
    }

    RunStyle currentStyle() const {
        const CharFormat& f = state_.chars;
        RunStyle s{f.bold, f.italic, f.underline, f.halfPoints, std::nullopt};
        if (f.colorIndex > 0 && static_cast<std::size_t>(f.colorIndex) < colors_.size())
            s.color = colors_[static_cast<std::size_t>(f.colorIndex)];
        return s;
    }

    void switchStyle() {
        const RunStyle wanted = currentStyle();
        if (wanted == open_)
            return;
        closeSpan();
        if (wanted == RunStyle{})
            return;
        appendAscii(paragraph_, "<span style=\"");
        if (wanted.bold)
            appendAscii(paragraph_, "font-weight:700;");
        if (wanted.italic)
            appendAscii(paragraph_, "font-style:italic;");
        if (wanted.underline)
            appendAscii(paragraph_, "text-decoration:underline;");
        if (wanted.halfPoints > 0) {
            appendAscii(paragraph_, "font-size:");
            appendNumber(paragraph_, wanted.halfPoints / 2);
            if (wanted.halfPoints % 2 != 0)
                appendAscii(paragraph_, ".5");
            appendAscii(paragraph_, "pt;");
        }
        if (wanted.color) {
            constexpr char digits[] = "0123456789abcdef";
            appendAscii(paragraph_, "color:#");
            for (int shift = 20; shift >= 0; shift -= 4)
                paragraph_ += static_cast<char16_t>(digits[(*wanted.color >> shift) & 15]);
            paragraph_ += u';';
        }
        appendAscii(paragraph_, "\">");
        open_ = wanted;
    }

    void closeSpan() {
        if (open_ != RunStyle{})
            appendAscii(paragraph_, "</span>");
        open_ = RunStyle{};
    }

    std::u16string_view in_;
    std::size_t pos_ = 0;
    GroupState state_;
    std::vector<GroupState> stack_;
    std::int32_t pendingSkip_ = 0;

    std::vector<std::optional<std::uint32_t>> colors_;
    std::uint32_t red_ = 0, green_ = 0, blue_ = 0;
    bool colorGiven_ = false;

    std::u16string html_;
    std::u16string paragraph_;
    bool paragraphUsed_ = false;
    Align paragraphAlign_ = Align::left;
    bool afterSpace_ = true;
    RunStyle open_;
};

} // namespace

std::u16string rtfToHtml(std::u16string_view rtf) {
    return Reader(rtf).read();
}

} // namespace velkor6::dialogs
