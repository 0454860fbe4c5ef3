// Application contexts for host programs: the `lib` members and their rows in the member table.
#include "applib/host_app.h"
#include "lib/applib_members.h"
#include "lib/lib_members.h"
#include "velkor6/vb_error.h"

namespace velkor6 {

std::shared_ptr<applib> lib::vkrInitApp(const HostApp& oApp, std::u16string_view sAppName) {
    auto context = std::make_shared<applib>(module_);
    context->init(oApp, sAppName);
    return context;
}

} // namespace velkor6

namespace velkor6::dispatch {

void addInitAppMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back({56,
                 u"vkrInitApp",
                 CallKind::Method,
                 {required(u"oApp", T::Object), required(u"sAppName", T::String)},
                 T::Object,
                 [](lib& l, Args& a) -> Variant {
                     const ObjectRef& host = a[0].object();
                     if (!host)
                         throw VbError(vberr::objectNotSet);
                     return applibObject(
                         l.vkrInitApp(app::hostAppFrom(*host, l.locale()), a.str(1)));
                 },
                 u"A new, initialised applib for the application sAppName.",
                 u"oApp describes the running program by its properties Path (its folder), "
                 u"EXEName, Major, Minor and Revision. The settings file is sAppName.ini in "
                 u"that folder, the log sAppName.log in the temporary folder; the log is "
                 u"emptied unless KeepLogFiles is set in the library's own velkor6.ini, and "
                 u"its first line tells the application, version and both files."});
}

} // namespace velkor6::dispatch
