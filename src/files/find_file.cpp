#include "files/find_file.h"

#include "core/like.h"
#include "core/text.h"
#include "files/path_style.h"

#include <algorithm>
#include <vector>

namespace velkor6::files {
namespace {

class Finder {
public:
    Finder(FileSystem& fs, InputState& input, std::u16string_view pattern)
        : fs_(fs), input_(input), style_(fs.pathStyle()), pattern_(upperCase(pattern)) {}

    // Folders a volume search must not enter: the other volumes, searched on their own or
    // not at all.
    void setForeignRoots(std::vector<std::u16string> roots) { foreignRoots_ = std::move(roots); }

    std::u16string search(const std::u16string& folder) {
        std::vector<std::u16string> subFolders;
        std::u16string result;
        fs_.forEachEntry(folder, [&](const FolderEntry& e) {
            if (e.isFolder()) {
                if (!e.isLink)
                    subFolders.emplace_back(e.name);
                return true;
            }
            if (matches(e.name)) {
                result = join(folder, e.name);
                return false;
            }
            if (escapePressed()) {
                result = searchBroken;
                return false;
            }
            return true;
        });
        if (!result.empty())
            return result;

        for (const std::u16string& name : subFolders) {
            const std::u16string path = join(folder, name);
            if (isForeignRoot(path))
                continue;
            result = search(path);
            if (escapePressed())
                return std::u16string(searchBroken);
            if (!result.empty())
                return result;
        }
        return {};
    }

    // Read twice: the first answer still carries a press from before the search.
    bool escapePressed() {
        input_.asyncKeyState(vkey::escape);
        return input_.asyncKeyState(vkey::escape) != 0;
    }

private:
    bool matches(std::u16string_view name) {
        upperName_.resize(name.size());
        std::transform(name.begin(), name.end(), upperName_.begin(),
                       [](char16_t c) { return toUpper(c); });
        return like(upperName_, pattern_, Compare::Binary);
    }

    std::u16string join(const std::u16string& folder, std::u16string_view name) const {
        std::u16string path;
        path.reserve(folder.size() + 1 + name.size());
        path = folder;
        if (path.empty() || !isSeparator(path.back(), style_))
            path += separator(style_);
        path += name;
        return path;
    }

    bool isForeignRoot(const std::u16string& path) const {
        return std::find(foreignRoots_.begin(), foreignRoots_.end(), path) != foreignRoots_.end();
    }

    FileSystem& fs_;
    InputState& input_;
    PathStyle style_;
    std::u16string pattern_;
    std::u16string upperName_;
    std::vector<std::u16string> foreignRoots_;
};

} // namespace

std::u16string findFile(FileSystem& fs, InputState& input, std::u16string_view pattern,
                        std::u16string_view folder) {
    Finder finder(fs, input, pattern);
    if (!folder.empty()) {
        if (!fs.isDirectory(folder))
            return {};
        return finder.search(fs.fullPath(folder));
    }
    const std::vector<Volume> volumes = fs.volumes();
    for (const Volume& volume : volumes) {
        if (!volume.searchable)
            continue;
        std::vector<std::u16string> others;
        for (const Volume& v : volumes) {
            if (v.root != volume.root)
                others.push_back(v.root);
        }
        finder.setForeignRoots(std::move(others));
        std::u16string result = finder.search(volume.root);
        if (finder.escapePressed())
            return std::u16string(searchBroken);
        if (!result.empty())
            return result;
    }
    return {};
}

} // namespace velkor6::files
