// The rich-text message form (frmMsgBox): an RTF body at a size the caller chooses, a symbol
// and the buttons of a message-box style.
#pragma once

#include "velkor6/module.h"
#include "velkor6/platform/dialog_host.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor6::dialogs {

inline constexpr std::int32_t richDesignedWidthTwips = 6000;
inline constexpr std::int32_t richDesignedHeightTwips = 3600;

struct RichPrompt {
    std::u16string text;
    std::int32_t widthTwips = 0; // 0: not given
    std::int32_t heightTwips = 0;
};

// "text|width|height": the size in twips after the text, each piece optional. Pieces that are
// not numbers count as 0.
RichPrompt splitRichPrompt(std::u16string_view prompt, const Locale& locale);

struct RichMessage {
    std::u16string prompt; // an RTF fragment, possibly with "|width|height"
    std::int32_t style = 0;
    std::u16string title;
    std::int32_t widthTwips = 0; // above 0: overrides the prompt's width
    std::int32_t heightTwips = 0;
};

DialogForm richMessageForm(Module& module, const RichMessage& message);
std::int32_t showRichMessage(Module& module, const RichMessage& message);

} // namespace velkor6::dialogs
