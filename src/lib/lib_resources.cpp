#include "core/text.h"
#include "resources/resource_library.h"
#include "resources/xml_lookups.h"
#include "velkor6/lib.h"

namespace velkor6 {
namespace {

// The fill members trap their errors: whatever was filled stays.
template <class F>
void trapped(F f) {
    try {
        f();
    } catch (const std::exception&) {
    }
}

} // namespace

std::u16string lib::vkrXMLRes(const ObjectRef& oDOMDoc, std::u16string_view sName,
                              std::int16_t iNumber) {
    return resources::xmlRes(oDOMDoc, sName, iNumber, locale());
}

std::u16string lib::vkrXMLItemProp(const ObjectRef& oXMLNode, std::u16string_view sProp) {
    return resources::itemProp(oXMLNode, sProp, locale());
}

void lib::vkrXMLFillList(const ObjectRef& oDOMDoc, const ObjectRef& oList,
                         std::u16string_view sName) {
    trapped([&] { resources::fillList(oDOMDoc, oList, sName, locale()); });
}

void lib::vkrXMLFillTabStrip(const ObjectRef& oDOMDoc, const ObjectRef& oTab,
                             std::u16string_view sName) {
    trapped([&] { resources::fillTabStrip(oDOMDoc, oTab, sName, locale()); });
}

void lib::vkrXMLFillComboWithResList(const ObjectRef& oDOMDoc, const ObjectRef& oCombo,
                                     std::u16string_view sResID,
                                     std::u16string_view sInclNoFormat) {
    trapped(
        [&] { resources::fillComboWithResList(oDOMDoc, oCombo, sResID, sInclNoFormat, locale()); });
}

std::u16string lib::vkrRes(applib& oApp, std::int32_t lResID) {
    try {
        // The libraries are named by language number here, not by the two letters.
        const std::u16string path =
            resources::resourceLibraryName(oApp.stringValue(u"Application", u"ResourceDLL"),
                                           fromUtf8(std::to_string(oApp.language())));
        const resources::LoadedLibrary library =
            resources::loadResourceLibrary(*module().platform().fileSystem, path);
        if (!library.image) {
            oApp.logError(library.error, u"LoadLibrary '" + path + u"' failed.", u"velkor6.vkrRes");
            return {};
        }
        return resources::loadString(*library.image, lResID);
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace velkor6
