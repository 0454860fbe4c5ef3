#include "fake/fake_file_system.h"

#include "core/text.h"

#include <algorithm>
#include <cmath>

namespace velkor6::fake {

struct FakeFileSystem::Node {
    std::u16string name;
    bool folder = false;
    std::string data;
    std::uint32_t attributes = 0;
    Date modified;
    bool locked = false;
    std::vector<std::unique_ptr<Node>> children; // sorted by upper-cased name

    Node* child(std::u16string_view childName) const {
        const std::u16string key = upperCase(childName);
        for (const auto& c : children) {
            if (upperCase(c->name) == key)
                return c.get();
        }
        return nullptr;
    }

    Node* add(std::unique_ptr<Node> node) {
        const std::u16string key = upperCase(node->name);
        const auto at = std::find_if(children.begin(), children.end(),
                                     [&](const auto& c) { return upperCase(c->name) > key; });
        return children.insert(at, std::move(node))->get();
    }

    std::unique_ptr<Node> take(const Node* node) {
        const auto it = std::find_if(children.begin(), children.end(),
                                     [&](const auto& c) { return c.get() == node; });
        std::unique_ptr<Node> taken = std::move(*it);
        children.erase(it);
        return taken;
    }
};

struct FakeFileSystem::Root {
    std::u16string text; // "C:" or "\\server\share" as written
    std::unique_ptr<Node> node;
    bool ready = true;
    std::u16string currentDirectory; // drives only
};

struct FakeFileSystem::Location {
    std::u16string rootKey;
    std::vector<std::u16string> parts;
};

FakeFileSystem::FakeFileSystem(const Clock& clock) : clock_(clock) {
    addDrive(u'C');
    addFolder(windowsFolder_);
    addFolder(tempFolder_);
}

FakeFileSystem::~FakeFileSystem() = default;

// File times have whole seconds, as the system reports them.
Date FakeFileSystem::wholeSecondNow() const {
    return Date{std::floor(clock_.now().serial * 86400.0 + 1e-6) / 86400.0};
}

void FakeFileSystem::addDrive(char16_t letter, bool ready) {
    const std::u16string key{toUpper(letter), u':'};
    Root& root = roots_[key];
    root.text = key;
    if (!root.node) {
        root.node = std::make_unique<Node>();
        root.node->folder = true;
        root.node->attributes = fileattr::directory;
    }
    root.ready = ready;
    root.currentDirectory = key + u"\\";
}

void FakeFileSystem::addShare(std::u16string_view root) {
    Root& r = roots_[upperCase(root)];
    r.text = root;
    r.node = std::make_unique<Node>();
    r.node->folder = true;
    r.node->attributes = fileattr::directory;
}

std::optional<FakeFileSystem::Location> FakeFileSystem::resolve(std::u16string_view path) const {
    if (path.empty())
        return std::nullopt;
    std::u16string p(path);
    std::replace(p.begin(), p.end(), u'/', u'\\');

    Location where;
    std::u16string_view rest = p;
    if (p.size() >= 2 && p[0] == u'\\' && p[1] == u'\\') {
        const std::size_t server = p.find(u'\\', 2);
        if (server == std::u16string::npos)
            return std::nullopt;
        const std::size_t share = std::min(p.find(u'\\', server + 1), p.size());
        where.rootKey = upperCase(std::u16string_view(p).substr(0, share));
        rest = std::u16string_view(p).substr(share);
    } else {
        std::u16string drive = currentDrive_;
        bool relative = true;
        if (p.size() >= 2 && p[1] == u':') {
            drive = {toUpper(p[0]), u':'};
            rest = rest.substr(2);
        }
        if (!rest.empty() && rest[0] == u'\\')
            relative = false;
        where.rootKey = drive;
        if (relative) {
            const auto root = roots_.find(drive);
            if (root != roots_.end()) {
                // The drive's current directory, which is always absolute.
                const auto base = resolve(root->second.currentDirectory.substr(2));
                if (base)
                    where.parts = base->parts;
            }
        }
    }
    std::size_t i = 0;
    while (i <= rest.size()) {
        const std::size_t end = std::min(rest.find(u'\\', i), rest.size());
        const std::u16string_view part = rest.substr(i, end - i);
        if (part == u"..") {
            if (!where.parts.empty())
                where.parts.pop_back();
        } else if (!part.empty() && part != u".") {
            where.parts.emplace_back(part);
        }
        i = end + 1;
    }
    return where;
}

FakeFileSystem::Node* FakeFileSystem::find(const Location& where) const {
    const auto root = roots_.find(where.rootKey);
    if (root == roots_.end() || !root->second.ready)
        return nullptr;
    Node* node = root->second.node.get();
    for (const auto& part : where.parts) {
        if (!node->folder)
            return nullptr;
        node = node->child(part);
        if (node == nullptr)
            return nullptr;
    }
    return node;
}

FakeFileSystem::Node* FakeFileSystem::find(std::u16string_view path) const {
    const auto where = resolve(path);
    return where ? find(*where) : nullptr;
}

FakeFileSystem::Node* FakeFileSystem::parentOf(const Location& where) const {
    if (where.parts.empty())
        return nullptr;
    Location parent = where;
    parent.parts.pop_back();
    Node* node = find(parent);
    return node != nullptr && node->folder ? node : nullptr;
}

FakeFileSystem::Node* FakeFileSystem::makeFolders(const Location& where) {
    const auto root = roots_.find(where.rootKey);
    if (root == roots_.end())
        return nullptr;
    Node* node = root->second.node.get();
    for (const auto& part : where.parts) {
        Node* next = node->child(part);
        if (next == nullptr) {
            auto folder = std::make_unique<Node>();
            folder->name = part;
            folder->folder = true;
            folder->attributes = fileattr::directory;
            folder->modified = wholeSecondNow();
            next = node->add(std::move(folder));
        }
        node = next;
    }
    return node;
}

void FakeFileSystem::addFolder(std::u16string_view path) {
    if (const auto where = resolve(path))
        makeFolders(*where);
}

void FakeFileSystem::addFile(std::u16string_view path, std::string_view bytes,
                             std::optional<Date> modified, std::uint32_t attributes) {
    auto where = resolve(path);
    if (!where || where->parts.empty())
        return;
    const std::u16string name = where->parts.back();
    where->parts.pop_back();
    Node* folder = makeFolders(*where);
    Node* file = folder->child(name);
    if (file == nullptr) {
        auto node = std::make_unique<Node>();
        node->name = name;
        file = folder->add(std::move(node));
    }
    file->data = bytes;
    file->attributes = attributes & ~fileattr::directory;
    file->modified = modified.value_or(wholeSecondNow());
}

void FakeFileSystem::setAttributes(std::u16string_view path, std::uint32_t attributes) {
    if (Node* node = find(path))
        node->attributes =
            (attributes & ~fileattr::directory) | (node->folder ? fileattr::directory : 0);
}

void FakeFileSystem::setLastModified(std::u16string_view path, Date modified) {
    if (Node* node = find(path))
        node->modified = modified;
}

void FakeFileSystem::setLocked(std::u16string_view path, bool locked) {
    if (Node* node = find(path))
        node->locked = locked;
}

std::optional<FileStatus> FakeFileSystem::status(std::u16string_view path) {
    const Node* node = find(path);
    if (node == nullptr)
        return std::nullopt;
    FileStatus s;
    s.attributes = node->attributes;
    s.size = node->data.size();
    s.lastModified = node->modified;
    return s;
}

std::optional<std::string> FakeFileSystem::readFile(std::u16string_view path) {
    const Node* node = find(path);
    if (node == nullptr || node->folder || node->locked)
        return std::nullopt;
    return node->data;
}

// The file to write at path, created when missing; nullptr when the system would refuse.
FakeFileSystem::Node* FakeFileSystem::writable(std::u16string_view path) {
    const auto where = resolve(path);
    if (!where)
        return nullptr;
    Node* parent = parentOf(*where);
    if (parent == nullptr)
        return nullptr;
    Node* file = parent->child(where->parts.back());
    if (file == nullptr) {
        auto node = std::make_unique<Node>();
        node->name = where->parts.back();
        node->attributes = fileattr::archive;
        return parent->add(std::move(node));
    }
    if (file->folder || file->locked || (file->attributes & fileattr::readOnly))
        return nullptr;
    return file;
}

bool FakeFileSystem::writeFile(std::u16string_view path, std::string_view bytes) {
    Node* file = writable(path);
    if (file == nullptr)
        return false;
    file->data = bytes;
    file->modified = wholeSecondNow();
    return true;
}

bool FakeFileSystem::appendFile(std::u16string_view path, std::string_view bytes) {
    Node* file = writable(path);
    if (file == nullptr)
        return false;
    file->data += bytes;
    file->modified = wholeSecondNow();
    return true;
}

bool FakeFileSystem::forEachEntry(std::u16string_view folder, const EntryVisitor& visit) {
    const Node* node = find(folder);
    if (node == nullptr || !node->folder)
        return false;
    for (const auto& c : node->children) {
        FolderEntry e;
        e.name = c->name;
        e.attributes = c->attributes & (fileattr::hidden | fileattr::system | fileattr::directory);
        if (!visit(e))
            break;
    }
    return true;
}

bool FakeFileSystem::createFolder(std::u16string_view path) {
    const auto where = resolve(path);
    if (!where)
        return false;
    Node* parent = parentOf(*where);
    if (parent == nullptr || parent->child(where->parts.back()) != nullptr)
        return false;
    auto folder = std::make_unique<Node>();
    folder->name = where->parts.back();
    folder->folder = true;
    folder->attributes = fileattr::directory;
    folder->modified = wholeSecondNow();
    parent->add(std::move(folder));
    return true;
}

bool FakeFileSystem::copyFile(std::u16string_view from, std::u16string_view to, bool overwrite) {
    const Node* source = find(from);
    if (source == nullptr || source->folder || source->locked)
        return false;
    if (!overwrite && find(to) != nullptr)
        return false;
    Node* target = writable(to);
    if (target == nullptr || target == source)
        return false;
    target->data = source->data;
    target->attributes = source->attributes;
    target->modified = source->modified;
    return true;
}

bool FakeFileSystem::remove(std::u16string_view path) {
    const auto where = resolve(path);
    if (!where)
        return false;
    Node* parent = parentOf(*where);
    Node* node = parent == nullptr ? nullptr : parent->child(where->parts.back());
    if (node == nullptr || node->locked || (node->attributes & fileattr::readOnly) ||
        (node->folder && !node->children.empty()))
        return false;
    parent->take(node);
    return true;
}

bool FakeFileSystem::rename(std::u16string_view from, std::u16string_view to) {
    const auto source = resolve(from);
    const auto target = resolve(to);
    if (!source || !target || source->rootKey != target->rootKey)
        return false;
    Node* sourceParent = parentOf(*source);
    Node* node = sourceParent == nullptr ? nullptr : sourceParent->child(source->parts.back());
    Node* targetParent = parentOf(*target);
    if (node == nullptr || node->locked || targetParent == nullptr)
        return false;
    // A folder cannot move into itself.
    const auto& sp = source->parts;
    const auto& tp = target->parts;
    if (node->folder && tp.size() > sp.size() &&
        std::equal(sp.begin(), sp.end(), tp.begin(),
                   [](const auto& a, const auto& b) { return upperCase(a) == upperCase(b); }))
        return false;
    if (Node* existing = targetParent->child(target->parts.back());
        existing != nullptr && existing != node) {
        if (existing->folder || node->folder || existing->locked ||
            (existing->attributes & fileattr::readOnly))
            return false;
        targetParent->take(existing);
    }
    std::unique_ptr<Node> moved = sourceParent->take(node);
    moved->name = target->parts.back();
    targetParent->add(std::move(moved));
    return true;
}

std::u16string FakeFileSystem::fullPath(std::u16string_view path) {
    const auto where = resolve(path);
    if (!where)
        return {};
    const auto root = roots_.find(where->rootKey);
    std::u16string text = root != roots_.end() ? root->second.text : where->rootKey;
    for (const auto& part : where->parts)
        text += u'\\' + part;
    if (where->parts.empty() && text.size() == 2)
        text += u'\\';
    return text;
}

std::u16string FakeFileSystem::currentDirectory() {
    return roots_.at(currentDrive_).currentDirectory;
}

bool FakeFileSystem::setCurrentDirectory(std::u16string_view path) {
    const auto where = resolve(path);
    if (!where || where->rootKey.size() != 2)
        return false;
    const Node* node = find(*where);
    if (node == nullptr || !node->folder)
        return false;
    roots_.at(where->rootKey).currentDirectory = fullPath(path);
    return true;
}

bool FakeFileSystem::setCurrentDrive(std::u16string_view drive) {
    if (drive.empty())
        return false;
    const std::u16string key{toUpper(drive[0]), u':'};
    const auto root = roots_.find(key);
    if (root == roots_.end() || !root->second.ready)
        return false;
    currentDrive_ = key;
    return true;
}

std::vector<Volume> FakeFileSystem::volumes() {
    std::vector<Volume> result;
    for (const auto& [key, root] : roots_) {
        if (key.size() == 2)
            result.push_back({key + u"\\", root.ready});
    }
    return result;
}

} // namespace velkor6::fake
