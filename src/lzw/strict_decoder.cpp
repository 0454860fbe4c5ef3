#include "lzw/strict_decoder.h"

#include "lzw/alphabet.h"

namespace velkor6::lzw {
namespace {

[[noreturn]] void damaged() {
    throw VbError(vberr::subscriptOutOfRange);
}

} // namespace

StrictDecoder::StrictDecoder(std::size_t expected, std::size_t limit, const Sink* sink)
    : buffer_(expected, limit, sink), out_(buffer_.data()), room_(buffer_.room()) {
    for (std::size_t k = 0; k < 256; ++k)
        entry_[k] = Run{k, 1};
}

void StrictDecoder::makeRoom(std::size_t length) {
    if (length <= room_ - used_)
        return;
    if (buffer_.streaming()) {
        // Only the runs of the current strings are still needed.
        std::size_t keep = used_;
        for (std::uint32_t k = firstLearned; k < next_; ++k)
            keep = std::min(keep, entry_[k].pos);
        if (prev_.length != 0)
            keep = std::min(keep, prev_.pos);
        if (beforeClear_.length != 0)
            keep = std::min(keep, beforeClear_.pos);
        if (keep > 0 && keep >= used_ / 2) {
            out_ = buffer_.shift(keep, used_);
            used_ -= keep;
            for (std::uint32_t k = firstLearned; k < next_; ++k)
                entry_[k].pos -= keep;
            prev_.pos = prev_.length != 0 ? prev_.pos - keep : 0;
            beforeClear_.pos = beforeClear_.length != 0 ? beforeClear_.pos - keep : 0;
            room_ = buffer_.room();
            if (length <= room_ - used_)
                return;
        }
    }
    out_ = buffer_.grow(used_, length);
    room_ = buffer_.room();
}

bool StrictDecoder::step(std::uint32_t c) {
    if (c == endCode)
        return false;
    if (c == clearCode) {
        next_ = firstLearned;
        beforeClear_ = prev_;
        prev_ = Run{};
        return true;
    }
    std::size_t length = 0;
    if (prev_.length != 0) {
        if (next_ == tableSize)
            damaged(); // the dictionary is full and no clear code came
        if (c < next_) {
            makeRoom(entry_[c].length);
            const Run e = entry_[c];
            copyRun(out_ + used_, (c < 256 ? alphabet.data() : out_) + e.pos, e.length);
            length = e.length;
        } else if (c == next_) {
            // The string this very code defines: the previous one and its first byte.
            makeRoom(prev_.length + 1);
            copyRun(out_ + used_, out_ + prev_.pos, prev_.length);
            out_[used_ + prev_.length] = out_[prev_.pos];
            length = prev_.length + 1;
        } else {
            damaged();
        }
        entry_[next_++] = Run{prev_.pos, prev_.length + 1};
    } else if (beforeClear_.length != 0) {
        // The compressor put the string that overflowed its dictionary at 258: the string before
        // the clear and the first byte of this one, which is its own first byte when this is 258.
        if (c >= 256 && c != firstLearned)
            damaged();
        makeRoom(beforeClear_.length + 1);
        if (c < 256) {
            out_[used_] = static_cast<char>(c);
            length = 1;
        } else {
            copyRun(out_ + used_, out_ + beforeClear_.pos, beforeClear_.length);
            out_[used_ + beforeClear_.length] = out_[beforeClear_.pos];
            length = beforeClear_.length + 1;
        }
        entry_[firstLearned] = Run{beforeClear_.pos, beforeClear_.length + 1};
        next_ = firstLearned + 1;
        beforeClear_ = Run{};
    } else {
        // The first string of the stream, or after a clear that follows no string.
        if (c >= 256)
            damaged();
        makeRoom(1);
        out_[used_] = static_cast<char>(c);
        length = 1;
    }
    prev_ = Run{used_, length};
    used_ += length;
    return true;
}

bool StrictDecoder::decode(const CodeReader& codes, std::size_t from) {
    // The loop works on copies of the hot state and hands it to step() for everything else.
    char* out = out_;
    std::size_t used = used_;
    std::size_t room = room_;
    std::uint32_t next = next_;
    Run prev = prev_;
    for (std::size_t i = from; i < codes.count();) {
        // Eight single bytes in a row, the usual case in data that does not compress.
        if (i % 8 == 0 && i + 8 <= codes.count() && prev.length != 0 && next <= tableSize - 8 &&
            room - used >= 8) {
            const std::uint64_t low = codes.groupLow(i / 8);
            const std::uint32_t high = codes.groupHigh(i / 8);
            if ((low & groupHighBits) == 0 && (high & 0x80) == 0) {
                entry_[next] = Run{prev.pos, prev.length + 1};
                for (std::size_t k = 1; k < 8; ++k)
                    entry_[next + k] = Run{used + k - 1, 2};
                for (std::size_t k = 0; k < 7; ++k)
                    out[used + k] = static_cast<char>(low >> (9 * k));
                out[used + 7] = static_cast<char>((low >> 63) | (high << 1));
                prev = Run{used + 7, 1};
                used += 8;
                next += 8;
                i += 8;
                continue;
            }
        }

        // A known string; learns the previous string and this one's first byte.
        const std::uint32_t c = codes[i++];
        if (prev.length != 0 && c < next && c != clearCode && c != endCode && next != tableSize &&
            entry_[c].length <= room - used) {
            const Run e = entry_[c];
            copyRun(out + used, (c < 256 ? alphabet.data() : out) + e.pos, e.length);
            entry_[next++] = Run{prev.pos, prev.length + 1};
            prev = Run{used, e.length};
            used += e.length;
            continue;
        }
        used_ = used;
        next_ = next;
        prev_ = prev;
        if (!step(c))
            return true;
        out = out_;
        used = used_;
        room = room_;
        next = next_;
        prev = prev_;
    }
    used_ = used;
    next_ = next;
    prev_ = prev;
    return false;
}

} // namespace velkor6::lzw
