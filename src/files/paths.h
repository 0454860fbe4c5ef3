// Building, splitting and resolving paths (the path members of lib).
#pragma once

#include "velkor6/platform/file_system.h"
#include "velkor6/records.h"

#include <string>
#include <string_view>

namespace velkor6::files {

// Folder and file joined by exactly one separator; only one leading separator of the file goes.
std::u16string getFullPath(std::u16string_view folder, std::u16string_view file, PathStyle style);

// target resolved against the folder of the file source (its last component always goes).
// An absolute target comes back unchanged; "" when the result gets too long.
std::u16string getAbsolutePath(std::u16string_view source, std::u16string_view target,
                               PathStyle style);

// target relative to source: an existing folder is the base itself, anything else is taken as
// a file whose folder is the base. target unchanged when the two share no root.
std::u16string getRelativePath(FileSystem& fs, std::u16string_view source,
                               std::u16string_view target);

// A folder as it compares with another: on Windows its text in lower case; on Posix its full
// path with links followed, compared exactly as the file system tells names apart ("" stays "").
std::u16string comparableFolder(FileSystem& fs, std::u16string_view folder);

// Makes the folder of path (the text before its last separator) the current drive and folder.
void changeToPath(FileSystem& fs, std::u16string_view path);

// Splits a file name into drive, folder, name and extension. Without a drive in the name the
// drive is the current directory's; where there are no drives it is "".
bool separateFile(FileSystem& fs, std::u16string_view fullName, typFileInfo& info);

// The Windows directory; read once into cache.
std::u16string systemDir(FileSystem& fs, std::u16string& cache);
// The temporary folder with a trailing separator; read once into cache.
std::u16string tempDir(FileSystem& fs, std::u16string& cache);

} // namespace velkor6::files
