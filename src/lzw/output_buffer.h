// The decoders' output: a byte buffer that the decoding loop fills through a raw pointer, so that
// the position stays in a register. Copies of earlier runs move whole blocks and let the last one
// overshoot into a reserve behind the used part; later bytes overwrite the overshoot.
//
// With a sink, the buffer stays small: when it is full, the bytes no learned string refers to any
// more go to the sink and the rest moves to the front.
#pragma once

#include "lzw/lzw.h"
#include "velkor6/vb_error.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>

namespace velkor6::lzw {

class OutputBuffer {
public:
    static constexpr std::size_t block = 16;

    OutputBuffer(std::size_t expected, std::size_t limit, const Sink* sink)
        : limit_(limit), sink_(sink) {
        buf_.resize(std::min(expected, limit) + reserve);
    }

    char* data() { return buf_.data(); }
    bool streaming() const { return sink_ != nullptr; }
    // How many bytes may be used without growing; never more than the limit allows.
    std::size_t room() const { return std::min(buf_.size() - reserve, limit_ - flushed_); }

    // Makes room for `length` bytes after the first `used`; raises error 14 beyond the limit.
    // Returns the new start of the buffer.
    char* grow(std::size_t used, std::size_t length) {
        if (length > limit_ - flushed_ - used)
            throw VbError(vberr::outOfStringSpace);
        buf_.resize(std::max(buf_.size() * 2, used + length + reserve));
        return buf_.data();
    }

    // Hands the first `keep` bytes to the sink and moves the rest of the `used` ones to the front.
    char* shift(std::size_t keep, std::size_t used) {
        (*sink_)(std::string_view(buf_.data(), keep));
        std::memmove(buf_.data(), buf_.data() + keep, used - keep);
        flushed_ += keep;
        return buf_.data();
    }

    std::string take(std::size_t used) {
        buf_.resize(used);
        return std::move(buf_);
    }

    void finish(std::size_t used) { (*sink_)(std::string_view(buf_.data(), used)); }

private:
    static constexpr std::size_t reserve = 2 * block;

    std::string buf_;
    std::size_t limit_;
    std::size_t flushed_ = 0;
    const Sink* sink_;
};

// Copies `length` bytes from `src` to `dst`, where the source ends at or before `dst`, in blocks
// that may overshoot the end of both.
inline void copyRun(char* dst, const char* src, std::size_t length) {
    for (std::size_t i = 0; i < length; i += OutputBuffer::block) {
        char tmp[OutputBuffer::block];
        std::memcpy(tmp, src + i, OutputBuffer::block);
        std::memcpy(dst + i, tmp, OutputBuffer::block);
    }
}

} // namespace velkor6::lzw
