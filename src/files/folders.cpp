#include "files/folders.h"

#include "core/like.h"
#include "core/text.h"
#include "files/dir_listing.h"
#include "files/path_style.h"
#include "files/paths.h"

namespace velkor6::files {
namespace {

bool isRoot(std::u16string_view folder, PathStyle style) {
    if (style == PathStyle::Windows)
        return folder.size() == 3 && folder[1] == u':' && folder[2] == u'\\';
    return folder.size() == 1 && isSeparator(folder[0], style);
}

} // namespace

bool changeDir(FileSystem& fs, std::u16string_view folder) {
    const PathStyle style = fs.pathStyle();
    if (!folder.empty() && isSeparator(folder.back(), style) && !isRoot(folder, style))
        folder.remove_suffix(1);
    // Taken before the change: a relative folder names one below the current directory.
    const std::u16string wanted = comparableFolder(fs, folder);
    const auto isCurrent = [&] { return comparableFolder(fs, fs.currentDirectory()) == wanted; };

    fs.setCurrentDirectory(folder);
    // A folder on another drive became that drive's current folder only: switch drives too.
    if (!isCurrent() && style == PathStyle::Windows && folder.size() >= 2 && folder[1] == u':') {
        fs.setCurrentDrive(folder.substr(0, 1));
        fs.setCurrentDirectory(folder);
    }
    return isCurrent();
}

bool makeDir(FileSystem& fs, std::u16string_view folder) {
    const PathStyle style = fs.pathStyle();
    // A drive root becomes "C:", which tests as an existing folder; "/" stays.
    if (!folder.empty() && isSeparator(folder.back(), style) &&
        !(style == PathStyle::Posix && folder.size() == 1))
        folder.remove_suffix(1);
    if (folder.empty())
        return false;
    if (fs.isDirectory(folder))
        return true;
    if (!fs.createFolder(folder)) {
        std::size_t sep = folder.size();
        while (sep > 0 && !isSeparator(folder[sep - 1], style))
            --sep;
        // The parent first, then one more try; a folder that still cannot be made (no
        // rights, a file in the way) ends the attempt.
        if (sep > 0 && makeDir(fs, folder.substr(0, sep)))
            fs.createFolder(folder);
    }
    return fs.isDirectory(folder);
}

std::vector<std::u16string> getFileList(FileSystem& fs, std::u16string_view folder,
                                        std::u16string_view mask, std::u16string_view likeFilter) {
    std::vector<std::u16string> kept;
    for (std::u16string& name : listNormalFiles(fs, getFullPath(folder, mask, fs.pathStyle()))) {
        if (like(name, likeFilter, Compare::Binary))
            kept.push_back(std::move(name));
    }
    return kept;
}

} // namespace velkor6::files
