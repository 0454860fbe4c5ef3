// Placeholders for well-known folders in stored file names, so that a settings file survives a
// move of the program or another installation of the system.
#pragma once

#include "velkor6/platform/environment.h"
#include "velkor6/platform/path_style.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor6::app {

struct Placeholder {
    std::u16string_view name; // "%AppPath%"
    std::u16string folder;    // "" when the folder cannot be had: the pair does nothing
};

// In replacement order: the more specific folders stand before the folders that hold them, and
// the application's folder right after the user's data folder.
std::vector<Placeholder> placeholderTable(Environment& env, PathStyle style,
                                          std::u16string_view appPath);

// Every occurrence of a folder, anywhere in the text, becomes its placeholder; letter case
// counts as the file system counts it. A folder of fewer than two characters ("." or "/") is
// passed over: it would turn every dot or separator of the text into a placeholder.
std::u16string withPlaceholders(std::u16string_view text, const std::vector<Placeholder>& table,
                                PathStyle style);
// The reverse, with placeholder names in any letter case; stops as soon as no "%" is left. A
// placeholder without a folder stays.
std::u16string withoutPlaceholders(std::u16string_view text, const std::vector<Placeholder>& table);

// Replaces every occurrence of find from the left; a replacement is not searched again. An empty
// find changes nothing.
std::u16string replaceEvery(std::u16string_view text, std::u16string_view find,
                            std::u16string_view replacement, bool ignoreCase);

} // namespace velkor6::app
