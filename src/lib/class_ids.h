// The identities of the automation classes, shared by the COM server and the type library
// writer. Generated once; never change them, clients have them registered and compiled in.
#pragma once

#include <string_view>

namespace velkor6::typelib {

inline constexpr std::u16string_view libraryName = u"velkor6";
inline constexpr std::u16string_view libraryId = u"4FDAFE86-1181-43DB-9669-4B9A9AACEED3";
inline constexpr int libraryMajor = 1;
inline constexpr int libraryMinor = 0;

struct ClassIds {
    std::u16string_view name;    // "lib"; the interface is "_" + name
    std::u16string_view classId; // CLSID
    std::u16string_view interfaceId;
};

inline constexpr ClassIds libIds{u"lib", u"61792E25-897C-44AB-B8C9-86ECA5F7195B",
                                 u"5640A9A1-2B5B-43B7-A661-72A19A736202"};
inline constexpr ClassIds applibIds{u"applib", u"4C7FAAD2-C18C-4255-BB48-590DC6457826",
                                    u"41F95944-FBB0-40A3-A493-E40AC090DD90"};

} // namespace velkor6::typelib
