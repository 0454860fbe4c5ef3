// SQL literals for the desktop database engine ("#" dates) and SQL Server, and a simple WHERE
// condition built from field/value pairs.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <string>

namespace velkor6::values {

// SQL Server: CONVERT(DATETIME, 'yyyy-mm-dd hh:nn:ss', 102), Null giving empty quotes.
// Desktop engine: #yyyy/mm/dd# or, when the value has a time part, #yyyy/mm/dd hh:nn:ss#; a value
// that is no number or date raises the conversion error (13, or 94 for Null).
std::u16string sqlDate(const Variant& v, bool msSqlServer, const Locale& loc, Date today);

// The value as a Double in text with "." for the decimal mark; Null, Empty and "" give "0".
std::u16string sqlDouble(const Variant& v, const Locale& loc);

// field=literal AND field=literal ... from an array of (field, value) pairs. Fewer than two
// elements give ""; an odd count raises error 9 when the last field has no value. Text literals
// are put in double quotes as they are, without escaping: callers pass trusted text only.
std::u16string sqlFilter(const VariantArray& params, const Locale& loc, Date today);

} // namespace velkor6::values
