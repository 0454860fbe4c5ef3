// Path rules of the Windows shell path functions, written once for both path styles. Windows
// style: "\" separates ("/" is an ordinary character), drive letters and UNC names, the
// MAX_PATH limit of 260 characters. Posix style: "/" and "\" both separate, "/" is written,
// names compare case-sensitively, no drives and no length limit.
#pragma once

#include "velkor6/platform/path_style.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velkor6::files {

bool isSeparator(char16_t c, PathStyle style);
// Whether the file system takes names that differ only in letter case for the same name.
bool ignoresCase(PathStyle style);
// Two characters of path names, compared as the file system compares them.
bool sameNameChar(char16_t a, char16_t b, PathStyle style);
char16_t separator(PathStyle style);

// The text up to its first NUL character, as a C string sees it.
std::u16string_view untilNul(std::u16string_view s);

// Relative unless it starts with a separator or (Windows) has ":" as second character, so "C:x"
// counts as absolute.
bool isRelativePath(std::u16string_view path, PathStyle style);

// Removes the last component. A root stays ("C:\", "\", "/"); "C:\foo" leaves "C:\", "\\srv\share"
// leaves "\\srv", "foo" leaves "". True when something was removed.
bool removeFileSpec(std::u16string& path, PathStyle style);

// Removes "." and resolves ".." components; ".." never climbs above a root and stays at the
// start of a relative path. A trailing separator is kept; "" becomes a lone separator.
std::u16string canonicalize(std::u16string_view path, PathStyle style);

// Joins a folder and a file and canonicalizes the result. An absolute file replaces the folder,
// a file starting with one separator goes below the folder's root. nullopt when an input or
// the result is too long.
std::optional<std::u16string> combinePaths(std::u16string_view folder, std::u16string_view file,
                                           PathStyle style);

// Appends more below path: leading separators of more are dropped (a UNC name is kept), then
// the two are combined. On failure path becomes empty and the result is false.
bool appendPath(std::u16string& path, std::u16string_view more, PathStyle style);

// Length of the leading components two paths share (case-insensitive on Windows); a drive or
// file-system root counts with its separator ("C:\" is 3).
std::size_t commonPrefix(std::u16string_view a, std::u16string_view b, PathStyle style);

// to, expressed relative to from: one ".." per component of from past the shared part (or "."
// when nothing of from is left), then the rest of to. A file's own folder is the base. nullopt
// when the two share no root or the result is too long.
std::optional<std::u16string> relativePathTo(std::u16string_view from, bool fromIsFolder,
                                             std::u16string_view to, bool toIsFolder,
                                             PathStyle style);

} // namespace velkor6::files
