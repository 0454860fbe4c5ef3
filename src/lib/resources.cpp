// XML resources and resource libraries: the `lib` members and their rows in the member table.
#include "core/text.h"
#include "lib/applib_argument.h"
#include "lib/applib_members.h"
#include "lib/dispatch_object.h"
#include "lib/lib_members.h"
#include "resources/resource_library.h"
#include "resources/xml_lookups.h"
#include "velkor6/vb_error.h"

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

namespace velkor6::dispatch {
namespace {

using T = VarType;

} // namespace

void addResourceMembers(Table<lib>& t) {
    t.push_back(
        {57,
         u"vkrXMLRes",
         CallKind::Method,
         {required(u"oDOMDoc", T::Object), required(u"sName", T::String),
          optional(u"iNumber", T::Integer, std::int16_t{-1})},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrXMLRes(a[0].object(), a.str(1), a.i16(2)); },
         u"The text of the first item named sName in the resource document oDOMDoc.",
         u"With iNumber (-1, that is 65535, when left out) only items of that number "
         u"count. The language is not asked: a caller's document holds one. \"\" when "
         u"no item matches or the document fails."});
    t.push_back(
        {58,
         u"vkrXMLItemProp",
         CallKind::Method,
         {required(u"oXMLNode", T::Object), required(u"sProp", T::String)},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrXMLItemProp(a[0].object(), a.str(1)); },
         u"The attribute sProp of an element of a resource document.",
         u"\"\" when the element has no such attribute."});
    t.push_back({59,
                 u"vkrXMLFillList",
                 CallKind::Method,
                 {required(u"oDOMDoc", T::Object), required(u"oList", T::Object),
                  required(u"sName", T::String)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrXMLFillList(a[0].object(), a[1].object(), a.str(2));
                     return {};
                 },
                 u"Fills a list or combo box with the texts of the items named sName.",
                 u"The list is cleared first (Clear); each item in document order is added "
                 u"(AddItem) and its number becomes the entry's ItemData (0 when it has none). "
                 u"An error stops the filling; the entries added so far stay."});
    t.push_back({60,
                 u"vkrXMLFillTabStrip",
                 CallKind::Method,
                 {required(u"oDOMDoc", T::Object), required(u"oTab", T::Object),
                  required(u"sName", T::String)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrXMLFillTabStrip(a[0].object(), a[1].object(), a.str(2));
                     return {};
                 },
                 u"Gives a tab strip one tab per item named sName, captioned with its text.",
                 u"The tabs are cleared first (Tabs.Clear); each item in document order adds a "
                 u"tab at the end without a key (Tabs.Add). An error stops the filling."});
    t.push_back({61,
                 u"vkrXMLFillComboWithResList",
                 CallKind::Method,
                 {required(u"oDOMDoc", T::Object), required(u"oCombo", T::Object),
                  required(u"sResID", T::String), optional(u"sInclNoFormat", T::String, u"")},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrXMLFillComboWithResList(a[0].object(), a[1].object(), a.str(2), a.str(3));
                     return {};
                 },
                 u"Fills a combo box with the resource list sResID.",
                 u"A resource list is the items whose name is sResID, in document order: each "
                 u"adds its text as an entry with its number as ItemData (0 when it has none). "
                 u"When sInclNoFormat is not \"\", it comes first as an entry of its own with "
                 u"ItemData -1, the choice of none of the list. The combo is cleared first; "
                 u"an error stops the filling."});
    t.push_back(
        {62,
         u"vkrRes",
         CallKind::Method,
         {required(u"oApp", T::Object), required(u"lResID", T::Long)},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrRes(applibArgument(a[0]), a.i32(1)); },
         u"The string lResID of the string tables of oApp's resource library.",
         u"The library is the setting ResourceDLL of section Application with %L "
         u"replaced by oApp's language number (1, 2, ...). Resource libraries made "
         u"for Windows are read on every platform. A library that cannot be read is "
         u"logged (\"LoadLibrary '...' failed.\") and gives \"\", as does a string "
         u"that is not there. At most 32766 characters."});
}

} // namespace velkor6::dispatch
