// The typed accessors of the settings file. Strings are stored in placeholder form and come back
// as full paths; longs as decimal text; booleans as "yes" and "no".
#include "applib/profile_file.h"
#include "core/convert.h"
#include "core/text.h"
#include "velkor6/applib.h"
#include "velkor6/vb_error.h"

#include <array>

namespace velkor6 {

std::u16string applib::stringValue(std::u16string_view section, std::u16string_view propname,
                                   std::u16string_view defaultValue, bool bAutoCreate) {
    // The cached name on purpose: before initialisation there is no settings file to read.
    const std::u16string stored = settingsFiles().read(iniFile_, section, propname);
    if (!stored.empty())
        return absolutePath(stored);
    if (bAutoCreate)
        stringValueLet(section, propname, defaultValue);
    return std::u16string(defaultValue);
}

void applib::stringValueLet(std::u16string_view section, std::u16string_view propname,
                            std::u16string_view value) {
    const std::u16string relative = relativePath(value);
    const std::u16string current = stringValue(section, propname);
    // A value already stored is written again only when it now has a placeholder form.
    if (value == current && value == relative)
        return;
    if (relative.empty())
        settingsFiles().write(iniFile_, section, propname, std::nullopt);
    else
        settingsFiles().write(iniFile_, section, propname, relative);
}

std::int32_t applib::longValue(std::u16string_view section, std::u16string_view propname,
                               std::int32_t defaultValue, bool bAutoCreate) {
    const Variant stored(stringValue(section, propname));
    if (!stored.string().empty() && isNumeric(stored, locale())) {
        try {
            return toLong(stored, locale());
        } catch (const VbError&) {
            // Beyond the range of a Long: as unusable as text.
        }
    }
    if (bAutoCreate)
        longValueLet(section, propname, defaultValue);
    return defaultValue;
}

void applib::longValueLet(std::u16string_view section, std::u16string_view propname,
                          std::int32_t value) {
    stringValueLet(section, propname, fromUtf8(std::to_string(value)));
}

bool applib::boolValue(std::u16string_view section, std::u16string_view propname, bool defaultValue,
                       bool bAutoCreate) {
    // The German words too: settings files are edited by hand.
    static constexpr std::array<std::u16string_view, 6> trueWords = {u"yes", u"true", u"1",
                                                                     u"-1",  u"wahr", u"ja"};
    const std::u16string stored = lowerCase(stringValue(section, propname));
    for (const auto word : trueWords) {
        if (stored == word)
            return true;
    }
    if (!stored.empty())
        return false;
    if (bAutoCreate)
        boolValueLet(section, propname, defaultValue);
    return defaultValue;
}

void applib::boolValueLet(std::u16string_view section, std::u16string_view propname, bool value) {
    stringValueLet(section, propname, value ? u"yes" : u"no");
}

} // namespace velkor6
