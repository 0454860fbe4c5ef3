// Changing, creating and listing folders (the prf folder members of lib).
#pragma once

#include "velkor6/platform/file_system.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor6::files {

// Changes to folder (a trailing separator dropped, except at a root); true when it is then the
// current directory (letter case ignored).
bool changeDir(FileSystem& fs, std::u16string_view folder);

// Creates folder with all missing parents; true when it exists afterwards.
bool makeDir(FileSystem& fs, std::u16string_view folder);

// The normal files of folder that match mask (the directory listing) and then likeFilter (the
// Like operator, letter case counts), in the listing's order.
std::vector<std::u16string> getFileList(FileSystem& fs, std::u16string_view folder,
                                        std::u16string_view mask, std::u16string_view likeFilter);

} // namespace velkor6::files
