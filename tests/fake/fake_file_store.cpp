#include "fake/fake_file_store.h"

#include <cmath>
#include <functional>

namespace velkor6::fake {

std::optional<FileIdentity> FakeFileStore::identity(std::u16string_view path) {
    const auto status = files_.status(path);
    if (!status)
        return std::nullopt;
    FileIdentity id;
    id.size = status->size;
    id.modifiedNs = std::llround(status->lastModified.serial * 86400.0 * 1e9);
    id.inode = std::hash<std::string>{}(files_.readFile(path).value_or(std::string()));
    return id;
}

std::unique_ptr<FileStore::Lock> FakeFileStore::lock(std::u16string_view path) {
    if (!files_.exists(path) && !files_.writeFile(path, {}))
        return nullptr;
    ++locks_;
    return std::make_unique<Lock>();
}

bool FakeFileStore::replace(std::u16string_view path, std::string_view bytes) {
    ++replacements_;
    return files_.writeFile(path, bytes);
}

} // namespace velkor6::fake
