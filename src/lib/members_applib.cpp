// Rows of the application context: settings store, window and column memory, log, placeholder
// paths and the editor launch.
#include "lib/applib_members.h"

namespace velkor6::dispatch {
namespace {

using T = VarType;

void addPathRows(Table<applib>& t) {
    t.push_back({12,
                 u"relativePath",
                 CallKind::Method,
                 {required(u"sFilename", T::String)},
                 T::String,
                 [](applib& a, Args& r) -> Variant { return a.relativePath(r.str(0)); },
                 u"sFilename with well-known folders replaced by placeholders.",
                 u"In this order: %UserAppData%, %AppPath%, %AppDataFolder%, %SysDir%, "
                 u"%WinDir%, %CommonFiles%, %ProgramFiles%. Every occurrence is replaced, "
                 u"anywhere in the text and in any letter case."});
    t.push_back({13,
                 u"absolutePath",
                 CallKind::Method,
                 {required(u"sFilename", T::String)},
                 T::String,
                 [](applib& a, Args& r) -> Variant { return a.absolutePath(r.str(0)); },
                 u"sFilename with the placeholders of relativePath replaced by their folders.",
                 u""});
    t.push_back({14,
                 u"editINIFile",
                 CallKind::Method,
                 {},
                 T::Empty,
                 [](applib& a, Args&) -> Variant {
                     a.editINIFile();
                     return {};
                 },
                 u"Opens the settings file in the editor registered for its type.",
                 u"Without a registered edit command the file is opened as a document. Failures "
                 u"are ignored."});
    t.push_back({15,
                 u"editLOGFile",
                 CallKind::Method,
                 {},
                 T::Empty,
                 [](applib& a, Args&) -> Variant {
                     a.editLOGFile();
                     return {};
                 },
                 u"Opens the log file in the editor registered for its type.",
                 u""});
}

} // namespace

void addAppContextMembers(Table<applib>& t) {
    addPathRows(t);
}

} // namespace velkor6::dispatch
