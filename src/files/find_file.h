// The recursive file search of vkrFindFile.
#pragma once

#include "velkor6/platform/file_system.h"
#include "velkor6/platform/input_state.h"

#include <string>
#include <string_view>

namespace velkor6::files {

inline constexpr std::u16string_view searchBroken = u"#BREAK#";

// The full path of the first file whose name matches pattern (the Like operator, letter case
// ignored), "" when there is none, or "#BREAK#" when the user pressed Escape. The files of a
// folder are tried before its sub-folders. An empty folder searches every searchable volume.
std::u16string findFile(FileSystem& fs, InputState& input, std::u16string_view pattern,
                        std::u16string_view folder);

} // namespace velkor6::files
