// Registry reading: the `lib` members and their rows in the member table.
#include "files/registry.h"

#include "lib/lib_members.h"

namespace velkor6 {

Variant lib::regGetValue(std::int32_t lRegKey, std::u16string_view sRegSubKey,
                         std::u16string_view sValueName, const Variant& vDefaultValue) {
    return files::regGetValue(module().platform().registry.get(), lRegKey, sRegSubKey, sValueName,
                              vDefaultValue, locale());
}

std::int32_t lib::regGetLong(std::int32_t lRegKey, std::u16string_view sRegSubKey,
                             std::u16string_view sValueName, std::int32_t lDefaultValue) {
    return files::regGetLong(module().platform().registry.get(), lRegKey, sRegSubKey, sValueName,
                             lDefaultValue, locale());
}

std::u16string lib::regGetString(std::int32_t lRegKey, std::u16string_view sRegSubKey,
                                 std::u16string_view sValueName,
                                 std::u16string_view sDefaultValue) {
    return files::regGetString(module().platform().registry.get(), lRegKey, sRegSubKey, sValueName,
                               sDefaultValue, locale());
}

std::int32_t lib::regSubKeyCount(std::int32_t lRegKey, std::u16string_view sRegSubKey) {
    return files::regSubKeyCount(module().platform().registry.get(), lRegKey, sRegSubKey);
}

void lib::regFindKeys(std::int32_t lRegKey, std::u16string_view sRegSubKey, VariantArray& sKeys) {
    files::regFindKeys(module().platform().registry.get(), lRegKey, sRegSubKey, sKeys);
}

} // namespace velkor6

namespace velkor6::dispatch {
namespace {

constexpr std::u16string_view posixRegistry =
    u"On POSIX the registry is read from registry scripts (*.reg files as the registry editor "
    u"exports them, \"REGEDIT4\" or \"Windows Registry Editor Version 5.00\") in the folder named "
    u"by the environment variable VELKOR6_REGISTRY, by default velkor6 in the XDG config home "
    u"(~/.config/velkor6). The files apply in name order, a later one overriding an earlier one; "
    u"the scripts may also name the roots HKCR, HKCU, HKLM, HKU and HKCC. Key and value names "
    u"ignore case, sub-keys come in alphabetical order, and names and text pass through the ANSI "
    u"code page (Windows-1252).";

constexpr std::u16string_view posixPointer =
    u"On POSIX the registry is read from registry scripts; see regGetValue.";

std::u16string withNote(std::u16string_view notes, std::u16string_view posix = posixPointer) {
    std::u16string text(notes);
    text += u"\n\n";
    text += posix;
    return text;
}

} // namespace

void addRegistryMembers(Table<lib>& t) {
    using T = VarType;
    const Param key = required(u"lRegKey", T::Long);
    const Param subKey = required(u"sRegSubKey", T::String);
    const Param valueName = required(u"sValueName", T::String);

    t.push_back(
        {51,
         u"regGetValue",
         CallKind::Method,
         {key, subKey, valueName, optional(u"vDefaultValue", T::Variant, Variant::missing())},
         T::Variant,
         [](lib& l, Args& a) -> Variant {
             return l.regGetValue(a.i32(0), a.str(1), a.str(2), a[3]);
         },
         u"A registry value in its stored form: text and binary data as a String, a DWORD "
         u"as a Long; vDefaultValue (or \"\") when it cannot be read.",
         withNote(u"lRegKey is a root (RegistryKeys) or an open key; sRegSubKey names the key "
                  u"below it, sValueName the value (\"\" for the key's default value). Values "
                  u"of more than 1024 bytes, like missing keys and values, give vDefaultValue "
                  u"as passed, or \"\" without one. Binary data gives one character per byte; "
                  u"a DWORD is read in little-endian order also when stored as big-endian. Any "
                  u"other type (multi-string, 64-bit numbers ...) gives \"\" and ignores "
                  u"vDefaultValue. Expandable strings are not expanded.",
                  posixRegistry)});
    t.push_back({52,
                 u"regGetLong",
                 CallKind::Method,
                 {key, subKey, valueName, optional(u"lDefaultValue", T::Long, std::int32_t{0})},
                 T::Long,
                 [](lib& l, Args& a) -> Variant {
                     return l.regGetLong(a.i32(0), a.str(1), a.str(2), a.i32(3));
                 },
                 u"A registry value as a Long: a DWORD as it is, numeric text as its number; "
                 u"lDefaultValue when it cannot be read.",
                 withNote(u"Reads like regGetValue with lDefaultValue as the default, then "
                          u"converts like vkrCVal with the Long type: \"\" and text that is "
                          u"not a number give 0.")});
    t.push_back({53,
                 u"regGetString",
                 CallKind::Method,
                 {key, subKey, valueName, optional(u"sDefaultValue", T::String, u"")},
                 T::String,
                 [](lib& l, Args& a) -> Variant {
                     return l.regGetString(a.i32(0), a.str(1), a.str(2), a.str(3));
                 },
                 u"A registry value as a String (a DWORD as its decimal text); sDefaultValue when "
                 u"it cannot be read.",
                 withNote(u"Reads like regGetValue with sDefaultValue as the default. An "
                          u"existing empty value gives \"\", not the default.")});
    t.push_back({54,
                 u"regSubKeyCount",
                 CallKind::Method,
                 {key, subKey},
                 T::Long,
                 [](lib& l, Args& a) -> Variant { return l.regSubKeyCount(a.i32(0), a.str(1)); },
                 u"The number of keys in the subtree of sRegSubKey, the key itself included; 0 "
                 u"when it does not open.",
                 withNote(u"A key without sub-keys counts 1. A sub-key that cannot be opened "
                          u"ends the counting of its parent's remaining sub-keys. The keys "
                          u"opened for counting stay open.")});
    t.push_back({55,
                 u"regFindKeys",
                 CallKind::Method,
                 {key, subKey, output(u"sKeys", T::Array | T::String)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.regFindKeys(a.i32(0), a.str(1), a[2].array());
                     return Variant();
                 },
                 u"Fills sKeys with the names of the direct sub-keys of sRegSubKey, in the "
                 u"registry's order.",
                 withNote(u"The array starts at 0; without sub-keys it has no elements. A "
                          u"name containing \"|\" comes back as two entries. sKeys is left "
                          u"as it was when the key does not open. The key stays open.")});
}

} // namespace velkor6::dispatch
