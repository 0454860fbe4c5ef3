#include "lib/lib_members.h"

namespace velkor6::dispatch {

const Table<lib>& libMembers() {
    static const Table<lib> table = [] {
        Table<lib> t;
        addTextMembers(t);
        addValueMembers(t);
        return t;
    }();
    return table;
}

} // namespace velkor6::dispatch
