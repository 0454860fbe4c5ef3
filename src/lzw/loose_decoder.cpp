#include "lzw/loose_decoder.h"

#include "lzw/alphabet.h"

namespace velkor6::lzw {

LooseDecoder::LooseDecoder(std::size_t expected, std::size_t limit, const Sink* sink)
    : buffer_(expected, limit, sink), out_(buffer_.data()), room_(buffer_.room()), limit_(limit) {
    for (std::size_t k = 0; k < 256; ++k)
        entry_[k] = Run{k, 1, false};
}

std::size_t LooseDecoder::makeRoom(std::size_t length) {
    if (length <= room_ - used_)
        return 0;
    std::size_t keep = 0;
    if (buffer_.streaming()) {
        // Runs that no entry and not the previous string refer to are not needed any more.
        auto live = [](const Run& r) { return !r.aside && r.length != 0; };
        keep = used_;
        for (std::uint32_t k = firstLearned; k < next_; ++k) {
            if (live(entry_[k]))
                keep = std::min(keep, entry_[k].pos);
        }
        if (live(prev_))
            keep = std::min(keep, prev_.pos);
        if (keep >= used_ / 2 && keep > 0) {
            out_ = buffer_.shift(keep, used_);
            used_ -= keep;
            // An empty run that stands at the end of the output keeps standing there.
            auto move = [keep](Run& r) {
                if (!r.aside)
                    r.pos = r.pos >= keep ? r.pos - keep : 0;
            };
            for (std::uint32_t k = firstLearned; k < next_; ++k)
                move(entry_[k]);
            move(prev_);
            room_ = buffer_.room();
            if (length <= room_ - used_)
                return keep;
        } else {
            keep = 0;
        }
    }
    out_ = buffer_.grow(used_, length);
    room_ = buffer_.room();
    return keep;
}

LooseDecoder::Run LooseDecoder::emit(Run r) {
    const std::size_t moved = makeRoom(r.length);
    if (!r.aside)
        r.pos -= moved;
    if (r.aside)
        std::memcpy(out_ + used_, aside_.data() + r.pos, r.length);
    else
        copyRun(out_ + used_, out_ + r.pos, r.length);
    const Run at{used_, r.length, false};
    used_ += r.length;
    return at;
}

LooseDecoder::Run LooseDecoder::emitByte(std::uint32_t byte) {
    makeRoom(1);
    out_[used_] = static_cast<char>(byte);
    return Run{used_++, 1, false};
}

LooseDecoder::Run LooseDecoder::joined(Run prev, std::size_t pos) {
    if (prev.length == 0)
        return Run{pos, 1, false};
    if (!prev.aside && prev.pos + prev.length == pos)
        return Run{prev.pos, prev.length + 1, false};
    if (prev.length + 1 > limit_ - aside_.size())
        throw VbError(vberr::outOfStringSpace);
    const Run r{aside_.size(), prev.length + 1, true};
    if (prev.aside)
        aside_.append(aside_, prev.pos, prev.length);
    else
        aside_.append(out_ + prev.pos, prev.length);
    aside_.push_back(out_[pos]);
    return r;
}

void LooseDecoder::clear() {
    for (std::uint32_t k = firstLearned; k < next_; ++k)
        entry_[k] = Run{};
    next_ = firstLearned;
}

std::uint32_t LooseDecoder::learn(Run r) {
    cleared_ = next_ == tableSize;
    if (cleared_)
        clear();
    entry_[next_] = r;
    return next_++;
}

void LooseDecoder::start(std::uint32_t code) {
    prev_ = code < 256 ? emitByte(code) : emit(entry_[code]);
}

bool LooseDecoder::step(std::uint32_t c) {
    const Run e = entry_[c];
    if (c < 256) {
        const Run cur = emitByte(c);
        learn(joined(prev_, cur.pos));
        prev_ = cur;
    } else if (e.length != 0) {
        const Run cur = emit(e);
        learn(joined(prev_, cur.pos));
        // A clear while learning empties the entry just read, or puts the new string there.
        prev_ = cleared_ ? entry_[c] : cur;
    } else if (c == clearCode) {
        clear();
        prev_ = Run{used_, 0, false};
    } else if (c == endCode) {
        return false;
    } else {
        // An empty entry is taken for the string that is being learned right now.
        Run x{used_, 0, false};
        if (prev_.length != 0) {
            makeRoom(prev_.length + 1);
            const char first = firstByte(prev_);
            x = emit(prev_);
            out_[used_++] = first;
            ++x.length;
        }
        prev_ = learn(x) == c ? x : Run{used_, 0, false};
    }
    return true;
}

bool LooseDecoder::decode(const CodeReader& codes, std::size_t from) {
    // The loop works on copies of the hot state and hands it to step() for everything else.
    char* out = out_;
    std::size_t used = used_;
    std::size_t room = room_;
    std::uint32_t next = next_;
    Run prev = prev_;
    for (std::size_t i = from; i < codes.count();) {
        const bool prevEndsOutput = !prev.aside && prev.pos + prev.length == used;
        // Eight single bytes in a row, the usual case in data that does not compress.
        if (i % 8 == 0 && i + 8 <= codes.count() && prevEndsOutput && next <= tableSize - 8 &&
            room - used >= 8) {
            const std::uint64_t low = codes.groupLow(i / 8);
            const std::uint32_t high = codes.groupHigh(i / 8);
            if ((low & groupHighBits) == 0 && (high & 0x80) == 0) {
                entry_[next] = Run{prev.pos, prev.length + 1, false};
                for (std::size_t k = 1; k < 8; ++k)
                    entry_[next + k] = Run{used + k - 1, 2, false};
                for (std::size_t k = 0; k < 7; ++k)
                    out[used + k] = static_cast<char>(low >> (9 * k));
                out[used + 7] = static_cast<char>((low >> 63) | (high << 1));
                prev = Run{used + 7, 1, false};
                used += 8;
                next += 8;
                i += 8;
                continue;
            }
        }

        // A string the output holds; learns the previous string and this one's first byte.
        const std::uint32_t c = codes[i++];
        const Run e = entry_[c];
        if (e.length != 0 && !e.aside && prevEndsOutput && next != tableSize &&
            e.length <= room - used) {
            copyRun(out + used, (c < 256 ? alphabet.data() : out) + e.pos, e.length);
            entry_[next++] = Run{prev.pos, prev.length + 1, false};
            prev = Run{used, e.length, false};
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
