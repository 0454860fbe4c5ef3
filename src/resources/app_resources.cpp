// The resource members of an application context.
#include "core/text.h"
#include "resources/resource_library.h"
#include "resources/resource_text.h"
#include "velkor6/applib.h"
#include "velkor6/vb_error.h"

namespace velkor6 {

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
