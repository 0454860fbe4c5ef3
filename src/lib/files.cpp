// Paths, files and folders: the `lib` members and their rows in the member table.
#include "dialogs/std_message.h"
#include "files/compare_folders.h"
#include "files/file_io.h"
#include "files/find_file.h"
#include "files/folders.h"
#include "files/paths.h"
#include "lib/lib_members.h"
#include "velkor6/record_object.h"

#include <memory>

namespace velkor6 {
namespace {

// The title of the library's own messages: the file description of its version information.
constexpr std::u16string_view fileDescription = u"velkor6";

template <class F, class R>
R trapped(F f, R neutral) {
    try {
        return f();
    } catch (const std::exception&) {
        return neutral;
    }
}

} // namespace

std::u16string lib::vkrGetFullPath(std::u16string_view sPath, std::u16string_view sFile) {
    return files::getFullPath(sPath, sFile, module().platform().fileSystem->pathStyle());
}

std::u16string lib::vkrSystemDir() {
    return trapped(
        [&] { return files::systemDir(*module().platform().fileSystem, windowsDirectory_); },
        windowsDirectory_);
}

std::u16string lib::vkrTempDir() {
    Module& m = module();
    return trapped([&] { return files::tempDir(*m.platform().fileSystem, m.tempFolderCache()); },
                   m.tempFolderCache());
}

std::u16string lib::vkrFileStream(std::u16string_view sFilename) {
    return trapped(
        [&] { return files::readFileStream(*module().platform().fileSystem, sFilename); },
        std::u16string());
}

void lib::vkrFileStreamLet(std::u16string_view sFilename, std::u16string_view value) {
    trapped(
        [&] { return files::writeFileStream(*module().platform().fileSystem, sFilename, value); },
        false);
}

void lib::vkrChangeToPath(std::u16string_view sPath) {
    trapped(
        [&] {
            files::changeToPath(*module().platform().fileSystem, sPath);
            return true;
        },
        false);
}

std::u16string lib::vkrGetAbsolutePath(std::u16string_view sSource, std::u16string_view sTarget) {
    return trapped(
        [&] {
            return files::getAbsolutePath(sSource, sTarget,
                                          module().platform().fileSystem->pathStyle());
        },
        std::u16string());
}

std::u16string lib::vkrGetRelativePath(std::u16string_view sSource, std::u16string_view sTarget) {
    return trapped(
        [&] { return files::getRelativePath(*module().platform().fileSystem, sSource, sTarget); },
        std::u16string());
}

bool lib::vkrFileExists(std::u16string_view filename) {
    return trapped([&] { return files::fileExists(*module().platform().fileSystem, filename); },
                   false);
}

bool lib::vkrPathExists(std::u16string_view sPath) {
    return trapped([&] { return files::pathExists(*module().platform().fileSystem, sPath); },
                   false);
}

std::u16string lib::vkrFindFile(std::u16string_view sFilename, std::u16string_view sFolder) {
    Platform& p = module().platform();
    return trapped([&] { return files::findFile(*p.fileSystem, *p.input, sFilename, sFolder); },
                   std::u16string());
}

bool lib::vkrCheckAttributes(std::u16string_view sPathName, std::int16_t iAllowedAttribute) {
    Platform& p = module().platform();
    return trapped(
        [&] {
            const auto show = [&](std::u16string_view text, std::u16string_view title,
                                  std::int32_t style) { return vkrExtMsgBox(text, style, title); };
            return files::checkAttributes(*p.fileSystem, show, sPathName, iAllowedAttribute,
                                          fileDescription);
        },
        false);
}

bool lib::vkrSeparateFile(std::u16string_view sFullName, typFileInfo& tFileInfo) {
    return trapped(
        [&] { return files::separateFile(*module().platform().fileSystem, sFullName, tFileInfo); },
        false);
}

std::u16string lib::prfGetSpecialFolder(std::int32_t lngCSIDL) {
    return trapped([&] { return module().platform().environment->specialFolder(lngCSIDL); },
                   std::u16string());
}

bool lib::prfChangeDir(std::u16string_view sFolder) {
    return trapped([&] { return files::changeDir(*module().platform().fileSystem, sFolder); },
                   false);
}

bool lib::prfMakeDir(std::u16string_view sFolder) {
    return trapped([&] { return files::makeDir(*module().platform().fileSystem, sFolder); }, false);
}

bool lib::prfCompareFiles(std::u16string_view sFilename, std::u16string_view sSource,
                          std::u16string_view sTarget) {
    return trapped(
        [&] {
            return files::compareFiles(*module().platform().fileSystem, sFilename, sSource,
                                       sTarget);
        },
        false);
}

bool lib::prfCompareFolders(std::u16string_view sSource, std::u16string_view sTarget,
                            std::u16string_view sMask, const ObjectRef& oSplash) {
    Platform& p = module().platform();
    return trapped(
        [&] {
            const auto ask = [&](std::u16string_view text, std::u16string_view title,
                                 std::int32_t style) {
                return dialogs::showSystemMessage(module(), text, title, style);
            };
            return files::compareFolders(*p.fileSystem, ask, *p.dialogs, locale(), sSource, sTarget,
                                         sMask, oSplash);
        },
        false);
}

Variant lib::prfGetFileList(std::u16string_view sFolder, std::u16string_view sMask,
                            std::u16string_view sLikeFilter) {
    VariantArray names;
    names.element = VarType::String;
    try {
        for (std::u16string& name :
             files::getFileList(*module().platform().fileSystem, sFolder, sMask, sLikeFilter))
            names.items.emplace_back(std::move(name));
    } catch (const std::exception&) {
        names.items.clear();
    }
    names.bounds = {ArrayBound{0, static_cast<std::int32_t>(names.items.size())}};
    return Variant(std::move(names));
}

bool lib::prfIsAdmin() {
    return trapped([&] { return module().platform().environment->userIsAdmin(); }, false);
}

} // namespace velkor6

