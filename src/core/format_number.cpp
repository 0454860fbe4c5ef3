#include "core/format_number.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace velkor6 {

namespace {

// Builds the digits of a number written as an integer digit string with the decimal point
// pointPos places from its left.
DecimalDigits normalized(bool negative, std::string digits, int pointPos) {
    std::size_t lead = 0;
    while (lead < digits.size() && digits[lead] == '0') {
        ++lead;
    }
    digits.erase(0, lead);
    pointPos -= static_cast<int>(lead);
    while (!digits.empty() && digits.back() == '0') {
        digits.pop_back();
    }
    if (digits.empty()) {
        return {};
    }
    return {negative, std::move(digits), pointPos};
}

DecimalDigits fromScientificText(double magnitude, bool negative, int significant) {
    // "d.ddddde+XX": the digits without the point, and the exponent.
    std::array<char, 64> buf{};
    const auto result = std::to_chars(buf.data(), buf.data() + buf.size(), magnitude,
                                      std::chars_format::scientific, significant - 1);
    const std::string_view text(buf.data(), static_cast<std::size_t>(result.ptr - buf.data()));
    const std::size_t e = text.find('e');
    std::string digits;
    for (char c : text.substr(0, e)) {
        if (c != '.') {
            digits += c;
        }
    }
    const int exponent = std::atoi(std::string(text.substr(e + 1)).c_str());
    return normalized(negative, std::move(digits), exponent + 1);
}

std::string unsignedDigits(std::uint64_t v) {
    std::array<char, 24> buf{};
    const auto result = std::to_chars(buf.data(), buf.data() + buf.size(), v);
    return std::string(buf.data(), result.ptr);
}

std::uint64_t magnitude(std::int64_t i) {
    return i < 0 ? std::uint64_t{0} - static_cast<std::uint64_t>(i) : static_cast<std::uint64_t>(i);
}

// --- mask sections ----------------------------------------------------------------------

enum class Part { Integer, Fraction, Exponent };

struct Item {
    enum class Kind { Literal, Digit, Point, ExponentMark, Comma } kind;
    Part part = Part::Integer;
    std::u16string text;     // literal text, or "E+" for the exponent mark
    char16_t placeholder{0}; // '0' or '#'
};

struct Section {
    std::vector<Item> items;
    int integerPlaceholders = 0;
    int fractionPlaceholders = 0;
    int exponentZeros = 0;
    bool point = false;
    bool grouping = false;
    bool scientific = false;
    bool exponentSignAlways = false;
    int percent = 0;
    int thousandsScale = 0;
};

void addLiteral(Section& s, std::u16string_view text, Part part) {
    if (!s.items.empty() && s.items.back().kind == Item::Kind::Literal) {
        s.items.back().text += text;
    } else {
        s.items.push_back({Item::Kind::Literal, part, std::u16string(text), 0});
    }
}

// Commas between integer placeholders turn grouping on; commas after the last integer
// placeholder divide by 1000 each. Neither shows as a character.
void resolveCommas(Section& s) {
    int placeholdersBefore = 0;
    for (const Item& item : s.items) {
        if (item.kind == Item::Kind::Digit && item.part == Part::Integer) {
            ++placeholdersBefore;
        } else if (item.kind == Item::Kind::Comma && item.part == Part::Integer &&
                   placeholdersBefore > 0) {
            if (placeholdersBefore < s.integerPlaceholders) {
                s.grouping = true;
            } else {
                ++s.thousandsScale;
            }
        }
    }
}

Section parseSection(std::u16string_view m) {
    Section s;
    Part part = Part::Integer;
    for (std::size_t i = 0; i < m.size(); ++i) {
        const char16_t c = m[i];
        if (c == u'\\') {
            if (i + 1 < m.size()) {
                addLiteral(s, m.substr(++i, 1), part);
            }
        } else if (c == u'"') {
            const std::size_t close = m.find(u'"', i + 1);
            const std::size_t end = close == std::u16string_view::npos ? m.size() : close;
            addLiteral(s, m.substr(i + 1, end - i - 1), part);
            i = end;
        } else if (c == u'0' || c == u'#') {
            s.items.push_back({Item::Kind::Digit, part, {}, c});
            if (part == Part::Integer) {
                ++s.integerPlaceholders;
            } else if (part == Part::Fraction) {
                ++s.fractionPlaceholders;
            } else if (c == u'0') {
                ++s.exponentZeros;
            }
        } else if (c == u'.' && part == Part::Integer) {
            s.items.push_back({Item::Kind::Point, part, {}, 0});
            s.point = true;
            part = Part::Fraction;
        } else if (c == u',') {
            s.items.push_back({Item::Kind::Comma, part, {}, 0});
        } else if ((c == u'E' || c == u'e') && part != Part::Exponent && i + 1 < m.size() &&
                   (m[i + 1] == u'+' || m[i + 1] == u'-')) {
            s.items.push_back({Item::Kind::ExponentMark, part, std::u16string(m.substr(i, 2)), 0});
            s.scientific = true;
            s.exponentSignAlways = m[i + 1] == u'+';
            part = Part::Exponent;
            ++i;
        } else {
            if (c == u'%') {
                ++s.percent;
            }
            addLiteral(s, m.substr(i, 1), part);
        }
    }
    resolveCommas(s);
    return s;
}

std::u16string render(const Section& s, DecimalDigits n, const Locale& loc) {
    if (!n.isZero()) {
        n.pointPos += 2 * s.percent - 3 * s.thousandsScale;
    }
    int exponent = 0;
    if (s.scientific && !n.isZero()) {
        exponent = n.pointPos - s.integerPlaceholders;
        n.pointPos = s.integerPlaceholders;
        roundDigits(n, s.fractionPlaceholders);
        if (n.pointPos > s.integerPlaceholders) { // 9.99 became 10.0
            ++exponent;
            --n.pointPos;
        }
    } else {
        roundDigits(n, s.fractionPlaceholders);
    }

    const int len = static_cast<int>(n.digits.size());
    std::u16string integerDigits;
    for (int i = 0; i < n.pointPos; ++i) {
        integerDigits += static_cast<char16_t>(i < len ? n.digits[i] : '0');
    }
    const int k = static_cast<int>(integerDigits.size());
    const int placeholders = s.integerPlaceholders;
    // Fraction places up to the last non-zero digit: "#" shows only these.
    const int fractionShown = std::max(0, len - n.pointPos);
    const auto fractionDigit = [&](int i) {
        const int idx = n.pointPos + i;
        return static_cast<char16_t>(idx >= 0 && idx < len ? n.digits[idx] : '0');
    };

    std::u16string out;
    const auto emitIntegerDigit = [&](char16_t digit, int position) {
        out += digit;
        if (s.grouping && position > 0 && position % 3 == 0) {
            out += loc.grouping;
        }
    };
    const auto emitOverflowDigits = [&](int count) {
        for (int i = 0; i < count; ++i) {
            emitIntegerDigit(integerDigits[i], k - 1 - i);
        }
    };

    int integerIndex = 0;
    int fractionIndex = 0;
    bool exponentWritten = false;
    const auto writeExponentDigits = [&] {
        std::u16string digits;
        for (char c : unsignedDigits(static_cast<std::uint64_t>(std::abs(exponent)))) {
            digits += static_cast<char16_t>(c);
        }
        if (static_cast<int>(digits.size()) < s.exponentZeros) {
            digits.insert(0, s.exponentZeros - digits.size(), u'0');
        }
        out += digits;
        exponentWritten = true;
    };

    for (const Item& item : s.items) {
        switch (item.kind) {
        case Item::Kind::Literal:
            out += item.text;
            break;
        case Item::Kind::Comma:
            break;
        case Item::Kind::Point:
            if (placeholders == 0) {
                emitOverflowDigits(k);
            }
            out += loc.decimal;
            break;
        case Item::Kind::ExponentMark:
            out += item.text[0];
            if (exponent < 0) {
                out += u'-';
            } else if (s.exponentSignAlways) {
                out += u'+';
            }
            break;
        case Item::Kind::Digit:
            if (item.part == Part::Integer) {
                if (integerIndex == 0 && k > placeholders) {
                    emitOverflowDigits(k - placeholders);
                }
                const int position = placeholders - 1 - integerIndex++;
                if (position < k) {
                    emitIntegerDigit(integerDigits[k - 1 - position], position);
                } else if (item.placeholder == u'0') {
                    emitIntegerDigit(u'0', position);
                }
            } else if (item.part == Part::Fraction) {
                const int i = fractionIndex++;
                if (item.placeholder == u'0' || i < fractionShown) {
                    out += fractionDigit(i);
                }
            } else if (!exponentWritten) {
                writeExponentDigits();
            }
            break;
        }
    }
    if (s.scientific && !exponentWritten) {
        writeExponentDigits();
    }
    return out;
}

} // namespace

