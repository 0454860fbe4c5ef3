// The resources of a Windows executable or library, read from its file: the resource tree of a
// PE image (32 or 64 bit), typed resources by type and name, and the string tables. Resource
// libraries made for Windows serve this way on every platform, without loading any code.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velkor6::resources {

// The type or name of a resource: a number, or a name that ignores letter case.
struct ResourceId {
    std::variant<std::uint16_t, std::u16string> value;

    // "#12" is the number 12, as the system's resource functions read it; "#" with anything
    // but a number up to 65535 names no resource at all (nullopt). Other text is a name.
    static std::optional<ResourceId> fromText(std::u16string_view text);
};

class PeImage {
public:
    // nullopt when the bytes are no PE image or its resource tree leaves the file.
    static std::optional<PeImage> read(std::string bytes);

    // The bytes of a resource; of several languages the language-neutral one, else the first.
    std::optional<std::string_view> find(const ResourceId& type, const ResourceId& name) const;

    // A string of the string tables (16 to a block); "" when the image has none with that id.
    std::u16string string(std::uint32_t id) const;

private:
    PeImage(std::string bytes, std::uint32_t treeRva);

    struct Section {
        std::uint32_t rva = 0;
        std::uint32_t size = 0;
        std::uint32_t fileOffset = 0;
        std::uint32_t fileSize = 0;
    };

    // File offset of count bytes at a relative virtual address, or nullopt outside the file.
    std::optional<std::size_t> offsetOf(std::uint32_t rva, std::size_t count) const;
    // The entry of one level of the tree below the directory at tree offset dir.
    std::optional<std::uint32_t> child(std::uint32_t dir, const ResourceId& id) const;
    std::optional<std::uint32_t> firstLanguage(std::uint32_t dir) const;
    std::optional<std::string_view> data(std::uint32_t entry) const;
    std::optional<std::u16string> entryName(std::uint32_t nameField) const;

    std::string bytes_;
    std::uint32_t treeRva_ = 0;
    std::vector<Section> sections_;
};

} // namespace velkor6::resources
