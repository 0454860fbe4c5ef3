// The fonts one dialog draws with, made once each.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include "ui/win32/owned.h"
#include "velkor6/platform/dialog_host.h"

#include <string>
#include <vector>

namespace velkor6::ui::win32 {

class FontSet {
public:
    // The font for `font`: the system's message font in its size and weight. VB's default face
    // ("MS Sans Serif") stands for the system's message font; another face is used as named.
    HFONT get(const DialogFont& font);

private:
    struct Entry {
        std::u16string name;
        std::int32_t pointSize;
        bool bold;
        Font font;
    };
    std::vector<Entry> entries_;
};

} // namespace velkor6::ui::win32
