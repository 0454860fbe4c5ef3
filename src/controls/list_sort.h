// The typed sort of a list view by one column: text columns by the control's own rule, number
// and date columns through the window's sort with comparers on the converted cell texts.
#pragma once

#include "controls/list_view.h"
#include "velkor6/module.h"

#include <cstdint>
#include <string_view>

namespace velkor6::controls {

enum class ColumnKind { Text, Number, Date };

// What the first item (in list order) with a non-empty cell in the column holds: a date, else a
// number, else text. A column without such a cell is text. Column 0 is the items' own text.
ColumnKind columnKind(const ListView& view, std::int16_t column);

// A cell's sort key: a number rounded to a whole (Long) number, a date's serial; a text that does
// not convert is 0.
double sortKey(std::u16string_view cell, ColumnKind kind, const Locale& loc);

// The comparers' scale: 0 when a comes first in the direction, 1 when both are equal, 2 when a
// comes after.
int compareKeys(double a, double b, bool descending);

// Sorts by the column: the same column as the last sort reverses the order (SortOrder 0 and 1),
// another one starts ascending. state receives the column and direction for the comparers.
void sortListView(const ListView& view, std::int16_t column, ListSortState& state);

} // namespace velkor6::controls
