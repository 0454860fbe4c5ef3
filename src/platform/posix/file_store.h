// The POSIX file store: flock on the file itself, replacement by rename.
#pragma once

#include "velkor6/platform/file_store.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace velkor6::posix {

std::unique_ptr<FileStore> createFileStore();

// Writes bytes to a new file beside path and renames it over path; a link is followed to its
// target. The new files of writers that died before their rename go first (callers hold the
// file's lock). afterWrite runs once the new file is complete, just before the rename (tests stop
// the process there to show that the old file survives).
bool replaceFile(const std::string& path, std::string_view bytes,
                 const std::function<void()>& afterWrite = {});

} // namespace velkor6::posix
