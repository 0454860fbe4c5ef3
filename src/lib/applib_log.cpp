// The application log: the `applib` members and their rows.
#include "applib/app_log.h"
#include "dialogs/std_message.h"
#include "files/paths.h"
#include "lib/applib_members.h"
#include "velkor6/applib.h"

namespace velkor6 {

std::u16string applib::logFile() {
    if (logFile_.empty()) {
        Module& m = *module_;
        logFile_ =
            files::tempDir(*m.platform().fileSystem, m.tempFolderCache()) + appName_ + u".log";
    }
    return logFile_;
}

void applib::logAction(std::u16string_view sMessage) {
    // The log must never disturb the application: an entry that cannot be written is lost.
    try {
        Platform& p = module_->platform();
        const std::u16string log = logFile();
        const std::u16string entry = app::logLine(splitDate(p.clock->now()), sMessage);
        const std::string bytes = app::entryBytes(*p.fileSystem, log, entry);
        // One append per entry, opened and closed each time: the log is complete on disk after
        // every call, and entries of two processes never interleave.
        p.fileSystem->appendFile(log, bytes);
    } catch (const std::exception&) {
    }
}

void applib::logError(std::int32_t lError, std::u16string_view sErrDesc,
                      std::u16string_view sErrSrc, bool bShowMsgBox) {
    logAction(app::errorText(lError, sErrDesc, sErrSrc));
    if (bShowMsgBox)
        dialogs::showError(*module_, lError, sErrDesc, sErrSrc);
}

} // namespace velkor6

namespace velkor6::dispatch {

void addLogMembers(Table<applib>& t) {
    using T = VarType;
    t.push_back({9,
                 u"logFile",
                 CallKind::PropertyGet,
                 {},
                 T::String,
                 [](applib& a, Args&) -> Variant { return a.logFile(); },
                 u"The log file: the application name with \".log\" in the temporary folder.",
                 u""});
    t.push_back({10,
                 u"logAction",
                 CallKind::Method,
                 {required(u"sMessage", T::String)},
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.logAction(r.str(0));
                     return {};
                 },
                 u"Appends \"dd.mm.yyyy hh:nn:ss\", blanks to column 29 and the message to the "
                 u"log.",
                 u"One append per entry, so the log is complete after each call. An entry that "
                 u"cannot be written is lost without an error."});
    t.push_back({11,
                 u"logError",
                 CallKind::Method,
                 {required(u"lError", T::Long), required(u"sErrDesc", T::String),
                  required(u"sErrSrc", T::String), optional(u"bShowMsgBox", T::Boolean, false)},
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.logError(r.i32(0), r.str(1), r.str(2), r.b(3));
                     return {};
                 },
                 u"Logs ERR=number 'description' (Source=source), and shows the error when "
                 u"bShowMsgBox is True.",
                 u""});
}

} // namespace velkor6::dispatch
