// The decoders' output: a byte buffer that the decoding loop fills through a raw pointer, so that
// the position stays in a register. Copies of earlier runs move whole blocks and let the last one
// overshoot into a reserve behind the used part; later bytes overwrite the overshoot.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>

#include "velkor6/vb_error.h"

namespace velkor6::lzw {

class OutputBuffer {
public:
    static constexpr std::size_t block = 16;

    OutputBuffer(std::size_t expected, std::size_t limit) : limit_(limit) {
        buf_.resize(std::min(expected, limit) + reserve);
    }

    char* data() { return buf_.data(); }
    // How many bytes may be used without growing; never more than the limit.
    std::size_t room() const { return std::min(buf_.size() - reserve, limit_); }

    // Makes room for `length` bytes after the first `used`; raises error 14 beyond the limit.
    // Returns the new start of the buffer.
    char* grow(std::size_t used, std::size_t length) {
        if (length > limit_ - used)
            throw VbError(vberr::outOfStringSpace);
        buf_.resize(std::max(buf_.size() * 2, used + length + reserve));
        return buf_.data();
    }

    std::string take(std::size_t used) {
        buf_.resize(used);
        return std::move(buf_);
    }

private:
    static constexpr std::size_t reserve = 2 * block;

    std::string buf_;
    std::size_t limit_;
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
