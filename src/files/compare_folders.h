// Bringing the files of an installation folder over into an application folder.
#pragma once

#include "files/file_io.h"
#include "velkor6/locale.h"
#include "velkor6/platform/dialog_host.h"
#include "velkor6/platform/file_system.h"
#include "velkor6/platform/ui.h"
#include "velkor6/variant.h"

#include <string>
#include <string_view>

namespace velkor6::files {

// Copies source\name over target\name when the source is newer, or when the target is
// missing. Never asks. False when a needed date or copy failed.
bool compareFiles(FileSystem& fs, std::u16string_view name, std::u16string_view source,
                  std::u16string_view target);

// The question asked before a newer installation file replaces the one in use.
std::u16string newerFileQuestion(std::u16string_view name, std::u16string_view targetDate,
                                 std::u16string_view sourceDate, std::u16string_view sourcePath,
                                 std::u16string_view targetFolder);

// Copies the normal files of source matching mask into target (created when missing): missing
// ones without asking, newer ones after the user said yes. A target file that is as new or
// newer is never touched. splash (a form answering Visible, Hide and Show) is hidden while a
// question is on screen. False when source is missing or target cannot be made.
bool compareFolders(FileSystem& fs, const MessageBoxFunction& ask, DialogHost& host,
                    const Locale& loc, std::u16string_view source, std::u16string_view target,
                    std::u16string_view mask, const ObjectRef& splash);

} // namespace velkor6::files
