#include "platform/reg_parser.h"

#include "core/text.h"
#include "platform/ansi.h"

#include <utility>

namespace velkor6 {
namespace {

constexpr std::u16string_view headerAnsi = u"REGEDIT4";
constexpr std::u16string_view headerUnicode = u"Windows Registry Editor Version 5.00";

bool isBlank(char16_t c) {
    return c == u' ' || c == u'\t';
}

std::u16string_view trimBlanks(std::u16string_view s) {
    while (!s.empty() && isBlank(s.front()))
        s.remove_prefix(1);
    while (!s.empty() && isBlank(s.back()))
        s.remove_suffix(1);
    return s;
}

std::vector<std::u16string_view> splitLines(std::u16string_view text) {
    std::vector<std::u16string_view> lines;
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != u'\r' && text[i] != u'\n')
            continue;
        lines.push_back(text.substr(start, i - start));
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
            ++i;
        start = i + 1;
    }
    if (start < text.size())
        lines.push_back(text.substr(start));
    return lines;
}

void appendUtf16Le(std::string& out, char16_t c) {
    out.push_back(static_cast<char>(c & 0xFF));
    out.push_back(static_cast<char>(c >> 8));
}

int hexDigit(char16_t c) {
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return -1;
}

// 1 to maxDigits hexadecimal digits and nothing else.
std::optional<std::uint32_t> readHex(std::u16string_view s, std::size_t maxDigits) {
    if (s.empty() || s.size() > maxDigits)
        return std::nullopt;
    std::uint32_t value = 0;
    for (char16_t c : s) {
        const int d = hexDigit(c);
        if (d < 0)
            return std::nullopt;
        value = value * 16 + static_cast<std::uint32_t>(d);
    }
    return value;
}

bool startsWithNoCase(std::u16string_view s, std::u16string_view prefix) {
    return s.size() >= prefix.size() &&
           textEqual(s.substr(0, prefix.size()), prefix, Compare::Text);
}

// What may follow a value's data on its line: blanks and a comment.
bool onlyCommentLeft(std::u16string_view rest) {
    rest = trimBlanks(rest);
    return rest.empty() || rest.front() == u';';
}

std::u16string_view withoutComment(std::u16string_view s) {
    const std::size_t semicolon = s.find(u';');
    return semicolon == std::u16string_view::npos ? s : s.substr(0, semicolon);
}

// A quoted text with \\ and \" escapes, starting at s[0] == '"'. Returns the text and moves s
// past the closing quote; nullopt when the quote is not closed. A backslash before any other
// character stays as written.
std::optional<std::u16string> readQuoted(std::u16string_view& s) {
    std::u16string out;
    std::size_t i = 1;
    while (i < s.size()) {
        const char16_t c = s[i];
        if (c == u'"') {
            s.remove_prefix(i + 1);
            return out;
        }
        if (c == u'\\' && i + 1 < s.size() && (s[i + 1] == u'\\' || s[i + 1] == u'"')) {
            out.push_back(s[i + 1]);
            i += 2;
            continue;
        }
        out.push_back(c);
        ++i;
    }
    return std::nullopt;
}

class ScriptReader {
public:
    ScriptReader(std::vector<std::u16string_view> lines, std::size_t first, bool unicode)
        : lines_(std::move(lines)), next_(first), unicode_(unicode) {}

    std::vector<RegStatement> read() {
        while (next_ < lines_.size()) {
            const std::u16string_view line = trimBlanks(lines_[next_++]);
            if (line.empty() || line.front() == u';')
                continue;
            if (line.front() == u'[')
                readKey(line);
            else if (line.front() == u'"' || line.front() == u'@')
                readValue(line);
        }
        return std::move(statements_);
    }

private:
    void readKey(std::u16string_view line) {
        haveKey_ = false;
        const std::size_t close = line.rfind(u']');
        if (close == std::u16string_view::npos)
            return;
        std::u16string_view inner = line.substr(1, close - 1);
        const bool deletion = !inner.empty() && inner.front() == u'-';
        if (deletion)
            inner.remove_prefix(1);
        const std::size_t slash = inner.find(u'\\');
        const auto root = regRootFromName(inner.substr(0, slash));
        if (!root)
            return;
        std::u16string path;
        if (slash != std::u16string_view::npos) {
            for (std::u16string_view rest = inner.substr(slash + 1); !rest.empty();) {
                const std::size_t next = rest.find(u'\\');
                const std::u16string_view part = rest.substr(0, next);
                if (!part.empty()) {
                    if (!path.empty())
                        path += u'\\';
                    path += part;
                }
                rest = next == std::u16string_view::npos ? std::u16string_view{}
                                                         : rest.substr(next + 1);
            }
        }
        RegStatement st;
        st.kind = deletion ? RegStatement::Kind::DeleteKey : RegStatement::Kind::Key;
        st.root = *root;
        st.path = path;
        statements_.push_back(std::move(st));
        if (!deletion) {
            haveKey_ = true;
            root_ = *root;
            path_ = std::move(path);
        }
    }

