// Shell service: opening documents in their programs and starting command lines.
#pragma once

#include "velkor6/export.h"

#include <cstdint>
#include <string_view>

namespace velkor6 {

class VELKOR6_API Shell {
public:
    virtual ~Shell() = default;
    // Opens a file with a verb ("open", "edit") the way the desktop does it. Like the system
    // call, a result above 32 means success.
    virtual std::int32_t execute(std::u16string_view verb, std::u16string_view file,
                                 std::u16string_view parameters, std::u16string_view directory,
                                 std::int32_t showCommand) = 0;
    // Starts a command registered for a file type with file put in for every "%1", without
    // waiting for it; false when it cannot start. The file is never read as command syntax:
    // where programs take their arguments as a list, the command is split into words first and
    // the file goes into the words.
    virtual bool startWithFile(std::u16string_view command, std::u16string_view file,
                               std::int32_t windowStyle) = 0;
};

} // namespace velkor6
