// The C library's date and time pictures (strftime, as nl_langinfo gives D_FMT and T_FMT) in the
// picture language of Windows locales that the rest of the library reads.
#pragma once

#include <string>
#include <string_view>

namespace velkor6::posix {

// "%d.%m.%Y" -> "dd.MM.yyyy", "%r" -> "hh:mm:ss tt". Letters that stand for themselves are
// quoted ('h'); conversions without a Windows counterpart are dropped.
std::u16string windowsPicture(std::u16string_view strftimePicture);

// The first separator in a Windows picture ("." in "dd.MM.yyyy"), or fallback when it has none.
char16_t pictureSeparator(std::u16string_view picture, char16_t fallback);

} // namespace velkor6::posix