    void readValue(std::u16string_view line) {
        if (!haveKey_)
            return;
        RegStatement st;
        st.kind = RegStatement::Kind::Value;
        st.root = root_;
        st.path = path_;
        if (line.front() == u'@') {
            line.remove_prefix(1);
        } else {
            auto name = readQuoted(line);
            if (!name)
                return;
            st.name = std::move(*name);
        }
        line = trimBlanks(line);
        if (line.empty() || line.front() != u'=')
            return;
        line = trimBlanks(line.substr(1));

        if (!line.empty() && line.front() == u'"') {
            auto text = readQuoted(line);
            if (!text || !onlyCommentLeft(line))
                return;
            st.type = regtype::sz;
            for (char16_t c : *text)
                appendUtf16Le(st.data, c);
            appendUtf16Le(st.data, 0);
        } else if (trimBlanks(withoutComment(line)) == u"-") {
            st.kind = RegStatement::Kind::DeleteValue;
        } else if (startsWithNoCase(line, u"dword:")) {
            const auto value = readHex(trimBlanks(withoutComment(line.substr(6))), 8);
            if (!value)
                return;
            st.type = regtype::dword;
            for (int shift = 0; shift < 32; shift += 8)
                st.data.push_back(static_cast<char>((*value >> shift) & 0xFF));
        } else if (startsWithNoCase(line, u"hex")) {
            if (!readHexData(line.substr(3), st))
                return;
        } else {
            return;
        }
        statements_.push_back(std::move(st));
    }

    // "hex:" or "hex(type):" and comma-separated bytes, continued over lines ending in "\".
    bool readHexData(std::u16string_view rest, RegStatement& st) {
        st.type = regtype::binary;
        if (!rest.empty() && rest.front() == u'(') {
            const std::size_t close = rest.find(u')');
            if (close == std::u16string_view::npos)
                return false;
            const auto type = readHex(rest.substr(1, close - 1), 8);
            if (!type)
                return false;
            st.type = *type;
            rest.remove_prefix(close + 1);
        }
        if (rest.empty() || rest.front() != u':')
            return false;
        rest.remove_prefix(1);

        std::string bytes;
        for (;;) {
            rest = trimBlanks(withoutComment(rest));
            const bool continued = !rest.empty() && rest.back() == u'\\';
            if (continued)
                rest = trimBlanks(rest.substr(0, rest.size() - 1));
            while (!rest.empty()) {
                const std::size_t comma = rest.find(u',');
                const auto byte = readHex(trimBlanks(rest.substr(0, comma)), 2);
                if (!byte)
                    return false;
                bytes.push_back(static_cast<char>(*byte));
                if (comma == std::u16string_view::npos)
                    break;
                rest.remove_prefix(comma + 1);
            }
            if (!continued || next_ >= lines_.size())
                break;
            rest = lines_[next_++];
        }

        if (regtype::isText(st.type) && !unicode_) {
            // The older format writes text data in the ANSI code page; the registry keeps UTF-16.
            for (char b : bytes)
                appendUtf16Le(st.data, ansiToChar(static_cast<unsigned char>(b)));
        } else {
            st.data = std::move(bytes);
        }
        return true;
    }

    std::vector<std::u16string_view> lines_;
    std::size_t next_;
    bool unicode_;
    bool haveKey_ = false;
    RegHandle root_ = 0;
    std::u16string path_;
    std::vector<RegStatement> statements_;
};

} // namespace

std::optional<RegHandle> regRootFromName(std::u16string_view name) {
    static constexpr std::pair<std::u16string_view, RegHandle> roots[] = {
        {u"HKEY_CLASSES_ROOT", regroot::classesRoot},
        {u"HKCR", regroot::classesRoot},
        {u"HKEY_CURRENT_USER", regroot::currentUser},
        {u"HKCU", regroot::currentUser},
        {u"HKEY_LOCAL_MACHINE", regroot::localMachine},
        {u"HKLM", regroot::localMachine},
        {u"HKEY_USERS", regroot::users},
        {u"HKU", regroot::users},
        {u"HKEY_PERFORMANCE_DATA", regroot::performanceData},
        {u"HKEY_CURRENT_CONFIG", regroot::currentConfig},
        {u"HKCC", regroot::currentConfig},
        {u"HKEY_DYN_DATA", regroot::dynData},
    };
    for (const auto& [rootName, handle] : roots) {
        if (textEqual(name, rootName, Compare::Text))
            return handle;
    }
    return std::nullopt;
}

std::u16string decodeRegScript(std::string_view bytes) {
    auto startsWith = [&](std::string_view prefix) {
        return bytes.substr(0, prefix.size()) == prefix;
    };
    if (startsWith("\xFF\xFE"))
        return fromUtf16(bytes.substr(2), false);
    if (startsWith("\xFE\xFF"))
        return fromUtf16(bytes.substr(2), true);
    if (startsWith("\xEF\xBB\xBF"))
        return fromUtf8(bytes.substr(3));
    // UTF-16 without its mark still shows the zero high byte of the header's first letter.
    if (bytes.size() >= 2 && bytes[0] != 0 && bytes[1] == 0)
        return fromUtf16(bytes, false);
    return isValidUtf8(bytes) ? fromUtf8(bytes) : fromAnsi(bytes);
}

std::optional<std::vector<RegStatement>> parseRegScript(std::u16string_view text) {
    std::vector<std::u16string_view> lines = splitLines(text);
    std::size_t first = 0;
    while (first < lines.size() && trimBlanks(lines[first]).empty())
        ++first;
    if (first == lines.size())
        return std::nullopt;
    const std::u16string_view header = trimBlanks(lines[first]);
    bool unicode = false;
    if (header == headerUnicode)
        unicode = true;
    else if (header != headerAnsi)
        return std::nullopt;
    return ScriptReader(std::move(lines), first + 1, unicode).read();
}

} // namespace velkor6
