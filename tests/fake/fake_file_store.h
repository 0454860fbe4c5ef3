// The file store over the in-memory file system: locks that never wait (the tests run in one
// process) and replacements that write the whole file at once.
#pragma once

#include "fake/fake_file_system.h"
#include "velkor6/platform/file_store.h"

namespace velkor6::fake {

class FakeFileStore final : public FileStore {
public:
    explicit FakeFileStore(FakeFileSystem& files) : files_(files) {}

    // Size, time and a hash of the content: any change of the content is a new identity.
    std::optional<FileIdentity> identity(std::u16string_view path) override;
    std::unique_ptr<Lock> lock(std::u16string_view path) override;
    bool replace(std::u16string_view path, std::string_view bytes) override;

    int locksTaken() const { return locks_; }
    int replacements() const { return replacements_; }

private:
    FakeFileSystem& files_;
    int locks_ = 0;
    int replacements_ = 0;
};

} // namespace velkor6::fake
