// The compressor. The dictionary is a table of children: child[code * 256 + byte] is the code of
// the string `code` extended by `byte`, or 0. This gives the same codes as searching the entries
// for the extended string, because no string is learned twice and every learned string but one is
// an extension of a string the dictionary holds.
//
// The exception is entry 258 after a clear: it holds the string that overflowed the old dictionary,
// whose prefix is not in the new one. It becomes reachable when that prefix is learned again, so
// until then the prefix is kept aside and compared with each new entry.
#include "lzw/bit_stream.h"
#include "lzw/lzw.h"

#include <cstring>
#include <vector>

namespace velkor6::lzw {
namespace {

constexpr std::uint32_t noSlot = 0xFFFFFFFF;

class Dictionary {
public:
    Dictionary() : child_(std::size_t{tableSize} * 256, 0) {
        for (auto& s : slot_)
            s = noSlot;
    }

    std::uint16_t child(std::uint32_t code, unsigned char byte) const {
        return child_[code * 256 + byte];
    }
    bool full() const { return next_ == tableSize; }

    // Learns the string `code` + `byte`, which starts at `start` in the input and is `length` long.
    void learn(std::uint32_t code, unsigned char byte, const unsigned char* start,
               std::size_t length) {
        link(code, byte, next_);
        if (pendingLength_ != 0 && length == pendingLength_ &&
            std::memcmp(start, pendingPrefix_, length) == 0) {
            link(next_, pendingLast_, firstLearned);
            pendingLength_ = 0;
        }
        ++next_;
    }

    // Clears the learned entries and stores `prefix` + `byte` at 258, as the compressor does when
    // the dictionary is full. `prefixCode` is the prefix's code in the old dictionary.
    void restart(std::uint32_t prefixCode, unsigned char byte, const unsigned char* prefix,
                 std::size_t prefixLength) {
        for (std::uint32_t k = firstLearned; k < next_; ++k) {
            if (slot_[k] != noSlot) {
                child_[slot_[k]] = 0;
                slot_[k] = noSlot;
            }
        }
        next_ = firstLearned + 1;
        pendingLength_ = 0;
        if (prefixLength == 1) {
            link(prefixCode, byte, firstLearned);
        } else {
            pendingPrefix_ = prefix;
            pendingLength_ = prefixLength;
            pendingLast_ = byte;
        }
    }

private:
    void link(std::uint32_t parent, unsigned char byte, std::uint32_t code) {
        const std::uint32_t s = parent * 256 + byte;
        child_[s] = static_cast<std::uint16_t>(code);
        slot_[code] = s;
    }

    std::vector<std::uint16_t> child_;
    std::uint32_t slot_[tableSize]; // where each learned code is linked, to unlink it on a clear
    std::uint32_t next_ = firstLearned;
    const unsigned char* pendingPrefix_ = nullptr; // of entry 258 while it is not reachable
    std::size_t pendingLength_ = 0;
    unsigned char pendingLast_ = 0;
};

} // namespace

std::string deflate(std::string_view bytes) {
    const auto* in = reinterpret_cast<const unsigned char*>(bytes.data());
    const std::size_t n = bytes.size();
    // Each code but the clears covers at least one byte, and a clear follows at least 254 codes.
    CodeWriter out(n + n / 254 + 4);
    if (n == 0) {
        out.put(endCode);
        out.put(0);
        return out.finish();
    }

    Dictionary dict;
    std::uint32_t w = in[0];
    std::size_t start = 0;
    for (std::size_t i = 1; i < n; ++i) {
        const unsigned char c = in[i];
        if (const std::uint16_t k = dict.child(w, c); k != 0) {
            w = k;
            continue;
        }
        out.put(w);
        if (dict.full()) {
            dict.restart(w, c, in + start, i - start);
            out.put(clearCode);
        } else {
            dict.learn(w, c, in + start, i - start + 1);
        }
        w = c;
        start = i;
    }
    out.put(w);
    out.put(endCode);
    out.put(0);
    return out.finish();
}

} // namespace velkor6::lzw
