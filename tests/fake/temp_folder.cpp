#include "fake/temp_folder.h"

#include "core/text.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace velkor6::fake {

TempFolder::TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "velkor6-test-XXXXXX").string();
    std::vector<char> buffer(pattern.begin(), pattern.end());
    buffer.push_back('\0');
    if (::mkdtemp(buffer.data()) == nullptr)
        throw std::runtime_error("cannot create a temporary folder");
    path_ = buffer.data();
}

TempFolder::~TempFolder() {
    std::error_code ec;
    // Give back write access first, so that read-only parts of the tree go too.
    for (auto it = std::filesystem::recursive_directory_iterator(path_, ec);
         !ec && it != std::filesystem::recursive_directory_iterator(); it.increment(ec)) {
        if (!it->is_symlink())
            std::filesystem::permissions(it->path(), std::filesystem::perms::owner_all,
                                         std::filesystem::perm_options::add, ec);
    }
    std::filesystem::remove_all(path_, ec);
}

std::u16string TempFolder::u16(std::string_view relative) const {
    const std::filesystem::path p = relative.empty() ? path_ : path_ / relative;
    return fromUtf8(p.string());
}

void TempFolder::write(std::string_view relative, std::string_view bytes) const {
    const std::filesystem::path p = path_ / relative;
    std::filesystem::create_directories(p.parent_path());
    std::ofstream out(p, std::ios::binary);
    out << bytes;
}

void TempFolder::mkdir(std::string_view relative) const {
    std::filesystem::create_directories(path_ / relative);
}

} // namespace velkor6::fake
