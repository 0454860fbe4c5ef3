// Rows of the number parsing and conversion members.
#include "lib/lib_members.h"

namespace velkor6::dispatch {

void addValueMembers(Table<lib>& t) {
    (void)t;
}

} // namespace velkor6::dispatch
