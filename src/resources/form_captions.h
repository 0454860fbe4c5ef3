// Form captions: a captions document (the resource document's shape, its items keyed by form,
// control and language) applied to a form and its controls.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/platform/file_system.h"
#include "velkor6/platform/xml.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velkor6::resources {

struct CaptionItem {
    std::u16string name;                // the control's Name, or the form's own
    std::optional<std::int32_t> number; // the Index of a control-array element
    std::u16string text;
};

// The language whose items stand in for a control the wanted language has none for, unless the
// document's root names another one in its `fallback` attribute.
inline constexpr std::int16_t defaultFallbackLanguage = 1;

// The items of the form (matched by the `form` attribute, letter case ignored) in the language,
// in document order; for every name and number the language lacks, the fallback language's item.
std::vector<CaptionItem> formCaptions(const XmlDocument& captions, std::u16string_view form,
                                      std::int16_t langid);

// The captions document's text: sCaptions itself when it starts with "<" (blanks before it
// ignored), otherwise the file it names (UTF-8 or ANSI, or UTF-16 with a byte-order mark);
// nullopt when the file cannot be read.
std::optional<std::u16string> captionsText(FileSystem& files, std::u16string_view captions);

// Sets the captions: the item named as the form goes to the form's Caption; the others to the
// control of that Name (and, with a number, that Index) among the form's Controls: its Caption,
// or its Text where it has no Caption. A control that is missing or takes neither is skipped.
// Returns how many captions were set.
std::int32_t applyCaptions(Object& form, std::u16string_view formName,
                           const std::vector<CaptionItem>& items, const Locale& locale);

} // namespace velkor6::resources
