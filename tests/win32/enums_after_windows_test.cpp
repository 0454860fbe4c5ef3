// A client that includes the system's headers first still compiles with the public enumerations,
// and both agree on every value the system defines.
// clang-format off
#include <windows.h>
#include <shlobj.h>
// clang-format on

#include "velkor6/enums.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <span>
#include <string_view>
#include <utility>

namespace {

std::int32_t valueOf(std::span<const velkor6::EnumMember> members, std::u16string_view name) {
    for (const auto& m : members) {
        if (m.name == name)
            return m.value;
    }
    return -1;
}

TEST(EnumsAfterWindowsHeaders, KeepTheSystemsMacrosAndValues) {
    // Still the system's macros after the header: a key handle, a folder number, a right.
    const HKEY root = HKEY_CLASSES_ROOT;
    EXPECT_EQ(
        reinterpret_cast<std::intptr_t>(root),
        static_cast<std::int32_t>(valueOf(velkor6::registryKeysMembers, u"HKEY_CLASSES_ROOT")));
    EXPECT_EQ(valueOf(velkor6::specialFolderConstsMembers, u"CSIDL_APPDATA"), CSIDL_APPDATA);
    EXPECT_EQ(valueOf(velkor6::registryRightsMembers, u"KEY_QUERY_VALUE"), KEY_QUERY_VALUE);
    EXPECT_EQ(valueOf(velkor6::registryValueTypesMembers, u"REG_DWORD"), REG_DWORD);
    EXPECT_EQ(valueOf(velkor6::registryErrorCodeConstantsMembers, u"ERROR_ACCESS_DENIED"),
              ERROR_ACCESS_DENIED);
    EXPECT_EQ(valueOf(velkor6::buttonStyleConstsMembers, u"BS_CENTER"), BS_CENTER);
    EXPECT_EQ(valueOf(velkor6::buttonStyleConstsMembers, u"BS_TOP"), BS_TOP);
}

// The file dialog's and the folder chooser's flags carry the system's values.
TEST(EnumsAfterWindowsHeaders, FileDialogFlagsAreTheSystems) {
    const std::pair<std::u16string_view, std::int32_t> openFileName[] = {
        {u"OFN_READONLY", OFN_READONLY},
        {u"OFN_OVERWRITEPROMPT", OFN_OVERWRITEPROMPT},
        {u"OFN_HIDEREADONLY", OFN_HIDEREADONLY},
        {u"OFN_NOCHANGEDIR", OFN_NOCHANGEDIR},
        {u"OFN_SHOWHELP", OFN_SHOWHELP},
        {u"OFN_ENABLEHOOK", OFN_ENABLEHOOK},
        {u"OFN_ENABLETEMPLATE", OFN_ENABLETEMPLATE},
        {u"OFN_ENABLETEMPLATEHANDLE", OFN_ENABLETEMPLATEHANDLE},
        {u"OFN_NOVALIDATE", OFN_NOVALIDATE},
        {u"OFN_ALLOWMULTISELECT", OFN_ALLOWMULTISELECT},
        {u"OFN_EXTENSIONDIFFERENT", OFN_EXTENSIONDIFFERENT},
        {u"OFN_PATHMUSTEXIST", OFN_PATHMUSTEXIST},
        {u"OFN_FILEMUSTEXIST", OFN_FILEMUSTEXIST},
        {u"OFN_CREATEPROMPT", OFN_CREATEPROMPT},
        {u"OFN_SHAREAWARE", OFN_SHAREAWARE},
        {u"OFN_NOREADONLYRETURN", OFN_NOREADONLYRETURN},
        {u"OFN_NOTESTFILECREATE", OFN_NOTESTFILECREATE},
        {u"OFN_NONETWORKBUTTON", OFN_NONETWORKBUTTON},
        {u"OFN_NOLONGNAMES", OFN_NOLONGNAMES},
        {u"OFN_EXPLORER", OFN_EXPLORER},
        {u"OFN_NODEREFERENCELINKS", OFN_NODEREFERENCELINKS},
        {u"OFN_LONGNAMES", OFN_LONGNAMES},
        {u"OFN_ENABLEINCLUDENOTIFY", OFN_ENABLEINCLUDENOTIFY},
        {u"OFN_ENABLESIZING", OFN_ENABLESIZING},
        {u"OFN_DONTADDTORECENT", OFN_DONTADDTORECENT},
        {u"OFN_FORCESHOWHIDDEN", OFN_FORCESHOWHIDDEN},
    };
    for (const auto& [name, value] : openFileName)
        EXPECT_EQ(valueOf(velkor6::openFileNameConstantsMembers, name), value);
    const std::pair<std::u16string_view, std::int32_t> browseInfo[] = {
        {u"BIF_RETURNONLYFSDIRS", BIF_RETURNONLYFSDIRS},
        {u"BIF_DONTGOBELOWDOMAIN", BIF_DONTGOBELOWDOMAIN},
        {u"BIF_STATUSTEXT", BIF_STATUSTEXT},
        {u"BIF_RETURNFSANCESTORS", BIF_RETURNFSANCESTORS},
        {u"BIF_EDITBOX", BIF_EDITBOX},
        {u"BIF_VALIDATE", BIF_VALIDATE},
        {u"BIF_NEWDIALOGSTYLE", BIF_NEWDIALOGSTYLE},
        {u"BIF_USENEWUI", BIF_USENEWUI},
        {u"BIF_BROWSEINCLUDEURLS", BIF_BROWSEINCLUDEURLS},
        {u"BIF_UAHINT", BIF_UAHINT},
        {u"BIF_NONEWFOLDERBUTTON", BIF_NONEWFOLDERBUTTON},
        {u"BIF_NOTRANSLATETARGETS", BIF_NOTRANSLATETARGETS},
        {u"BIF_BROWSEFORCOMPUTER", BIF_BROWSEFORCOMPUTER},
        {u"BIF_BROWSEFORPRINTER", BIF_BROWSEFORPRINTER},
        {u"BIF_BROWSEINCLUDEFILES", BIF_BROWSEINCLUDEFILES},
        {u"BIF_SHAREABLE", BIF_SHAREABLE},
        {u"BIF_BROWSEFILEJUNCTIONS", BIF_BROWSEFILEJUNCTIONS},
    };
    for (const auto& [name, value] : browseInfo)
        EXPECT_EQ(valueOf(velkor6::browseInfoFlagConstsMembers, name), value);
}

} // namespace
