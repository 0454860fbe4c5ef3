#include "applib/host_app.h"

#include "applib/library_version.h"
#include "core/convert.h"

#include <cstdlib>

namespace velkor6::app {
namespace {

Variant property(Object& object, std::u16string_view name) {
    return object.call(name, CallKind::PropertyGet, {});
}

// At least width digits; a minus sign goes before the padding, as Format writes it.
std::u16string padded(std::int32_t n, std::size_t width) {
    std::u16string digits = fromUtf8(std::to_string(std::abs(n)));
    if (digits.size() < width)
        digits.insert(0, width - digits.size(), u'0');
    return n < 0 ? u"-" + digits : digits;
}

} // namespace

HostApp hostAppFrom(Object& app, const Locale& loc) {
    HostApp host;
    host.path = toString(property(app, u"Path"), loc);
    host.exeName = toString(property(app, u"EXEName"), loc);
    host.major = toInteger(property(app, u"Major"), loc);
    host.minor = toInteger(property(app, u"Minor"), loc);
    host.revision = toInteger(property(app, u"Revision"), loc);
    return host;
}

HostApp libraryHostApp(const Platform& platform) {
    return {platform.libraryFolder, u"velkor6", libraryVersionMajor, libraryVersionMinor,
            libraryVersionRevision};
}

std::u16string versionText(const HostApp& app) {
    return padded(app.major, 1) + u"." + padded(app.minor, 2) + u"." + padded(app.revision, 4);
}

} // namespace velkor6::app
