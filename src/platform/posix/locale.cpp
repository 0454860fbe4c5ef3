// The user's locale from the C library: the environment names it (LC_ALL, then the category's
// variable, then LANG), newlocale loads it and nl_langinfo_l answers its conventions.
#include "platform/posix/time_picture.h"
#include "velkor6/platform/platform.h"

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <langinfo.h>
#include <locale.h>
#include <string>

namespace velkor6 {
namespace {

std::string categoryLocaleName(const char* variable) {
    for (const char* name : {"LC_ALL", variable, "LANG"}) {
        const char* value = std::getenv(name);
        if (value != nullptr && *value != '\0')
            return value;
    }
    return "C";
}

bool isPortableLocale(const std::string& name) {
    return name == "C" || name == "POSIX" || name.rfind("C.", 0) == 0;
}

// "de_DE.UTF-8" -> "de-DE".
std::u16string localeTag(const std::string& name) {
    std::u16string tag;
    for (const char c : name.substr(0, name.find_first_of(".@"))) {
        tag += c == '_' ? u'-' : static_cast<char16_t>(static_cast<unsigned char>(c));
    }
    return tag;
}

void appendUtf16(std::u16string& out, char32_t c) {
    if (c < 0x10000) {
        out += static_cast<char16_t>(c);
    } else {
        c -= 0x10000;
        out += static_cast<char16_t>(0xD800 + (c >> 10));
        out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
    }
}

// Makes a locale the calling thread's for as long as it lives.
class ThreadLocale {
public:
    explicit ThreadLocale(locale_t loc) : previous_(uselocale(loc)) {}
    ~ThreadLocale() { uselocale(previous_); }
    ThreadLocale(const ThreadLocale&) = delete;
    ThreadLocale& operator=(const ThreadLocale&) = delete;

private:
    locale_t previous_;
};

// One category of a named locale, loaded together with its character set.
class CLocale {
public:
    CLocale(int categoryMask, const std::string& name)
        : loc_(isPortableLocale(name)
                   ? locale_t{}
                   : newlocale(categoryMask | LC_CTYPE_MASK, name.c_str(), locale_t{})) {}
    ~CLocale() {
        if (loc_ != locale_t{})
            freelocale(loc_);
    }
    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;

    explicit operator bool() const { return loc_ != locale_t{}; }

    // An nl_langinfo item, decoded from the locale's own character set.
    std::u16string item(nl_item what) const {
        const char* text = nl_langinfo_l(what, loc_);
        std::u16string out;
        if (text == nullptr)
            return out;
        // mbrtowc decodes in the calling thread's locale.
        const ThreadLocale use(loc_);
        std::mbstate_t state{};
        std::size_t left = std::strlen(text);
        while (left > 0) {
            wchar_t wc = 0;
            std::size_t used = std::mbrtowc(&wc, text, left, &state);
            if (used == 0 || used > left) {
                // A byte that does not decode stands for itself.
                wc = static_cast<unsigned char>(*text);
                used = 1;
                state = std::mbstate_t{};
            }
            appendUtf16(out, static_cast<char32_t>(wc));
            text += used;
            left -= used;
        }
        return out;
    }

private:
    locale_t loc_;
};

} // namespace

Locale nativeLocale() {
    const std::string numericName = categoryLocaleName("LC_NUMERIC");
    const std::string timeName = categoryLocaleName("LC_TIME");
    const CLocale numeric(LC_NUMERIC_MASK, numericName);
    const CLocale time(LC_TIME_MASK, timeName);
    if (!numeric && !time)
        return Locale::englishUS();

    Locale l = Locale::englishUS();
    l.name = localeTag(numeric ? numericName : timeName);
    if (numeric) {
        const std::u16string radix = numeric.item(RADIXCHAR);
        const std::u16string thousands = numeric.item(THOUSEP);
        if (!radix.empty())
            l.decimal = radix[0];
        // Grouping marks are always read in numbers, so there must be one that differs.
        if (!thousands.empty() && thousands[0] != l.decimal)
            l.grouping = thousands[0];
        else
            l.grouping = l.decimal == u',' ? u'.' : u',';
    }
    if (time) {
        l.shortDate = posix::windowsPicture(time.item(D_FMT));
        l.longTime = posix::windowsPicture(time.item(T_FMT));
        l.dateSeparator = posix::pictureSeparator(l.shortDate, u'/');
        l.timeSeparator = posix::pictureSeparator(l.longTime, u':');
        l.am = time.item(AM_STR);
        l.pm = time.item(PM_STR);
    }
    if (const CLocale c(LC_MONETARY_MASK, categoryLocaleName("LC_MONETARY")); c) {
        // The first character tells where the symbol goes; the symbol follows it.
        const std::u16string symbol = c.item(CRNCYSTR);
        l.currencySymbol = symbol.empty() ? symbol : symbol.substr(1);
    }
#ifdef __GLIBC__
    if (const CLocale c(LC_ADDRESS_MASK, categoryLocaleName("LC_ADDRESS")); c)
        l.country = c.item(_NL_ADDRESS_COUNTRY_NAME);
#endif
    return l;
}

} // namespace velkor6
