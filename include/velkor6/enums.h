// Public enumerations of the type library, with the names and values clients use.
#pragma once

#include <cstdint>
#include <string_view>

// The enumerators carry the system's own names, which <windows.h>, <shlobj.h> and their
// companions define as macros of the same values. Those macros are set aside while this header
// is read and restored after it, so that a client may include both in either order.
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

} // namespace velkor6

#include "velkor6/file_dialog_enums.h"

// Restores the system's macros set aside at the top.
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
