// Lines of the application log.
#pragma once

#include "core/date.h"
#include "velkor6/platform/file_system.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor6::app {

// "dd.mm.yyyy hh:nn:ss", blanks to the next print zone (the message starts in column 29), the
// message unchanged, CR LF.
std::u16string logLine(const DateParts& now, std::u16string_view message);

// ERR=53 'File not found' (Source=Main.Load)
std::u16string errorText(std::int32_t number, std::u16string_view description,
                         std::u16string_view source);

// The bytes of an entry for the log file `log`, in the encoding the log is in.
std::string entryBytes(FileSystem& fs, std::u16string_view log, std::u16string_view entry);

} // namespace velkor6::app
