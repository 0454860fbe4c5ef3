#include "platform/posix/mounts.h"

#include "platform/posix/utf8_path.h"

#include <algorithm>
#include <array>

namespace velkor6::posix {
namespace {

std::string unescape(std::string_view field) {
    const auto octal = [](char c) { return c >= '0' && c <= '7'; };
    std::string s;
    s.reserve(field.size());
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 4 <= field.size() && octal(field[i + 1]) &&
            octal(field[i + 2]) && octal(field[i + 3])) {
            s.push_back(static_cast<char>((field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 +
                                          (field[i + 3] - '0')));
            i += 3;
            continue;
        }
        s.push_back(field[i]);
    }
    return s;
}

bool startsWithFolder(std::string_view path, std::string_view folder) {
    return path == folder ||
           (path.size() > folder.size() && path.substr(0, folder.size()) == folder &&
            path[folder.size()] == '/');
}

} // namespace

std::vector<MountEntry> parseMounts(std::string_view text) {
    std::vector<MountEntry> entries;
    while (!text.empty()) {
        const std::size_t eol = text.find('\n');
        std::string_view line = text.substr(0, eol);
        text = eol == std::string_view::npos ? std::string_view() : text.substr(eol + 1);

        std::array<std::string_view, 3> fields;
        std::size_t count = 0;
        while (count < fields.size()) {
            const std::size_t start = line.find_first_not_of(" \t");
            if (start == std::string_view::npos)
                break;
            line.remove_prefix(start);
            const std::size_t end = line.find_first_of(" \t");
            fields[count++] = line.substr(0, end);
            line = end == std::string_view::npos ? std::string_view() : line.substr(end);
        }
        if (count == fields.size())
            entries.push_back({unescape(fields[1]), std::string(fields[2])});
    }
    return entries;
}

bool isPseudoFileSystem(const MountEntry& entry) {
    static constexpr std::array<std::string_view, 22> pseudo = {
        "proc",       "sysfs",    "devtmpfs",  "devpts", "cgroup",      "cgroup2",
        "securityfs", "debugfs",  "tracefs",   "pstore", "bpf",         "mqueue",
        "hugetlbfs",  "configfs", "fusectl",   "autofs", "binfmt_misc", "efivarfs",
        "rpc_pipefs", "nsfs",     "selinuxfs", "ramfs"};
    if (std::find(pseudo.begin(), pseudo.end(), entry.type) != pseudo.end())
        return true;
    return startsWithFolder(entry.mountPoint, "/proc") ||
           startsWithFolder(entry.mountPoint, "/sys") || startsWithFolder(entry.mountPoint, "/dev");
}

std::vector<Volume> volumesFromMounts(std::string_view text) {
    std::vector<MountEntry> entries = parseMounts(text);
    // A later mount on the same point hides the earlier one.
    std::vector<Volume> volumes;
    for (auto it = entries.rbegin(); it != entries.rend(); ++it) {
        std::u16string root = fromNative(it->mountPoint);
        const bool seen = std::any_of(volumes.begin(), volumes.end(),
                                      [&](const Volume& v) { return v.root == root; });
        if (!seen)
            volumes.push_back({std::move(root), !isPseudoFileSystem(*it)});
    }
    std::sort(volumes.begin(), volumes.end(),
              [](const Volume& a, const Volume& b) { return a.root < b.root; });
    return volumes;
}

} // namespace velkor6::posix
