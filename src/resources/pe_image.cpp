#include "resources/pe_image.h"

#include "core/text.h"

#include <algorithm>

namespace velkor6::resources {
namespace {

constexpr std::uint32_t subdirectoryBit = 0x80000000u;
constexpr std::uint16_t stringTableType = 6;
constexpr std::size_t directoryHeaderSize = 16;
constexpr std::size_t directoryEntrySize = 8;

std::optional<std::uint32_t> readU16(std::string_view bytes, std::size_t at) {
    if (at > bytes.size() || bytes.size() - at < 2)
        return std::nullopt;
    const auto b = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[at + i]); };
    return static_cast<std::uint32_t>(b(0) | b(1) << 8);
}

std::optional<std::uint32_t> readU32(std::string_view bytes, std::size_t at) {
    const auto lo = readU16(bytes, at);
    const auto hi = readU16(bytes, at + 2);
    if (!lo || !hi)
        return std::nullopt;
    return *lo | *hi << 16;
}

std::u16string utf16(std::string_view bytes) {
    std::u16string s(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < s.size(); ++i)
        s[i] = static_cast<char16_t>(*readU16(bytes, 2 * i));
    return s;
}

bool namesEqual(std::u16string_view a, std::u16string_view b) {
    return std::ranges::equal(a, b,
                              [](char16_t x, char16_t y) { return toUpper(x) == toUpper(y); });
}

} // namespace

std::optional<ResourceId> ResourceId::fromText(std::u16string_view text) {
    if (!text.starts_with(u'#'))
        return ResourceId{std::u16string(text)};
    const std::u16string_view digits = text.substr(1);
    if (digits.empty() || digits.size() > 5)
        return std::nullopt;
    std::uint32_t n = 0;
    for (const char16_t c : digits) {
        if (c < u'0' || c > u'9')
            return std::nullopt;
        n = n * 10 + static_cast<std::uint32_t>(c - u'0');
    }
    if (n > 0xFFFF)
        return std::nullopt;
    return ResourceId{static_cast<std::uint16_t>(n)};
}

PeImage::PeImage(std::string bytes, std::uint32_t treeRva)
    : bytes_(std::move(bytes)), treeRva_(treeRva) {}

std::optional<PeImage> PeImage::read(std::string bytes) {
    const std::string_view b = bytes;
    if (!b.starts_with("MZ"))
        return std::nullopt;
    const auto pe = readU32(b, 0x3C);
    if (!pe || *pe > b.size() || b.substr(*pe, 4) != std::string_view("PE\0\0", 4))
        return std::nullopt;
    const std::size_t coff = *pe + 4;
    const auto sectionCount = readU16(b, coff + 2);
    const auto optionalSize = readU16(b, coff + 16);
    const std::size_t optional = coff + 20;
    const auto magic = readU16(b, optional);
    if (!sectionCount || !optionalSize || !magic)
        return std::nullopt;
    std::size_t countAt = 0;
    if (*magic == 0x10B)
        countAt = 92;
    else if (*magic == 0x20B)
        countAt = 108;
    else
        return std::nullopt;
    const std::size_t resourceEntry = countAt + 4 + 2 * 8;
    const auto directoryCount = readU32(b, optional + countAt);
    if (!directoryCount || *optionalSize < resourceEntry + 8)
        return std::nullopt;
    std::uint32_t treeRva = 0;
    if (*directoryCount > 2) {
        const auto rva = readU32(b, optional + resourceEntry);
        if (!rva)
            return std::nullopt;
        treeRva = *rva;
    }

    std::vector<Section> sections;
    const std::size_t table = optional + *optionalSize;
    for (std::uint32_t i = 0; i < *sectionCount; ++i) {
        const std::size_t at = table + 40 * std::size_t{i};
        const auto size = readU32(b, at + 8);
        const auto rva = readU32(b, at + 12);
        const auto fileSize = readU32(b, at + 16);
        const auto fileOffset = readU32(b, at + 20);
        if (!size || !rva || !fileSize || !fileOffset)
            return std::nullopt;
        sections.push_back({*rva, std::max(*size, *fileSize), *fileOffset, *fileSize});
    }
    PeImage image(std::move(bytes), treeRva);
    image.sections_ = std::move(sections);
    if (treeRva != 0 && !image.offsetOf(treeRva, directoryHeaderSize))
        return std::nullopt;
    return image;
}

