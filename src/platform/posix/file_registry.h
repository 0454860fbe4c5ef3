// The POSIX registry: registry scripts (.reg files) in a folder, read once on first use.
#pragma once

#include "velkor6/platform/registry.h"

#include <filesystem>
#include <memory>

namespace velkor6::posix {

// $VELKOR6_REGISTRY when set, else the velkor6 folder in the XDG config home ($XDG_CONFIG_HOME,
// or ~/.config).
std::filesystem::path registryFolder();

// A read-only registry made of the *.reg files of a folder, applied in file-name order so that a
// later file overrides an earlier one. A missing folder gives an empty registry.
std::unique_ptr<Registry> createFileRegistry(std::filesystem::path folder);

// The registry of createNative(): the scripts of registryFolder().
std::unique_ptr<Registry> createRegistry();

} // namespace velkor6::posix
