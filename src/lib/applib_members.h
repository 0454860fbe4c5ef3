// The member table of class `applib`, assembled from one part per subsystem.
#pragma once

#include "lib/dispatch.h"
#include "velkor6/applib.h"

namespace velkor6::dispatch {

const Table<applib>& applibMembers();

// One function per member family adds its rows.
void addSettingMembers(Table<applib>& table);
void addWindowMemoryMembers(Table<applib>& table);
void addLogMembers(Table<applib>& table);
void addPathMembers(Table<applib>& table);
void addLanguageMembers(Table<applib>& table);
void addCommandLineMembers(Table<applib>& table);
void addCaptionMembers(Table<applib>& table);

// An applib as a value whose members are called through applibMembers().
ObjectRef applibObject(std::shared_ptr<applib> context);

} // namespace velkor6::dispatch
