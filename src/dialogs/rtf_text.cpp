#include "dialogs/rtf_text.h"

#include "platform/ansi.h"

#include <vector>

namespace velkor6::dialogs {
namespace {

bool isLetter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
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

} // namespace

std::u16string rtfPlainText(std::u16string_view rtf) {
    std::u16string out;
    std::vector<bool> skipping{false}; // per open group: whether its text is dropped
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        const char16_t c = rtf[i];
        if (c == u'{') {
            skipping.push_back(skipping.back());
            continue;
        }
        if (c == u'}') {
            if (skipping.size() > 1)
                skipping.pop_back();
            continue;
        }
        if (c == u'\r' || c == u'\n')
            continue;
        if (c != u'\\') {
            if (!skipping.back())
                out += c;
            continue;
        }
        if (i + 1 >= rtf.size())
            break;
        const char16_t next = rtf[i + 1];
        if (next == u'\\' || next == u'{' || next == u'}') {
            if (!skipping.back())
                out += next;
            ++i;
            continue;
        }
        if (next == u'*') {
            skipping.back() = true;
            ++i;
            continue;
        }
        if (next == u'\'' && i + 3 < rtf.size() && hexDigit(rtf[i + 2]) >= 0 &&
            hexDigit(rtf[i + 3]) >= 0) {
            const auto byte =
                static_cast<unsigned char>(hexDigit(rtf[i + 2]) * 16 + hexDigit(rtf[i + 3]));
            if (!skipping.back())
                out += ansiToChar(byte);
            i += 3;
            continue;
        }
        std::size_t end = i + 1;
        while (end < rtf.size() && isLetter(rtf[end]))
            ++end;
        const std::u16string_view word = rtf.substr(i + 1, end - i - 1);
        if (end < rtf.size() && (rtf[end] == u'-' || (rtf[end] >= u'0' && rtf[end] <= u'9'))) {
            ++end;
            while (end < rtf.size() && rtf[end] >= u'0' && rtf[end] <= u'9')
                ++end;
        }
        if (end < rtf.size() && rtf[end] == u' ')
            ++end;
        if (word.empty()) { // a control symbol such as \~ or \-
            if (next == u'~' && !skipping.back())
                out += u' ';
            i += 1;
            continue;
        }
        if (word == u"fonttbl" || word == u"colortbl" || word == u"stylesheet" || word == u"info")
            skipping.back() = true;
        else if (!skipping.back() && (word == u"par" || word == u"line"))
            out += u'\n';
        else if (!skipping.back() && word == u"tab")
            out += u'\t';
        i = end - 1;
    }
    while (!out.empty() && out.back() == u'\n')
        out.pop_back();
    return out;
}

} // namespace velkor6::dialogs
