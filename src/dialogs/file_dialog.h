// The file dialog and the folder chooser: what the caller's arguments ask of the dialog host,
// and what becomes of the host's answer.
#pragma once

#include "velkor6/enums.h"
#include "velkor6/platform/dialog_host.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6 {
class FileSystem;
class Module;
} // namespace velkor6

namespace velkor6::dialogs {

// What separates the paths of a multiple choice in the one result string.
inline constexpr char16_t pathListSeparator = u'|';
// The folder chooser's options when the caller gives none: file-system folders only, the
// resizable chooser that lets the user make a new folder.
inline constexpr std::int32_t defaultBrowseFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
// The run-time error shown when a new folder cannot be made.
inline constexpr std::int32_t pathFileAccessError = 75;

// "description|pattern|description|pattern|...". Patterns of one filter are separated by ";"
// (spaces around them are dropped). A filter without a pattern is left out; an empty description
// takes the pattern's text; a lone piece at the end is a pattern described by itself.
std::vector<FileFilter> parseFilters(std::u16string_view spec);

struct FileDialogArguments {
    bool save = false;
    std::u16string title;
    std::u16string filter;
    std::u16string startFolder;
    std::int32_t flags = 0; // OpenFileNameConstants
    std::u16string defaultExtension;
    std::u16string fileName;
    std::int32_t filterIndex = 1; // 1-based
};

// The request for the host: the start folder as an existing full path (the nearest existing
// folder above the one given, else the current directory), a folder part of the file name moved
// into the start folder, the flags as options.
FileDialogRequest fileDialogRequest(FileSystem& files, const FileDialogArguments& arguments);

// Shows the file dialog until the user cancels or picks what the request allows; the full path,
// several joined by pathListSeparator, or "" when cancelled.
std::u16string chooseFiles(Module& module, const FileDialogArguments& arguments);

FolderDialogRequest folderDialogRequest(FileSystem& files, std::u16string_view title,
                                        std::u16string_view startFolder, std::int32_t flags);

// Shows the folder chooser until the user cancels or picks a folder; a folder that does not exist
// yet is made when the flags allow new folders. A folder that cannot be made is reported through
// the library's error display and the chooser opens again. The full path, or "" when cancelled.
std::u16string chooseFolder(Module& module, std::u16string_view title,
                            std::u16string_view startFolder, std::int32_t flags);

} // namespace velkor6::dialogs
