// Where the library's own binary lies.
#pragma once

#include <string>

namespace velkor6::posix {

// The folder of the shared library or program that holds this code, without a trailing "/";
// "" when the system cannot tell.
std::u16string libraryFolder();

} // namespace velkor6::posix
