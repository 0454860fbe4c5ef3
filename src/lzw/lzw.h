// LZW compression of byte strings: 9-bit codes, a 512-entry dictionary that is cleared whenever it
// fills, codes packed least significant bit first. The compressed form drops its first byte,
// which is always zero.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace velkor6::lzw {

inline constexpr std::uint16_t clearCode = 256;
inline constexpr std::uint16_t endCode = 257;
inline constexpr std::uint16_t firstLearned = 258;
inline constexpr std::uint16_t tableSize = 512;
inline constexpr unsigned codeBits = 9;

// Decoding a damaged stream can make its output grow with the square of its length; beyond this
// many bytes the decoders raise error 14 instead of exhausting memory.
inline constexpr std::size_t maxDecodedSize = std::size_t{1} << 30;

// The compressed form of `bytes`. The empty input compresses to the clear code followed directly by
// the end code (the two bytes 03 02), so that nothing has to be looked up for it.
std::string deflate(std::string_view bytes);

// The established decoder, kept unchanged for existing callers, quirk included: after a clear code
// it learns a single character at entry 258 where the compressor learned a longer string, so a
// stream that uses code 258 after a clear decodes to different bytes than were compressed. Returns
// "" when the first code is not the clear code; raises error 9 when a code is missing before the
// end code is read.
std::string inflate(std::string_view packed, std::size_t limit = maxDecodedSize);

// Decodes every stream deflate() writes back to its input: after a clear code, entry 258 becomes
// the string decoded just before the clear code followed by the first byte of the next string, as
// the compressor has it. Returns "" when the first code is not the clear code; raises error 9 for a
// stream deflate() cannot have written (a code that is not yet defined, a dictionary overflow
// without a clear code, no end code).
std::string inflateStrict(std::string_view packed, std::size_t limit = maxDecodedSize);

// Output handed on piece by piece.
using Sink = std::function<void(std::string_view)>;

// Decodes a compressed stream that arrives in pieces, like inflate() or inflateStrict() on the
// whole of it, and hands the output to a sink as it comes, holding only the part that the
// dictionary still refers to. Raises the same errors, the strict decoder's missing end code at
// finish(); by then the output decoded before an error has been handed on.
class Inflater {
public:
    // The output is handed on whenever about `window` bytes of it are held.
    static constexpr std::size_t defaultWindow = std::size_t{1} << 16;
    Inflater(bool strict, Sink sink, std::size_t limit = maxDecodedSize,
             std::size_t window = defaultWindow);
    ~Inflater();
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    void write(std::string_view piece);
    void finish();

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace velkor6::lzw
