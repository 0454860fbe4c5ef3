#include "platform/memory_registry.h"

#include "core/text.h"
#include "platform/ansi.h"
#include "platform/reg_parser.h"

#include <algorithm>
#include <vector>

namespace velkor6 {
namespace {

// Names and texts as the ANSI functions see them: characters the code page lacks become "?".
std::u16string throughAnsi(std::u16string_view s) {
    return fromAnsi(toAnsi(s));
}

std::string utf16LeToAnsi(std::string_view bytes) {
    return toAnsi(fromUtf16(bytes));
}

// Calls f with each non-empty key name of a "\"-separated path.
template <class F>
void forEachName(std::u16string_view path, F f) {
    while (!path.empty()) {
        const std::size_t slash = path.find(u'\\');
        const std::u16string_view name = path.substr(0, slash);
        if (!name.empty())
            f(name);
        path = slash == std::u16string_view::npos ? std::u16string_view{} : path.substr(slash + 1);
    }
}

constexpr std::uint32_t writeRights =
    regaccess::setValue | regaccess::createSubKey | regaccess::createLink;

} // namespace

struct MemoryRegistry::Node {
    struct Value {
        std::u16string name;
        std::u16string folded; // upper-case name, the lookup key
        std::uint32_t type = regtype::none;
        std::string data;
    };

    std::u16string name;
    std::u16string folded;
    std::vector<std::shared_ptr<Node>> children; // sorted by folded name, the registry's order
    std::vector<Value> values;

    std::vector<std::shared_ptr<Node>>::iterator lowerBound(const std::u16string& key) {
        return std::lower_bound(
            children.begin(), children.end(), key,
            [](const std::shared_ptr<Node>& n, const std::u16string& k) { return n->folded < k; });
    }

    std::shared_ptr<Node> child(std::u16string_view childName) {
        const std::u16string key = upperCase(childName);
        const auto it = lowerBound(key);
        return it != children.end() && (*it)->folded == key ? *it : nullptr;
    }

    std::shared_ptr<Node> childOrNew(std::u16string_view childName) {
        std::u16string key = upperCase(childName);
        const auto it = lowerBound(key);
        if (it != children.end() && (*it)->folded == key)
            return *it;
        auto node = std::make_shared<Node>();
        node->name = childName;
        node->folded = std::move(key);
        return *children.insert(it, std::move(node));
    }

    void removeChild(std::u16string_view childName) {
        const std::u16string key = upperCase(childName);
        const auto it = lowerBound(key);
        if (it != children.end() && (*it)->folded == key)
            children.erase(it);
    }

