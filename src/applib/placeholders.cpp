#include "applib/placeholders.h"

#include "core/text.h"
#include "files/path_style.h"
#include "files/paths.h"
#include "velkor6/applib.h"
#include "velkor6/enums.h"

namespace velkor6 {
namespace app {
namespace {

// The company folder below the data folders.
std::u16string companyFolder(std::u16string base, PathStyle style) {
    return base.empty() ? base : files::getFullPath(base, u"Ostrakware", style);
}

bool matchesAt(std::u16string_view text, std::size_t at, std::u16string_view find,
               bool ignoreCase) {
    const std::u16string_view here = text.substr(at, find.size());
    if (!ignoreCase)
        return here == find;
    for (std::size_t k = 0; k < find.size(); ++k) {
        if (foldCase(here[k]) != foldCase(find[k]))
            return false;
    }
    return true;
}

} // namespace

std::vector<Placeholder> placeholderTable(Environment& env, PathStyle style,
                                          std::u16string_view appPath) {
    return {
        {u"%UserAppData%", companyFolder(env.specialFolder(CSIDL_APPDATA), style)},
        {u"%AppPath%", std::u16string(appPath)},
        {u"%AppDataFolder%", companyFolder(env.specialFolder(CSIDL_COMMON_APPDATA), style)},
        {u"%SysDir%", env.specialFolder(CSIDL_SYSTEMX86)},
        {u"%WinDir%", env.specialFolder(CSIDL_WINDOWS)},
        {u"%CommonFiles%", env.specialFolder(CSIDL_PROGRAM_FILES_COMMON)},
        {u"%ProgramFiles%", env.specialFolder(CSIDL_PROGRAM_FILESX86)},
    };
}

std::u16string replaceEvery(std::u16string_view text, std::u16string_view find,
                            std::u16string_view replacement, bool ignoreCase) {
    if (find.empty() || find.size() > text.size())
        return std::u16string(text);
    std::u16string result;
    std::size_t i = 0;
    while (i + find.size() <= text.size()) {
        if (matchesAt(text, i, find, ignoreCase)) {
            result += replacement;
            i += find.size();
        } else {
            result += text[i++];
        }
    }
    result += text.substr(i);
    return result;
}

std::u16string withPlaceholders(std::u16string_view text, const std::vector<Placeholder>& table,
                                PathStyle style) {
    constexpr std::size_t shortestFolder = 2;
    std::u16string s(text);
    for (const auto& p : table) {
        if (p.folder.size() >= shortestFolder)
            s = replaceEvery(s, p.folder, p.name, files::ignoresCase(style));
    }
    return s;
}

std::u16string withoutPlaceholders(std::u16string_view text,
                                   const std::vector<Placeholder>& table) {
    std::u16string s(text);
    for (const auto& p : table) {
        if (s.find(u'%') == std::u16string::npos)
            break;
        // A folder the system cannot give leaves its placeholder in the text.
        if (!p.folder.empty())
            s = replaceEvery(s, p.name, p.folder, true);
    }
    return s;
}

} // namespace app

} // namespace velkor6
