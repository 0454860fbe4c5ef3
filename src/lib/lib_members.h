// The member table of class `lib`, assembled from one part per subsystem.
#pragma once

#include "lib/dispatch.h"
#include "velkor6/lib.h"

namespace velkor6::dispatch {

const Table<lib>& libMembers();

// One function per subsystem adds that subsystem's rows.
void addTextMembers(Table<lib>& table);
void addTextFileMembers(Table<lib>& table);
void addValueMembers(Table<lib>& table);
void addCallByNameMembers(Table<lib>& table);
void addSqlMembers(Table<lib>& table);
void addRegistryMembers(Table<lib>& table);
void addFileMembers(Table<lib>& table);
void addInitAppMembers(Table<lib>& table);
void addResourceMembers(Table<lib>& table);
void addDialogMembers(Table<lib>& table);
void addBracketMembers(Table<lib>& table);
void addValueCodeMembers(Table<lib>& table);
void addWindowMembers(Table<lib>& table);
void addListViewMembers(Table<lib>& table);
void addControlMembers(Table<lib>& table);

} // namespace velkor6::dispatch