    std::vector<Value>::iterator findValue(std::u16string_view valueName) {
        const std::u16string key = upperCase(valueName);
        return std::find_if(values.begin(), values.end(),
                            [&](const Value& v) { return v.folded == key; });
    }
};

MemoryRegistry::MemoryRegistry(RegistryText text) : text_(text) {
    for (OpenKey& root : roots_) {
        root.node = std::make_shared<Node>();
        root.access = ~std::uint32_t{0};
    }
}

MemoryRegistry::~MemoryRegistry() = default;

bool MemoryRegistry::load(std::string_view scriptBytes) {
    const auto statements = parseRegScript(decodeRegScript(scriptBytes));
    if (!statements)
        return false;
    for (const RegStatement& st : *statements)
        apply(st);
    return true;
}

void MemoryRegistry::apply(const RegStatement& st) {
    switch (st.kind) {
    case RegStatement::Kind::Key:
        findOrCreate(st.root, st.path);
        break;
    case RegStatement::Kind::DeleteKey: {
        const std::size_t slash = st.path.rfind(u'\\');
        if (st.path.empty())
            break; // a root cannot be deleted
        const std::u16string_view parentPath = slash == std::u16string::npos
                                                   ? std::u16string_view{}
                                                   : std::u16string_view(st.path).substr(0, slash);
        const std::u16string_view name = slash == std::u16string::npos
                                             ? std::u16string_view(st.path)
                                             : std::u16string_view(st.path).substr(slash + 1);
        if (const auto parent = find(st.root, parentPath))
            parent->removeChild(name);
        break;
    }
    case RegStatement::Kind::Value: {
        const auto node = findOrCreate(st.root, st.path);
        const auto it = node->findValue(st.name);
        Node::Value value{st.name, upperCase(st.name), st.type, st.data};
        if (it != node->values.end())
            *it = std::move(value);
        else
            node->values.push_back(std::move(value));
        break;
    }
    case RegStatement::Kind::DeleteValue: {
        const auto node = findOrCreate(st.root, st.path);
        const auto it = node->findValue(st.name);
        if (it != node->values.end())
            node->values.erase(it);
        break;
    }
    }
}

std::shared_ptr<MemoryRegistry::Node> MemoryRegistry::findOrCreate(RegHandle root,
                                                                   std::u16string_view path) {
    std::shared_ptr<Node> node = roots_[static_cast<std::size_t>(root - regroot::classesRoot)].node;
    forEachName(path, [&](std::u16string_view name) { node = node->childOrNew(name); });
    return node;
}

std::shared_ptr<MemoryRegistry::Node> MemoryRegistry::find(RegHandle root,
                                                           std::u16string_view path) {
    std::shared_ptr<Node> node = roots_[static_cast<std::size_t>(root - regroot::classesRoot)].node;
    forEachName(path, [&](std::u16string_view name) {
        if (node != nullptr)
            node = node->child(name);
    });
    return node;
}

const MemoryRegistry::OpenKey* MemoryRegistry::resolve(RegHandle key) {
    if (regroot::isPredefined(key))
        return &roots_[static_cast<std::size_t>(key - regroot::classesRoot)];
    const auto it = open_.find(key);
    return it == open_.end() ? nullptr : &it->second;
}

std::u16string MemoryRegistry::outward(std::u16string_view name) const {
    return text_ == RegistryText::ThroughAnsi ? throughAnsi(name) : std::u16string(name);
}

RegHandle MemoryRegistry::newHandle() {
    // Handles are positive multiples of 4, like the system's; the search skips ones still open.
    do {
        lastHandle_ = lastHandle_ >= 0x7FFFFFF0 ? 4 : lastHandle_ + 4;
    } while (open_.contains(lastHandle_));
    return lastHandle_;
}

std::int32_t MemoryRegistry::openKey(RegHandle parent, std::u16string_view subKey,
                                     std::uint32_t access, RegHandle& result) {
    const OpenKey* from = resolve(parent);
    if (from == nullptr)
        return regstatus::invalidHandle;
    if ((access & writeRights) != 0)
        return regstatus::accessDenied;
    if (subKey.empty() && regroot::isPredefined(parent)) {
        result = parent;
        return regstatus::success;
    }

    const std::u16string path = outward(subKey);
    std::u16string_view rest = path;
    if (!rest.empty() && rest.front() == u'\\') {
        // Only the classes root, a merged view, tolerates a leading backslash.
        if (parent != regroot::classesRoot)
            return regstatus::badPathname;
        while (!rest.empty() && rest.front() == u'\\')
            rest.remove_prefix(1);
    }
    while (!rest.empty() && rest.back() == u'\\')
        rest.remove_suffix(1);

    std::shared_ptr<Node> node = from->node;
    while (!rest.empty()) {
        const std::size_t slash = rest.find(u'\\');
        const std::u16string_view name = rest.substr(0, slash);
        if (name.empty())
            return regstatus::badPathname;
        node = node->child(name);
        if (node == nullptr)
            return regstatus::fileNotFound;
        rest = slash == std::u16string_view::npos ? std::u16string_view{} : rest.substr(slash + 1);
    }
    result = newHandle();
    open_[result] = OpenKey{std::move(node), access};
    return regstatus::success;
}

std::int32_t MemoryRegistry::queryValue(RegHandle key, std::u16string_view name,
                                        std::size_t capacity, RegValue& value) {
    const OpenKey* k = resolve(key);
    if (k == nullptr)
        return regstatus::invalidHandle;
    if ((k->access & regaccess::queryValue) == 0)
        return regstatus::accessDenied;
    const auto it = k->node->findValue(outward(name));
    if (it == k->node->values.end())
        return regstatus::fileNotFound;
    value.type = it->type;
    std::string data = regtype::isText(it->type) ? utf16LeToAnsi(it->data) : it->data;
    value.text.reset();
    if (data.size() > capacity) {
        value.data.clear();
        return regstatus::moreData;
    }
    value.data = std::move(data);
    if (text_ == RegistryText::Whole && regtype::isText(it->type))
        value.text = fromUtf16(it->data);
    return regstatus::success;
}

std::int32_t MemoryRegistry::enumKey(RegHandle key, std::uint32_t index, std::size_t nameCapacity,
                                     std::u16string& name) {
    const OpenKey* k = resolve(key);
    if (k == nullptr)
        return regstatus::invalidHandle;
    if ((k->access & regaccess::enumerateSubKeys) == 0)
        return regstatus::accessDenied;
    if (index >= k->node->children.size())
        return regstatus::noMoreItems;
    std::u16string childName = outward(k->node->children[index]->name);
    if (childName.size() + 1 > nameCapacity)
        return regstatus::moreData;
    name = std::move(childName);
    return regstatus::success;
}

std::int32_t MemoryRegistry::close(RegHandle key) {
    if (regroot::isPredefined(key))
        return regstatus::success;
    return open_.erase(key) == 1 ? regstatus::success : regstatus::invalidHandle;
}

} // namespace velkor6
