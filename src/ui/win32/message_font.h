// The font of the system's message boxes, and text measured in it.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include "ui/win32/owned.h"

#include <string>
#include <string_view>

namespace velkor6::ui::win32 {

// The message font; with a point size above 0 at that size, bold on request, and with a face
// name in that face.
Font messageFont(int pointSize = 0, bool bold = false, const std::wstring& face = {});

// The size in pixels that `text` takes in `font`: on one line per line break, or, with a
// `wrapWidth` above 0, wrapped at word breaks to that width.
SIZE measureText(HFONT font, std::wstring_view text, int wrapWidth = 0);

} // namespace velkor6::ui::win32
