// Translucent pictures: the blend, bitmap files, and the two members over the fake platform.
#include "fake/error_of.h"
#include "fake/fake_platform.h"
#include "velkor6/lib.h"
#include "windows/bmp_file.h"
#include "windows/picture_blend.h"
#include "windows/picture_object.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

using windows::readBmp;
using windows::writeBmp;

// 3 by 2, every pixel different.
RgbImage sample() {
    RgbImage image(3, 2);
    for (std::int32_t y = 0; y < 2; ++y)
        for (std::int32_t x = 0; x < 3; ++x)
            image.at(x, y) = {static_cast<std::uint8_t>(10 + x * 100),
                              static_cast<std::uint8_t>(1 + y * 200),
                              static_cast<std::uint8_t>(x + y)};
    return image;
}

RgbImage pixelsOf(const Variant& picture) {
    return dynamic_cast<const windows::PictureObject&>(*picture.object()).image();
}
RgbImage pixelsOf(const ObjectRef& picture) {
    return dynamic_cast<const windows::PictureObject&>(*picture).image();
}

TEST(Pictures, BlendRuleAndColourLong) {
    using windows::blendChannel;
    EXPECT_EQ(blendChannel(200, 100, 0), 200);
    EXPECT_EQ(blendChannel(200, 100, 100), 100);
    EXPECT_EQ(blendChannel(200, 100, 50), 150);
    EXPECT_EQ(blendChannel(201, 100, 50), 151); // 150.5 rounds up
    EXPECT_EQ(blendChannel(0, 255, 30), 77);    // 76.5
    EXPECT_EQ(blendChannel(255, 0, 1), 252);    // 252.45
    EXPECT_EQ(blendChannel(10, 20, -5), 10);
    EXPECT_EQ(blendChannel(10, 20, 250), 20);
    EXPECT_EQ(windows::colourOfLong(0x00336699), (Rgb{0x99, 0x66, 0x33}));
    EXPECT_EQ(windows::colourOfLong(static_cast<std::int32_t>(0x8000000F)), (Rgb{0x0F, 0, 0}));
}

TEST(Pictures, BmpRoundTripPadsRowsAndReadsOtherLayouts) {
    for (std::int32_t width : {1, 2, 3, 4, 5}) {
        RgbImage image(width, 3);
        for (std::size_t i = 0; i < image.pixels.size(); ++i)
            image.pixels[i] = {static_cast<std::uint8_t>(i * 7), static_cast<std::uint8_t>(255 - i),
                               static_cast<std::uint8_t>(i * 31)};
        const std::string file = writeBmp(image);
        const std::size_t stride = static_cast<std::size_t>((width * 3 + 3) / 4 * 4);
        ASSERT_EQ(file.size(), 54 + stride * 3) << width;
        // Bottom-up: the file's first row is the picture's last; the padding is zero.
        EXPECT_EQ(static_cast<std::uint8_t>(file[54]), image.at(0, 2).blue);
        for (std::size_t pad = static_cast<std::size_t>(width) * 3; pad < stride; ++pad)
            EXPECT_EQ(file[54 + pad], '\0');
        const auto back = readBmp(file);
        ASSERT_TRUE(back) << width;
        EXPECT_EQ(back->pixels, image.pixels) << width;
    }

    // 2 by 2 at 8 bits with a two-colour table, top-down (negative height).
    std::string indexed = writeBmp(RgbImage(2, 2));
    indexed.resize(54);
    const auto set32 = [](std::string& s, std::size_t at, std::uint32_t v) {
        for (int i = 0; i < 4; ++i)
            s[at + static_cast<std::size_t>(i)] = static_cast<char>(v >> (8 * i));
    };
    set32(indexed, 10, 54 + 8);
    set32(indexed, 22, static_cast<std::uint32_t>(-2));
    indexed[28] = 8;
    set32(indexed, 46, 2);
    indexed += std::string("\x00\x00\xFF\x00\xFF\x00\x00\x00", 8); // red, blue
    indexed += std::string("\x00\x01\x00\x00\x01\x01\x00\x00", 8);
    const auto colours = readBmp(indexed);
    ASSERT_TRUE(colours);
    EXPECT_EQ(colours->at(0, 0), (Rgb{255, 0, 0}));
    EXPECT_EQ(colours->at(1, 0), (Rgb{0, 0, 255}));
    EXPECT_EQ(colours->at(0, 1), (Rgb{0, 0, 255}));

    // 32 bits with colour masks (blue in the high byte here).
    std::string masked = writeBmp(RgbImage(1, 1));
    masked.resize(54);
    set32(masked, 10, 66);
    masked[28] = 32;
    set32(masked, 30, 3);
    masked += std::string("\x00\x00\xFF\x00\x00\xFF\x00\x00\x00\x00\x00\xFF", 12);
    masked += std::string("\x00\x20\x10\x40", 4);
    const auto fromMasks = readBmp(masked);
    ASSERT_TRUE(fromMasks);
    EXPECT_EQ(fromMasks->at(0, 0), (Rgb{0x10, 0x20, 0x40}));

    // Cut short, compressed (RLE8), or not a bitmap at all.
    const std::string whole = writeBmp(sample());
    EXPECT_FALSE(readBmp(whole.substr(0, whole.size() - 1)));
    std::string rle = indexed;
    set32(rle, 30, 1);
    EXPECT_FALSE(readBmp(rle));
    EXPECT_FALSE(readBmp("GIF89a"));
}

