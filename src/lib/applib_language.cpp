// The language of an application context and its resource library: the `applib` members and
// their rows.
#include "applib/language.h"
#include "core/convert.h"
#include "core/text.h"
#include "lib/applib_members.h"
#include "resources/resource_library.h"
#include "resources/resource_text.h"
#include "velkor6/vb_error.h"

namespace velkor6 {

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

VariantArray applib::getLanguagesList() {
    VariantArray list;
    list.element = VarType::String;
    try {
        const XmlDocument* doc = resources::ownDocument(*module_, resources_);
        if (doc != nullptr) {
            for (std::u16string& entry :
                 resources::availableLanguages(*module_->platform().fileSystem, *doc,
                                               stringValue(u"Application", u"ResourceDLL")))
                list.items.emplace_back(std::move(entry));
        }
    } catch (const std::exception&) {
        list.items.clear();
    }
    list.bounds = {ArrayBound{0, static_cast<std::int32_t>(list.items.size())}};
    return list;
}

std::u16string applib::loadRes(std::int32_t lResID, std::u16string_view sResType) {
    try {
        FileSystem& fs = *module_->platform().fileSystem;
        const std::u16string extension = resources::langExtension(*module_, language());
        if (resourceLibrary_.empty()) {
            const std::u16string setting = stringValue(u"Application", u"ResourceDLL");
            // German is the language every application ships.
            for (const std::u16string_view code :
                 {std::u16string_view(extension), std::u16string_view(u"DE")}) {
                if (auto name = resources::findResourceLibrary(fs, setting, code)) {
                    resourceLibrary_ = std::move(*name);
                    break;
                }
            }
        }
        if (resourceLibrary_.empty()) {
            logError(vberr::library,
                     u"Resourcefile entry 'ResourceDLL' in INI-File '" + iniFile() +
                         u"' not found or file does not exists.",
                     u"velkor6.loadRes", true);
            return {};
        }
        const resources::LoadedLibrary library =
            resources::loadResourceLibrary(fs, resourceLibrary_);
        if (!library.image) {
            logError(library.error, u"LoadLibrary '" + resourceLibrary_ + u"' failed.",
                     u"velkor6.loadRes [" + appName_ + u"]");
            return {};
        }
        const auto name = resources::ResourceId::fromText(u"#" + fromUtf8(std::to_string(lResID)));
        const auto type = resources::ResourceId::fromText(sResType);
        if (!name || !type)
            return {};
        const auto bytes = library.image->find(*type, *name);
        return bytes ? resources::resourceText(*bytes) : std::u16string();
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace velkor6

namespace velkor6::dispatch {

void addLanguageMembers(Table<applib>& t) {
    using T = VarType;
    t.push_back({16,
                 u"language",
                 CallKind::PropertyGet,
                 {},
                 T::Integer,
                 [](applib& a, Args&) -> Variant { return a.language(); },
                 u"The language number of the context (1 German, 2 English, ...), from the "
                 u"setting Language in section Application.",
                 u"Without that setting DefaultLanguage counts, and without that the system: "
                 u"German in Germany, else English. The number found is stored as Language and "
                 u"becomes the language of the library's dialogs."});
    t.push_back({16,
                 u"language",
                 CallKind::PropertyLet,
                 {required(u"value", T::Integer)},
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.languageLet(r.i16(0));
                     return {};
                 },
                 u"Stores the language number and makes it the language of the library's "
                 u"dialogs.",
                 u""});
    t.push_back({17,
                 u"getLanguagesList",
                 CallKind::Method,
                 {},
                 T::String | T::Array,
                 [](applib& a, Args&) -> Variant { return a.getLanguagesList(); },
                 u"The languages whose resource library is on disk, as \"langid;name;extension\" "
                 u"(for example 2;English;EN).",
                 u"The libraries are the files matching the setting ResourceDLL of section "
                 u"Application with %L as two characters, the language's extension (DE, EN, "
                 u"FR, IT, ES, CZ, PL, HP). The languages come in the library's order; an "
                 u"array without entries when there are none."});
    t.push_back(
        {18,
         u"loadRes",
         CallKind::Method,
         {required(u"lResID", T::Long), required(u"sResType", T::String)},
         T::String,
         [](applib& a, Args& r) -> Variant { return a.loadRes(r.i32(0), r.str(1)); },
         u"The resource lResID of type sResType (\"XML\", or \"#23\" for a number) of the "
         u"application's resource library, as text.",
         u"The library is the setting ResourceDLL of section Application with %L "
         u"replaced by the extension of the context's language, else by DE; it is "
         u"found once and then kept. Without either file the error is logged and shown. "
         u"Text before the first \"<\" goes (the resources are XML). \"\" on any failure."});
}

} // namespace velkor6::dispatch
