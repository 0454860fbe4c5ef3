#include "lib/applib_members.h"

#include "lib/dispatch_object.h"

namespace velkor6::dispatch {

const Table<applib>& applibMembers() {
    static const Table<applib> table = [] {
        Table<applib> t;
        addSettingMembers(t);
        addWindowMemoryMembers(t);
        addLogMembers(t);
        addPathMembers(t);
        addLanguageMembers(t);
        addCommandLineMembers(t);
        addCaptionMembers(t);
        return t;
    }();
    return table;
}

ObjectRef applibObject(std::shared_ptr<applib> context) {
    return std::make_shared<TableObject<applib>>(std::move(context), applibMembers(), u"applib");
}

} // namespace velkor6::dispatch
