// The file dialog and the folder chooser: the `lib` members and their rows.
#include "dialogs/file_dialog.h"
#include "lib/dispatch_object.h"
#include "lib/lib_members.h"

namespace velkor6 {

std::u16string lib::vkrFileDialog(bool bSave, std::u16string_view sTitle,
                                  std::u16string_view sFilter, std::u16string_view sStartFolder,
                                  std::int32_t lFlags, std::u16string_view sDefaultExt,
                                  std::u16string_view sFileName, std::int16_t iFilterIndex) {
    const dialogs::FileDialogArguments arguments{bSave,
                                                 std::u16string(sTitle),
                                                 std::u16string(sFilter),
                                                 std::u16string(sStartFolder),
                                                 lFlags,
                                                 std::u16string(sDefaultExt),
                                                 std::u16string(sFileName),
                                                 iFilterIndex};
    try {
        return dialogs::chooseFiles(module(), arguments);
    } catch (const std::exception&) {
        return {};
    }
}

std::u16string lib::vkrChoosePath(std::u16string_view sTitle, std::u16string_view sStartFolder,
                                  std::int32_t lFlags) {
    try {
        return dialogs::chooseFolder(module(), sTitle, sStartFolder, lFlags);
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace velkor6

namespace velkor6::dispatch {

void addFileDialogMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back(
        {112,
         u"vkrFileDialog",
         CallKind::Method,
         {required(u"bSave", T::Boolean), optional(u"sTitle", T::String, u""),
          optional(u"sFilter", T::String, u""), optional(u"sStartFolder", T::String, u""),
          optional(u"lFlags", T::Long, std::int32_t{0}), optional(u"sDefaultExt", T::String, u""),
          optional(u"sFileName", T::String, u""),
          optional(u"iFilterIndex", T::Integer, std::int16_t{1})},
         T::String,
         [](lib& l, Args& a) -> Variant {
             return l.vkrFileDialog(a.b(0), a.str(1), a.str(2), a.str(3), a.i32(4), a.str(5),
                                    a.str(6), a.i16(7));
         },
         u"Shows the open dialog (bSave False) or the save dialog (bSave True) and returns the "
         u"chosen file's full path; \"\" when the user cancels (cancel is not an error).",
         u"sTitle: the window title; \"\" gives the system's own (\"Open\", \"Save As\"). "
         u"sFilter: \"description|pattern\" pairs joined by \"|\", as in \"Text files "
         u"(*.txt)|*.txt;*.log|All files|*.*\"; several patterns of one filter are separated by "
         u"\";\". A pair with an empty pattern is left out, an empty description shows the "
         u"pattern, a lone last piece is a pattern described by itself; \"\" shows every file. "
         u"Patterns ignore letter case on every system. iFilterIndex: the 1-based filter shown "
         u"first (out of range: the first). sStartFolder: the folder shown first; \"\" the "
         u"current directory; a missing folder gives its nearest existing parent. sFileName: the "
         u"name proposed in the name field; a folder part in it (relative ones below "
         u"sStartFolder) replaces sStartFolder. sDefaultExt (with or without its dot) is added "
         u"to a chosen name that has no extension. lFlags (OpenFileNameConstants) honoured on "
         u"every system: OFN_FILEMUSTEXIST (open: only existing files; implies "
         u"OFN_PATHMUSTEXIST), OFN_PATHMUSTEXIST (the file's folder must exist), "
         u"OFN_OVERWRITEPROMPT (save: asks before an existing file is replaced), "
         u"OFN_ALLOWMULTISELECT (open: several files, returned as full paths in the order "
         u"chosen joined by \"|\"; one file returns its path alone); OFN_HIDEREADONLY hides the "
         u"\"Open as read-only\" box of the Windows dialog (other systems have none); every other "
         u"bit is ignored, and the caller's current directory never changes. A name the rules "
         u"refuse is never returned: the dialog opens again. Never raises: a dialog that cannot "
         u"be shown returns \"\". Without a display the answer is read from VELKOR6_ANSWERS or "
         u"the terminal: \"path:\" and the file's path (several separated by \"|\"; a relative "
         u"one is taken from the start folder), anything else cancels. Example: "
         u"vkrFileDialog(False, \"Load\", \"Resource Library "
         u"(*.DLL)|*.DLL\", \"C:\\Res\", OFN_FILEMUSTEXIST Or OFN_HIDEREADONLY) returns "
         u"\"C:\\Res\\de.dll\"."});
    t.push_back(
        {113,
         u"vkrChoosePath",
         CallKind::Method,
         {optional(u"sTitle", T::String, u""), optional(u"sStartFolder", T::String, u""),
          optional(u"lFlags", T::Long, std::int32_t{dialogs::defaultBrowseFlags})},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrChoosePath(a.str(0), a.str(1), a.i32(2)); },
         u"Shows the folder chooser and returns the chosen folder's full path (no trailing "
         u"separator except at a root); \"\" when the user cancels (cancel is not an error).",
         u"sTitle: the window title (on Windows also the text above the folders); \"\" gives "
         u"\"Browse for Folder\". "
         u"sStartFolder: the folder selected first; \"\" the current directory; a missing folder "
         u"gives its nearest existing parent. lFlags (BrowseInfoFlagConsts), default "
         u"BIF_RETURNONLYFSDIRS Or BIF_NEWDIALOGSTYLE (65): only file-system folders are ever "
         u"returned; BIF_EDITBOX adds a field to type the folder's name in (Windows; the other "
         u"choosers always have one). New folder: with BIF_NEWDIALOGSTYLE (or BIF_USENEWUI) and "
         u"without BIF_NONEWFOLDERBUTTON the user may choose a folder that does not exist yet: a "
         u"name typed into the chooser's name field (on Windows the edit box is then always "
         u"shown, and the \"Make New Folder\" button of the shell, which bypasses this rule, is "
         u"not), the \"Create New Folder\" button of the Qt chooser (it proposes \"New Folder\" in "
         u"the name field, to be typed over), or a headless answer. The "
         u"library makes that one folder (its parent must exist) and returns it; when that fails "
         u"it shows vkrErrorMsg with error 75, the description \"Path/File access error: \" & "
         u"the folder's full path and the source \"velkor6.vkrChoosePath\", then opens the "
         u"chooser again at the nearest existing folder. Without the new-folder flags a folder "
         u"that does not exist is refused and the chooser opens again. Every other bit is "
         u"ignored. Never raises. Without a display the answer is read from VELKOR6_ANSWERS or "
         u"the terminal: \"path:\" and the folder's path (a relative one is taken from the start "
         u"folder), anything else cancels. Example: "
         u"vkrChoosePath(\"Where to export?\", \"C:\\Export\") returns \"C:\\Export\\2024\"."});
}

} // namespace velkor6::dispatch
