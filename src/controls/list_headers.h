// Column headers of a list view from one spec string: "<Name|2000|name;>Amount|1200;^State".
#pragma once

#include "controls/list_view.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6::controls {

// ColumnHeader alignments (ListColumnAlignmentConstants).
namespace columnalign {
inline constexpr std::int16_t left = 0;
inline constexpr std::int16_t right = 1;
inline constexpr std::int16_t center = 2;
} // namespace columnalign

struct HeaderSpec {
    std::u16string text;
    std::int16_t alignment = columnalign::left;
    std::optional<std::u16string> width; // as written; converted when the column is made
    std::optional<std::u16string> key;
    friend bool operator==(const HeaderSpec&, const HeaderSpec&) = default;
};

// The columns of a spec: specs separated by ";" (an empty spec is one empty column), each
// "text|width|key" where text may start with "<" (left), ">" (right) or "^" (centre). Only three
// fields give a key (trimmed of blanks); two or more than three give a width only.
std::vector<HeaderSpec> parseHeaders(std::u16string_view spec);

// Clears the headers (and the items, when asked) and adds the spec's columns in order. A column
// whose width is no number is left out, and the next one takes its place.
void setHeaders(const ListView& view, std::u16string_view spec, bool clearItems);

} // namespace velkor6::controls
