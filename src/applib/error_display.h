// Showing an error to the user after it was logged.
#pragma once

#include "velkor6/module.h"

#include <cstdint>
#include <string_view>

namespace velkor6::app {

// Until the library's own error box exists, the system's message box shows the error: its
// description, then the number and the source.
void showError(Module& module, std::int32_t number, std::u16string_view description,
               std::u16string_view source);

} // namespace velkor6::app