namespace velkor6::dispatch {
namespace {

constexpr std::u16string_view fileInfoType = u"typFileInfo";

std::shared_ptr<RecordObject> newFileInfo(const Locale& loc) {
    std::vector<RecordObject::Field> fields;
    for (const auto name : {u"lpDrive", u"lpPath", u"lpFileName", u"lpExt", u"lpFullName"})
        fields.push_back({name, Variant(u"")});
    return std::make_shared<RecordObject>(std::u16string(fileInfoType), std::move(fields), loc);
}

// Writes the record into the caller's typFileInfo object, or puts a new one in its place when
// the caller passed anything else.
void storeFileInfo(Variant& slot, const typFileInfo& info, const Locale& loc) {
    std::shared_ptr<RecordObject> record;
    if (slot.isObject())
        record = std::dynamic_pointer_cast<RecordObject>(slot.object());
    if (!record || record->typeName() != fileInfoType) {
        record = newFileInfo(loc);
        slot = Variant(ObjectRef(record));
    }
    *record->field(u"lpDrive") = info.lpDrive;
    *record->field(u"lpPath") = info.lpPath;
    *record->field(u"lpFileName") = info.lpFileName;
    *record->field(u"lpExt") = info.lpExt;
    *record->field(u"lpFullName") = info.lpFullName;
}

} // namespace

void addFileMembers(Table<lib>& t) {
    using T = VarType;

    // --- Paths and files ----------------------------------------------------------------
    t.push_back({32,
                 u"vkrGetFullPath",
                 CallKind::Method,
                 {required(u"sPath", T::String), required(u"sFile", T::String)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.vkrGetFullPath(a.str(0), a.str(1)); },
                 u"Folder and file joined by exactly one separator.",
                 u"A separator is added to sPath unless it ends in one, and one leading separator "
                 u"of sFile is dropped: an empty sPath gives a separator followed by sFile. The "
                 u"separator is \"\\\" on Windows and \"/\" on POSIX, where \"\\\" counts as one "
                 u"too."});
    t.push_back({33,
                 u"vkrSystemDir",
                 CallKind::Method,
                 {},
                 T::String,
                 [](lib& l, Args&) -> Variant { return l.vkrSystemDir(); },
                 u"The Windows directory (not the system directory), read once per object.",
                 u"On POSIX: /usr."});
    t.push_back({34,
                 u"vkrTempDir",
                 CallKind::Method,
                 {},
                 T::String,
                 [](lib& l, Args&) -> Variant { return l.vkrTempDir(); },
                 u"The user's temporary folder, always ending in a separator.",
                 u"Read once for the whole library and kept, even when the environment changes. "
                 u"On POSIX: $TMPDIR, else /tmp."});
    t.push_back({35,
                 u"vkrFileStream",
                 CallKind::PropertyGet,
                 {required(u"sFilename", T::String)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.vkrFileStream(a.str(0)); },
                 u"The whole content of a file, one character per byte (ANSI code page).",
                 u"No line-end conversion. \"\" when the file cannot be read."});
    t.push_back({35,
                 u"vkrFileStream",
                 CallKind::PropertyLet,
                 {required(u"sFilename", T::String), required(u"value", T::String)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrFileStreamLet(a.str(0), a.str(1));
                     return {};
                 },
                 u"Replaces the file with the text in the ANSI code page, followed by CR LF.",
                 u"A file that cannot be written is left as it is, without an error."});
    t.push_back({36,
                 u"vkrChangeToPath",
                 CallKind::Method,
                 {required(u"sPath", T::String)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrChangeToPath(a.str(0));
                     return {};
                 },
                 u"Makes the folder of sPath (the text before its last separator) the current "
                 u"drive and directory.",
                 u"C:\\App\\Data\\app.exe makes C:\\App\\Data current, and C:\\App\\Data makes "
                 u"C:\\App current. A missing folder changes nothing."});
    t.push_back(
        {37,
         u"vkrGetAbsolutePath",
         CallKind::Method,
         {required(u"sSource", T::String), required(u"sTarget", T::String)},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrGetAbsolutePath(a.str(0), a.str(1)); },
         u"sTarget resolved against the folder of the file sSource.",
         u"An absolute sTarget comes back unchanged. Otherwise the last component of "
         u"sSource goes (also when it is a folder: pass a folder with a trailing "
         u"separator), sTarget is appended and \".\" and \"..\" are resolved: "
         u"C:\\App\\Data\\app.ini and ..\\Logs\\run.log give C:\\App\\Logs\\run.log."});
    t.push_back(
        {38,
         u"vkrGetRelativePath",
         CallKind::Method,
         {required(u"sSource", T::String), required(u"sTarget", T::String)},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrGetRelativePath(a.str(0), a.str(1)); },
         u"sTarget relative to sSource: an existing folder, or else a file whose folder "
         u"is the base.",
         u"A target below the base keeps a leading .\\ (./ on POSIX). Paths without a "
         u"common root (different drives) give sTarget unchanged."});
    t.push_back({39,
                 u"vkrFileExists",
                 CallKind::Method,
                 {required(u"filename", T::String)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrFileExists(a.str(0)); },
                 u"Whether the file exists (false for a folder).",
                 {}});
    t.push_back({40,
                 u"vkrPathExists",
                 CallKind::Method,
                 {required(u"sPath", T::String)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrPathExists(a.str(0)); },
                 u"Whether sPath is an existing folder (false for a file).",
                 {}});
    t.push_back(
        {41,
         u"vkrFindFile",
         CallKind::Method,
         {required(u"sFilename", T::String), optional(u"sFolder", T::String, u"")},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrFindFile(a.str(0), a.str(1)); },
         u"Full path of the first file below sFolder whose name matches the pattern sFilename; "
         u"\"\" when none does, \"#BREAK#\" when the user pressed Escape.",
         u"The pattern is the Like operator (? * # [list] [!list]), letter case ignored. The files "
         u"of a folder are tried before its sub-folders, depth first. Without sFolder every ready "
         u"drive is searched in drive-letter order; on POSIX the roots of the mounted file "
         u"systems (from /proc/self/mounts, without kernel and device file systems such as proc, "
         u"sysfs and devpts), each search staying on its own file system, and links to folders "
         u"are not followed. On POSIX without a window system the Escape key cannot be read, so "
         u"the search always runs to its end."});
    t.push_back(
        {42,
         u"vkrCheckAttributes",
         CallKind::Method,
         {required(u"sPathName", T::String), required(u"iAllowedAttribute", T::Integer)},
         T::Boolean,
         [](lib& l, Args& a) -> Variant { return l.vkrCheckAttributes(a.str(0), a.i16(1)); },
         u"True when the file carries no attribute outside iAllowedAttribute; otherwise tells "
         u"the user (in German) and gives false.",
         u"Attributes: read-only 1, hidden 2, system 4, directory 16; only the first forbidden "
         u"one of these is reported. A missing file gives false without a message. On POSIX: "
         u"read-only means the user may not write the file, hidden means the name starts with "
         u"\".\", system never applies, directory is a folder; without a display the message "
         u"goes to standard error."});
    t.push_back(
        {43,
         u"vkrSeparateFile",
         CallKind::Method,
         {required(u"sFullName", T::String), output(u"tFileInfo", T::Variant)},
         T::Boolean,
         [](lib& l, Args& a) -> Variant {
             typFileInfo info;
             const bool ok = l.vkrSeparateFile(a.str(0), info);
             storeFileInfo(a[1], info, l.locale());
             return ok;
         },
         u"Splits sFullName into the typFileInfo record tFileInfo: lpDrive, lpPath, lpFileName, "
         u"lpExt and lpFullName.",
         u"lpPath runs up to and including the last separator, lpExt follows the last dot of the "
         u"name (without the dot). lpDrive is the drive letter of the name, else that of the "
         u"current directory; on POSIX it is \"\". tFileInfo receives a typFileInfo record "
         u"object; one passed in is filled in place."});

    // --- Folders, special folders and file comparison -----------------------------------
    t.push_back(
        {44,
         u"prfGetSpecialFolder",
         CallKind::Method,
         {required(u"lngCSIDL", T::Long)},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.prfGetSpecialFolder(a.i32(0)); },
         u"The path of a special folder (SpecialFolderConsts), without a trailing separator; "
         u"\"\" for a virtual or unknown folder.",
         u"On POSIX (XDG folders; ~ is $HOME): DESKTOP and DESKTOPDIRECTORY the XDG desktop "
         u"folder, PERSONAL the documents folder, TEMPLATES and MYPICTURES the XDG templates and "
         u"pictures folders (from user-dirs.dirs; home when not set, ~/Desktop for the desktop); "
         u"APPDATA the config home ($XDG_CONFIG_HOME or ~/.config), LOCAL_APPDATA the data home "
         u"($XDG_DATA_HOME or ~/.local/share), INTERNET_CACHE the cache home ($XDG_CACHE_HOME or "
         u"~/.cache), PROFILE ~; PROGRAMS and STARTMENU the data home's applications folder, "
         u"COMMON_PROGRAMS and COMMON_STARTMENU /usr/share/applications; STARTUP and ALTSTARTUP "
         u"the config home's autostart folder, COMMON_STARTUP and COMMON_ALTSTARTUP "
         u"/etc/xdg/autostart; FONTS /usr/share/fonts; COMMON_APPDATA /var/lib; WINDOWS /etc; "
         u"SYSTEM and SYSTEMX86 /usr/lib; PROGRAM_FILES and PROGRAM_FILESX86 /opt; "
         u"PROGRAM_FILES_COMMON and PROGRAM_FILES_COMMONX86 /usr/share. All others (the virtual "
         u"folders, FAVORITES, RECENT, SENDTO, COOKIES, HISTORY, NETHOOD, PRINTHOOD, "
         u"ADMINTOOLS and the remaining COMMON_ folders) give \"\". Flag bits such as "
         u"CSIDL_FLAG_CREATE are ignored."});
    t.push_back({45,
                 u"prfChangeDir",
                 CallKind::Method,
                 {required(u"sFolder", T::String)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.prfChangeDir(a.str(0)); },
                 u"Makes sFolder the current directory (and its drive the current drive); true "
                 u"when it is current afterwards.",
                 u"A trailing separator is dropped except at a drive root (X:\\) or \"/\". The "
                 u"comparison ignores letter case; on POSIX \"\\\" and \"/\" count as the same."});
    t.push_back({46,
                 u"prfMakeDir",
                 CallKind::Method,
                 {required(u"sFolder", T::String)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.prfMakeDir(a.str(0)); },
                 u"Creates sFolder with all missing parents; true when it exists afterwards.",
                 {}});
    t.push_back(
        {47,
         u"prfCompareFiles",
         CallKind::Method,
         {required(u"sFilename", T::String), required(u"sSource", T::String),
          required(u"sTarget", T::String)},
         T::Boolean,
         [](lib& l, Args& a) -> Variant { return l.prfCompareFiles(a.str(0), a.str(1), a.str(2)); },
         u"Copies sFilename from the folder sSource into sTarget when the target file is "
         u"missing or older; never asks.",
         u"False when a date could not be read or the copy failed, true otherwise."});
    t.push_back(
        {48,
         u"prfCompareFolders",
         CallKind::Method,
         {required(u"sSource", T::String), required(u"sTarget", T::String),
          optional(u"sMask", T::String, u"*.*"),
          optional(u"oSplash", T::Object, Variant::nothing())},
         T::Boolean,
         [](lib& l, Args& a) -> Variant {
             return l.prfCompareFolders(a.str(0), a.str(1), a.str(2), a[3].object());
         },
         u"Brings the normal files of sSource matching sMask over into sTarget: missing ones "
         u"without asking, newer ones after a question (in German, title \"Dateivergleich\").",
         u"sTarget is created when missing. A target file as new as the source or newer is never "
         u"touched. A visible oSplash form is hidden while the questions are on screen and shown "
         u"again at the end. Files that cannot be dated or copied are skipped. False when sSource "
         u"is missing or sTarget cannot be made. On POSIX without a display the question goes to "
         u"standard error and is answered with its default button (yes)."});
    t.push_back(
        {49,
         u"prfGetFileList",
         CallKind::Method,
         {required(u"sFolder", T::String), optional(u"sMask", T::String, u"*.*"),
          optional(u"sLikeFilter", T::String, u"*")},
         T::Variant,
         [](lib& l, Args& a) -> Variant { return l.prfGetFileList(a.str(0), a.str(1), a.str(2)); },
         u"The names of the normal files of sFolder that match sMask and the Like pattern "
         u"sLikeFilter (letter case counts), as a String array.",
         u"The mask uses the directory listing's wildcards (* and ?, letter case ignored). "
         u"Hidden, system files and folders are left out; on POSIX names starting with "
         u"\".\" are hidden. A missing folder gives an empty array."});
    t.push_back({50,
                 u"prfIsAdmin",
                 CallKind::Method,
                 {},
                 T::Boolean,
                 [](lib& l, Args&) -> Variant { return l.prfIsAdmin(); },
                 u"Whether the user has administrator rights.",
                 u"On POSIX: the effective user is root."});
}

} // namespace velkor6::dispatch
