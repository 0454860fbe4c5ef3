#include "applib/command_line.h"

#include <optional>

namespace velkor6::app {
namespace {

constexpr bool isBlank(char16_t c) {
    return c == u' ' || c == u'\t';
}

// The name of a switch word without its prefix; nothing when the word is no switch. A quoted
// word, a number (-5, -.5) and a prefix alone are values.
std::optional<std::u16string_view> switchBody(const CommandWord& w) {
    if (w.quotedStart)
        return std::nullopt;
    std::u16string_view s = w.text;
    if (s.starts_with(u"--"))
        s.remove_prefix(2);
    else if (s.starts_with(u"-") || s.starts_with(u"/"))
        s.remove_prefix(1);
    else
        return std::nullopt;
    if (s.empty())
        return std::nullopt;
    const char16_t c = s.front();
    if ((c >= u'0' && c <= u'9') || c == u'.' || c == u'=' || c == u':')
        return std::nullopt;
    return s;
}

bool endsSwitches(const CommandWord& w) {
    return !w.quotedStart && w.text == u"--";
}

} // namespace

std::vector<CommandWord> splitCommandWords(std::u16string_view line, bool withProgram) {
    std::vector<CommandWord> words;
    std::size_t i = 0;
    const std::size_t n = line.size();
    if (withProgram) {
        // The program's path may hold backslashes and no quotes: it is read without escapes.
        if (i < n && line[i] == u'"') {
            const std::size_t close = line.find(u'"', i + 1);
            i = close == std::u16string_view::npos ? n : close + 1;
        }
        while (i < n && !isBlank(line[i]))
            ++i;
    }
    for (;;) {
        while (i < n && isBlank(line[i]))
            ++i;
        if (i >= n)
            break;
        CommandWord w;
        bool started = false;
        // 0 outside a quoted part, 1 inside; 2 after a quote that may close the part or, with
        // one more quote, stand for a literal quote.
        int quotes = 0;
        while (i < n && (quotes != 0 || !isBlank(line[i]))) {
            if (line[i] == u'\\') {
                std::size_t run = 0;
                while (i < n && line[i] == u'\\') {
                    ++run;
                    ++i;
                }
                if (!started)
                    w.quotedStart = quotes == 1;
                started = true;
                if (i < n && line[i] == u'"') {
                    w.text.append(run / 2, u'\\');
                    if (run % 2 == 1) {
                        w.text.push_back(u'"');
                        ++i;
                        continue;
                    }
                } else {
                    w.text.append(run, u'\\');
                    continue;
                }
            }
            if (line[i] == u'"') {
                if (!started)
                    w.quotedStart = true;
                started = true;
                ++quotes;
                ++i;
                while (i < n && line[i] == u'"') {
                    if (++quotes == 3) {
                        w.text.push_back(u'"');
                        quotes = 0;
                    }
                    ++i;
                }
                if (quotes == 2)
                    quotes = 0;
                continue;
            }
            if (!started)
                w.quotedStart = quotes == 1;
            started = true;
            w.text.push_back(line[i]);
            ++i;
        }
        words.push_back(std::move(w));
    }
    return words;
}

std::vector<CommandParam> readCommandParams(const std::vector<CommandWord>& words) {
    std::vector<CommandParam> params;
    bool switches = true;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const CommandWord& w = words[i];
        if (switches && endsSwitches(w)) {
            switches = false;
            continue;
        }
        const auto body = switches ? switchBody(w) : std::nullopt;
        if (!body) {
            params.push_back({u"", w.text});
            continue;
        }
        const std::size_t sep = body->find_first_of(u"=:");
        if (sep != std::u16string_view::npos) {
            params.push_back(
                {std::u16string(body->substr(0, sep)), std::u16string(body->substr(sep + 1))});
            continue;
        }
        CommandParam p{std::u16string(*body), u""};
        if (i + 1 < words.size() && !endsSwitches(words[i + 1]) && !switchBody(words[i + 1]))
            p.value = words[++i].text;
        params.push_back(std::move(p));
    }
    return params;
}

std::u16string_view bareSwitchName(std::u16string_view name) {
    if (name.starts_with(u"--"))
        name.remove_prefix(2);
    else if (name.starts_with(u"-") || name.starts_with(u"/"))
        name.remove_prefix(1);
    return name;
}

} // namespace velkor6::app
