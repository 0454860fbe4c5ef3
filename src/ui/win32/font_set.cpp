#include "ui/win32/font_set.h"

#include "platform/win32/wide.h"
#include "ui/win32/message_font.h"

#include <cwchar>

namespace velkor6::ui::win32 {

HFONT FontSet::get(const DialogFont& font) {
    for (const Entry& e : entries_)
        if (e.name == font.name && e.pointSize == font.pointSize && e.bold == font.bold)
            return e.font.get();
    const bool systemFace = font.name.empty() || font.name == u"MS Sans Serif";
    Font made = messageFont(font.pointSize, font.bold,
                            systemFace ? std::wstring() : velkor6::win32::wide(font.name));
    const HFONT h = made.get();
    entries_.push_back({font.name, font.pointSize, font.bold, std::move(made)});
    return h;
}

} // namespace velkor6::ui::win32
