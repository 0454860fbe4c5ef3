// The arithmetic that places the symbol, the labels and the button row of the message forms, at
// a fixed 15 twips a pixel.
#pragma once

#include "velkor6/platform/dialog_host.h"

#include <cstdint>

namespace velkor6::dialogs {

inline constexpr std::int32_t symbolLeft = 12;
inline constexpr std::int32_t symbolTop = 12;
inline constexpr std::int32_t symbolSize = 32;
inline constexpr std::int32_t buttonWidth = 81;
inline constexpr std::int32_t buttonHeight = 25;
inline constexpr std::int32_t buttonGap = 8;
inline constexpr std::int32_t bottomMargin = 12;
// The designed width of the message forms; they grow, never shrink.
inline constexpr std::int32_t designedWidthTwips = 4800;

// The symbol and labels of a headline-and-detail form (texts 0 and 1): labels sized to their
// text right of the symbol (at the symbol's place when there is none), the form widened to the
// wider label with a right margin equal to the symbol's left one, labels too wide for the form
// wrapped, the detail under the headline, the buttons under the lower label and the client size
// around it all.
void layOutLabelForm(DialogHost& host, DialogForm& form,
                     std::int32_t widthTwips = designedWidthTwips);

// The buttons side by side from the left, the row centred on Int(width in twips / 30).
void placeButtonRow(DialogForm& form, std::int32_t widthTwips, std::int32_t top);

} // namespace velkor6::dialogs
