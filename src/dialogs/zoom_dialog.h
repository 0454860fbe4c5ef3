// The zoom editor (frmZoom): a caller's control's text in a large resizable window.
#pragma once

#include "velkor6/module.h"
#include "velkor6/platform/dialog_host.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <string_view>

namespace velkor6::dialogs {

inline constexpr std::int32_t zoomDesignedWidthTwips = 6000;
inline constexpr std::int32_t zoomDesignedHeightTwips = 4200;

struct TwipsSize {
    std::int32_t width = 0;
    std::int32_t height = 0;
};

// Whether the editor takes text from controls of this type name (any case).
bool zoomableType(std::u16string_view typeName);

// Shows source's Text in the editor, opened at `size` (the designed size where not above 0);
// unless ignoreAttributes, the editor takes over the source's Enabled, Locked and ToolTipText
// where it has them. The buttons carry the captions of "cmdOK" and "cmdCancel". OK writes the text
// back. Returns the window's size on closing. Raises error 5 for a source of another type.
TwipsSize zoomText(Module& module, const ObjectRef& source, std::u16string_view description,
                   bool ignoreAttributes, TwipsSize size);

} // namespace velkor6::dialogs
