#include "velkor6/locale.h"

#include "core/text.h"

namespace velkor6 {

const Locale& Locale::germanGermany() {
    static const Locale de = [] {
        Locale l;
        l.name = u"de-DE";
        l.decimal = u',';
        l.grouping = u'.';
        l.currencySymbol = u"€";
        l.dateSeparator = u'.';
        l.timeSeparator = u':';
        l.shortDate = u"dd.MM.yyyy";
        l.longTime = u"HH:mm:ss";
        l.am = u"";
        l.pm = u"";
        l.country = u"Deutschland";
        return l;
    }();
    return de;
}

const Locale& Locale::englishUS() {
    static const Locale us = [] {
        Locale l;
        l.name = u"en-US";
        l.decimal = u'.';
        l.grouping = u',';
        l.currencySymbol = u"$";
        l.dateSeparator = u'/';
        l.timeSeparator = u':';
        l.shortDate = u"M/d/yyyy";
        l.longTime = u"h:mm:ss tt";
        l.am = u"AM";
        l.pm = u"PM";
        l.country = u"United States";
        return l;
    }();
    return us;
}

const Locale& Locale::preset(std::u16string_view name) {
    // "de_DE.UTF-8" and "de_DE@euro" name the same conventions as "de-DE".
    name = name.substr(0, name.find_first_of(u".@"));
    std::u16string tag(name);
    for (char16_t& c : tag) {
        if (c == u'_')
            c = u'-';
    }
    if (textEqual(tag, u"de-DE", Compare::Text))
        return germanGermany();
    return englishUS();
}

} // namespace velkor6
