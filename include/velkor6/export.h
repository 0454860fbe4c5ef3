// VELKOR6_API marks what the shared library shows its users: the classes and functions declared
// in these headers. Everything else in the library is hidden.
#pragma once

#if defined(_WIN32)
// On Windows the library is linked statically into its COM server: there is nothing to export.
#define VELKOR6_API
#else
#define VELKOR6_API __attribute__((visibility("default")))
#endif
