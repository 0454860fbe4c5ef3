// The decoder that mirrors the compressor's dictionary exactly. Every string it learns is the
// previous string followed by the first byte of the current one, so each is the run of the output
// that ends one byte into the current string, and the entries are kept as such runs.
#include "lzw/bit_stream.h"
#include "lzw/lzw.h"
#include "lzw/output_buffer.h"

namespace velkor6::lzw {
namespace {

struct Run {
    std::size_t pos = 0;
    std::size_t length = 0;
};

[[noreturn]] void damaged() { throw VbError(vberr::subscriptOutOfRange); }

} // namespace

std::string inflateStrict(std::string_view packed, std::size_t limit) {
    const CodeReader codes(packed);
    if (codes.count() == 0)
        damaged();
    if (codes.first() != clearCode)
        return {};

    OutputBuffer buffer(packed.size() * 2, limit);
    char* out = buffer.data();
    std::size_t used = 0;
    std::size_t room = buffer.room();
    auto makeRoom = [&](std::size_t length) {
        if (length > room - used) {
            out = buffer.grow(used, length);
            room = buffer.room();
        }
    };

    Run entry[tableSize];
    std::uint32_t next = firstLearned;
    Run prev;        // the string just decoded; empty at the start and after a clear
    Run beforeClear; // the string decoded just before the last clear, until 258 is known
    for (std::size_t i = 1; i < codes.count(); ++i) {
        const std::uint32_t c = codes[i];
        const std::size_t p = used;
        if (prev.length != 0 && next != tableSize) {
            // Learns the previous string and the first byte of this one.
            if (c < 256) {
                makeRoom(1);
                out[used++] = static_cast<char>(c);
            } else if (c >= firstLearned && c < next) {
                makeRoom(entry[c].length);
                copyRun(out + used, out + entry[c].pos, entry[c].length);
                used += entry[c].length;
            } else if (c == next) {
                makeRoom(prev.length + 1);
                copyRun(out + used, out + prev.pos, prev.length);
                used += prev.length;
                out[used++] = out[prev.pos];
            } else if (c == clearCode) {
                next = firstLearned;
                beforeClear = prev;
                prev = Run{};
                continue;
            } else if (c == endCode) {
                return buffer.take(used);
            } else {
                damaged();
            }
            entry[next++] = Run{prev.pos, prev.length + 1};
        } else if (c == endCode) {
            return buffer.take(used);
        } else if (c == clearCode) {
            next = firstLearned;
            beforeClear = prev;
            prev = Run{};
            continue;
        } else if (prev.length != 0) {
            damaged(); // the dictionary is full and no clear code came
        } else if (beforeClear.length != 0) {
            // The compressor put the string that overflowed its dictionary at 258: the string
            // before the clear and the first byte of this one, which is its own first byte when
            // this is 258 itself.
            if (c < 256) {
                makeRoom(1);
                out[used++] = static_cast<char>(c);
            } else if (c == firstLearned) {
                makeRoom(beforeClear.length + 1);
                copyRun(out + used, out + beforeClear.pos, beforeClear.length);
                used += beforeClear.length;
                out[used++] = out[beforeClear.pos];
            } else {
                damaged();
            }
            entry[firstLearned] = Run{beforeClear.pos, beforeClear.length + 1};
            next = firstLearned + 1;
            beforeClear = Run{};
        } else {
            if (c >= 256)
                damaged();
            makeRoom(1);
            out[used++] = static_cast<char>(c);
        }
        prev = Run{p, used - p};
    }
    damaged();
}

} // namespace velkor6::lzw
