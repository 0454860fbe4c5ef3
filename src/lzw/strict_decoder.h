// The decoder that mirrors the compressor's dictionary exactly. Every string it learns is the
// previous string followed by the first byte of the current one, so each is the run of the output
// that ends one byte into the current string, and the entries are kept as such runs.
#pragma once

#include "lzw/bit_stream.h"
#include "lzw/output_buffer.h"

namespace velkor6::lzw {

class StrictDecoder {
public:
    // `sink` may be null: then the whole output stays in the buffer for take().
    StrictDecoder(std::size_t expected, std::size_t limit, const Sink* sink);

    // Decodes codes `from` to the end of `codes`, the leading clear code already checked; true
    // when it has read the end code. Raises error 9 for a code the compressor cannot have written.
    bool decode(const CodeReader& codes, std::size_t from);

    std::string take() { return buffer_.take(used_); }
    void finish() { buffer_.finish(used_); }

private:
    struct Run {
        std::size_t pos = 0;
        std::size_t length = 0;
    };

    void makeRoom(std::size_t length);
    // One code the fast paths of decode() leave alone; false for the end code.
    bool step(std::uint32_t c);

    OutputBuffer buffer_;
    char* out_;
    std::size_t used_ = 0;
    std::size_t room_;
    Run entry_[tableSize]; // below 256: runs of the alphabet
    std::uint32_t next_ = firstLearned;
    Run prev_;        // the string just decoded; empty at the start and after a clear
    Run beforeClear_; // the string decoded just before the last clear, until 258 is known
};

} // namespace velkor6::lzw
