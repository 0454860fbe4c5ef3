// Rows of the application context: settings store, window and column memory, log, placeholder
// paths and the editor launch.
#include "lib/applib_members.h"

namespace velkor6::dispatch {
namespace {

using T = VarType;

constexpr std::int32_t currentUserKey = -2147483647;

std::vector<Param> settingParams(VarType valueType, Variant noDefault) {
    return {required(u"section", T::String), required(u"propname", T::String),
            optional(u"default", valueType, std::move(noDefault)),
            optional(u"bAutoCreate", T::Boolean, false)};
}

std::vector<Param> settingLetParams(VarType valueType, Variant noDefault) {
    auto params = settingParams(valueType, std::move(noDefault));
    params.push_back(required(u"value", valueType));
    return params;
}

void addSettingRows(Table<applib>& t) {
    t.push_back({1,
                 u"iniFile",
                 CallKind::PropertyGet,
                 {},
                 T::String,
                 [](applib& a, Args&) -> Variant { return a.iniFile(); },
                 u"The settings file: the application name with \".ini\" in the application "
                 u"folder.",
                 u"Found once and then kept. When only the \"ostrak\" folder below the 32-bit "
                 u"system folder holds a file of that name, that one is used."});
    t.push_back({2, u"stringValue", CallKind::PropertyGet, settingParams(T::String, u""), T::String,
                 [](applib& a, Args& r) -> Variant {
                     return a.stringValue(r.str(0), r.str(1), r.str(2), r.b(3));
                 },
                 u"A setting as text, placeholders such as %AppPath% expanded to folders.",
                 u"A missing or empty setting gives default; with bAutoCreate the default is "
                 u"then stored. Names of sections and keys ignore letter case. At most 2047 "
                 u"characters are read."});
    t.push_back({2, u"stringValue", CallKind::PropertyLet, settingLetParams(T::String, u""),
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.stringValueLet(r.str(0), r.str(1), r.str(4));
                     return {};
                 },
                 u"Stores a setting, well-known folders replaced by placeholders; \"\" deletes "
                 u"it.",
                 u"default and bAutoCreate are ignored. An unchanged value is not written "
                 u"again. The file is replaced whole under a lock, so that other processes "
                 u"writing the same file keep their settings."});
    t.push_back({3, u"longValue", CallKind::PropertyGet, settingParams(T::Long, std::int32_t{0}),
                 T::Long,
                 [](applib& a, Args& r) -> Variant {
                     return a.longValue(r.str(0), r.str(1), r.i32(2), r.b(3));
                 },
                 u"A setting as a Long.",
                 u"Text that is no number, or no Long, gives default (stored with "
                 u"bAutoCreate when the setting is missing or empty)."});
    t.push_back({3, u"longValue", CallKind::PropertyLet, settingLetParams(T::Long, std::int32_t{0}),
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.longValueLet(r.str(0), r.str(1), r.i32(4));
                     return {};
                 },
                 u"Stores a Long as its decimal text.", u""});
    t.push_back({4, u"boolValue", CallKind::PropertyGet, settingParams(T::Boolean, false),
                 T::Boolean,
                 [](applib& a, Args& r) -> Variant {
                     return a.boolValue(r.str(0), r.str(1), r.b(2), r.b(3));
                 },
                 u"A setting as a Boolean.",
                 u"yes, true, 1, -1, wahr and ja (any letter case) are True; a missing or empty "
                 u"setting gives default (stored with bAutoCreate); any other text is False."});
    t.push_back({4, u"boolValue", CallKind::PropertyLet, settingLetParams(T::Boolean, false),
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.boolValueLet(r.str(0), r.str(1), r.b(4));
                     return {};
                 },
                 u"Stores \"yes\" or \"no\".", u""});
}

void addWindowRows(Table<applib>& t) {
    t.push_back(
        {5,
         u"loadColWidths",
         CallKind::Method,
         {required(u"oListView", T::Object), required(u"sPropName", T::String),
          optional(u"lRegKey", T::Long, currentUserKey), optional(u"sRegSubKey", T::String, u"")},
         T::Empty,
         [](applib& a, Args& r) -> Variant {
             a.loadColWidths(r[0].object(), r.str(1), r.i32(2), r.str(3));
             return {};
         },
         u"Restores the column widths stored under sPropName in section ColWidths.",
         u"The widths are pixels separated by \";\", from the first column on; an entry "
         u"that is no number leaves its column alone. lRegKey and sRegSubKey are not "
         u"used."});
    t.push_back({6,
                 u"saveColWidths",
                 CallKind::Method,
                 {required(u"oListView", T::Object), required(u"sPropName", T::String),
                  optional(u"lRegKey", T::Long, currentUserKey)},
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.saveColWidths(r[0].object(), r.str(1), r.i32(2));
                     return {};
                 },
                 u"Stores the list view's column widths under sPropName in section ColWidths.",
                 u"lRegKey is not used: the widths always go to the settings file."});
    t.push_back({7,
                 u"loadWindowPos",
                 CallKind::Method,
                 {required(u"hwnd", T::Long), required(u"formname", T::String),
                  optional(u"ignoresize", T::Boolean, false)},
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.loadWindowPos(r.i32(0), r.str(1), r.b(2));
                     return {};
                 },
                 u"Moves the window to the rectangle stored in section formname and restores "
                 u"its maximised or minimised state.",
                 u"The rectangle is kept inside the work area of the nearest monitor. With "
                 u"ignoresize only the position is restored. Nothing moves when no rectangle "
                 u"was stored."});
    t.push_back({8,
                 u"saveWindowPos",
                 CallKind::Method,
                 {required(u"hwnd", T::Long), required(u"formname", T::String)},
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.saveWindowPos(r.i32(0), r.str(1));
                     return {};
                 },
                 u"Stores the window's state and, unless it is maximised or minimised, its "
                 u"rectangle in twips in section formname.",
                 u"Keys Maximized, Minimized, Left, Top, Width, Height. A window with a parent "
                 u"is stored relative to the parent."});
}

void addLogRows(Table<applib>& t) {
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
    addSettingRows(t);
    addWindowRows(t);
    addLogRows(t);
    addPathRows(t);
}

} // namespace velkor6::dispatch
