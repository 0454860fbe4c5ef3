// A read-only registry held in memory and filled from registry scripts (.reg files). It answers
// like the system's ANSI registry functions: key and value names compare without regard to case,
// sub-keys enumerate in the registry's sorted order, and names and text data pass through the ANSI
// code page on their way out, unless it is asked to keep every character.
#pragma once

#include "velkor6/platform/registry.h"

#include <array>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace velkor6 {

struct RegStatement;

// ThroughAnsi: what the ANSI functions of Windows give ("?" for characters the code page lacks).
// Whole: names keep every character, and text values carry them in RegValue::text too.
enum class RegistryText { ThroughAnsi, Whole };

class MemoryRegistry : public Registry {
public:
    explicit MemoryRegistry(RegistryText text = RegistryText::ThroughAnsi);
    ~MemoryRegistry() override;

    // Applies the statements of a script (its bytes, in any of the encodings the registry editor
    // writes); later scripts override earlier ones. False when the bytes are no registry script.
    bool load(std::string_view scriptBytes);
    void apply(const RegStatement& statement);

    std::int32_t queryValue(RegHandle key, std::u16string_view name, std::size_t capacity,
                            RegValue& value) override;
    std::int32_t enumKey(RegHandle key, std::uint32_t index, std::size_t nameCapacity,
                         std::u16string& name) override;
    std::int32_t close(RegHandle key) override;

    // Keys opened and not yet closed.
    std::size_t openKeyCount() const { return open_.size(); }

protected:
    std::int32_t openKey(RegHandle parent, std::u16string_view subKey, std::uint32_t access,
                         RegHandle& result) override;

private:
    struct Node;
    struct OpenKey {
        std::shared_ptr<Node> node;
        std::uint32_t access = 0;
    };

    const OpenKey* resolve(RegHandle key);
    std::shared_ptr<Node> find(RegHandle root, std::u16string_view path);
    std::shared_ptr<Node> findOrCreate(RegHandle root, std::u16string_view path);
    RegHandle newHandle();
    std::u16string outward(std::u16string_view name) const;

    std::array<OpenKey, 7> roots_;
    std::map<RegHandle, OpenKey> open_;
    RegHandle lastHandle_ = 0;
    RegistryText text_;
};

} // namespace velkor6
