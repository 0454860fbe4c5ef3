// The decoder as the original has it. Learned strings are kept as runs of the output rather than as
// texts: a string learned from the previous string and the first byte of the current one is the
// run that ends one byte into the current string. Only a damaged stream (a dictionary that
// overflows without a clear code) can learn a string that is no such run; those go to a side
// buffer.
#include "lzw/bit_stream.h"
#include "lzw/lzw.h"
#include "lzw/output_buffer.h"

namespace velkor6::lzw {
namespace {

// A learned string: a run of the output, or of the side buffer. Length 0 is the empty entry.
struct Run {
    std::size_t pos = 0;
    std::uint32_t length = 0;
    bool aside = false;
};

class LooseDecoder {
public:
    LooseDecoder(std::size_t expected, std::size_t limit) : out_(expected, limit), limit_(limit) {}

    // What the first code after the leading clear code stands for; nothing is learned.
    Run start(std::uint32_t code) {
        if (code < 256)
            return emitByte(code);
        return emit(entry_[code]);
    }

    // One code after that; returns the run that the next code sees as its predecessor.
    Run step(std::uint32_t code, Run prev) {
        if (code < 256) {
            const Run cur = emitByte(code);
            learn(joined(prev, cur.pos));
            return cur;
        }
        const Run e = entry_[code];
        if (e.length != 0) {
            const Run cur = emit(e);
            const bool cleared = learn(joined(prev, cur.pos));
            // A clear while learning empties the entry just read, or puts the new string there.
            return cleared ? entry_[code] : cur;
        }
        // An empty entry is taken for the string that is being learned right now.
        Run x;
        if (prev.length != 0) {
            const unsigned char first = firstByte(prev);
            x = emit(prev);
            out_.push(first);
            ++x.length;
        }
        const std::uint32_t at = learnAt(x);
        return at == code ? x : Run{};
    }

    void clear() {
        for (std::uint32_t k = firstLearned; k < next_; ++k)
            entry_[k] = Run{};
        next_ = firstLearned;
    }

    std::string take() { return out_.take(); }

private:
    Run emitByte(std::uint32_t byte) {
        const Run r{out_.size(), 1, false};
        out_.push(static_cast<unsigned char>(byte));
        return r;
    }

    Run emit(Run r) {
        const Run at{out_.size(), r.length, false};
        if (r.aside)
            out_.append(aside_.data() + r.pos, r.length);
        else
            out_.copyWithin(r.pos, r.length);
        return at;
    }

    unsigned char firstByte(Run r) const {
        return r.aside ? static_cast<unsigned char>(aside_[r.pos]) : out_.at(r.pos);
    }

    // The string `prev` followed by the byte at `pos` of the output.
    Run joined(Run prev, std::size_t pos) {
        if (prev.length == 0)
            return Run{pos, 1, false};
        if (!prev.aside && prev.pos + prev.length == pos)
            return Run{prev.pos, prev.length + 1, false};
        if (prev.length + 1 > limit_ - aside_.size())
            throw VbError(vberr::outOfStringSpace);
        const std::size_t at = aside_.size();
        if (prev.aside)
            aside_.append(aside_, prev.pos, prev.length);
        else
            aside_.append(out_.view(prev.pos, prev.length));
        aside_.push_back(static_cast<char>(out_.at(pos)));
        return Run{at, prev.length + 1, true};
    }

    // Returns whether the dictionary was full and had to be cleared first.
    bool learn(Run r) {
        learnAt(r);
        return clearedLast_;
    }

    std::uint32_t learnAt(Run r) {
        clearedLast_ = next_ == tableSize;
        if (clearedLast_)
            clear();
        entry_[next_] = r;
        return next_++;
    }

    OutputBuffer out_;
    std::string aside_;
    std::size_t limit_;
    Run entry_[tableSize]; // entries below 256 are never read: single bytes are emitted directly
    std::uint32_t next_ = firstLearned;
    bool clearedLast_ = false;
};

} // namespace

std::string inflate(std::string_view packed, std::size_t limit) {
    const CodeReader codes(packed);
    if (codes.count() == 0)
        throw VbError(vberr::subscriptOutOfRange);
    if (codes[0] != clearCode)
        return {};
    if (codes.count() < 2)
        throw VbError(vberr::subscriptOutOfRange);

    LooseDecoder d(packed.size() * 2, limit);
    Run prev = d.start(codes[1]);
    for (std::size_t i = 2; i < codes.count(); ++i) {
        const std::uint32_t c = codes[i];
        if (c == clearCode) {
            d.clear();
            prev = Run{};
        } else if (c == endCode) {
            break;
        } else {
            prev = d.step(c, prev);
        }
    }
    return d.take();
}

} // namespace velkor6::lzw
