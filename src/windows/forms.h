// The caller's own loaded forms.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <string_view>

namespace velkor6::windows {

// The first form of the collection (Count, items 0 to Count - 1) whose Name equals formName
// without regard to case; Nothing when none does.
ObjectRef findOpenForm(Object& forms, std::u16string_view formName, const Locale& loc);

} // namespace velkor6::windows
