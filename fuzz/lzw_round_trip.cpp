// deflate then the strict decoder gives back every byte string, whole and in pieces.
#include "fuzz_input.h"
#include "lzw/lzw.h"

#include <cstdlib>

using namespace velkor6;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input in(data, size);
    const std::size_t piece = in.number<std::uint8_t>() % 64 + 1;
    const std::string_view bytes = in.rest();
    const std::string packed = lzw::deflate(bytes);
    if (lzw::inflateStrict(packed) != bytes)
        std::abort();
    std::string out;
    lzw::Inflater inflater(
        true, [&out](std::string_view s) { out += s; }, lzw::maxDecodedSize, 512);
    for (std::size_t i = 0; i < packed.size(); i += piece)
        inflater.write(std::string_view(packed).substr(i, piece));
    inflater.finish();
    if (out != bytes)
        std::abort();
    return 0;
}
