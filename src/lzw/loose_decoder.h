// The established decoder. Learned strings are kept as runs of the output rather than as texts: a
// string learned from the previous string and the first byte of the current one is the run that
// ends one byte into the current string. Only a damaged stream (a dictionary that overflows
// without a clear code) can learn a string that is no such run; those go to a side buffer.
#pragma once

#include "lzw/bit_stream.h"
#include "lzw/output_buffer.h"

namespace velkor6::lzw {

class LooseDecoder {
public:
    // `sink` may be null: then the whole output stays in the buffer for take().
    LooseDecoder(std::size_t expected, std::size_t limit, const Sink* sink);

    // The code after the leading clear code: its string is emitted, nothing is learned.
    void start(std::uint32_t code);
    // Decodes codes `from` to the end of `codes`; true when it has read the end code.
    bool decode(const CodeReader& codes, std::size_t from);

    std::string take() { return buffer_.take(used_); }
    void finish() { buffer_.finish(used_); }

private:
    // A learned string: a run of the output, or of the side buffer. Length 0: the empty entry.
    struct Run {
        std::size_t pos = 0;
        std::size_t length = 0;
        bool aside = false;
    };

    // Returns how far the runs of the output moved towards its start.
    std::size_t makeRoom(std::size_t length);
    // Appends a string and returns where it now stands in the output.
    Run emit(Run r);
    Run emitByte(std::uint32_t byte);
    char firstByte(Run r) const { return r.aside ? aside_[r.pos] : out_[r.pos]; }
    // The string `prev` followed by the byte at `pos` of the output.
    Run joined(Run prev, std::size_t pos);
    void clear();
    // Stores a string at the next free entry, clearing a full dictionary first; returns the entry.
    std::uint32_t learn(Run r);
    // One code the fast paths of decode() leave alone; false for the end code.
    bool step(std::uint32_t c);

    OutputBuffer buffer_;
    char* out_;
    std::size_t used_ = 0;
    std::size_t room_;
    std::size_t limit_;
    std::string aside_;
    Run entry_[tableSize]; // below 256: runs of the alphabet, read only by the fast paths
    std::uint32_t next_ = firstLearned;
    bool cleared_ = false;
    // An empty `prev_` stands at the end of the output, so that the fast paths can take it for a
    // run that ends there.
    Run prev_;
};

} // namespace velkor6::lzw
