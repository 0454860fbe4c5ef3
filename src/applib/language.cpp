#include "applib/language.h"

#include "core/convert.h"
#include "core/text.h"
#include "velkor6/applib.h"

namespace velkor6 {
namespace app {

bool isGermany(const Locale& loc) {
    std::u16string_view name = loc.name;
    name = name.substr(0, name.find_first_of(u".@"));
    const std::size_t separator = name.find_first_of(u"-_");
    if (separator == std::u16string_view::npos)
        return false;
    std::u16string_view region = name.substr(separator + 1);
    region = region.substr(0, region.find_first_of(u"-_"));
    return textEqual(region, u"DE", Compare::Text);
}

} // namespace app

std::int16_t applib::language() {
    constexpr std::int32_t none = -1;
    try {
        std::int32_t n = longValue(u"Application", u"Language", none);
        if (n == none)
            n = longValue(u"Application", u"DefaultLanguage", none);
        if (n == none)
            n = app::isGermany(locale()) ? 1 : 2;
        n = longValue(u"Application", u"Language", n, true);
        language_ = toInteger(Variant(n), locale());
        module_->setCurrentLanguage(language_);
        return language_;
    } catch (const std::exception&) {
        // A number beyond an Integer: the member answers 0 (neutral) and keeps what it had.
        return 0;
    }
}

void applib::languageLet(std::int16_t value) {
    module_->setCurrentLanguage(value);
    language_ = value;
    longValueLet(u"Application", u"Language", value);
}

} // namespace velkor6
