// Placeholder paths and the editor launch: the `applib` members and their rows.
#include "applib/edit_file.h"
#include "applib/placeholders.h"
#include "lib/applib_members.h"

namespace velkor6 {

std::u16string applib::relativePath(std::u16string_view sFilename) {
    if (sFilename.empty())
        return {};
    Platform& p = module_->platform();
    const PathStyle style = p.fileSystem->pathStyle();
    return app::withPlaceholders(sFilename, app::placeholderTable(*p.environment, style, appPath_),
                                 style);
}

std::u16string applib::absolutePath(std::u16string_view sFilename) {
    // Most stored values hold no placeholder; they need no look-up of the special folders.
    if (sFilename.find(u'%') == std::u16string_view::npos)
        return std::u16string(sFilename);
    Platform& p = module_->platform();
    return app::withoutPlaceholders(
        sFilename, app::placeholderTable(*p.environment, p.fileSystem->pathStyle(), appPath_));
}

void applib::editINIFile() {
    app::openForEditing(module_->platform(), iniFile(), locale());
}

void applib::editLOGFile() {
    app::openForEditing(module_->platform(), logFile(), locale());
}

} // namespace velkor6

namespace velkor6::dispatch {

void addPathMembers(Table<applib>& t) {
    using T = VarType;
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

} // namespace velkor6::dispatch
