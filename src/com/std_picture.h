// The library's pictures as the caller's own kind: a StdPicture holding a bitmap.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
// clang-format on

#include "velkor6/platform/rgb_image.h"

namespace velkor6::com {

// A new StdPicture (IPictureDisp, one reference) that owns a bitmap of the pixels; nullptr when
// the system cannot make one.
IDispatch* createStdPicture(const RgbImage& image);

} // namespace velkor6::com
