#include "files/text_generation.h"

#include "core/convert.h"
#include "core/date.h"
#include "core/format.h"
#include "core/text.h"
#include "platform/text_file.h"
#include "velkor6/vb_error.h"

#include <cmath>

namespace velkor6::files {

std::u16string replaceAllText(std::u16string_view text, std::u16string_view find,
                              std::u16string_view replacement) {
    if (find.empty())
        return std::u16string(text);
    std::u16string out;
    out.reserve(text.size());
    std::size_t from = 1;
    while (true) {
        const std::size_t p = inStr(from, text, find, Compare::Text);
        if (p == 0)
            break;
        out.append(text.substr(from - 1, p - from));
        out.append(replacement);
        from = p + find.size();
        if (from > text.size())
            break;
    }
    if (from <= text.size())
        out.append(text.substr(from - 1));
    return out;
}

Date lastDayFor(Date now) {
    const DateParts today = splitDate(now);
    const DateParts month = today.day > 20 ? splitDate(Date{now.serial + 15}) : today;
    const Date first = makeDate(DateParts{month.year, month.month, 1});
    return Date{first.serial - 1};
}

namespace {

const Variant& pairItem(const VariantArray& a, std::int64_t index) {
    const std::int64_t lower = a.bounds.empty() ? 0 : a.bounds[0].lower;
    const std::int64_t offset = index - lower;
    if (a.bounds.size() != 1 || offset < 0 || offset >= static_cast<std::int64_t>(a.items.size()))
        throw VbError(vberr::subscriptOutOfRange);
    return a.items[static_cast<std::size_t>(offset)];
}

Date dateOnly(Date d) {
    return Date{std::floor(d.serial)};
}

} // namespace

void replacePredefinedExpressions(std::u16string& text, const Variant* pairs, Clock& clock,
                                  const Locale& loc) {
    if (pairs != nullptr) {
        if (!pairs->isArray())
            throw VbError(vberr::typeMismatch);
        const VariantArray& a = pairs->array();
        const std::int64_t upper = a.bounds.empty() ? -1 : a.bounds[0].upper();
        for (std::int64_t i = 0; i <= upper; i += 2) {
            const std::u16string key = toString(pairItem(a, i), loc);
            const std::u16string value = toString(pairItem(a, i + 1), loc);
            text = replaceAllText(text, u"%" + key + u"%", value);
        }
    }
    // Each placeholder reads the clock afresh, as a long expansion may cross a second.
    const auto now = [&clock] { return clock.now(); };
    text = replaceAllText(text, u"%CRLF%", u"\r\n");
    text = replaceAllText(text, u"%TAB%", u"\t");
    text = replaceAllText(text, u"%DATE%", format(dateOnly(now()), u"Short Date", loc));
    text = replaceAllText(text, u"%DATE!%", format(now(), u"yymmdd", loc));
    text = replaceAllText(text, u"%DATE!!%", format(now(), u"yyyymmdd", loc));
    text = replaceAllText(text, u"%TIME%", format(now(), u"Short Time", loc));
    text = replaceAllText(text, u"%TIME!%", format(now(), u"hhnnss", loc));
    text = replaceAllText(text, u"%DATETIME%", format(now(), u"General Date", loc));
    text = replaceAllText(text, u"%LASTDAY%", format(lastDayFor(now()), u"Short Date", loc));
}

std::u16string textFromFileBytes(const std::optional<std::string>& bytes) {
    if (!bytes || bytes->empty())
        return {};
    const std::string& b = *bytes;
    if (b.size() >= 2 && static_cast<unsigned char>(b[0]) == 0xFF &&
        static_cast<unsigned char>(b[1]) == 0xFE)
        return fromUtf16(std::string_view(b).substr(2));
    return decodeText(b, plainTextEncoding(b));
}

namespace {

// Line breaks right after a tag go first, so that an indented document is not indented twice.
std::u16string withoutBreaksAfterTags(std::u16string_view xml) {
    std::u16string out;
    out.reserve(xml.size());
    std::size_t from = 0;
    while (true) {
        const std::size_t p = xml.find(u">\r\n", from);
        if (p == std::u16string_view::npos)
            break;
        out.append(xml.substr(from, p + 1 - from));
        from = p + 3;
    }
    out.append(xml.substr(from));
    return out;
}

} // namespace

std::u16string preFormatXml(std::u16string_view xml) {
    const std::u16string text = withoutBreaksAfterTags(xml);
    std::u16string out;
    out.reserve(text.size() + text.size() / 4);
    int level = 0;
    bool inQuotes = false;
    const auto indent = [&] {
        if (level > 0)
            out.append(static_cast<std::size_t>(level), u'\t');
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        const char16_t next = i + 1 < text.size() ? text[i + 1] : u'\0';
        if (c == u'"')
            inQuotes = !inQuotes;
        if (c == u'<' && next == u'/') {
            --level;
            out.append(u"\r\n");
            indent();
            out.append(u"</");
            ++i;
        } else if (c == u'/' && next == u'>') {
            --level;
            out.append(u"/>");
            ++i;
        } else if (c == u'<') {
            if (level >= 1)
                out.append(u"\r\n");
            indent();
            out.push_back(u'<');
            ++level;
        } else if (inQuotes || (c != u'\r' && c != u'\n' && c != u'\t')) {
            out.push_back(c);
        }
    }
    return out;
}

} // namespace velkor6::files
