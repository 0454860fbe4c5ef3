#include "platform/posix/xdg_folders.h"

namespace velkor6::posix {
namespace {

std::string withoutTrailingSlash(std::string s) {
    while (s.size() > 1 && s.back() == '/')
        s.pop_back();
    return s;
}

// An XDG base directory: the variable when it holds an absolute path, else the default.
std::string baseDir(const EnvLookup& env, const char* name, const std::string& fallback) {
    const auto value = env(name);
    if (value && !value->empty() && (*value)[0] == '/')
        return withoutTrailingSlash(*value);
    return fallback;
}

} // namespace

std::map<std::string, std::string, std::less<>> parseUserDirs(std::string_view text,
                                                              std::string_view home) {
    std::map<std::string, std::string, std::less<>> dirs;
    while (!text.empty()) {
        const std::size_t eol = text.find('\n');
        std::string_view line = text.substr(0, eol);
        text = eol == std::string_view::npos ? std::string_view() : text.substr(eol + 1);

        const std::size_t first = line.find_first_not_of(" \t");
        if (first == std::string_view::npos || line[first] == '#')
            continue;
        line.remove_prefix(first);
        const std::size_t eq = line.find('=');
        if (eq == std::string_view::npos)
            continue;
        const std::string_view key = line.substr(0, eq);
        if (key.size() <= 8 || key.substr(0, 4) != "XDG_" || key.substr(key.size() - 4) != "_DIR")
            continue;
        std::string_view value = line.substr(eq + 1);
        while (!value.empty() &&
               (value.back() == ' ' || value.back() == '\t' || value.back() == '\r'))
            value.remove_suffix(1);
        if (value.size() < 2 || value.front() != '"' || value.back() != '"')
            continue;
        value = value.substr(1, value.size() - 2);
        std::string path;
        if (value.substr(0, 5) == "$HOME") {
            path = std::string(home) + std::string(value.substr(5));
        } else if (!value.empty() && value[0] == '/') {
            path = std::string(value);
        } else {
            continue;
        }
        // Backslashes in the file only quote characters.
        std::string unquoted;
        for (std::size_t i = 0; i < path.size(); ++i) {
            if (path[i] == '\\' && i + 1 < path.size())
                ++i;
            unquoted += path[i];
        }
        dirs[std::string(key.substr(4, key.size() - 8))] = withoutTrailingSlash(unquoted);
    }
    return dirs;
}

XdgFolders readXdgFolders(const EnvLookup& env, const TextReader& read) {
    XdgFolders x;
    x.home = withoutTrailingSlash(env("HOME").value_or("/"));
    const std::string homeBase = x.home == "/" ? std::string() : x.home;
    x.configHome = baseDir(env, "XDG_CONFIG_HOME", homeBase + "/.config");
    x.dataHome = baseDir(env, "XDG_DATA_HOME", homeBase + "/.local/share");
    x.cacheHome = baseDir(env, "XDG_CACHE_HOME", homeBase + "/.cache");
    if (const auto text = read(x.configHome + "/user-dirs.dirs"))
        x.userDirs = parseUserDirs(*text, x.home);
    return x;
}

std::string specialFolderPath(std::int32_t csidl, const XdgFolders& x) {
    // Like the xdg-user-dir tool: the desktop defaults to ~/Desktop, the others to home.
    const auto userDir = [&](std::string_view name) {
        const auto it = x.userDirs.find(name);
        if (it != x.userDirs.end())
            return it->second;
        return name == "DESKTOP" ? x.home + "/Desktop" : x.home;
    };
    switch (csidl & 0xFF) {
    case 0:  // DESKTOP
    case 16: // DESKTOPDIRECTORY
        return userDir("DESKTOP");
    case 5:
        return userDir("DOCUMENTS"); // PERSONAL
    case 21:
        return userDir("TEMPLATES"); // TEMPLATES
    case 39:
        return userDir("PICTURES"); // MYPICTURES
    case 26:
        return x.configHome; // APPDATA
    case 28:
        return x.dataHome; // LOCAL_APPDATA
    case 32:
        return x.cacheHome; // INTERNET_CACHE
    case 40:
        return x.home; // PROFILE
    case 2:            // PROGRAMS
    case 11:           // STARTMENU
        return x.dataHome + "/applications";
    case 22: // COMMON_STARTMENU
    case 23: // COMMON_PROGRAMS
        return "/usr/share/applications";
    case 7:  // STARTUP
    case 29: // ALTSTARTUP
        return x.configHome + "/autostart";
    case 24: // COMMON_STARTUP
    case 30: // COMMON_ALTSTARTUP
        return "/etc/xdg/autostart";
    case 20:
        return "/usr/share/fonts"; // FONTS
    case 35:
        return "/var/lib"; // COMMON_APPDATA
    case 36:
        // Not /usr: that holds /usr/share, which stands in for the common files, and the
        // placeholder of the Windows folder is put in before theirs.
        return "/etc"; // WINDOWS
    case 37:           // SYSTEM
    case 41:           // SYSTEMX86
        return "/usr/lib";
    case 38: // PROGRAM_FILES
    case 42: // PROGRAM_FILESX86
        return "/opt";
    case 43: // PROGRAM_FILES_COMMON
    case 44: // PROGRAM_FILES_COMMONX86
        return "/usr/share";
    default:
        return {};
    }
}

} // namespace velkor6::posix
