// The type library's source, written from the member tables (velkor6 members --idl).
#pragma once

#include <iosfwd>

namespace velkor6::typelib {

// Writes the IDL of the library: one dispatch interface and one class per public class, and
// the public enumerations. The COM server numbers its members the same way.
void writeIdl(std::ostream& out);

} // namespace velkor6::typelib
