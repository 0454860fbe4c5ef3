#include "com/std_picture.h"

#include <cstring>
#include <olectl.h>

namespace velkor6::com {

IDispatch* createStdPicture(const RgbImage& image) {
    if (image.width <= 0 || image.height <= 0)
        return nullptr;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = image.width;
    info.bmiHeader.biHeight = -image.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap == nullptr || bits == nullptr) {
        if (bitmap != nullptr)
            DeleteObject(bitmap);
        return nullptr;
    }
    auto* out = static_cast<std::uint32_t*>(bits);
    for (const Rgb& p : image.pixels)
        *out++ = (std::uint32_t{p.red} << 16) | (std::uint32_t{p.green} << 8) | p.blue;
    GdiFlush();
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.picType = PICTYPE_BITMAP;
    description.bmp.hbitmap = bitmap;
    IDispatch* picture = nullptr;
    // The picture owns the bitmap from here on (fOwn).
    if (FAILED(OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE,
                                        reinterpret_cast<void**>(&picture)))) {
        DeleteObject(bitmap);
        return nullptr;
    }
    return picture;
}

} // namespace velkor6::com
