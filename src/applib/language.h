// The language a context starts with when its settings name none.
#pragma once

#include "velkor6/locale.h"

namespace velkor6::app {

// Whether the locale's country is Germany: its name's region part is "DE" ("de-DE",
// "de_DE.UTF-8"). German users get German texts, everybody else English.
bool isGermany(const Locale& loc);

} // namespace velkor6::app
