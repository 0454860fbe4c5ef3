// Translucent pictures: the `lib` members and their rows in the member table.
#include "core/convert.h"
#include "lib/lib_members.h"
#include "velkor6/vb_error.h"
#include "windows/bmp_file.h"
#include "windows/picture_blend.h"
#include "windows/picture_object.h"

namespace velkor6 {

ObjectRef lib::vkrGetSemiTransparentPicture(const Variant& vPicture, std::int16_t iTransparency,
                                            std::int32_t lBackColor, std::int32_t lLeft,
                                            std::int32_t lTop, std::int32_t lWidth,
                                            std::int32_t lHeight) {
    constexpr std::u16string_view member = u"vkrGetSemiTransparentPicture";
    const RgbImage picture = windows::picturePixels(module(), vPicture, member);
    const std::optional<RgbImage> part = windows::cutOut(picture, lLeft, lTop, lWidth, lHeight);
    if (!part)
        throw VbError(vberr::invalidCall, VbError::describe(vberr::invalidCall),
                      u"velkor6." + std::u16string(member));
    return std::make_shared<windows::PictureObject>(
        windows::overColour(*part, windows::colourOfLong(lBackColor), iTransparency), module_);
}

bool lib::glbDrawSemiTransparentPicture(const Variant& vTarget, const Variant& vPicture,
                                        std::int32_t x, std::int32_t y,
                                        std::int16_t iTransparency) {
    constexpr std::u16string_view member = u"glbDrawSemiTransparentPicture";
    if (vTarget.isObject() && vTarget.object()) {
        if (auto* own = dynamic_cast<windows::PictureObject*>(vTarget.object().get())) {
            const RgbImage picture = windows::picturePixels(module(), vPicture, member);
            return windows::drawOver(own->image(), picture, x, y, iTransparency);
        }
    }
    if (vTarget.isString()) {
        RgbImage target = windows::picturePixels(module(), vTarget, member);
        const RgbImage picture = windows::picturePixels(module(), vPicture, member);
        if (!windows::drawOver(target, picture, x, y, iTransparency))
            return false;
        windows::saveBmp(module(), vTarget.string(), target, member);
        return true;
    }
    // A device context: given as a number, or as the hDC of a form or picture box.
    Variant dc = vTarget;
    if (vTarget.isObject()) {
        if (!vTarget.object())
            throw VbError(vberr::objectNotSet, VbError::describe(vberr::objectNotSet),
                          u"velkor6." + std::u16string(member));
        dc = vTarget.object()->call(u"hDC", CallKind::PropertyGet, {});
    }
    const std::int64_t handle = toLong(dc, locale());
    const RgbImage picture = windows::picturePixels(module(), vPicture, member);
    WindowManager* windows = module().platform().windowManager.get();
    if (windows == nullptr)
        return false;
    const WindowRect area{x, y, x + picture.width, y + picture.height};
    std::optional<RgbImage> under = windows->deviceContextPixels(handle, area);
    if (!under || !windows::drawOver(*under, picture, 0, 0, iTransparency))
        return false;
    return windows->drawPixels(handle, x, y, *under);
}

} // namespace velkor6

