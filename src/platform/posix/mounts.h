// The mount table (/proc/self/mounts) as volumes.
#pragma once

#include "velkor6/platform/file_system.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor6::posix {

struct MountEntry {
    std::string mountPoint;
    std::string type;
};

// One entry per line: device, mount point, type, ...; "\040" and the like are octal escapes.
std::vector<MountEntry> parseMounts(std::string_view text);
// Kernel and device file systems (proc, sysfs, cgroup ...) and anything mounted below /proc,
// /sys or /dev: they hold no user files.
bool isPseudoFileSystem(const MountEntry& entry);
// Each mount point once, sorted; pseudo file systems are listed as not searchable.
std::vector<Volume> volumesFromMounts(std::string_view text);

} // namespace velkor6::posix