TEST(Pictures, SemiTransparentPictureFromFilesAndObjects) {
    fake::FakePlatform fake;
    fake.files.addFile(u"C:\\pic.bmp", writeBmp(sample()));
    fake.files.addFile(u"C:\\not.bmp", "BM nonsense");
    lib l(fake.module);

    // Half over white: each channel (c + 255 + 1) \ 2.
    const Variant half(l.vkrGetSemiTransparentPicture(Variant(u"C:\\pic.bmp")));
    const RgbImage h = pixelsOf(half);
    ASSERT_EQ(h.width, 3);
    ASSERT_EQ(h.height, 2);
    EXPECT_EQ(h.at(2, 1), (Rgb{233, 228, 129}));
    EXPECT_EQ(half.object()->call(u"Width", CallKind::PropertyGet, {}), Variant(79));
    EXPECT_EQ(half.object()->call(u"type", CallKind::PropertyGet, {}), Variant(std::int16_t{1}));

    // 0 and 100 percent, a colour Long, a region over the edge, and a picture object as input.
    EXPECT_EQ(pixelsOf(l.vkrGetSemiTransparentPicture(half, 0, 0)).pixels, h.pixels);
    const RgbImage flat = pixelsOf(l.vkrGetSemiTransparentPicture(half, 100, 0x0000FF));
    EXPECT_EQ(flat.at(1, 1), (Rgb{255, 0, 0}));
    const RgbImage part =
        pixelsOf(l.vkrGetSemiTransparentPicture(Variant(u"C:\\pic.bmp"), 0, 0, 1, 1, 5, -1));
    ASSERT_EQ(part.width, 2);
    ASSERT_EQ(part.height, 1);
    EXPECT_EQ(part.at(0, 0), sample().at(1, 1));

    // SaveAs writes a bitmap the reader takes back.
    Variant path(u"C:\\out.bmp");
    half.object()->call(u"SaveAs", CallKind::Method, std::span<Variant>(&path, 1));
    const auto saved = readBmp(*fake.files.readFile(u"C:\\out.bmp"));
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->pixels, h.pixels);

    EXPECT_EQ(errorOf([&] { l.vkrGetSemiTransparentPicture(Variant(u"C:\\none.bmp")); }), 53);
    EXPECT_EQ(errorOf([&] { l.vkrGetSemiTransparentPicture(Variant(u"C:\\not.bmp")); }), 481);
    EXPECT_EQ(errorOf([&] { l.vkrGetSemiTransparentPicture(Variant(ObjectRef{})); }), 91);
    EXPECT_EQ(errorOf([&] { l.vkrGetSemiTransparentPicture(Variant(3)); }), 13);
    EXPECT_EQ(errorOf([&] { l.vkrGetSemiTransparentPicture(half, 50, 0, 3, 0); }), 5);
    Variant nowhere(u"Z:\\no\\such\\folder\\x.bmp");
    EXPECT_EQ(errorOf([&] {
                  half.object()->call(u"SaveAs", CallKind::Method, std::span<Variant>(&nowhere, 1));
              }),
              75);
}

// A picture of the caller's that is an icon (Type 3), and one whose bitmap the system cannot read.
class CallerPicture final : public Object {
public:
    explicit CallerPicture(std::int16_t type) : type_(type) {}
    std::u16string typeName() const override { return u"Picture"; }
    Variant call(std::u16string_view name, CallKind, std::span<Variant>) override {
        return name == u"Type" ? Variant(type_) : Variant(1234);
    }

private:
    std::int16_t type_;
};

TEST(Pictures, DrawOverPictureObjectsFilesAndDeviceContexts) {
    fake::FakePlatform fake;
    RgbImage black(2, 2, Rgb{0, 0, 0});
    fake.files.addFile(u"C:\\black.bmp", writeBmp(black));
    fake.files.addFile(u"C:\\back.bmp", writeBmp(RgbImage(4, 3, Rgb{100, 100, 100})));
    lib l(fake.module);

    // Into a picture object in place, the part left of the target cut off.
    const Variant target(l.vkrGetSemiTransparentPicture(Variant(u"C:\\back.bmp"), 0));
    EXPECT_TRUE(l.glbDrawSemiTransparentPicture(target, Variant(u"C:\\black.bmp"), -1, 1, 30));
    const RgbImage drawn = pixelsOf(target);
    EXPECT_EQ(drawn.at(0, 1), (Rgb{30, 30, 30}));
    EXPECT_EQ(drawn.at(0, 2), (Rgb{30, 30, 30}));
    EXPECT_EQ(drawn.at(1, 1), (Rgb{100, 100, 100}));
    EXPECT_EQ(drawn.at(0, 0), (Rgb{100, 100, 100}));
    EXPECT_FALSE(l.glbDrawSemiTransparentPicture(target, Variant(u"C:\\black.bmp"), 4, 0));

    // Into a file, written back.
    EXPECT_TRUE(
        l.glbDrawSemiTransparentPicture(Variant(u"C:\\back.bmp"), Variant(u"C:\\black.bmp"), 3, 2));
    const auto file = readBmp(*fake.files.readFile(u"C:\\back.bmp"));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->at(3, 2), (Rgb{50, 50, 50}));
    EXPECT_EQ(file->at(2, 2), (Rgb{100, 100, 100}));

    // No device contexts on this platform: False, nothing raised.
    EXPECT_FALSE(l.glbDrawSemiTransparentPicture(Variant(77), Variant(u"C:\\black.bmp")));
    // The caller's pictures: an icon is no bitmap; a bitmap the system cannot read is invalid too.
    EXPECT_EQ(errorOf([&] {
                  l.vkrGetSemiTransparentPicture(
                      Variant(ObjectRef(std::make_shared<CallerPicture>(3))));
              }),
              481);
    EXPECT_EQ(errorOf([&] {
                  l.vkrGetSemiTransparentPicture(
                      Variant(ObjectRef(std::make_shared<CallerPicture>(1))));
              }),
              481);
}

} // namespace
} // namespace velkor6
