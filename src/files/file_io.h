// Whole-file reading and writing, existence tests and the attribute check.
#pragma once

#include "velkor6/platform/file_system.h"
#include "velkor6/platform/ui.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace velkor6::files {

// The file's text (core/text_file.h: the code page on Windows, UTF-8 or Windows-1252 elsewhere);
// "" when it cannot be read.
std::u16string readFileStream(FileSystem& fs, std::u16string_view name);
// Replaces the file with the text and a line end, as VB's Print # writes it, in the encoding of
// the file it replaces. False when the file cannot be written.
bool writeFileStream(FileSystem& fs, std::u16string_view name, std::u16string_view text);

bool fileExists(FileSystem& fs, std::u16string_view name); // false for a folder
bool pathExists(FileSystem& fs, std::u16string_view path); // false for a file

// The German message for the first forbidden attribute (read-only, hidden, system, directory in
// this order); "" when none of them is forbidden.
std::u16string attributeMessage(std::uint32_t forbidden);

// False, after telling the user, when the file carries an attribute outside allowed; false
// without a word when it does not exist.
// How a file member asks the user: text, title and message-box style in, the result of the chosen
// button out.
using MessageBoxFunction =
    std::function<std::int32_t(std::u16string_view, std::u16string_view, std::int32_t)>;

bool checkAttributes(FileSystem& fs, const MessageBoxFunction& show, std::u16string_view name,
                     std::int16_t allowed, std::u16string_view title);

} // namespace velkor6::files
