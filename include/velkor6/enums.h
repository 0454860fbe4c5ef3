// Public enumerations of the type library, with the names and values clients use.
#pragma once

#include <cstdint>
#include <string_view>

// The enumerators carry the system's own names, which <windows.h>, <shlobj.h> and their
// companions define as macros of the same values. Those macros are set aside while this header
// is read and restored after it, so that a client may include both in either order.
#pragma push_macro("BS_CENTER")
#undef BS_CENTER
#pragma push_macro("BS_LEFT")
#undef BS_LEFT
#pragma push_macro("BS_RIGHT")
#undef BS_RIGHT
#pragma push_macro("BS_TOP")
#undef BS_TOP
#pragma push_macro("CSIDL_ADMINTOOLS")
#undef CSIDL_ADMINTOOLS
#pragma push_macro("CSIDL_ALTSTARTUP")
#undef CSIDL_ALTSTARTUP
#pragma push_macro("CSIDL_APPDATA")
#undef CSIDL_APPDATA
#pragma push_macro("CSIDL_BITBUCKET")
#undef CSIDL_BITBUCKET
#pragma push_macro("CSIDL_COMMON_ADMINTOOLS")
#undef CSIDL_COMMON_ADMINTOOLS
#pragma push_macro("CSIDL_COMMON_ALTSTARTUP")
#undef CSIDL_COMMON_ALTSTARTUP
#pragma push_macro("CSIDL_COMMON_APPDATA")
#undef CSIDL_COMMON_APPDATA
#pragma push_macro("CSIDL_COMMON_DESKTOPDIRECTORY")
#undef CSIDL_COMMON_DESKTOPDIRECTORY
#pragma push_macro("CSIDL_COMMON_DOCUMENTS")
#undef CSIDL_COMMON_DOCUMENTS
#pragma push_macro("CSIDL_COMMON_FAVORITES")
#undef CSIDL_COMMON_FAVORITES
#pragma push_macro("CSIDL_COMMON_PROGRAMS")
#undef CSIDL_COMMON_PROGRAMS
#pragma push_macro("CSIDL_COMMON_STARTMENU")
#undef CSIDL_COMMON_STARTMENU
#pragma push_macro("CSIDL_COMMON_STARTUP")
#undef CSIDL_COMMON_STARTUP
#pragma push_macro("CSIDL_COMMON_TEMPLATES")
#undef CSIDL_COMMON_TEMPLATES
#pragma push_macro("CSIDL_CONTROLS")
#undef CSIDL_CONTROLS
#pragma push_macro("CSIDL_COOKIES")
#undef CSIDL_COOKIES
#pragma push_macro("CSIDL_DESKTOP")
#undef CSIDL_DESKTOP
#pragma push_macro("CSIDL_DESKTOPDIRECTORY")
#undef CSIDL_DESKTOPDIRECTORY
#pragma push_macro("CSIDL_DRIVES")
#undef CSIDL_DRIVES
#pragma push_macro("CSIDL_FAVORITES")
#undef CSIDL_FAVORITES
#pragma push_macro("CSIDL_FLAG_CREATE")
#undef CSIDL_FLAG_CREATE
#pragma push_macro("CSIDL_FONTS")
#undef CSIDL_FONTS
#pragma push_macro("CSIDL_HISTORY")
#undef CSIDL_HISTORY
#pragma push_macro("CSIDL_INTERNET")
#undef CSIDL_INTERNET
#pragma push_macro("CSIDL_INTERNET_CACHE")
#undef CSIDL_INTERNET_CACHE
#pragma push_macro("CSIDL_LOCAL_APPDATA")
#undef CSIDL_LOCAL_APPDATA
#pragma push_macro("CSIDL_MYPICTURES")
#undef CSIDL_MYPICTURES
#pragma push_macro("CSIDL_NETHOOD")
#undef CSIDL_NETHOOD
#pragma push_macro("CSIDL_NETWORK")
#undef CSIDL_NETWORK
#pragma push_macro("CSIDL_PERSONAL")
#undef CSIDL_PERSONAL
#pragma push_macro("CSIDL_PRINTERS")
#undef CSIDL_PRINTERS
#pragma push_macro("CSIDL_PRINTHOOD")
#undef CSIDL_PRINTHOOD
#pragma push_macro("CSIDL_PROFILE")
#undef CSIDL_PROFILE
#pragma push_macro("CSIDL_PROGRAMS")
#undef CSIDL_PROGRAMS
#pragma push_macro("CSIDL_PROGRAM_FILES")
#undef CSIDL_PROGRAM_FILES
#pragma push_macro("CSIDL_PROGRAM_FILESX86")
#undef CSIDL_PROGRAM_FILESX86
#pragma push_macro("CSIDL_PROGRAM_FILES_COMMON")
#undef CSIDL_PROGRAM_FILES_COMMON
#pragma push_macro("CSIDL_PROGRAM_FILES_COMMONX86")
#undef CSIDL_PROGRAM_FILES_COMMONX86
#pragma push_macro("CSIDL_RECENT")
#undef CSIDL_RECENT
#pragma push_macro("CSIDL_SENDTO")
#undef CSIDL_SENDTO
#pragma push_macro("CSIDL_STARTMENU")
#undef CSIDL_STARTMENU
#pragma push_macro("CSIDL_STARTUP")
#undef CSIDL_STARTUP
#pragma push_macro("CSIDL_SYSTEM")
#undef CSIDL_SYSTEM
#pragma push_macro("CSIDL_SYSTEMX86")
#undef CSIDL_SYSTEMX86
#pragma push_macro("CSIDL_TEMPLATES")
#undef CSIDL_TEMPLATES
#pragma push_macro("CSIDL_WINDOWS")
#undef CSIDL_WINDOWS
#pragma push_macro("ERROR_ACCESS_DENIED")
#undef ERROR_ACCESS_DENIED
#pragma push_macro("ERROR_BADKEY")
#undef ERROR_BADKEY
#pragma push_macro("ERROR_CANTOPEN")
#undef ERROR_CANTOPEN
#pragma push_macro("ERROR_NO_MORE_ITEMS")
#undef ERROR_NO_MORE_ITEMS
#pragma push_macro("ERROR_SUCCESS")
#undef ERROR_SUCCESS
#pragma push_macro("HKEY_CLASSES_ROOT")
#undef HKEY_CLASSES_ROOT
#pragma push_macro("HKEY_CURRENT_CONFIG")
#undef HKEY_CURRENT_CONFIG
#pragma push_macro("HKEY_CURRENT_USER")
#undef HKEY_CURRENT_USER
#pragma push_macro("HKEY_DYN_DATA")
#undef HKEY_DYN_DATA
#pragma push_macro("HKEY_LOCAL_MACHINE")
#undef HKEY_LOCAL_MACHINE
#pragma push_macro("HKEY_PERFORMANCE_DATA")
#undef HKEY_PERFORMANCE_DATA
#pragma push_macro("HKEY_USERS")
#undef HKEY_USERS
#pragma push_macro("KEY_ALL_ACCESS")
#undef KEY_ALL_ACCESS
#pragma push_macro("KEY_CREATE_LINK")
#undef KEY_CREATE_LINK
#pragma push_macro("KEY_CREATE_SUB_KEY")
#undef KEY_CREATE_SUB_KEY
#pragma push_macro("KEY_ENUMERATE_SUB_KEYS")
#undef KEY_ENUMERATE_SUB_KEYS
#pragma push_macro("KEY_NOTIFY")
#undef KEY_NOTIFY
#pragma push_macro("KEY_QUERY_VALUE")
#undef KEY_QUERY_VALUE
#pragma push_macro("KEY_SET_VALUE")
#undef KEY_SET_VALUE
#pragma push_macro("LVFI_NEARESTXY")
#undef LVFI_NEARESTXY
#pragma push_macro("LVFI_PARAM")
#undef LVFI_PARAM
#pragma push_macro("LVFI_PARTIAL")
#undef LVFI_PARTIAL
#pragma push_macro("LVFI_STRING")
#undef LVFI_STRING
#pragma push_macro("LVFI_WRAP")
#undef LVFI_WRAP
#pragma push_macro("LVM_APPROXIMATEVIEWRECT")
#undef LVM_APPROXIMATEVIEWRECT
#pragma push_macro("LVM_ARRANGE")
#undef LVM_ARRANGE
#pragma push_macro("LVM_CREATEDRAGIMAGE")
#undef LVM_CREATEDRAGIMAGE
#pragma push_macro("LVM_DELETEALLITEMS")
#undef LVM_DELETEALLITEMS
#pragma push_macro("LVM_DELETECOLUMN")
#undef LVM_DELETECOLUMN
#pragma push_macro("LVM_DELETEITEM")
#undef LVM_DELETEITEM
#pragma push_macro("LVM_EDITLABELA")
#undef LVM_EDITLABELA
#pragma push_macro("LVM_ENSUREVISIBLE")
#undef LVM_ENSUREVISIBLE
#pragma push_macro("LVM_FINDITEMA")
#undef LVM_FINDITEMA
#pragma push_macro("LVM_FIRST")
#undef LVM_FIRST
#pragma push_macro("LVM_GETBKCOLOR")
#undef LVM_GETBKCOLOR
#pragma push_macro("LVM_GETBKIMAGEA")
#undef LVM_GETBKIMAGEA
#pragma push_macro("LVM_GETCALLBACKMASK")
#undef LVM_GETCALLBACKMASK
#pragma push_macro("LVM_GETCOLUMNA")
#undef LVM_GETCOLUMNA
#pragma push_macro("LVM_GETCOLUMNORDERARRAY")
#undef LVM_GETCOLUMNORDERARRAY
#pragma push_macro("LVM_GETCOLUMNWIDTH")
#undef LVM_GETCOLUMNWIDTH
#pragma push_macro("LVM_GETCOUNTPERPAGE")
#undef LVM_GETCOUNTPERPAGE
#pragma push_macro("LVM_GETEDITCONTROL")
#undef LVM_GETEDITCONTROL
#pragma push_macro("LVM_GETEXTENDEDLISTVIEWSTYLE")
#undef LVM_GETEXTENDEDLISTVIEWSTYLE
#pragma push_macro("LVM_GETHEADER")
#undef LVM_GETHEADER
#pragma push_macro("LVM_GETHOTCURSOR")
#undef LVM_GETHOTCURSOR
#pragma push_macro("LVM_GETHOTITEM")
#undef LVM_GETHOTITEM
#pragma push_macro("LVM_GETHOVERTIME")
#undef LVM_GETHOVERTIME
#pragma push_macro("LVM_GETIMAGELIST")
#undef LVM_GETIMAGELIST
#pragma push_macro("LVM_GETISEARCHSTRINGA")
#undef LVM_GETISEARCHSTRINGA
#pragma push_macro("LVM_GETITEMA")
#undef LVM_GETITEMA
#pragma push_macro("LVM_GETITEMCOUNT")
#undef LVM_GETITEMCOUNT
#pragma push_macro("LVM_GETITEMPOSITION")
#undef LVM_GETITEMPOSITION
#pragma push_macro("LVM_GETITEMRECT")
#undef LVM_GETITEMRECT
#pragma push_macro("LVM_GETITEMSPACING")
#undef LVM_GETITEMSPACING
#pragma push_macro("LVM_GETITEMSTATE")
#undef LVM_GETITEMSTATE
#pragma push_macro("LVM_GETITEMTEXTA")
#undef LVM_GETITEMTEXTA
#pragma push_macro("LVM_GETNEXTITEM")
#undef LVM_GETNEXTITEM
#pragma push_macro("LVM_GETNUMBEROFWORKAREAS")
#undef LVM_GETNUMBEROFWORKAREAS
#pragma push_macro("LVM_GETORIGIN")
#undef LVM_GETORIGIN
#pragma push_macro("LVM_GETSELECTEDCOUNT")
#undef LVM_GETSELECTEDCOUNT
#pragma push_macro("LVM_GETSELECTIONMARK")
#undef LVM_GETSELECTIONMARK
#pragma push_macro("LVM_GETSTRINGWIDTHA")
#undef LVM_GETSTRINGWIDTHA
#pragma push_macro("LVM_GETSUBITEMRECT")
#undef LVM_GETSUBITEMRECT
#pragma push_macro("LVM_GETTEXTBKCOLOR")
#undef LVM_GETTEXTBKCOLOR
#pragma push_macro("LVM_GETTEXTCOLOR")
#undef LVM_GETTEXTCOLOR
#pragma push_macro("LVM_GETTOOLTIPS")
#undef LVM_GETTOOLTIPS
#pragma push_macro("LVM_GETTOPINDEX")
#undef LVM_GETTOPINDEX
#pragma push_macro("LVM_GETVIEWRECT")
#undef LVM_GETVIEWRECT
#pragma push_macro("LVM_GETWORKAREAS")
#undef LVM_GETWORKAREAS
#pragma push_macro("LVM_HITTEST")
#undef LVM_HITTEST
#pragma push_macro("LVM_INSERTCOLUMNA")
#undef LVM_INSERTCOLUMNA
#pragma push_macro("LVM_INSERTITEMA")
#undef LVM_INSERTITEMA
#pragma push_macro("LVM_REDRAWITEMS")
#undef LVM_REDRAWITEMS
#pragma push_macro("LVM_SCROLL")
#undef LVM_SCROLL
#pragma push_macro("LVM_SETBKCOLOR")
#undef LVM_SETBKCOLOR
#pragma push_macro("LVM_SETBKIMAGEA")
#undef LVM_SETBKIMAGEA
#pragma push_macro("LVM_SETCALLBACKMASK")
#undef LVM_SETCALLBACKMASK
#pragma push_macro("LVM_SETCOLUMNA")
#undef LVM_SETCOLUMNA
#pragma push_macro("LVM_SETCOLUMNORDERARRAY")
#undef LVM_SETCOLUMNORDERARRAY
#pragma push_macro("LVM_SETCOLUMNWIDTH")
#undef LVM_SETCOLUMNWIDTH
#pragma push_macro("LVM_SETEXTENDEDLISTVIEWSTYLE")
#undef LVM_SETEXTENDEDLISTVIEWSTYLE
#pragma push_macro("LVM_SETHOTCURSOR")
#undef LVM_SETHOTCURSOR
#pragma push_macro("LVM_SETHOTITEM")
#undef LVM_SETHOTITEM
#pragma push_macro("LVM_SETHOVERTIME")
#undef LVM_SETHOVERTIME
#pragma push_macro("LVM_SETICONSPACING")
#undef LVM_SETICONSPACING
#pragma push_macro("LVM_SETIMAGELIST")
#undef LVM_SETIMAGELIST
#pragma push_macro("LVM_SETITEMA")
#undef LVM_SETITEMA
#pragma push_macro("LVM_SETITEMCOUNT")
#undef LVM_SETITEMCOUNT
#pragma push_macro("LVM_SETITEMPOSITION")
#undef LVM_SETITEMPOSITION
#pragma push_macro("LVM_SETITEMPOSITION32")
#undef LVM_SETITEMPOSITION32
#pragma push_macro("LVM_SETITEMSTATE")
#undef LVM_SETITEMSTATE
#pragma push_macro("LVM_SETITEMTEXTA")
#undef LVM_SETITEMTEXTA
#pragma push_macro("LVM_SETSELECTIONMARK")
#undef LVM_SETSELECTIONMARK
#pragma push_macro("LVM_SETTEXTBKCOLOR")
#undef LVM_SETTEXTBKCOLOR
#pragma push_macro("LVM_SETTEXTCOLOR")
#undef LVM_SETTEXTCOLOR
#pragma push_macro("LVM_SETTOOLTIPS")
#undef LVM_SETTOOLTIPS
#pragma push_macro("LVM_SETWORKAREAS")
#undef LVM_SETWORKAREAS
#pragma push_macro("LVM_SORTITEMS")
#undef LVM_SORTITEMS
#pragma push_macro("LVM_SORTITEMSEX")
#undef LVM_SORTITEMSEX
#pragma push_macro("LVM_SUBITEMHITTEST")
#undef LVM_SUBITEMHITTEST
#pragma push_macro("LVM_UPDATE")
#undef LVM_UPDATE
#pragma push_macro("LVS_EX_BORDERSELECT")
#undef LVS_EX_BORDERSELECT
#pragma push_macro("LVS_EX_CHECKBOXES")
#undef LVS_EX_CHECKBOXES
#pragma push_macro("LVS_EX_DOUBLEBUFFER")
#undef LVS_EX_DOUBLEBUFFER
#pragma push_macro("LVS_EX_FLATSB")
#undef LVS_EX_FLATSB
#pragma push_macro("LVS_EX_FULLROWSELECT")
#undef LVS_EX_FULLROWSELECT
#pragma push_macro("LVS_EX_GRIDLINES")
#undef LVS_EX_GRIDLINES
#pragma push_macro("LVS_EX_HEADERDRAGDROP")
#undef LVS_EX_HEADERDRAGDROP
#pragma push_macro("LVS_EX_HIDELABELS")
#undef LVS_EX_HIDELABELS
#pragma push_macro("LVS_EX_INFOTIP")
#undef LVS_EX_INFOTIP
#pragma push_macro("LVS_EX_LABELTIP")
#undef LVS_EX_LABELTIP
#pragma push_macro("LVS_EX_MULTIWORKAREAS")
#undef LVS_EX_MULTIWORKAREAS
#pragma push_macro("LVS_EX_ONECLICKACTIVATE")
#undef LVS_EX_ONECLICKACTIVATE
#pragma push_macro("LVS_EX_REGIONAL")
#undef LVS_EX_REGIONAL
#pragma push_macro("LVS_EX_SIMPLESELECT")
#undef LVS_EX_SIMPLESELECT
#pragma push_macro("LVS_EX_SINGLEROW")
#undef LVS_EX_SINGLEROW
#pragma push_macro("LVS_EX_SNAPTOGRID")
#undef LVS_EX_SNAPTOGRID
#pragma push_macro("LVS_EX_SUBITEMIMAGES")
#undef LVS_EX_SUBITEMIMAGES
#pragma push_macro("LVS_EX_TRACKSELECT")
#undef LVS_EX_TRACKSELECT
#pragma push_macro("LVS_EX_TWOCLICKACTIVATE")
#undef LVS_EX_TWOCLICKACTIVATE
#pragma push_macro("LVS_EX_UNDERLINECOLD")
#undef LVS_EX_UNDERLINECOLD
#pragma push_macro("LVS_EX_UNDERLINEHOT")
#undef LVS_EX_UNDERLINEHOT
#pragma push_macro("REG_BINARY")
#undef REG_BINARY
#pragma push_macro("REG_DWORD")
#undef REG_DWORD
#pragma push_macro("REG_DWORD_BIG_ENDIAN")
#undef REG_DWORD_BIG_ENDIAN
#pragma push_macro("REG_DWORD_LITTLE_ENDIAN")
#undef REG_DWORD_LITTLE_ENDIAN
#pragma push_macro("REG_EXPAND_SZ")
#undef REG_EXPAND_SZ
#pragma push_macro("REG_FULL_RESOURCE_DESCRIPTOR")
#undef REG_FULL_RESOURCE_DESCRIPTOR
#pragma push_macro("REG_LEGAL_CHANGE_FILTER")
#undef REG_LEGAL_CHANGE_FILTER
#pragma push_macro("REG_LINK")
#undef REG_LINK
#pragma push_macro("REG_MULTI_SZ")
#undef REG_MULTI_SZ
#pragma push_macro("REG_NONE")
#undef REG_NONE
#pragma push_macro("REG_NOTIFY_CHANGE_ATTRIBUTES")
#undef REG_NOTIFY_CHANGE_ATTRIBUTES
#pragma push_macro("REG_NOTIFY_CHANGE_LAST_SET")
#undef REG_NOTIFY_CHANGE_LAST_SET
#pragma push_macro("REG_NOTIFY_CHANGE_NAME")
#undef REG_NOTIFY_CHANGE_NAME
#pragma push_macro("REG_NOTIFY_CHANGE_SECURITY")
#undef REG_NOTIFY_CHANGE_SECURITY
#pragma push_macro("REG_OPENED_EXISTING_KEY")
#undef REG_OPENED_EXISTING_KEY
#pragma push_macro("REG_OPTION_BACKUP_RESTORE")
#undef REG_OPTION_BACKUP_RESTORE
#pragma push_macro("REG_OPTION_NON_VOLATILE")
#undef REG_OPTION_NON_VOLATILE
#pragma push_macro("REG_OPTION_VOLATILE")
#undef REG_OPTION_VOLATILE
#pragma push_macro("REG_REFRESH_HIVE")
#undef REG_REFRESH_HIVE
#pragma push_macro("REG_RESOURCE_LIST")
#undef REG_RESOURCE_LIST
#pragma push_macro("REG_RESOURCE_REQUIREMENTS_LIST")
#undef REG_RESOURCE_REQUIREMENTS_LIST
#pragma push_macro("REG_SZ")
#undef REG_SZ
#pragma push_macro("SPECIFIC_RIGHTS_ALL")
#undef SPECIFIC_RIGHTS_ALL
#pragma push_macro("STANDARD_RIGHTS_ALL")
#undef STANDARD_RIGHTS_ALL

