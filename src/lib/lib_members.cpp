#include "lib/lib_members.h"

namespace velkor6::dispatch {

const Table<lib>& libMembers() {
    static const Table<lib> table = [] {
        Table<lib> t;
        addTextMembers(t);
        addValueMembers(t);
        addCallByNameMembers(t);
        addSqlMembers(t);
        addFileMembers(t);
        addRegistryMembers(t);
        addInitAppMembers(t);
        addResourceMembers(t);
        addTextFileMembers(t);
        addDialogMembers(t);
        addBracketMembers(t);
        addValueCodeMembers(t);
        addWindowMembers(t);
        addListViewMembers(t);
        addControlMembers(t);
        return t;
    }();
    return table;
}

} // namespace velkor6::dispatch
