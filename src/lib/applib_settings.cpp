// The settings store: the `applib` members and their rows. The typed accessors of the settings
// file. Strings are stored in placeholder form and come back as full paths; longs as decimal text;
// booleans as "yes" and "no".
#include "applib/profile_file.h"
#include "core/convert.h"
#include "core/text.h"
#include "files/file_io.h"
#include "files/paths.h"
#include "lib/applib_members.h"
#include "velkor6/applib.h"
#include "velkor6/enums.h"
#include "velkor6/vb_error.h"

#include <array>

namespace velkor6 {

std::u16string applib::iniFile() {
    if (iniFile_.empty()) {
        Platform& p = module_->platform();
        FileSystem& fs = *p.fileSystem;
        const PathStyle style = fs.pathStyle();
        const std::u16string name = appName_ + u".ini";
        const std::u16string candidate = files::getFullPath(dataFolder_, name, style);
        // Installations that keep their settings in the system folder put them in "ostrak".
        const std::u16string ostrak =
            files::getFullPath(p.environment->specialFolder(CSIDL_SYSTEMX86), u"ostrak", style);
        const std::u16string alternative = files::getFullPath(ostrak, name, style);
        if (files::fileExists(fs, alternative) && !files::fileExists(fs, candidate)) {
            dataFolder_ = ostrak;
            iniFile_ = alternative;
        } else {
            iniFile_ = candidate;
        }
    }
    return iniFile_;
}

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

namespace velkor6::dispatch {
namespace {

using T = VarType;

std::vector<Param> settingParams(VarType valueType, Variant noDefault) {
    return {required(u"section", T::String), required(u"propname", T::String),
            optional(u"default", valueType, std::move(noDefault)),
            optional(u"bAutoCreate", T::Boolean, false)};
}

std::vector<Param> settingLetParams(VarType valueType, Variant noDefault) {
    auto params = settingParams(valueType, std::move(noDefault));
    params.push_back(required(u"value", valueType));
    return params;
}

} // namespace

void addSettingMembers(Table<applib>& t) {
    t.push_back({1,
                 u"iniFile",
                 CallKind::PropertyGet,
                 {},
                 T::String,
                 [](applib& a, Args&) -> Variant { return a.iniFile(); },
                 u"The settings file: the application name with \".ini\" in the application "
                 u"folder.",
                 u"Found once and then kept. When only the \"ostrak\" folder below the 32-bit "
                 u"system folder holds a file of that name, that one is used."});
    t.push_back({2, u"stringValue", CallKind::PropertyGet, settingParams(T::String, u""), T::String,
                 [](applib& a, Args& r) -> Variant {
                     return a.stringValue(r.str(0), r.str(1), r.str(2), r.b(3));
                 },
                 u"A setting as text, placeholders such as %AppPath% expanded to folders.",
                 u"A missing or empty setting gives default; with bAutoCreate the default is "
                 u"then stored. Names of sections and keys ignore letter case. At most 2047 "
                 u"characters are read."});
    t.push_back({2, u"stringValue", CallKind::PropertyLet, settingLetParams(T::String, u""),
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.stringValueLet(r.str(0), r.str(1), r.str(4));
                     return {};
                 },
                 u"Stores a setting, well-known folders replaced by placeholders; \"\" deletes "
                 u"it.",
                 u"default and bAutoCreate are ignored. An unchanged value is not written "
                 u"again. The file is replaced whole under a lock, so that other processes "
                 u"writing the same file keep their settings."});
    t.push_back({3, u"longValue", CallKind::PropertyGet, settingParams(T::Long, std::int32_t{0}),
                 T::Long,
                 [](applib& a, Args& r) -> Variant {
                     return a.longValue(r.str(0), r.str(1), r.i32(2), r.b(3));
                 },
                 u"A setting as a Long.",
                 u"Text that is no number, or no Long, gives default (stored with "
                 u"bAutoCreate when the setting is missing or empty)."});
    t.push_back({3, u"longValue", CallKind::PropertyLet, settingLetParams(T::Long, std::int32_t{0}),
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.longValueLet(r.str(0), r.str(1), r.i32(4));
                     return {};
                 },
                 u"Stores a Long as its decimal text.", u""});
    t.push_back({4, u"boolValue", CallKind::PropertyGet, settingParams(T::Boolean, false),
                 T::Boolean,
                 [](applib& a, Args& r) -> Variant {
                     return a.boolValue(r.str(0), r.str(1), r.b(2), r.b(3));
                 },
                 u"A setting as a Boolean.",
                 u"yes, true, 1, -1, wahr and ja (any letter case) are True; a missing or empty "
                 u"setting gives default (stored with bAutoCreate); any other text is False."});
    t.push_back({4, u"boolValue", CallKind::PropertyLet, settingLetParams(T::Boolean, false),
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.boolValueLet(r.str(0), r.str(1), r.b(4));
                     return {};
                 },
                 u"Stores \"yes\" or \"no\".", u""});
}

} // namespace velkor6::dispatch