namespace velkor6 {

// One member of an enumeration, for the member reference and the type library.
struct EnumMember {
    std::u16string_view name;
    std::int32_t value;
};

// --- SpecialFolderConsts ------------------------------------------------------------------
// The CSIDL numbers of the special folders. Two values differ from the system's on purpose:
// CSIDL_PROGRAM_FILES shares 42 with CSIDL_PROGRAM_FILESX86, and CSIDL_FLAG_CREATE is -32768.
enum SpecialFolderConsts : std::int32_t {
    CSIDL_FLAG_CREATE = -32768,
    CSIDL_DESKTOP = 0,
    CSIDL_INTERNET = 1,
    CSIDL_PROGRAMS = 2,
    CSIDL_CONTROLS = 3,
    CSIDL_PRINTERS = 4,
    CSIDL_PERSONAL = 5,
    CSIDL_FAVORITES = 6,
    CSIDL_STARTUP = 7,
    CSIDL_RECENT = 8,
    CSIDL_SENDTO = 9,
    CSIDL_BITBUCKET = 10,
    CSIDL_STARTMENU = 11,
    CSIDL_DESKTOPDIRECTORY = 16,
    CSIDL_DRIVES = 17,
    CSIDL_NETWORK = 18,
    CSIDL_NETHOOD = 19,
    CSIDL_FONTS = 20,
    CSIDL_TEMPLATES = 21,
    CSIDL_COMMON_STARTMENU = 22,
    CSIDL_COMMON_PROGRAMS = 23,
    CSIDL_COMMON_STARTUP = 24,
    CSIDL_COMMON_DESKTOPDIRECTORY = 25,
    CSIDL_APPDATA = 26,
    CSIDL_PRINTHOOD = 27,
    CSIDL_LOCAL_APPDATA = 28,
    CSIDL_ALTSTARTUP = 29,
    CSIDL_COMMON_ALTSTARTUP = 30,
    CSIDL_COMMON_FAVORITES = 31,
    CSIDL_INTERNET_CACHE = 32,
    CSIDL_COOKIES = 33,
    CSIDL_HISTORY = 34,
    CSIDL_COMMON_APPDATA = 35,
    CSIDL_WINDOWS = 36,
    CSIDL_SYSTEM = 37,
    CSIDL_MYPICTURES = 39,
    CSIDL_PROFILE = 40,
    CSIDL_SYSTEMX86 = 41,
    CSIDL_PROGRAM_FILES = 42,
    CSIDL_PROGRAM_FILESX86 = 42,
    CSIDL_PROGRAM_FILES_COMMON = 43,
    CSIDL_PROGRAM_FILES_COMMONX86 = 44,
    CSIDL_COMMON_TEMPLATES = 45,
    CSIDL_COMMON_DOCUMENTS = 46,
    CSIDL_COMMON_ADMINTOOLS = 47,
    CSIDL_ADMINTOOLS = 48,
};

inline constexpr EnumMember specialFolderConstsMembers[] = {
    {u"CSIDL_FLAG_CREATE", CSIDL_FLAG_CREATE},
    {u"CSIDL_ADMINTOOLS", CSIDL_ADMINTOOLS},
    {u"CSIDL_ALTSTARTUP", CSIDL_ALTSTARTUP},
    {u"CSIDL_APPDATA", CSIDL_APPDATA},
    {u"CSIDL_BITBUCKET", CSIDL_BITBUCKET},
    {u"CSIDL_COMMON_ADMINTOOLS", CSIDL_COMMON_ADMINTOOLS},
    {u"CSIDL_COMMON_ALTSTARTUP", CSIDL_COMMON_ALTSTARTUP},
    {u"CSIDL_COMMON_APPDATA", CSIDL_COMMON_APPDATA},
    {u"CSIDL_COMMON_DESKTOPDIRECTORY", CSIDL_COMMON_DESKTOPDIRECTORY},
    {u"CSIDL_COMMON_DOCUMENTS", CSIDL_COMMON_DOCUMENTS},
    {u"CSIDL_COMMON_FAVORITES", CSIDL_COMMON_FAVORITES},
    {u"CSIDL_COMMON_PROGRAMS", CSIDL_COMMON_PROGRAMS},
    {u"CSIDL_COMMON_STARTMENU", CSIDL_COMMON_STARTMENU},
    {u"CSIDL_COMMON_STARTUP", CSIDL_COMMON_STARTUP},
    {u"CSIDL_COMMON_TEMPLATES", CSIDL_COMMON_TEMPLATES},
    {u"CSIDL_CONTROLS", CSIDL_CONTROLS},
    {u"CSIDL_COOKIES", CSIDL_COOKIES},
    {u"CSIDL_DESKTOP", CSIDL_DESKTOP},
    {u"CSIDL_DESKTOPDIRECTORY", CSIDL_DESKTOPDIRECTORY},
    {u"CSIDL_DRIVES", CSIDL_DRIVES},
    {u"CSIDL_FAVORITES", CSIDL_FAVORITES},
    {u"CSIDL_FONTS", CSIDL_FONTS},
    {u"CSIDL_HISTORY", CSIDL_HISTORY},
    {u"CSIDL_INTERNET", CSIDL_INTERNET},
    {u"CSIDL_INTERNET_CACHE", CSIDL_INTERNET_CACHE},
    {u"CSIDL_LOCAL_APPDATA", CSIDL_LOCAL_APPDATA},
    {u"CSIDL_MYPICTURES", CSIDL_MYPICTURES},
    {u"CSIDL_NETHOOD", CSIDL_NETHOOD},
    {u"CSIDL_NETWORK", CSIDL_NETWORK},
    {u"CSIDL_PERSONAL", CSIDL_PERSONAL},
    {u"CSIDL_PRINTERS", CSIDL_PRINTERS},
    {u"CSIDL_PRINTHOOD", CSIDL_PRINTHOOD},
    {u"CSIDL_PROFILE", CSIDL_PROFILE},
    {u"CSIDL_PROGRAM_FILES", CSIDL_PROGRAM_FILES},
    {u"CSIDL_PROGRAM_FILES_COMMON", CSIDL_PROGRAM_FILES_COMMON},
    {u"CSIDL_PROGRAM_FILES_COMMONX86", CSIDL_PROGRAM_FILES_COMMONX86},
    {u"CSIDL_PROGRAM_FILESX86", CSIDL_PROGRAM_FILESX86},
    {u"CSIDL_PROGRAMS", CSIDL_PROGRAMS},
    {u"CSIDL_RECENT", CSIDL_RECENT},
    {u"CSIDL_SENDTO", CSIDL_SENDTO},
    {u"CSIDL_STARTMENU", CSIDL_STARTMENU},
    {u"CSIDL_STARTUP", CSIDL_STARTUP},
    {u"CSIDL_SYSTEM", CSIDL_SYSTEM},
    {u"CSIDL_SYSTEMX86", CSIDL_SYSTEMX86},
    {u"CSIDL_TEMPLATES", CSIDL_TEMPLATES},
    {u"CSIDL_WINDOWS", CSIDL_WINDOWS},
};

// --- RegistryKeys -------------------------------------------------------------------------
// The predefined root keys; HKCU, HKLM and HKCR are the short names of three of them.
enum RegistryKeys : std::int32_t {
    HKEY_CLASSES_ROOT = -2147483648,
    HKEY_CURRENT_USER = -2147483647,
    HKEY_LOCAL_MACHINE = -2147483646,
    HKEY_USERS = -2147483645,
    HKEY_PERFORMANCE_DATA = -2147483644,
    HKEY_CURRENT_CONFIG = -2147483643,
    HKEY_DYN_DATA = -2147483642,
    HKCU = -2147483647,
    HKLM = -2147483646,
    HKCR = -2147483648,
};

inline constexpr EnumMember registryKeysMembers[] = {
    {u"HKEY_CLASSES_ROOT", HKEY_CLASSES_ROOT},
    {u"HKEY_CURRENT_USER", HKEY_CURRENT_USER},
    {u"HKEY_LOCAL_MACHINE", HKEY_LOCAL_MACHINE},
    {u"HKEY_USERS", HKEY_USERS},
    {u"HKEY_PERFORMANCE_DATA", HKEY_PERFORMANCE_DATA},
    {u"HKEY_CURRENT_CONFIG", HKEY_CURRENT_CONFIG},
    {u"HKEY_DYN_DATA", HKEY_DYN_DATA},
    {u"HKCU", HKCU},
    {u"HKLM", HKLM},
    {u"HKCR", HKCR},
};

// --- RegistryRights -----------------------------------------------------------------------
// Access rights of a registry key.
enum RegistryRights : std::int32_t {
    KEY_QUERY_VALUE = 1,
    KEY_SET_VALUE = 2,
    KEY_CREATE_SUB_KEY = 4,
    KEY_ENUMERATE_SUB_KEYS = 8,
    KEY_NOTIFY = 16,
    KEY_CREATE_LINK = 32,
    KEY_SYNCHRONIZE = 1048576,
    KEY_ALL_ACCESS = 63,
};

inline constexpr EnumMember registryRightsMembers[] = {
    {u"KEY_QUERY_VALUE", KEY_QUERY_VALUE},
    {u"KEY_SET_VALUE", KEY_SET_VALUE},
    {u"KEY_CREATE_SUB_KEY", KEY_CREATE_SUB_KEY},
    {u"KEY_ENUMERATE_SUB_KEYS", KEY_ENUMERATE_SUB_KEYS},
    {u"KEY_NOTIFY", KEY_NOTIFY},
    {u"KEY_CREATE_LINK", KEY_CREATE_LINK},
    {u"KEY_SYNCHRONIZE", KEY_SYNCHRONIZE},
    {u"KEY_ALL_ACCESS", KEY_ALL_ACCESS},
};

// --- RegistryValueTypes -------------------------------------------------------------------
// The types of registry values.
enum RegistryValueTypes : std::int32_t {
    REG_NONE = 0,
    REG_SZ = 1,
    REG_EXPAND_SZ = 2,
    REG_BINARY = 3,
    REG_DWORD = 4,
    REG_DWORD_LITTLE_ENDIAN = 4,
    REG_DWORD_BIG_ENDIAN = 5,
    REG_LINK = 6,
    REG_MULTI_SZ = 7,
    REG_RESOURCE_LIST = 8,
    REG_FULL_RESOURCE_DESCRIPTOR = 9,
    REG_RESOURCE_REQUIREMENTS_LIST = 10,
};

inline constexpr EnumMember registryValueTypesMembers[] = {
    {u"REG_NONE", REG_NONE},
    {u"REG_SZ", REG_SZ},
    {u"REG_EXPAND_SZ", REG_EXPAND_SZ},
    {u"REG_BINARY", REG_BINARY},
    {u"REG_DWORD", REG_DWORD},
    {u"REG_DWORD_LITTLE_ENDIAN", REG_DWORD_LITTLE_ENDIAN},
    {u"REG_DWORD_BIG_ENDIAN", REG_DWORD_BIG_ENDIAN},
    {u"REG_LINK", REG_LINK},
    {u"REG_MULTI_SZ", REG_MULTI_SZ},
    {u"REG_RESOURCE_LIST", REG_RESOURCE_LIST},
    {u"REG_FULL_RESOURCE_DESCRIPTOR", REG_FULL_RESOURCE_DESCRIPTOR},
    {u"REG_RESOURCE_REQUIREMENTS_LIST", REG_RESOURCE_REQUIREMENTS_LIST},
};

// --- RegistryErrorCodeConstants -----------------------------------------------------------
// Result codes of the registry functions.
enum RegistryErrorCodeConstants : std::int32_t {
    ERROR_SUCCESS = 0,
    ERROR_ACCESS_DENIED = 5,
    ERROR_NO_MORE_ITEMS = 259,
    ERROR_BADKEY = 1010,
    ERROR_CANTOPEN = 1011,
};

inline constexpr EnumMember registryErrorCodeConstantsMembers[] = {
    {u"ERROR_SUCCESS", ERROR_SUCCESS},
    {u"ERROR_ACCESS_DENIED", ERROR_ACCESS_DENIED},
    {u"ERROR_NO_MORE_ITEMS", ERROR_NO_MORE_ITEMS},
    {u"ERROR_BADKEY", ERROR_BADKEY},
    {u"ERROR_CANTOPEN", ERROR_CANTOPEN},
};

// --- RegistryOptions ----------------------------------------------------------------------
// Options and notification filters of the registry functions; REG_WHOLE_HIVE_VOLITLE keeps
// the spelling clients know.
enum RegistryOptions : std::int32_t {
    REG_CREATE_NEW_KEY = 1,
    REG_OPENED_EXISTING_KEY = 2,
    REG_WHOLE_HIVE_VOLITLE = 1,
    REG_REFRESH_HIVE = 2,
    REG_NOTIFY_CHANGE_NAME = 1,
    REG_NOTIFY_CHANGE_ATTRIBUTES = 2,
    REG_NOTIFY_CHANGE_LAST_SET = 4,
    REG_NOTIFY_CHANGE_SECURITY = 8,
    REG_LEGAL_CHANGE_FILTER = 15,
    REG_OPTION_NON_VOLATILE = 0,
    REG_OPTION_VOLATILE = 1,
    REG_OPTION_BACKUP_RESTORE = 4,
};

inline constexpr EnumMember registryOptionsMembers[] = {
    {u"REG_CREATE_NEW_KEY", REG_CREATE_NEW_KEY},
    {u"REG_OPENED_EXISTING_KEY", REG_OPENED_EXISTING_KEY},
    {u"REG_WHOLE_HIVE_VOLITLE", REG_WHOLE_HIVE_VOLITLE},
    {u"REG_REFRESH_HIVE", REG_REFRESH_HIVE},
    {u"REG_NOTIFY_CHANGE_NAME", REG_NOTIFY_CHANGE_NAME},
    {u"REG_NOTIFY_CHANGE_ATTRIBUTES", REG_NOTIFY_CHANGE_ATTRIBUTES},
    {u"REG_NOTIFY_CHANGE_LAST_SET", REG_NOTIFY_CHANGE_LAST_SET},
    {u"REG_NOTIFY_CHANGE_SECURITY", REG_NOTIFY_CHANGE_SECURITY},
    {u"REG_LEGAL_CHANGE_FILTER", REG_LEGAL_CHANGE_FILTER},
    {u"REG_OPTION_NON_VOLATILE", REG_OPTION_NON_VOLATILE},
    {u"REG_OPTION_VOLATILE", REG_OPTION_VOLATILE},
    {u"REG_OPTION_BACKUP_RESTORE", REG_OPTION_BACKUP_RESTORE},
};

// --- Constants ----------------------------------------------------------------------------
// Access masks and the device-capability indexes of the screen's pixels per inch.
enum Constants : std::int32_t {
    STANDARD_RIGHTS_ALL = 2031616,
    SPECIFIC_RIGHTS_ALL = -1,
    libLOGPIXELSX = 88,
    libLOGPIXELSY = 90,
};

inline constexpr EnumMember constantsMembers[] = {
    {u"STANDARD_RIGHTS_ALL", STANDARD_RIGHTS_ALL},
    {u"SPECIFIC_RIGHTS_ALL", SPECIFIC_RIGHTS_ALL},
    {u"libLOGPIXELSX", libLOGPIXELSX},
    {u"libLOGPIXELSY", libLOGPIXELSY},
};

// --- ListViewMessageConsts ----------------------------------------------------------------------
// The messages of a list-view window (ANSI forms), from LVM_FIRST (4096).
enum ListViewMessageConsts : std::int32_t {
    LVM_FIRST = 4096,
    LVM_GETBKCOLOR = 4096,
    LVM_SETBKCOLOR = 4097,
    LVM_GETIMAGELIST = 4098,
    LVM_SETIMAGELIST = 4099,
    LVM_GETITEMCOUNT = 4100,
    LVM_GETITEMA = 4101,
    LVM_SETITEMA = 4102,
    LVM_INSERTITEMA = 4103,
    LVM_DELETEITEM = 4104,
    LVM_DELETEALLITEMS = 4105,
    LVM_GETCALLBACKMASK = 4106,
    LVM_SETCALLBACKMASK = 4107,
    LVM_GETNEXTITEM = 4108,
    LVM_FINDITEMA = 4109,
    LVM_GETITEMRECT = 4110,
    LVM_SETITEMPOSITION = 4111,
    LVM_GETITEMPOSITION = 4112,
    LVM_GETSTRINGWIDTHA = 4113,
    LVM_HITTEST = 4114,
    LVM_ENSUREVISIBLE = 4115,
    LVM_SCROLL = 4116,
    LVM_REDRAWITEMS = 4117,
    LVM_ARRANGE = 4118,
    LVM_EDITLABELA = 4119,
    LVM_GETEDITCONTROL = 4120,
    LVM_GETCOLUMNA = 4121,
    LVM_SETCOLUMNA = 4122,
    LVM_INSERTCOLUMNA = 4123,
    LVM_DELETECOLUMN = 4124,
    LVM_GETCOLUMNWIDTH = 4125,
    LVM_SETCOLUMNWIDTH = 4126,
    LVM_GETHEADER = 4127,
    LVM_CREATEDRAGIMAGE = 4129,
    LVM_GETVIEWRECT = 4130,
    LVM_GETTEXTCOLOR = 4131,
    LVM_SETTEXTCOLOR = 4132,
    LVM_GETTEXTBKCOLOR = 4133,
    LVM_SETTEXTBKCOLOR = 4134,
    LVM_GETTOPINDEX = 4135,
    LVM_GETCOUNTPERPAGE = 4136,
    LVM_GETORIGIN = 4137,
    LVM_UPDATE = 4138,
    LVM_SETITEMSTATE = 4139,
    LVM_GETITEMSTATE = 4140,
    LVM_GETITEMTEXTA = 4141,
    LVM_SETITEMTEXTA = 4142,
    LVM_SETITEMCOUNT = 4143,
    LVM_SORTITEMS = 4144,
    LVM_SETITEMPOSITION32 = 4145,
    LVM_GETSELECTEDCOUNT = 4146,
    LVM_GETITEMSPACING = 4147,
    LVM_GETISEARCHSTRINGA = 4148,
    LVM_SETICONSPACING = 4149,
    LVM_SETEXTENDEDLISTVIEWSTYLE = 4150,
    LVM_GETEXTENDEDLISTVIEWSTYLE = 4151,
    LVM_GETSUBITEMRECT = 4152,
    LVM_SUBITEMHITTEST = 4153,
    LVM_SETCOLUMNORDERARRAY = 4154,
    LVM_GETCOLUMNORDERARRAY = 4155,
    LVM_SETHOTITEM = 4156,
    LVM_GETHOTITEM = 4157,
    LVM_SETHOTCURSOR = 4158,
    LVM_GETHOTCURSOR = 4159,
    LVM_APPROXIMATEVIEWRECT = 4160,
    LVM_SETWORKAREAS = 4161,
    LVM_GETSELECTIONMARK = 4162,
    LVM_SETSELECTIONMARK = 4163,
    LVM_SETBKIMAGEA = 4164,
    LVM_GETBKIMAGEA = 4165,
    LVM_GETWORKAREAS = 4166,
    LVM_SETHOVERTIME = 4167,
    LVM_GETHOVERTIME = 4168,
    LVM_GETNUMBEROFWORKAREAS = 4169,
    LVM_SETTOOLTIPS = 4170,
    LVM_GETTOOLTIPS = 4174,
    LVM_SORTITEMSEX = 4177,
};

inline constexpr EnumMember listViewMessageConstsMembers[] = {
    {u"LVM_FIRST", LVM_FIRST},
    {u"LVM_GETBKCOLOR", LVM_GETBKCOLOR},
    {u"LVM_SETBKCOLOR", LVM_SETBKCOLOR},
    {u"LVM_GETIMAGELIST", LVM_GETIMAGELIST},
    {u"LVM_SETIMAGELIST", LVM_SETIMAGELIST},
    {u"LVM_GETITEMCOUNT", LVM_GETITEMCOUNT},
    {u"LVM_GETITEMA", LVM_GETITEMA},
    {u"LVM_SETITEMA", LVM_SETITEMA},
    {u"LVM_INSERTITEMA", LVM_INSERTITEMA},
    {u"LVM_DELETEITEM", LVM_DELETEITEM},
    {u"LVM_DELETEALLITEMS", LVM_DELETEALLITEMS},
    {u"LVM_GETCALLBACKMASK", LVM_GETCALLBACKMASK},
    {u"LVM_SETCALLBACKMASK", LVM_SETCALLBACKMASK},
    {u"LVM_GETNEXTITEM", LVM_GETNEXTITEM},
    {u"LVM_FINDITEMA", LVM_FINDITEMA},
    {u"LVM_GETITEMRECT", LVM_GETITEMRECT},
    {u"LVM_SETITEMPOSITION", LVM_SETITEMPOSITION},
    {u"LVM_GETITEMPOSITION", LVM_GETITEMPOSITION},
    {u"LVM_GETSTRINGWIDTHA", LVM_GETSTRINGWIDTHA},
    {u"LVM_HITTEST", LVM_HITTEST},
    {u"LVM_ENSUREVISIBLE", LVM_ENSUREVISIBLE},
    {u"LVM_SCROLL", LVM_SCROLL},
    {u"LVM_REDRAWITEMS", LVM_REDRAWITEMS},
    {u"LVM_ARRANGE", LVM_ARRANGE},
    {u"LVM_EDITLABELA", LVM_EDITLABELA},
    {u"LVM_GETEDITCONTROL", LVM_GETEDITCONTROL},
    {u"LVM_GETCOLUMNA", LVM_GETCOLUMNA},
    {u"LVM_SETCOLUMNA", LVM_SETCOLUMNA},
    {u"LVM_INSERTCOLUMNA", LVM_INSERTCOLUMNA},
    {u"LVM_DELETECOLUMN", LVM_DELETECOLUMN},
    {u"LVM_GETCOLUMNWIDTH", LVM_GETCOLUMNWIDTH},
    {u"LVM_SETCOLUMNWIDTH", LVM_SETCOLUMNWIDTH},
    {u"LVM_GETHEADER", LVM_GETHEADER},
    {u"LVM_CREATEDRAGIMAGE", LVM_CREATEDRAGIMAGE},
    {u"LVM_GETVIEWRECT", LVM_GETVIEWRECT},
    {u"LVM_GETTEXTCOLOR", LVM_GETTEXTCOLOR},
    {u"LVM_SETTEXTCOLOR", LVM_SETTEXTCOLOR},
    {u"LVM_GETTEXTBKCOLOR", LVM_GETTEXTBKCOLOR},
    {u"LVM_SETTEXTBKCOLOR", LVM_SETTEXTBKCOLOR},
    {u"LVM_GETTOPINDEX", LVM_GETTOPINDEX},
    {u"LVM_GETCOUNTPERPAGE", LVM_GETCOUNTPERPAGE},
    {u"LVM_GETORIGIN", LVM_GETORIGIN},
    {u"LVM_UPDATE", LVM_UPDATE},
    {u"LVM_SETITEMSTATE", LVM_SETITEMSTATE},
    {u"LVM_GETITEMSTATE", LVM_GETITEMSTATE},
    {u"LVM_GETITEMTEXTA", LVM_GETITEMTEXTA},
    {u"LVM_SETITEMTEXTA", LVM_SETITEMTEXTA},
    {u"LVM_SETITEMCOUNT", LVM_SETITEMCOUNT},
    {u"LVM_SORTITEMS", LVM_SORTITEMS},
    {u"LVM_SETITEMPOSITION32", LVM_SETITEMPOSITION32},
    {u"LVM_GETSELECTEDCOUNT", LVM_GETSELECTEDCOUNT},
    {u"LVM_GETITEMSPACING", LVM_GETITEMSPACING},
    {u"LVM_GETISEARCHSTRINGA", LVM_GETISEARCHSTRINGA},
    {u"LVM_SETICONSPACING", LVM_SETICONSPACING},
    {u"LVM_SETEXTENDEDLISTVIEWSTYLE", LVM_SETEXTENDEDLISTVIEWSTYLE},
    {u"LVM_GETEXTENDEDLISTVIEWSTYLE", LVM_GETEXTENDEDLISTVIEWSTYLE},
    {u"LVM_GETSUBITEMRECT", LVM_GETSUBITEMRECT},
    {u"LVM_SUBITEMHITTEST", LVM_SUBITEMHITTEST},
    {u"LVM_SETCOLUMNORDERARRAY", LVM_SETCOLUMNORDERARRAY},
    {u"LVM_GETCOLUMNORDERARRAY", LVM_GETCOLUMNORDERARRAY},
    {u"LVM_SETHOTITEM", LVM_SETHOTITEM},
    {u"LVM_GETHOTITEM", LVM_GETHOTITEM},
    {u"LVM_SETHOTCURSOR", LVM_SETHOTCURSOR},
    {u"LVM_GETHOTCURSOR", LVM_GETHOTCURSOR},
    {u"LVM_APPROXIMATEVIEWRECT", LVM_APPROXIMATEVIEWRECT},
    {u"LVM_SETWORKAREAS", LVM_SETWORKAREAS},
    {u"LVM_GETSELECTIONMARK", LVM_GETSELECTIONMARK},
    {u"LVM_SETSELECTIONMARK", LVM_SETSELECTIONMARK},
    {u"LVM_SETBKIMAGEA", LVM_SETBKIMAGEA},
    {u"LVM_GETBKIMAGEA", LVM_GETBKIMAGEA},
    {u"LVM_GETWORKAREAS", LVM_GETWORKAREAS},
    {u"LVM_SETHOVERTIME", LVM_SETHOVERTIME},
    {u"LVM_GETHOVERTIME", LVM_GETHOVERTIME},
    {u"LVM_GETNUMBEROFWORKAREAS", LVM_GETNUMBEROFWORKAREAS},
    {u"LVM_SETTOOLTIPS", LVM_SETTOOLTIPS},
    {u"LVM_GETTOOLTIPS", LVM_GETTOOLTIPS},
    {u"LVM_SORTITEMSEX", LVM_SORTITEMSEX},
};

// --- ListViewExStyleConsts ----------------------------------------------------------------------
// The extended list-view styles (LVM_SETEXTENDEDLISTVIEWSTYLE).
enum ListViewExStyleConsts : std::int32_t {
    LVS_EX_GRIDLINES = 1,
    LVS_EX_SUBITEMIMAGES = 2,
    LVS_EX_CHECKBOXES = 4,
    LVS_EX_TRACKSELECT = 8,
    LVS_EX_HEADERDRAGDROP = 16,
    LVS_EX_FULLROWSELECT = 32,
    LVS_EX_ONECLICKACTIVATE = 64,
    LVS_EX_TWOCLICKACTIVATE = 128,
    LVS_EX_FLATSB = 256,
    LVS_EX_REGIONAL = 512,
    LVS_EX_INFOTIP = 1024,
    LVS_EX_UNDERLINEHOT = 2048,
    LVS_EX_UNDERLINECOLD = 4096,
    LVS_EX_MULTIWORKAREAS = 8192,
    LVS_EX_LABELTIP = 16384,
    LVS_EX_BORDERSELECT = 32768,
    LVS_EX_DOUBLEBUFFER = 65536,
    LVS_EX_HIDELABELS = 131072,
    LVS_EX_SINGLEROW = 262144,
    LVS_EX_SNAPTOGRID = 524288,
    LVS_EX_SIMPLESELECT = 1048576,
};

inline constexpr EnumMember listViewExStyleConstsMembers[] = {
    {u"LVS_EX_GRIDLINES", LVS_EX_GRIDLINES},
    {u"LVS_EX_SUBITEMIMAGES", LVS_EX_SUBITEMIMAGES},
    {u"LVS_EX_CHECKBOXES", LVS_EX_CHECKBOXES},
    {u"LVS_EX_TRACKSELECT", LVS_EX_TRACKSELECT},
    {u"LVS_EX_HEADERDRAGDROP", LVS_EX_HEADERDRAGDROP},
    {u"LVS_EX_FULLROWSELECT", LVS_EX_FULLROWSELECT},
    {u"LVS_EX_ONECLICKACTIVATE", LVS_EX_ONECLICKACTIVATE},
    {u"LVS_EX_TWOCLICKACTIVATE", LVS_EX_TWOCLICKACTIVATE},
    {u"LVS_EX_FLATSB", LVS_EX_FLATSB},
    {u"LVS_EX_REGIONAL", LVS_EX_REGIONAL},
    {u"LVS_EX_INFOTIP", LVS_EX_INFOTIP},
    {u"LVS_EX_UNDERLINEHOT", LVS_EX_UNDERLINEHOT},
    {u"LVS_EX_UNDERLINECOLD", LVS_EX_UNDERLINECOLD},
    {u"LVS_EX_MULTIWORKAREAS", LVS_EX_MULTIWORKAREAS},
    {u"LVS_EX_LABELTIP", LVS_EX_LABELTIP},
    {u"LVS_EX_BORDERSELECT", LVS_EX_BORDERSELECT},
    {u"LVS_EX_DOUBLEBUFFER", LVS_EX_DOUBLEBUFFER},
    {u"LVS_EX_HIDELABELS", LVS_EX_HIDELABELS},
    {u"LVS_EX_SINGLEROW", LVS_EX_SINGLEROW},
    {u"LVS_EX_SNAPTOGRID", LVS_EX_SNAPTOGRID},
    {u"LVS_EX_SIMPLESELECT", LVS_EX_SIMPLESELECT},
};

// --- ListViewFindItemFlags ----------------------------------------------------------------------
// How LVM_FINDITEM searches.
enum ListViewFindItemFlags : std::int32_t {
    LVFI_PARAM = 1,
    LVFI_STRING = 2,
    LVFI_PARTIAL = 8,
    LVFI_WRAP = 32,
    LVFI_NEARESTXY = 64,
};

inline constexpr EnumMember listViewFindItemFlagsMembers[] = {
    {u"LVFI_PARAM", LVFI_PARAM},         {u"LVFI_STRING", LVFI_STRING},
    {u"LVFI_PARTIAL", LVFI_PARTIAL},     {u"LVFI_WRAP", LVFI_WRAP},
    {u"LVFI_NEARESTXY", LVFI_NEARESTXY},
};

// --- ButtonStyleConsts ---------------------------------------------------------------------
// The text alignment bits of a button's window style: left, right and centre share the mask
// BS_CENTER; BS_TOP is a vertical bit of its own.
enum ButtonStyleConsts : std::int32_t {
    BS_LEFT = 256,
    BS_RIGHT = 512,
    BS_CENTER = 768,
    BS_TOP = 1024,
};

inline constexpr EnumMember buttonStyleConstsMembers[] = {
    {u"BS_LEFT", BS_LEFT},
    {u"BS_RIGHT", BS_RIGHT},
    {u"BS_CENTER", BS_CENTER},
    {u"BS_TOP", BS_TOP},
};

} // namespace velkor6

