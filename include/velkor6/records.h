// Public records (user-defined types) of the type library.
#pragma once

#include <cstdint>
#include <string>

namespace velkor6 {

// The parts of a file name as vkrSeparateFile splits it.
struct typFileInfo {
    std::u16string lpDrive;    // one upper-case letter, or ""
    std::u16string lpPath;     // up to and including the last separator
    std::u16string lpFileName; // without the extension
    std::u16string lpExt;      // without the dot
    std::u16string lpFullName; // as passed in
};

// One parameter of a command line: a switch with its value, or a positional word (Name "").
struct typCmdParam {
    std::u16string Name;
    std::u16string value;
};

// A size (vkrGetInternalFormSize gives it in twips).
struct SIZE {
    std::int32_t CX = 0;
    std::int32_t CY = 0;
};

} // namespace velkor6
