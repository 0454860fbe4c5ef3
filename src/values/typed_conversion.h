// The typed conversion with defaults behind vkrCVal, shared by the members that read stored text.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

namespace velkor6::values {

// Null, Empty and "" give the type's default (an Integer 0 for every numeric code, `today` for a
// Date, "" for a String, False for a Boolean, Null otherwise); other values go through the host's
// conversion of that type. A value the conversion rejects comes back unconverted: callers of this
// routine treat a failed conversion as "keep what was stored", never as an error.
Variant typedConversion(int typeCode, const Variant& v, const Locale& loc, Date today);

// The date part of a moment (Date() of Now()); negative serials keep their positive time fraction.
Date dateOnly(Date moment);

} // namespace velkor6::values
