// Special folders, user rights and the process environment.
#pragma once

#include "velkor6/export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velkor6 {

class VELKOR6_API Environment {
public:
    virtual ~Environment() = default;
    // The path of a special folder by its CSIDL number, without a trailing separator; "" for a
    // virtual folder (printers, network) or a number the platform does not know.
    virtual std::u16string specialFolder(std::int32_t csidl) = 0;
    // Whether the process may administer the system.
    virtual bool userIsAdmin() = 0;
    virtual std::optional<std::u16string> variable(std::u16string_view name) = 0;
    // The process's command line as a Windows program sees it: the program and its arguments in
    // one text, quoted by the Windows rules.
    virtual std::u16string commandLine() = 0;
};

} // namespace velkor6
