#include "platform/posix/time_picture.h"

namespace velkor6::posix {
namespace {

bool isAsciiLetter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

// The Windows picture of one conversion; `unpadded` for glibc's "%-d" style.
std::u16string_view conversion(char16_t c, bool unpadded) {
    switch (c) {
    case u'd':
        return unpadded ? u"d" : u"dd";
    case u'e':
        return u"d";
    case u'm':
        return unpadded ? u"M" : u"MM";
    case u'Y':
        return u"yyyy";
    case u'y':
        return u"yy";
    case u'H':
        return unpadded ? u"H" : u"HH";
    case u'k':
        return u"H";
    case u'I':
        return unpadded ? u"h" : u"hh";
    case u'l':
        return u"h";
    case u'M':
        return unpadded ? u"m" : u"mm";
    case u'S':
        return unpadded ? u"s" : u"ss";
    case u'p':
    case u'P':
        return u"tt";
    case u'b':
    case u'h':
        return u"MMM";
    case u'B':
        return u"MMMM";
    case u'a':
        return u"ddd";
    case u'A':
        return u"dddd";
    // Four-digit years here too: a short date that loses the century is no use to a form.
    case u'D':
        return u"MM/dd/yyyy";
    case u'F':
        return u"yyyy-MM-dd";
    case u'T':
        return u"HH:mm:ss";
    case u'R':
        return u"HH:mm";
    case u'r':
        return u"hh:mm:ss tt";
    case u'n':
    case u't':
        return u" ";
    case u'%':
        return u"%";
    default:
        return {};
    }
}

} // namespace

std::u16string windowsPicture(std::u16string_view s) {
    std::u16string out;
    bool quoted = false;
    auto closeQuote = [&] {
        if (quoted)
            out += u'\'';
        quoted = false;
    };
    for (std::size_t i = 0; i < s.size(); ++i) {
        const char16_t c = s[i];
        if (c == u'%' && i + 1 < s.size()) {
            bool unpadded = false;
            ++i;
            for (; i + 1 < s.size() &&
                   std::u16string_view(u"-_0^#EO").find(s[i]) != std::u16string_view::npos;
                 ++i)
                unpadded = unpadded || s[i] == u'-';
            closeQuote();
            out += conversion(s[i], unpadded);
        } else if (isAsciiLetter(c) || c == u'\'') {
            if (!quoted)
                out += u'\'';
            quoted = true;
            if (c == u'\'')
                out += u'\''; // doubled inside the quotes
            out += c;
        } else {
            closeQuote();
            out += c;
        }
    }
    closeQuote();
    return out;
}

char16_t pictureSeparator(std::u16string_view picture, char16_t fallback) {
    bool quoted = false;
    for (const char16_t c : picture) {
        if (c == u'\'')
            quoted = !quoted;
        else if (!quoted && !isAsciiLetter(c) && c != u' ')
            return c;
    }
    return fallback;
}

} // namespace velkor6::posix
