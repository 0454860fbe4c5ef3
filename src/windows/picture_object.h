// Pictures as the library hands them out, and the pictures callers pass in: the library's own
// picture objects, bitmap files, and the window system's pictures reached through their Handle.
#pragma once

#include "velkor6/module.h"
#include "velkor6/platform/rgb_image.h"
#include "velkor6/variant.h"

#include <memory>
#include <string_view>

namespace velkor6::windows {

// A bitmap picture. Answers Type (1, a bitmap), Width and Height (in HiMetric, 0.01 mm, at 96
// dots per inch, as a bitmap picture reports them) and SaveAs(sFile), which writes it as a
// 24-bit .BMP file through the module's file system.
class PictureObject final : public Object {
public:
    PictureObject(RgbImage image, std::shared_ptr<Module> module)
        : image_(std::move(image)), module_(std::move(module)) {}
    std::u16string typeName() const override { return u"Picture"; }
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override;

    const RgbImage& image() const { return image_; }
    RgbImage& image() { return image_; }

private:
    RgbImage image_;
    std::shared_ptr<Module> module_;
};

// HiMetric units of a length in pixels at 96 dots per inch, rounded.
std::int32_t hiMetricOfPixels(std::int32_t pixels);

// The pixels of a picture argument: a PictureObject; the path of a bitmap file (read with the
// library's own reader); or another object whose Type is 1 and whose Handle the window manager
// can read (a StdPicture on Windows). Raises 53 for a file that is missing, 481 (Invalid
// picture) for one that is no readable bitmap and for an object that is no bitmap picture, 91 for
// Nothing and 13 for any other value; `member` names the source.
RgbImage picturePixels(Module& module, const Variant& picture, std::u16string_view member);

// Writes the image as a .BMP file; error 75 when it cannot be written.
void saveBmp(Module& module, std::u16string_view path, const RgbImage& image,
             std::u16string_view member);

} // namespace velkor6::windows
