#include "applib/ini_document.h"

#include "core/text.h"

#include <algorithm>

namespace velkor6::app {
namespace {

bool isBlank(char16_t c) {
    return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x1A;
}

std::u16string_view rtrim(std::u16string_view s) {
    while (!s.empty() && isBlank(s.back()))
        s.remove_suffix(1);
    return s;
}

std::u16string_view ltrim(std::u16string_view s) {
    while (!s.empty() && isBlank(s.front()))
        s.remove_prefix(1);
    return s;
}

bool sameName(std::u16string_view a, std::u16string_view b) {
    return textEqual(a, b, Compare::Text);
}

} // namespace

std::u16string_view trimProfileBlanks(std::u16string_view s) {
    return ltrim(rtrim(s));
}

IniDocument::Line::Line(std::u16string lineText, std::u16string lineEnd)
    : text(std::move(lineText)), end(std::move(lineEnd)) {
    const std::u16string_view all(text);
    const std::u16string_view t = trimProfileBlanks(all);
    const auto offset = [&all](std::u16string_view part) {
        return static_cast<std::size_t>(part.data() - all.data());
    };
    const auto setName = [&](std::u16string_view n) {
        nameStart = offset(n);
        nameLength = n.size();
    };
    if (t.empty())
        return;
    // The name runs to the last "]"; text after it is ignored.
    const std::size_t close = t.rfind(u']');
    if (t.front() == u'[' && close != std::u16string_view::npos) {
        kind = Kind::Section;
        setName(trimProfileBlanks(t.substr(1, close - 1)));
        return;
    }
    kind = Kind::Entry;
    const std::size_t eq = t.find(u'=');
    if (eq == std::u16string_view::npos) {
        setName(t);
        return;
    }
    setName(rtrim(t.substr(0, eq)));
    const std::u16string_view v = ltrim(t.substr(eq + 1));
    valueStart = offset(v);
    valueLength = v.size();
    hasValue = true;
}

IniDocument::IniDocument(std::string_view bytes) {
    encoding_ = textEncoding(bytes);
    const std::u16string text = decodeText(bytes, encoding_);
    lines_.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), u'\n')) + 1);
    std::size_t i = 0;
    while (i < text.size()) {
        std::size_t end = text.find_first_of(u"\r\n", i);
        if (end == std::u16string::npos) {
            lines_.emplace_back(text.substr(i), u"");
            break;
        }
        const std::size_t next =
            text[end] == u'\r' && end + 1 < text.size() && text[end + 1] == u'\n' ? end + 2
                                                                                  : end + 1;
        lines_.emplace_back(text.substr(i, end - i), text.substr(end, next - end));
        i = next;
    }
}

std::string IniDocument::bytes() const {
    std::u16string text;
    for (const Line& line : lines_) {
        text += line.text;
        text += line.end;
    }
    return encodeText(text, writeEncoding(encoding_, text));
}

std::optional<std::size_t> IniDocument::findSection(std::u16string_view name) const {
    name = trimProfileBlanks(name);
    if (name.empty())
        return std::nullopt;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (lines_[i].kind == Kind::Section && sameName(lines_[i].name(), name))
            return i;
    }
    return std::nullopt;
}

std::size_t IniDocument::sectionEnd(std::size_t header) const {
    std::size_t i = header + 1;
    while (i < lines_.size() && lines_[i].kind != Kind::Section)
        ++i;
    return i;
}

std::optional<std::size_t> IniDocument::findKey(std::size_t header, std::u16string_view key) const {
    key = trimProfileBlanks(key);
    if (key.empty())
        return std::nullopt;
    const std::size_t end = sectionEnd(header);
    for (std::size_t i = header + 1; i < end; ++i) {
        if (lines_[i].kind == Kind::Entry && sameName(lines_[i].name(), key))
            return i;
    }
    return std::nullopt;
}

std::optional<std::u16string> IniDocument::value(std::u16string_view section,
                                                 std::u16string_view key) const {
    const auto header = findSection(section);
    if (!header)
        return std::nullopt;
    const auto line = findKey(*header, key);
    if (!line || !lines_[*line].hasValue)
        return std::nullopt;
    std::u16string_view v = lines_[*line].value();
    if (v.size() >= 2 && (v.front() == u'"' || v.front() == u'\'') && v.back() == v.front())
        v = v.substr(1, v.size() - 2);
    return std::u16string(v.substr(0, maxValueLength));
}

void IniDocument::insertLine(std::size_t at, std::u16string text) {
    // The line before gets a line end if the file stopped without one.
    if (at > 0 && lines_[at - 1].end.empty())
        lines_[at - 1].end = u"\r\n";
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(at), Line(std::move(text), u"\r\n"));
}

bool IniDocument::set(std::u16string_view section, std::u16string_view key,
                      std::u16string_view value) {
    const std::u16string_view sectionName = trimProfileBlanks(section);
    const std::u16string_view keyName = trimProfileBlanks(key);
    if (sectionName.empty() || keyName.empty())
        return false;
    const auto header = findSection(sectionName);
    if (!header) {
        insertLine(lines_.size(), u"[" + std::u16string(sectionName) + u"]");
        insertLine(lines_.size(), std::u16string(keyName) + u"=" + std::u16string(value));
        return true;
    }
    if (const auto line = findKey(*header, keyName)) {
        // The key keeps the spelling it has in the file.
        std::u16string text(lines_[*line].name());
        text += u'=';
        text += value;
        if (text == lines_[*line].text)
            return false;
        lines_[*line] = Line(std::move(text), lines_[*line].end);
        return true;
    }
    // After the section's last line that is not blank, so that blank lines keep separating it
    // from the next section.
    std::size_t at = sectionEnd(*header);
    while (at > *header + 1 && lines_[at - 1].kind == Kind::Blank)
        --at;
    insertLine(at, std::u16string(keyName) + u"=" + std::u16string(value));
    return true;
}

bool IniDocument::remove(std::u16string_view section, std::u16string_view key) {
    const auto header = findSection(section);
    if (!header)
        return false;
    const auto line = findKey(*header, key);
    if (!line)
        return false;
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*line));
    return true;
}

} // namespace velkor6::app
