// VB's Like operator.
#pragma once

#include "core/text.h"

#include <string_view>

namespace velkor6 {

// Whole-text match of s against pattern: ? one character, * any run, # one digit, [list],
// [a-z] ranges, [!list]. Text mode ignores case (and accents inside ranges sort after their
// base letter). Raises error 93 for a pattern with an unterminated "[" or a descending range.
bool like(std::u16string_view s, std::u16string_view pattern, Compare mode);

} // namespace velkor6