DecimalDigits decimalDigits(double d) {
    if (d == 0 || !std::isfinite(d)) {
        return {};
    }
    return fromScientificText(std::fabs(d), d < 0, 15);
}

DecimalDigits decimalDigits(float f) {
    if (f == 0 || !std::isfinite(f)) {
        return {};
    }
    // The 7 digits CStr shows for a Single, taken from the float's own value.
    return fromScientificText(std::fabs(static_cast<double>(f)), f < 0, 7);
}

DecimalDigits decimalDigits(std::int64_t i) {
    std::string digits = unsignedDigits(magnitude(i));
    const int point = static_cast<int>(digits.size());
    return normalized(i < 0, std::move(digits), point);
}

DecimalDigits decimalDigits(Currency c) {
    std::string digits = unsignedDigits(magnitude(c.scaled));
    const int point = static_cast<int>(digits.size()) - 4;
    return normalized(c.scaled < 0, std::move(digits), point);
}

DecimalDigits decimalDigits(const Decimal& d) {
    // The 96-bit mantissa as three 32-bit limbs, most significant first, divided down by ten.
    std::array<std::uint32_t, 3> limbs = {d.hi, static_cast<std::uint32_t>(d.lo >> 32),
                                          static_cast<std::uint32_t>(d.lo)};
    std::string reversed;
    while (limbs[0] != 0 || limbs[1] != 0 || limbs[2] != 0) {
        std::uint64_t remainder = 0;
        for (std::uint32_t& limb : limbs) {
            const std::uint64_t current = (remainder << 32) | limb;
            limb = static_cast<std::uint32_t>(current / 10);
            remainder = current % 10;
        }
        reversed += static_cast<char>('0' + remainder);
    }
    std::string digits(reversed.rbegin(), reversed.rend());
    const int point = static_cast<int>(digits.size()) - d.scale;
    return normalized(d.negative, std::move(digits), point);
}

