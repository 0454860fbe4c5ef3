#include "files/dir_listing.h"

#include "core/text.h"
#include "files/path_style.h"

namespace velkor6::files {
namespace {

bool wildcardMatch(std::u16string_view name, std::u16string_view mask) {
    // Greedy match with one backtrack point: the position after the last "*".
    std::size_t n = 0, m = 0;
    std::size_t starMask = std::u16string_view::npos, starName = 0;
    while (n < name.size()) {
        if (m < mask.size() && (mask[m] == u'?' || foldCase(mask[m]) == foldCase(name[n]))) {
            ++n;
            ++m;
        } else if (m < mask.size() && mask[m] == u'*') {
            starMask = m++;
            starName = n;
        } else if (starMask != std::u16string_view::npos) {
            m = starMask + 1;
            n = ++starName;
        } else {
            return false;
        }
    }
    while (m < mask.size() && mask[m] == u'*')
        ++m;
    return m == mask.size();
}

} // namespace

bool matchesMask(std::u16string_view name, std::u16string_view mask) {
    if (mask.empty() || mask == u"*" || mask == u"*.*")
        return true;
    if (wildcardMatch(name, mask))
        return true;
    const bool noExtension = name.find(u'.') == std::u16string_view::npos;
    if (noExtension && mask.size() >= 2 && mask.substr(mask.size() - 2) == u".*")
        return wildcardMatch(name, mask.substr(0, mask.size() - 2));
    if (noExtension && mask.back() == u'.')
        return wildcardMatch(name, mask.substr(0, mask.size() - 1));
    return false;
}

std::vector<std::u16string> listNormalFiles(FileSystem& fs, std::u16string_view pathAndMask) {
    const PathStyle style = fs.pathStyle();
    std::size_t sep = std::u16string_view::npos;
    for (std::size_t i = pathAndMask.size(); i > 0; --i) {
        if (isSeparator(pathAndMask[i - 1], style)) {
            sep = i - 1;
            break;
        }
    }
    std::u16string folder;
    std::u16string_view mask = pathAndMask;
    if (sep != std::u16string_view::npos) {
        folder = pathAndMask.substr(0, sep + 1);
        mask = pathAndMask.substr(sep + 1);
    } else if (style == PathStyle::Windows && pathAndMask.size() >= 2 && pathAndMask[1] == u':') {
        folder = pathAndMask.substr(0, 2);
        mask = pathAndMask.substr(2);
    } else {
        folder = u".";
    }

    std::vector<std::u16string> names;
    constexpr std::uint32_t notNormal = fileattr::hidden | fileattr::system | fileattr::directory;
    fs.forEachEntry(folder, [&](const FolderEntry& e) {
        if ((e.attributes & notNormal) == 0 && matchesMask(e.name, mask))
            names.emplace_back(e.name);
        return true;
    });
    return names;
}

} // namespace velkor6::files
