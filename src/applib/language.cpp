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

} // namespace velkor6
