// VB's Dir for normal files: the names in a folder that match a mask.
#pragma once

#include "velkor6/platform/file_system.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor6::files {

// A file mask as the system's directory search reads it: "*" any run, "?" one character,
// letter case ignored; "*.*" matches every name, also one without a dot, and a mask ending
// in ".*" or "." also matches the name without an extension.
bool matchesMask(std::u16string_view name, std::u16string_view mask);

// The normal files (not hidden, system or folders) of the folder part of pathAndMask whose
// names match its last component, in the platform's order. A path ending in a separator
// lists all normal files. Empty when the folder cannot be read.
std::vector<std::u16string> listNormalFiles(FileSystem& fs, std::u16string_view pathAndMask);

} // namespace velkor6::files
