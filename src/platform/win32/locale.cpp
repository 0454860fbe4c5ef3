// The user's locale from the Windows locale settings.
#include "platform/win32/wide.h"
#include "velkor6/platform/platform.h"

#include <windows.h>

namespace velkor6 {
namespace {

std::u16string localeInfo(LCTYPE type) {
    wchar_t buffer[128] = {};
    const int n = GetLocaleInfoW(LOCALE_USER_DEFAULT, type, buffer, 128);
    return n > 1 ? win32::fromWide(std::wstring_view(buffer, static_cast<std::size_t>(n - 1)))
                 : std::u16string();
}

char16_t firstChar(LCTYPE type, char16_t fallback) {
    const std::u16string s = localeInfo(type);
    return s.empty() ? fallback : s.front();
}

} // namespace

Locale nativeLocale() {
    Locale l = Locale::englishUS();
    if (std::u16string name = localeInfo(LOCALE_SNAME); !name.empty())
        l.name = std::move(name);
    l.decimal = firstChar(LOCALE_SDECIMAL, l.decimal);
    l.grouping = firstChar(LOCALE_STHOUSAND, l.grouping);
    l.currencySymbol = localeInfo(LOCALE_SCURRENCY);
    l.dateSeparator = firstChar(LOCALE_SDATE, l.dateSeparator);
    l.timeSeparator = firstChar(LOCALE_STIME, l.timeSeparator);
    if (std::u16string picture = localeInfo(LOCALE_SSHORTDATE); !picture.empty())
        l.shortDate = std::move(picture);
    if (std::u16string picture = localeInfo(LOCALE_STIMEFORMAT); !picture.empty())
        l.longTime = std::move(picture);
    l.am = localeInfo(LOCALE_S1159);
    l.pm = localeInfo(LOCALE_S2359);
    l.country = localeInfo(LOCALE_SNATIVECOUNTRYNAME);
    return l;
}

} // namespace velkor6
