// The functions that `vkrGlobalVar` reaches by name, on texts whose characters stand for bytes.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <string>
#include <string_view>

namespace velkor6::lzw {

// Characters without an ANSI code become "?" before compressing, as VB's conversion does.
std::u16string deflateText(std::u16string_view text);
std::u16string inflateText(std::u16string_view packed);
std::u16string inflateStrictText(std::u16string_view packed);

// "Deflate", "Inflate" or "InflateStrict" in any letter case, applied to the text of `param`;
// raises 438 (source "velkor6.vkrGlobalVar") for any other name and 449 when `param` is missing.
Variant callGlobalVar(std::u16string_view name, const Variant& param, const Locale& loc);

} // namespace velkor6::lzw
