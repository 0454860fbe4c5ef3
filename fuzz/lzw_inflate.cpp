// Both decoders on any bytes, whole and in pieces: the piecewise decoder must give what the
// whole-text one gives, and neither may crash or run past its output limit.
#include "fuzz_input.h"
#include "lzw/lzw.h"
#include "velkor6/vb_error.h"

#include <cstdlib>
#include <optional>

namespace {

using namespace velkor6;

constexpr std::size_t limit = std::size_t{1} << 20;

std::optional<std::string> whole(bool strict, std::string_view packed) {
    try {
        return strict ? lzw::inflateStrict(packed, limit) : lzw::inflate(packed, limit);
    } catch (const VbError&) {
        return std::nullopt;
    }
}

std::optional<std::string> inPieces(bool strict, std::string_view packed, std::size_t piece,
                                    std::size_t window) {
    std::string out;
    try {
        lzw::Inflater inflater(
            strict, [&out](std::string_view s) { out += s; }, limit, window);
        while (!packed.empty()) {
            inflater.write(packed.substr(0, piece));
            packed.remove_prefix(std::min(piece, packed.size()));
        }
        inflater.finish();
    } catch (const VbError&) {
        return std::nullopt;
    }
    return out;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input in(data, size);
    const std::size_t piece = in.number<std::uint8_t>() % 64 + 1;
    const std::size_t window = in.number<std::uint16_t>() % 4096 + 1;
    const std::string_view packed = in.rest();
    for (bool strict : {false, true}) {
        const auto a = whole(strict, packed);
        const auto b = inPieces(strict, packed, piece, window);
        if (a != b)
            std::abort();
    }
    return 0;
}
