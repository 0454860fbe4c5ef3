#include "windows/bmp_file.h"

#include <array>
#include <bit>
#include <cstdint>
#include <vector>

namespace velkor6::windows {
namespace {

// Larger pictures are refused rather than allocated: 16384 by 16384 pixels.
constexpr std::int64_t maxPixels = std::int64_t{1} << 28;

std::uint32_t le(std::string_view b, std::size_t at, int size) {
    std::uint32_t v = 0;
    for (int i = size - 1; i >= 0; --i)
        v = (v << 8) | static_cast<unsigned char>(b[at + static_cast<std::size_t>(i)]);
    return v;
}

void put(std::string& out, std::uint32_t v, int size) {
    for (int i = 0; i < size; ++i)
        out += static_cast<char>((v >> (8 * i)) & 0xFF);
}

// A colour mask as a shift and a width, to scale its field to 8 bits.
struct Channel {
    std::uint32_t mask = 0;
    int shift = 0;
    int bits = 0;
    std::uint8_t of(std::uint32_t pixel) const {
        if (bits == 0)
            return 0;
        const std::uint32_t v = (pixel & mask) >> shift;
        const std::uint32_t top = (std::uint32_t{1} << bits) - 1;
        return static_cast<std::uint8_t>((v * 255 + top / 2) / top);
    }
};

std::optional<Channel> channelOf(std::uint32_t mask) {
    Channel c{mask, 0, 0};
    if (mask == 0)
        return c;
    c.shift = std::countr_zero(mask);
    c.bits = std::popcount(mask);
    // One unbroken run of at most 16 bits.
    if ((mask >> c.shift) != (std::uint32_t{1} << c.bits) - 1 || c.bits > 16)
        return std::nullopt;
    return c;
}

} // namespace

std::optional<RgbImage> readBmp(std::string_view b) {
    if (b.size() < 26 || b[0] != 'B' || b[1] != 'M')
        return std::nullopt;
    const std::uint32_t dataAt = le(b, 10, 4);
    const std::uint32_t headerSize = le(b, 14, 4);
    std::int64_t width = 0, height = 0;
    std::uint32_t bitCount = 0, compression = 0, used = 0;
    std::size_t paletteEntry = 4;
    if (headerSize == 12) {
        width = le(b, 18, 2);
        height = le(b, 20, 2);
        bitCount = le(b, 24, 2);
        paletteEntry = 3;
    } else if (headerSize == 40 || headerSize == 52 || headerSize == 56 || headerSize == 108 ||
               headerSize == 124) {
        if (b.size() < 14 + std::size_t{headerSize})
            return std::nullopt;
        width = static_cast<std::int32_t>(le(b, 18, 4));
        height = static_cast<std::int32_t>(le(b, 22, 4));
        bitCount = le(b, 28, 2);
        compression = le(b, 30, 4);
        used = le(b, 46, 4);
    } else {
        return std::nullopt;
    }
    const bool topDown = height < 0;
    if (topDown)
        height = -height;
    if (width <= 0 || height <= 0 || width * height > maxPixels)
        return std::nullopt;

    const std::size_t afterHeader = 14 + std::size_t{headerSize};
    std::array<Channel, 3> masks{};
    constexpr std::uint32_t rgb = 0, bitfields = 3;
    if (compression == bitfields && (bitCount == 16 || bitCount == 32)) {
        // Inside the larger headers, or right after the 40-byte one.
        const std::size_t at = 54;
        if (b.size() < at + 12)
            return std::nullopt;
        for (std::size_t i = 0; i < 3; ++i) {
            const auto c = channelOf(le(b, at + 4 * i, 4));
            if (!c)
                return std::nullopt;
            masks[i] = *c;
        }
    } else if (compression == rgb && (bitCount == 16 || bitCount == 32)) {
        masks = bitCount == 16
                    ? std::array{*channelOf(0x7C00), *channelOf(0x03E0), *channelOf(0x001F)}
                    : std::array{*channelOf(0xFF0000), *channelOf(0x00FF00), *channelOf(0x0000FF)};
    } else if (compression != rgb ||
               (bitCount != 1 && bitCount != 4 && bitCount != 8 && bitCount != 24)) {
        return std::nullopt;
    }

    std::vector<Rgb> palette;
    if (bitCount <= 8) {
        const std::uint32_t full = std::uint32_t{1} << bitCount;
        const std::uint32_t n = used == 0 || used > full ? full : used;
        std::size_t at = afterHeader;
        if (compression == bitfields)
            at += 12;
        if (b.size() < at + n * paletteEntry)
            return std::nullopt;
        for (std::uint32_t i = 0; i < n; ++i, at += paletteEntry)
            palette.push_back({static_cast<std::uint8_t>(b[at + 2]),
                               static_cast<std::uint8_t>(b[at + 1]),
                               static_cast<std::uint8_t>(b[at])});
    }

    const std::size_t stride = static_cast<std::size_t>((width * bitCount + 31) / 32 * 4);
    if (dataAt > b.size() || (b.size() - dataAt) / stride < static_cast<std::size_t>(height))
        return std::nullopt;
    RgbImage image(static_cast<std::int32_t>(width), static_cast<std::int32_t>(height));
    for (std::int32_t y = 0; y < image.height; ++y) {
        const std::int32_t fileRow = topDown ? y : image.height - 1 - y;
        const std::size_t row = dataAt + static_cast<std::size_t>(fileRow) * stride;
        for (std::int32_t x = 0; x < image.width; ++x) {
            Rgb& p = image.at(x, y);
            const auto ux = static_cast<std::size_t>(x);
            switch (bitCount) {
            case 24:
                p = {static_cast<std::uint8_t>(b[row + 3 * ux + 2]),
                     static_cast<std::uint8_t>(b[row + 3 * ux + 1]),
                     static_cast<std::uint8_t>(b[row + 3 * ux])};
                break;
            case 16:
            case 32: {
                const std::uint32_t v =
                    le(b, row + ux * (bitCount / 8), static_cast<int>(bitCount / 8));
                p = {masks[0].of(v), masks[1].of(v), masks[2].of(v)};
                break;
            }
            default: {
                const std::size_t bit = ux * bitCount;
                const auto byte = static_cast<unsigned char>(b[row + bit / 8]);
                const unsigned shift = 8 - bitCount - static_cast<unsigned>(bit % 8);
                const unsigned index = (byte >> shift) & ((1u << bitCount) - 1);
                // An index past the table is black, as the system draws it.
                p = index < palette.size() ? palette[index] : Rgb{};
            }
            }
        }
    }
    return image;
}

std::string writeBmp(const RgbImage& image) {
    const auto stride = static_cast<std::uint32_t>((image.width * 3 + 3) / 4 * 4);
    const std::uint32_t dataSize = stride * static_cast<std::uint32_t>(image.height);
    constexpr std::uint32_t dataAt = 14 + 40;
    constexpr std::uint32_t dotsPerMetre = 3780; // 96 dots per inch
    std::string out;
    out.reserve(dataAt + dataSize);
    out += "BM";
    put(out, dataAt + dataSize, 4);
    put(out, 0, 4);
    put(out, dataAt, 4);
    put(out, 40, 4);
    put(out, static_cast<std::uint32_t>(image.width), 4);
    put(out, static_cast<std::uint32_t>(image.height), 4);
    put(out, 1, 2);
    put(out, 24, 2);
    put(out, 0, 4);
    put(out, dataSize, 4);
    put(out, dotsPerMetre, 4);
    put(out, dotsPerMetre, 4);
    put(out, 0, 4);
    put(out, 0, 4);
    for (std::int32_t y = image.height - 1; y >= 0; --y) {
        for (std::int32_t x = 0; x < image.width; ++x) {
            const Rgb& p = image.at(x, y);
            out += static_cast<char>(p.blue);
            out += static_cast<char>(p.green);
            out += static_cast<char>(p.red);
        }
        out.append(stride - static_cast<std::uint32_t>(image.width) * 3, '\0');
    }
    return out;
}

} // namespace velkor6::windows
