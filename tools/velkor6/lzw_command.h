// velkor6 deflate / velkor6 inflate [--compatible]: compress or decompress standard input to
// standard output, each byte standing for the character with that ANSI code.
#pragma once

#include <iosfwd>
#include <iostream>

namespace velkor6::cli {

int runDeflate(std::istream& in, std::ostream& out);
// Decodes like "InflateStrict" (every stream deflate writes back to its bytes) when `strict`, else
// like "Inflate", writing the output as it comes.
// A damaged stream ends with an error message on `err` after the output decoded before it.
int runInflate(std::istream& in, std::ostream& out, bool strict, std::ostream& err = std::cerr);

} // namespace velkor6::cli