std::optional<std::size_t> PeImage::offsetOf(std::uint32_t rva, std::size_t count) const {
    for (const Section& s : sections_) {
        if (rva < s.rva || rva - s.rva >= s.size)
            continue;
        // Bytes past the section's file data exist only in memory, as zeros; no resource
        // lives there.
        const std::uint64_t inSection = rva - s.rva;
        if (inSection + count > s.fileSize || s.fileOffset + inSection + count > bytes_.size())
            return std::nullopt;
        return static_cast<std::size_t>(s.fileOffset + inSection);
    }
    return std::nullopt;
}

std::optional<std::u16string> PeImage::entryName(std::uint32_t nameField) const {
    const auto at = offsetOf(treeRva_ + (nameField & ~subdirectoryBit), 2);
    if (!at)
        return std::nullopt;
    const std::uint32_t length = *readU16(bytes_, *at);
    const auto chars = offsetOf(treeRva_ + (nameField & ~subdirectoryBit) + 2, 2 * length);
    if (!chars)
        return std::nullopt;
    return utf16(std::string_view(bytes_).substr(*chars, 2 * length));
}

std::optional<std::uint32_t> PeImage::child(std::uint32_t dir, const ResourceId& id) const {
    const auto at = offsetOf(treeRva_ + dir, directoryHeaderSize);
    if (!at)
        return std::nullopt;
    const std::uint32_t count = *readU16(bytes_, *at + 12) + *readU16(bytes_, *at + 14);
    const auto entries = offsetOf(treeRva_ + dir + directoryHeaderSize, count * directoryEntrySize);
    if (!entries)
        return std::nullopt;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t entry = *entries + i * directoryEntrySize;
        const std::uint32_t nameField = *readU32(bytes_, entry);
        bool match = false;
        if ((nameField & subdirectoryBit) != 0) {
            const auto* wanted = std::get_if<std::u16string>(&id.value);
            const auto name = wanted ? entryName(nameField) : std::nullopt;
            match = name && namesEqual(*name, *wanted);
        } else {
            const auto* wanted = std::get_if<std::uint16_t>(&id.value);
            match = wanted && nameField == *wanted;
        }
        if (match)
            return *readU32(bytes_, entry + 4);
    }
    return std::nullopt;
}

std::optional<std::uint32_t> PeImage::firstLanguage(std::uint32_t dir) const {
    if (const auto neutral = child(dir, ResourceId{std::uint16_t{0}}))
        return neutral;
    const auto at = offsetOf(treeRva_ + dir, directoryHeaderSize + directoryEntrySize);
    if (!at || *readU16(bytes_, *at + 12) + *readU16(bytes_, *at + 14) == 0)
        return std::nullopt;
    return *readU32(bytes_, *at + directoryHeaderSize + 4);
}

std::optional<std::string_view> PeImage::data(std::uint32_t entry) const {
    if ((entry & subdirectoryBit) != 0)
        return std::nullopt;
    const auto at = offsetOf(treeRva_ + entry, 8);
    if (!at)
        return std::nullopt;
    const std::uint32_t rva = *readU32(bytes_, *at);
    const std::uint32_t size = *readU32(bytes_, *at + 4);
    const auto where = offsetOf(rva, size);
    if (!where)
        return std::nullopt;
    return std::string_view(bytes_).substr(*where, size);
}

std::optional<std::string_view> PeImage::find(const ResourceId& type,
                                              const ResourceId& name) const {
    if (treeRva_ == 0)
        return std::nullopt;
    const auto types = child(0, type);
    if (!types || (*types & subdirectoryBit) == 0)
        return std::nullopt;
    const auto names = child(*types & ~subdirectoryBit, name);
    if (!names || (*names & subdirectoryBit) == 0)
        return std::nullopt;
    const auto language = firstLanguage(*names & ~subdirectoryBit);
    if (!language)
        return std::nullopt;
    return data(*language);
}

std::u16string PeImage::string(std::uint32_t id) const {
    if (id > 0xFFFF)
        return {};
    const auto block = static_cast<std::uint16_t>((id >> 4) + 1);
    const auto table = find(ResourceId{stringTableType}, ResourceId{block});
    if (!table)
        return {};
    // Sixteen strings, each its length in characters and then the characters.
    std::size_t at = 0;
    for (std::uint32_t index = 0;; ++index) {
        const auto length = readU16(*table, at);
        if (!length || table->size() - at - 2 < 2 * std::size_t{*length})
            return {};
        if (index == (id & 15))
            return utf16(table->substr(at + 2, 2 * std::size_t{*length}));
        at += 2 + 2 * std::size_t{*length};
    }
}

} // namespace velkor6::resources
