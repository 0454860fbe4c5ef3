// Special folders on a desktop that follows the XDG base-directory and user-directory rules.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace velkor6::posix {

struct XdgFolders {
    std::string home;
    std::string configHome; // $XDG_CONFIG_HOME or ~/.config
    std::string dataHome;   // $XDG_DATA_HOME or ~/.local/share
    std::string cacheHome;  // $XDG_CACHE_HOME or ~/.cache
    // user-dirs.dirs: "DESKTOP" -> "/home/u/Schreibtisch", ...
    std::map<std::string, std::string, std::less<>> userDirs;
};

using EnvLookup = std::function<std::optional<std::string>(const char* name)>;
using TextReader = std::function<std::optional<std::string>(const std::string& path)>;

XdgFolders readXdgFolders(const EnvLookup& env, const TextReader& read);
// Lines XDG_<NAME>_DIR="$HOME/..." or "/absolute"; other lines are ignored.
std::map<std::string, std::string, std::less<>> parseUserDirs(std::string_view text,
                                                              std::string_view home);
// The folder standing in for a CSIDL number (flag bits ignored); "" where there is none.
std::string specialFolderPath(std::int32_t csidl, const XdgFolders& xdg);

} // namespace velkor6::posix
