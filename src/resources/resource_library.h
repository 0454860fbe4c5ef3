// Resource libraries of an application: finding them through the ResourceDLL setting, reading
// them, and the languages they exist in.
#pragma once

#include "resources/pe_image.h"
#include "velkor6/platform/file_system.h"
#include "velkor6/platform/xml.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6::resources {

// The ResourceDLL setting names the libraries of all languages: "%L" stands for the language.
std::u16string resourceLibraryName(std::u16string_view setting, std::u16string_view language);

// The file of the language's library, as it is named on disk: "%L" in the setting stands for the
// language, and where no file has that name exactly, the file the language list takes for the
// language (its two characters in any letter case) is the one. nullopt when there is none.
std::optional<std::u16string> findResourceLibrary(FileSystem& fs, std::u16string_view setting,
                                                  std::u16string_view language);

// A resource library read from its file, or the system error number loading it gives: 126 for
// a missing file, 5 for one that cannot be read, 193 for one that is no library.
struct LoadedLibrary {
    std::optional<PeImage> image;
    std::int32_t error = 0;
};
// As the system loads a library: a file name without an extension gets ".dll", a trailing "."
// stands for no extension.
LoadedLibrary loadResourceLibrary(FileSystem& fs, std::u16string_view path);

// The string id of the library's string tables, as the system's string loader gives it into a
// buffer of 32767 characters: at most 32766 of them.
std::u16string loadString(const PeImage& image, std::int64_t id);

// A resource's bytes as ANSI text; when a "<" follows the first character, whatever comes
// before the first "<" (a byte-order mark, say) is dropped.
std::u16string resourceText(std::string_view bytes);

// "langid;name;extension" for every language of doc, in its order, whose resource library
// exists: a file matching the setting with "??" for "%L", the two characters there read as the
// extension (in capitals). Nothing when the setting has no "%L".
std::vector<std::u16string> availableLanguages(FileSystem& fs, const XmlDocument& doc,
                                               std::u16string_view setting);

} // namespace velkor6::resources
