// The plain message form (frmStdMsg): a bold headline over a detail text, a symbol and the
// buttons of a message-box style. Also the library's error display and the system's plain box.
#pragma once

#include "velkor6/module.h"
#include "velkor6/platform/dialog_host.h"

#include <cstdint>
#include <string>

namespace velkor6::dialogs {

struct StdMessage {
    std::u16string prompt;
    std::u16string detail;
    std::int32_t style = 0;
    std::u16string title;         // empty: the library's file description
    std::int32_t promptColor = 0; // 0 to 15, the console palette
    std::int16_t fontSize = 10;
    bool fontBold = true;
};

// The form as it is shown. Raises error 5 for a colour outside the palette.
DialogForm stdMessageForm(Module& module, const StdMessage& message);
// Shows the form modally: the result of the pressed button, 0 when closed by the close box.
std::int32_t showStdMessage(Module& module, const StdMessage& message);

// The palette colour 0 to 15 as 0xRRGGBB; error 5 outside it.
std::uint32_t paletteColour(std::int32_t index);

// "&H" and eight upper-case hexadecimal digits for a negative number, else the decimal number.
std::u16string errorNumberText(std::int32_t number);
// The library-wide error display: "Runtime error 'number':" over the description, OK only with
// the exclamation symbol, titled with the source. Never raises.
void showError(Module& module, std::int32_t number, std::u16string_view description,
               std::u16string_view source);

// The system's plain message box: the text beside the style's symbol and buttons. The result
// of the chosen button.
std::int32_t showSystemMessage(Module& module, std::u16string_view text, std::u16string_view title,
                               std::int32_t style);

} // namespace velkor6::dialogs