// Restores the system's macros set aside at the top.
#pragma pop_macro("BS_CENTER")
#pragma pop_macro("BS_LEFT")
#pragma pop_macro("BS_RIGHT")
#pragma pop_macro("BS_TOP")
#pragma pop_macro("CSIDL_ADMINTOOLS")
#pragma pop_macro("CSIDL_ALTSTARTUP")
#pragma pop_macro("CSIDL_APPDATA")
#pragma pop_macro("CSIDL_BITBUCKET")
#pragma pop_macro("CSIDL_COMMON_ADMINTOOLS")
#pragma pop_macro("CSIDL_COMMON_ALTSTARTUP")
#pragma pop_macro("CSIDL_COMMON_APPDATA")
#pragma pop_macro("CSIDL_COMMON_DESKTOPDIRECTORY")
#pragma pop_macro("CSIDL_COMMON_DOCUMENTS")
#pragma pop_macro("CSIDL_COMMON_FAVORITES")
#pragma pop_macro("CSIDL_COMMON_PROGRAMS")
#pragma pop_macro("CSIDL_COMMON_STARTMENU")
#pragma pop_macro("CSIDL_COMMON_STARTUP")
#pragma pop_macro("CSIDL_COMMON_TEMPLATES")
#pragma pop_macro("CSIDL_CONTROLS")
#pragma pop_macro("CSIDL_COOKIES")
#pragma pop_macro("CSIDL_DESKTOP")
#pragma pop_macro("CSIDL_DESKTOPDIRECTORY")
#pragma pop_macro("CSIDL_DRIVES")
#pragma pop_macro("CSIDL_FAVORITES")
#pragma pop_macro("CSIDL_FLAG_CREATE")
#pragma pop_macro("CSIDL_FONTS")
#pragma pop_macro("CSIDL_HISTORY")
#pragma pop_macro("CSIDL_INTERNET")
#pragma pop_macro("CSIDL_INTERNET_CACHE")
#pragma pop_macro("CSIDL_LOCAL_APPDATA")
#pragma pop_macro("CSIDL_MYPICTURES")
#pragma pop_macro("CSIDL_NETHOOD")
#pragma pop_macro("CSIDL_NETWORK")
#pragma pop_macro("CSIDL_PERSONAL")
#pragma pop_macro("CSIDL_PRINTERS")
#pragma pop_macro("CSIDL_PRINTHOOD")
#pragma pop_macro("CSIDL_PROFILE")
#pragma pop_macro("CSIDL_PROGRAMS")
#pragma pop_macro("CSIDL_PROGRAM_FILES")
#pragma pop_macro("CSIDL_PROGRAM_FILESX86")
#pragma pop_macro("CSIDL_PROGRAM_FILES_COMMON")
#pragma pop_macro("CSIDL_PROGRAM_FILES_COMMONX86")
#pragma pop_macro("CSIDL_RECENT")
#pragma pop_macro("CSIDL_SENDTO")
#pragma pop_macro("CSIDL_STARTMENU")
#pragma pop_macro("CSIDL_STARTUP")
#pragma pop_macro("CSIDL_SYSTEM")
#pragma pop_macro("CSIDL_SYSTEMX86")
#pragma pop_macro("CSIDL_TEMPLATES")
#pragma pop_macro("CSIDL_WINDOWS")
#pragma pop_macro("ERROR_ACCESS_DENIED")
#pragma pop_macro("ERROR_BADKEY")
#pragma pop_macro("ERROR_CANTOPEN")
#pragma pop_macro("ERROR_NO_MORE_ITEMS")
#pragma pop_macro("ERROR_SUCCESS")
#pragma pop_macro("HKEY_CLASSES_ROOT")
#pragma pop_macro("HKEY_CURRENT_CONFIG")
#pragma pop_macro("HKEY_CURRENT_USER")
#pragma pop_macro("HKEY_DYN_DATA")
#pragma pop_macro("HKEY_LOCAL_MACHINE")
#pragma pop_macro("HKEY_PERFORMANCE_DATA")
#pragma pop_macro("HKEY_USERS")
#pragma pop_macro("KEY_ALL_ACCESS")
#pragma pop_macro("KEY_CREATE_LINK")
#pragma pop_macro("KEY_CREATE_SUB_KEY")
#pragma pop_macro("KEY_ENUMERATE_SUB_KEYS")
#pragma pop_macro("KEY_NOTIFY")
#pragma pop_macro("KEY_QUERY_VALUE")
#pragma pop_macro("KEY_SET_VALUE")
#pragma pop_macro("LVFI_NEARESTXY")
#pragma pop_macro("LVFI_PARAM")
#pragma pop_macro("LVFI_PARTIAL")
#pragma pop_macro("LVFI_STRING")
#pragma pop_macro("LVFI_WRAP")
#pragma pop_macro("LVM_APPROXIMATEVIEWRECT")
#pragma pop_macro("LVM_ARRANGE")
#pragma pop_macro("LVM_CREATEDRAGIMAGE")
#pragma pop_macro("LVM_DELETEALLITEMS")
#pragma pop_macro("LVM_DELETECOLUMN")
#pragma pop_macro("LVM_DELETEITEM")
#pragma pop_macro("LVM_EDITLABELA")
#pragma pop_macro("LVM_ENSUREVISIBLE")
#pragma pop_macro("LVM_FINDITEMA")
#pragma pop_macro("LVM_FIRST")
#pragma pop_macro("LVM_GETBKCOLOR")
#pragma pop_macro("LVM_GETBKIMAGEA")
#pragma pop_macro("LVM_GETCALLBACKMASK")
#pragma pop_macro("LVM_GETCOLUMNA")
#pragma pop_macro("LVM_GETCOLUMNORDERARRAY")
#pragma pop_macro("LVM_GETCOLUMNWIDTH")
#pragma pop_macro("LVM_GETCOUNTPERPAGE")
#pragma pop_macro("LVM_GETEDITCONTROL")
#pragma pop_macro("LVM_GETEXTENDEDLISTVIEWSTYLE")
#pragma pop_macro("LVM_GETHEADER")
#pragma pop_macro("LVM_GETHOTCURSOR")
#pragma pop_macro("LVM_GETHOTITEM")
#pragma pop_macro("LVM_GETHOVERTIME")
#pragma pop_macro("LVM_GETIMAGELIST")
#pragma pop_macro("LVM_GETISEARCHSTRINGA")
#pragma pop_macro("LVM_GETITEMA")
#pragma pop_macro("LVM_GETITEMCOUNT")
#pragma pop_macro("LVM_GETITEMPOSITION")
#pragma pop_macro("LVM_GETITEMRECT")
#pragma pop_macro("LVM_GETITEMSPACING")
#pragma pop_macro("LVM_GETITEMSTATE")
#pragma pop_macro("LVM_GETITEMTEXTA")
#pragma pop_macro("LVM_GETNEXTITEM")
#pragma pop_macro("LVM_GETNUMBEROFWORKAREAS")
#pragma pop_macro("LVM_GETORIGIN")
#pragma pop_macro("LVM_GETSELECTEDCOUNT")
#pragma pop_macro("LVM_GETSELECTIONMARK")
#pragma pop_macro("LVM_GETSTRINGWIDTHA")
#pragma pop_macro("LVM_GETSUBITEMRECT")
#pragma pop_macro("LVM_GETTEXTBKCOLOR")
#pragma pop_macro("LVM_GETTEXTCOLOR")
#pragma pop_macro("LVM_GETTOOLTIPS")
#pragma pop_macro("LVM_GETTOPINDEX")
#pragma pop_macro("LVM_GETVIEWRECT")
#pragma pop_macro("LVM_GETWORKAREAS")
#pragma pop_macro("LVM_HITTEST")
#pragma pop_macro("LVM_INSERTCOLUMNA")
#pragma pop_macro("LVM_INSERTITEMA")
#pragma pop_macro("LVM_REDRAWITEMS")
#pragma pop_macro("LVM_SCROLL")
#pragma pop_macro("LVM_SETBKCOLOR")
#pragma pop_macro("LVM_SETBKIMAGEA")
#pragma pop_macro("LVM_SETCALLBACKMASK")
#pragma pop_macro("LVM_SETCOLUMNA")
#pragma pop_macro("LVM_SETCOLUMNORDERARRAY")
#pragma pop_macro("LVM_SETCOLUMNWIDTH")
#pragma pop_macro("LVM_SETEXTENDEDLISTVIEWSTYLE")
#pragma pop_macro("LVM_SETHOTCURSOR")
#pragma pop_macro("LVM_SETHOTITEM")
#pragma pop_macro("LVM_SETHOVERTIME")
#pragma pop_macro("LVM_SETICONSPACING")
#pragma pop_macro("LVM_SETIMAGELIST")
#pragma pop_macro("LVM_SETITEMA")
#pragma pop_macro("LVM_SETITEMCOUNT")
#pragma pop_macro("LVM_SETITEMPOSITION")
#pragma pop_macro("LVM_SETITEMPOSITION32")
#pragma pop_macro("LVM_SETITEMSTATE")
#pragma pop_macro("LVM_SETITEMTEXTA")
#pragma pop_macro("LVM_SETSELECTIONMARK")
#pragma pop_macro("LVM_SETTEXTBKCOLOR")
#pragma pop_macro("LVM_SETTEXTCOLOR")
#pragma pop_macro("LVM_SETTOOLTIPS")
#pragma pop_macro("LVM_SETWORKAREAS")
#pragma pop_macro("LVM_SORTITEMS")
#pragma pop_macro("LVM_SORTITEMSEX")
#pragma pop_macro("LVM_SUBITEMHITTEST")
#pragma pop_macro("LVM_UPDATE")
#pragma pop_macro("LVS_EX_BORDERSELECT")
#pragma pop_macro("LVS_EX_CHECKBOXES")
#pragma pop_macro("LVS_EX_DOUBLEBUFFER")
#pragma pop_macro("LVS_EX_FLATSB")
#pragma pop_macro("LVS_EX_FULLROWSELECT")
#pragma pop_macro("LVS_EX_GRIDLINES")
#pragma pop_macro("LVS_EX_HEADERDRAGDROP")
#pragma pop_macro("LVS_EX_HIDELABELS")
#pragma pop_macro("LVS_EX_INFOTIP")
#pragma pop_macro("LVS_EX_LABELTIP")
#pragma pop_macro("LVS_EX_MULTIWORKAREAS")
#pragma pop_macro("LVS_EX_ONECLICKACTIVATE")
#pragma pop_macro("LVS_EX_REGIONAL")
#pragma pop_macro("LVS_EX_SIMPLESELECT")
#pragma pop_macro("LVS_EX_SINGLEROW")
#pragma pop_macro("LVS_EX_SNAPTOGRID")
#pragma pop_macro("LVS_EX_SUBITEMIMAGES")
#pragma pop_macro("LVS_EX_TRACKSELECT")
#pragma pop_macro("LVS_EX_TWOCLICKACTIVATE")
#pragma pop_macro("LVS_EX_UNDERLINECOLD")
#pragma pop_macro("LVS_EX_UNDERLINEHOT")
#pragma pop_macro("REG_BINARY")
#pragma pop_macro("REG_DWORD")
#pragma pop_macro("REG_DWORD_BIG_ENDIAN")
#pragma pop_macro("REG_DWORD_LITTLE_ENDIAN")
#pragma pop_macro("REG_EXPAND_SZ")
#pragma pop_macro("REG_FULL_RESOURCE_DESCRIPTOR")
#pragma pop_macro("REG_LEGAL_CHANGE_FILTER")
#pragma pop_macro("REG_LINK")
#pragma pop_macro("REG_MULTI_SZ")
#pragma pop_macro("REG_NONE")
#pragma pop_macro("REG_NOTIFY_CHANGE_ATTRIBUTES")
#pragma pop_macro("REG_NOTIFY_CHANGE_LAST_SET")
#pragma pop_macro("REG_NOTIFY_CHANGE_NAME")
#pragma pop_macro("REG_NOTIFY_CHANGE_SECURITY")
#pragma pop_macro("REG_OPENED_EXISTING_KEY")
#pragma pop_macro("REG_OPTION_BACKUP_RESTORE")
#pragma pop_macro("REG_OPTION_NON_VOLATILE")
#pragma pop_macro("REG_OPTION_VOLATILE")
#pragma pop_macro("REG_REFRESH_HIVE")
#pragma pop_macro("REG_RESOURCE_LIST")
#pragma pop_macro("REG_RESOURCE_REQUIREMENTS_LIST")
#pragma pop_macro("REG_SZ")
#pragma pop_macro("SPECIFIC_RIGHTS_ALL")
#pragma pop_macro("STANDARD_RIGHTS_ALL")
