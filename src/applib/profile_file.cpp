#include "applib/profile_file.h"

#include "files/path_style.h"
#include "files/paths.h"

namespace velkor6::app {

std::u16string ProfileFile::resolve(std::u16string_view path) const {
    FileSystem& fs = *platform_.fileSystem;
    if (path.empty() || !files::isRelativePath(path, fs.pathStyle()))
        return std::u16string(path);
    // Windows keeps a settings file named without a folder in the Windows folder. Elsewhere that
    // folder belongs to the system, where a user cannot write and root should not: a relative
    // name means the current folder, as for any other file.
    if (fs.pathStyle() != PathStyle::Windows)
        return fs.fullPath(path);
    return files::getFullPath(fs.windowsFolder(), path, fs.pathStyle());
}

std::optional<IniDocument> ProfileFile::load(const std::u16string& path) {
    FileStore* store = platform_.fileStore.get();
    std::optional<FileIdentity> identity;
    if (store != nullptr) {
        identity = store->identity(path);
        if (!identity)
            return std::nullopt;
        if (cache_ && cache_->path == path && !cache_->identity.recent &&
            cache_->identity.sameFile(*identity))
            return cache_->document;
    }
    const auto bytes = platform_.fileSystem->readFile(path);
    if (!bytes)
        return std::nullopt;
    IniDocument document(*bytes);
    if (identity && !identity->recent)
        cache_ = Cached{path, *identity, document};
    return document;
}

std::u16string ProfileFile::read(std::u16string_view path, std::u16string_view section,
                                 std::u16string_view key) {
    if (path.empty())
        return {};
    const auto document = load(resolve(path));
    if (!document)
        return {};
    return document->value(section, key).value_or(std::u16string());
}

bool ProfileFile::write(std::u16string_view path, std::u16string_view section,
                        std::u16string_view key, std::optional<std::u16string_view> value) {
    if (path.empty() || trimProfileBlanks(section).empty() || trimProfileBlanks(key).empty())
        return false;
    const std::u16string file = resolve(path);
    FileSystem& fs = *platform_.fileSystem;
    FileStore* store = platform_.fileStore.get();

    std::unique_ptr<FileStore::Lock> lock;
    if (store != nullptr) {
        lock = store->lock(file);
        if (!lock)
            return false;
    }
    // Read under the lock, never from the cache: another process may have written a moment ago.
    const auto bytes = fs.readFile(file);
    if (!bytes && fs.exists(file))
        return false;
    IniDocument document(bytes.value_or(std::string()));
    const bool changed = value ? document.set(section, key, *value) : document.remove(section, key);
    if (!changed)
        return true;
    cache_.reset();
    const std::string content = document.bytes();
    return store != nullptr ? store->replace(file, content) : fs.writeFile(file, content);
}

} // namespace velkor6::app