namespace velkor6::dispatch {

void addPictureMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back(
        {114,
         u"vkrGetSemiTransparentPicture",
         CallKind::Method,
         {required(u"vPicture", T::Variant),
          optional(u"iTransparency", T::Integer, std::int16_t{50}),
          optional(u"lBackColor", T::Long, 16777215), optional(u"lLeft", T::Long, 0),
          optional(u"lTop", T::Long, 0), optional(u"lWidth", T::Long, -1),
          optional(u"lHeight", T::Long, -1)},
         T::Object,
         [](lib& l, Args& a) -> Variant {
             return Variant(l.vkrGetSemiTransparentPicture(a[0], a.i16(1), a.i32(2), a.i32(3),
                                                           a.i32(4), a.i32(5), a.i32(6)));
         },
         u"A new picture: vPicture (or the part of it from lLeft, lTop, lWidth by lHeight "
         u"pixels) blended over the plain colour lBackColor, iTransparency percent see-through.",
         u"Every channel becomes (picture x (100 - t) + background x t + 50) \\ 100 with t = "
         u"iTransparency (default 50; below 0 counts as 0, above 100 as 100): 0 keeps the "
         u"picture, 100 gives the background colour, and 50 the rounded-up mean. lBackColor is "
         u"a colour Long &HBBGGRR (default 16777215, white); its top byte is ignored, so system "
         u"colours are not looked up. The region is in pixels from the picture's top-left "
         u"corner; lWidth or lHeight -1 (the default) reaches to the picture's edge, and a "
         u"region running over the edge is cut to the picture. A region with nothing inside "
         u"the picture raises error 5.\\n\\n"
         u"vPicture is a picture object (a StdPicture holding a bitmap on Windows, whose Handle "
         u"is read with GetDIBits, or a picture this library returned), or the path of a .BMP "
         u"file. Files are read by the library's own reader: uncompressed bitmaps of 1, 4, 8, "
         u"16, 24 and 32 bits, with colour tables or colour masks, rows bottom-up or top-down; "
         u"RLE-compressed bitmaps and other formats (GIF, JPEG, PNG) raise error 481 (Invalid "
         u"picture), as do icons and metafiles (a Type other than 1). A missing file raises "
         u"error 53, Nothing error 91, a value that is neither a text nor an object error 13.\\n\\n"
         u"The result is a bitmap picture: through COM a StdPicture (IPictureDisp, made by "
         u"OleCreatePictureIndirect) that can be assigned to a form's or control's Picture or "
         u"saved with SavePicture; elsewhere the library's picture object, with Type 1, Width and "
         u"Height in HiMetric (pixels x 2540 / 96, rounded) and SaveAs(sFile), which writes a "
         u"24-bit .BMP file (error 75 when it cannot be written). Example: Set Me.Picture = "
         u"o.vkrGetSemiTransparentPicture(LoadPicture(\"back.bmp\"), 70, vbWhite)."});
    t.push_back(
        {115,
         u"glbDrawSemiTransparentPicture",
         CallKind::Method,
         {required(u"vTarget", T::Variant), required(u"vPicture", T::Variant),
          optional(u"x", T::Long, 0), optional(u"y", T::Long, 0),
          optional(u"iTransparency", T::Integer, std::int16_t{50})},
         T::Boolean,
         [](lib& l, Args& a) -> Variant {
             return Variant(
                 l.glbDrawSemiTransparentPicture(a[0], a[1], a.i32(2), a.i32(3), a.i16(4)));
         },
         u"Draws vPicture over what vTarget already shows, with its top-left corner at x, y "
         u"(pixels), iTransparency percent see-through; True when something was drawn.",
         u"Every pixel under the picture becomes (picture x (100 - t) + under x t + 50) \\ 100 "
         u"per channel, t = iTransparency (default 50, cut to 0 ... 100); what falls outside "
         u"the target is left out. vPicture is taken as by vkrGetSemiTransparentPicture. "
         u"vTarget is:\\n"
         u"- a device context (hDC, a Long) or an object with an hDC property (a form or picture "
         u"box): the pixels under the picture are read (BitBlt) and the blend drawn back; on "
         u"Windows only, elsewhere the result is False. What the form repaints later (without "
         u"AutoRedraw) covers the drawing again;\\n"
         u"- a picture object this library returned: changed in place;\\n"
         u"- the path of a .BMP file: read, drawn on and written back as a 24-bit bitmap.\\n"
         u"False when the picture lies wholly outside the target or the device context cannot "
         u"be read or drawn on. Errors: 53, 481, 91 and 13 as for vkrGetSemiTransparentPicture, "
         u"75 when the file cannot be written, an object without hDC raises its own error "
         u"(usually 438). Example: o.glbDrawSemiTransparentPicture Me.hDC, picLogo, 10, 10, 30."});
}

} // namespace velkor6::dispatch
