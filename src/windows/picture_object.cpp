#include "windows/picture_object.h"

#include "core/convert.h"
#include "velkor6/platform/platform.h"
#include "velkor6/vb_error.h"
#include "windows/bmp_file.h"

#include <cmath>

namespace velkor6::windows {
namespace {

constexpr std::int32_t invalidPicture = 481;
constexpr std::int32_t pathFileAccess = 75;

std::u16string sourceOf(std::u16string_view member) {
    return u"velkor6." + std::u16string(member);
}

[[noreturn]] void notAPicture(std::u16string_view member) {
    throw VbError(invalidPicture, u"Invalid picture", sourceOf(member));
}

} // namespace

std::int32_t hiMetricOfPixels(std::int32_t pixels) {
    return static_cast<std::int32_t>(std::lround(pixels * 2540.0 / 96.0));
}

Variant PictureObject::call(std::u16string_view name, CallKind kind, std::span<Variant> args) {
    const auto is = [&](std::u16string_view n) { return textEqual(name, n, Compare::Text); };
    if (kind != CallKind::PropertyLet) {
        if (is(u"Type"))
            return Variant(std::int16_t{1});
        if (is(u"Width"))
            return Variant(hiMetricOfPixels(image_.width));
        if (is(u"Height"))
            return Variant(hiMetricOfPixels(image_.height));
        if (is(u"SaveAs")) {
            if (args.empty() || args[0].isMissing())
                throw VbError(vberr::argumentNotOptional);
            if (!args[0].isString())
                throw VbError(vberr::typeMismatch);
            saveBmp(*module_, args[0].string(), image_, u"Picture.SaveAs");
            return {};
        }
    }
    throw VbError(vberr::noSuchMember);
}

RgbImage picturePixels(Module& module, const Variant& picture, std::u16string_view member) {
    Platform& p = module.platform();
    if (picture.isString()) {
        const std::optional<std::string> bytes =
            p.fileSystem ? p.fileSystem->readFile(picture.string()) : std::nullopt;
        if (!bytes)
            throw VbError(vberr::fileNotFound, VbError::describe(vberr::fileNotFound),
                          sourceOf(member));
        std::optional<RgbImage> image = readBmp(*bytes);
        if (!image)
            notAPicture(member);
        return std::move(*image);
    }
    if (!picture.isObject())
        throw VbError(vberr::typeMismatch, VbError::describe(vberr::typeMismatch),
                      sourceOf(member));
    const ObjectRef& object = picture.object();
    if (!object)
        throw VbError(vberr::objectNotSet, VbError::describe(vberr::objectNotSet),
                      sourceOf(member));
    if (const auto* own = dynamic_cast<const PictureObject*>(object.get()))
        return own->image();
    // Icons and metafiles have no pixels of their own to blend.
    if (toLong(object->call(u"Type", CallKind::PropertyGet, {}), module.locale()) != 1)
        notAPicture(member);
    const Variant handle = object->call(u"Handle", CallKind::PropertyGet, {});
    std::optional<RgbImage> image;
    if (p.windowManager)
        image = p.windowManager->bitmapPixels(toLong(handle, module.locale()));
    if (!image)
        notAPicture(member);
    return std::move(*image);
}

void saveBmp(Module& module, std::u16string_view path, const RgbImage& image,
             std::u16string_view member) {
    Platform& p = module.platform();
    if (!p.fileSystem || !p.fileSystem->writeFile(path, writeBmp(image)))
        throw VbError(pathFileAccess, u"Path/File access error", sourceOf(member));
}

} // namespace velkor6::windows