void roundDigits(DecimalDigits& n, int fractionDigits) {
    if (n.isZero()) {
        return;
    }
    const int keep = n.pointPos + fractionDigits;
    if (keep >= static_cast<int>(n.digits.size())) {
        return;
    }
    if (keep < 0) {
        n = {n.negative, {}, 0};
        return;
    }
    const bool up = n.digits[keep] >= '5';
    n.digits.resize(keep);
    if (up) {
        int i = keep - 1;
        while (i >= 0 && n.digits[i] == '9') {
            n.digits[i--] = '0';
        }
        if (i < 0) {
            n.digits.insert(n.digits.begin(), '1');
            ++n.pointPos;
        } else {
            ++n.digits[i];
        }
    }
    while (!n.digits.empty() && n.digits.back() == '0') {
        n.digits.pop_back();
    }
    if (n.digits.empty()) {
        n.pointPos = 0;
    }
}

std::vector<std::u16string_view> maskSections(std::u16string_view mask) {
    std::vector<std::u16string_view> sections;
    std::size_t start = 0;
    bool quoted = false;
    for (std::size_t i = 0; i < mask.size(); ++i) {
        const char16_t c = mask[i];
        if (c == u'"') {
            quoted = !quoted;
        } else if (quoted) {
            continue;
        } else if (c == u'\\') {
            ++i;
        } else if (c == u';') {
            sections.push_back(mask.substr(start, i - start));
            start = i + 1;
        }
    }
    sections.push_back(mask.substr(start));
    return sections;
}

std::u16string formatNumberMask(const DecimalDigits& n, std::u16string_view mask,
                                const Locale& loc) {
    const auto sections = maskSections(mask);
    const auto usable = [&](std::size_t i) { return sections.size() > i && !sections[i].empty(); };
    DecimalDigits magnitude = n;
    magnitude.negative = false;
    // The sign comes from the unrounded value, so -0.4 with "0" shows "-0".
    if (n.negative && usable(1)) {
        return render(parseSection(sections[1]), magnitude, loc);
    }
    if (n.isZero() && usable(2)) {
        return render(parseSection(sections[2]), magnitude, loc);
    }
    const std::u16string text = render(parseSection(sections[0]), magnitude, loc);
    return n.negative ? u"-" + text : text;
}

std::u16string formatNullSection(std::u16string_view mask) {
    const auto sections = maskSections(mask);
    if (sections.size() < 4) {
        return {};
    }
    std::u16string out;
    for (const Item& item : parseSection(sections[3]).items) {
        if (item.kind == Item::Kind::Literal) {
            out += item.text;
        }
    }
    return out;
}

} // namespace velkor6
