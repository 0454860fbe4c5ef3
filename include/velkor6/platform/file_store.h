// Safe updates of small files that several processes share (settings files): the identity that
// tells whether a file changed since it was read, an exclusive lock for a read-modify-write, and a
// replacement that never leaves a half-written file behind.
#pragma once

#include "velkor6/export.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace velkor6 {

struct FileIdentity {
    std::uint64_t size = 0;
    std::int64_t modifiedNs = 0; // modification time in nanoseconds
    std::uint64_t inode = 0;     // file number within its volume, or another content tag
    std::uint64_t device = 0;
    // Modified so recently that a further change could still carry the same time stamp: a reader
    // must not trust a copy of the content on the identity alone.
    bool recent = false;

    bool sameFile(const FileIdentity& other) const {
        return size == other.size && modifiedNs == other.modifiedNs && inode == other.inode &&
               device == other.device;
    }
};

class VELKOR6_API FileStore {
public:
    // Held until destroyed.
    class Lock {
    public:
        virtual ~Lock() = default;
    };

    virtual ~FileStore() = default;

    // nullopt when the file does not exist.
    virtual std::optional<FileIdentity> identity(std::u16string_view path) = 0;

    // Waits for the exclusive update lock of the file, creating it empty when it is missing (as
    // the system's profile writer leaves an empty file behind). nullptr when the file cannot be
    // opened (no folder, no access). Only writers that take the lock exclude each other.
    virtual std::unique_ptr<Lock> lock(std::u16string_view path) = 0;

    // Replaces the whole content: a reader, and a crash at any moment, finds either the old
    // content whole or the new one. False when the file may not be written (read-only, no
    // folder); the old content then stays.
    virtual bool replace(std::u16string_view path, std::string_view bytes) = 0;
};

} // namespace velkor6
