#include "resources/pe_builder.h"

#include <map>

namespace velkor6::test {
namespace {

constexpr std::uint32_t sectionRva = 0x1000;
constexpr std::uint32_t fileAlignment = 0x200;
constexpr std::size_t headersSize = 0x200;
constexpr std::uint32_t highBit = 0x80000000u;

void put16(std::string& out, std::size_t at, std::uint32_t v) {
    out[at] = static_cast<char>(v & 0xFF);
    out[at + 1] = static_cast<char>((v >> 8) & 0xFF);
}

void put32(std::string& out, std::size_t at, std::uint32_t v) {
    put16(out, at, v & 0xFFFF);
    put16(out, at + 2, v >> 16);
}

void padTo(std::string& out, std::size_t alignment) {
    out.resize((out.size() + alignment - 1) / alignment * alignment, '\0');
}

// One level of the resource tree; a leaf holds data. Names sort before numbers, as the
// resource compiler writes them.
struct Node {
    std::map<Key, Node> children;
    const std::string* data = nullptr;
};

// Directories and data entries go first, in tree order; the names and the data follow and
// are patched in.
class SectionWriter {
public:
    std::string write(const Node& root) {
        directory(root);
        for (const auto& [at, name] : names_) {
            put32(out_, at, static_cast<std::uint32_t>(out_.size()) | highBit);
            const std::size_t start = out_.size();
            out_.resize(start + 2 + 2 * name.size());
            put16(out_, start, static_cast<std::uint32_t>(name.size()));
            for (std::size_t i = 0; i < name.size(); ++i)
                put16(out_, start + 2 + 2 * i, name[i]);
        }
        for (const auto& [at, data] : data_) {
            padTo(out_, 4);
            put32(out_, at, sectionRva + static_cast<std::uint32_t>(out_.size()));
            put32(out_, at + 4, static_cast<std::uint32_t>(data->size()));
            out_ += *data;
        }
        return out_;
    }

private:
    std::uint32_t directory(const Node& node) {
        const std::size_t at = out_.size();
        out_.resize(at + 16 + 8 * node.children.size());
        std::uint32_t named = 0;
        for (const auto& [key, _] : node.children)
            named += std::holds_alternative<std::u16string>(key) ? 1 : 0;
        put16(out_, at + 12, named);
        put16(out_, at + 14, static_cast<std::uint32_t>(node.children.size()) - named);
        std::size_t entry = at + 16;
        for (const auto& [key, child] : node.children) {
            if (const auto* name = std::get_if<std::u16string>(&key))
                names_.emplace_back(entry, *name);
            else
                put32(out_, entry, std::get<std::uint16_t>(key));
            put32(out_, entry + 4,
                  child.data ? dataEntry(*child.data) : directory(child) | highBit);
            entry += 8;
        }
        return static_cast<std::uint32_t>(at);
    }

    std::uint32_t dataEntry(const std::string& data) {
        const std::size_t at = out_.size();
        out_.resize(at + 16);
        data_.emplace_back(at, &data);
        return static_cast<std::uint32_t>(at);
    }

    std::string out_;
    std::vector<std::pair<std::size_t, std::u16string>> names_;
    std::vector<std::pair<std::size_t, const std::string*>> data_;
};

} // namespace

std::string buildResourceLibrary(const std::vector<Resource>& resources) {
    Node root;
    for (const Resource& r : resources)
        root.children[r.type].children[r.name].children[Key(r.language)].data = &r.data;
    std::string section = SectionWriter().write(root);
    const auto rawSize = static_cast<std::uint32_t>((section.size() + fileAlignment - 1) /
                                                    fileAlignment * fileAlignment);

    std::string image(headersSize, '\0');
    image[0] = 'M';
    image[1] = 'Z';
    put32(image, 0x3C, 0x40);
    image.replace(0x40, 4, std::string("PE\0\0", 4));
    const std::size_t coff = 0x44;
    put16(image, coff, 0x014C);      // i386
    put16(image, coff + 2, 1);       // one section
    put16(image, coff + 16, 0xE0);   // the optional header of a 32-bit image
    put16(image, coff + 18, 0x2102); // a 32-bit library
    const std::size_t optional = coff + 20;
    put16(image, optional, 0x10B);
    put32(image, optional + 28, 0x10000000); // image base
    put32(image, optional + 32, 0x1000);     // section alignment
    put32(image, optional + 36, fileAlignment);
    put32(image, optional + 56, sectionRva + (rawSize + 0xFFF) / 0x1000 * 0x1000);
    put32(image, optional + 60, headersSize);
    put16(image, optional + 68, 2); // Windows GUI
    put32(image, optional + 92, 16);
    put32(image, optional + 96 + 2 * 8, sectionRva);
    put32(image, optional + 96 + 2 * 8 + 4, static_cast<std::uint32_t>(section.size()));
    const std::size_t header = optional + 0xE0;
    image.replace(header, 5, ".rsrc");
    put32(image, header + 8, static_cast<std::uint32_t>(section.size()));
    put32(image, header + 12, sectionRva);
    put32(image, header + 16, rawSize);
    put32(image, header + 20, headersSize);
    put32(image, header + 36, 0x40000040); // initialised data, readable

    section.resize(rawSize, '\0');
    return image + section;
}

std::string stringBlock(const std::array<std::u16string, 16>& strings) {
    std::string block;
    for (const std::u16string& s : strings) {
        const std::size_t at = block.size();
        block.resize(at + 2 + 2 * s.size());
        put16(block, at, static_cast<std::uint32_t>(s.size()));
        for (std::size_t i = 0; i < s.size(); ++i)
            put16(block, at + 2 + 2 * i, s[i]);
    }
    return block;
}

Resource stringResource(std::uint32_t id, const std::u16string& text, std::uint16_t language) {
    std::array<std::u16string, 16> strings;
    strings[id & 15] = text;
    return {std::uint16_t{6}, static_cast<std::uint16_t>((id >> 4) + 1), language,
            stringBlock(strings)};
}

} // namespace velkor6::test
