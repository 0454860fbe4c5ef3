// How a platform writes paths.
#pragma once

namespace velkor6 {

// Windows: "\" separates, drive letters and UNC names. Posix: "/" separates, and a "\" is read
// as a separator too, so that paths written on Windows keep working.
enum class PathStyle { Windows, Posix };

} // namespace velkor6
