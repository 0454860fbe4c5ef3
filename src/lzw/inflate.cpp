#include "lzw/loose_decoder.h"
#include "lzw/lzw.h"
#include "lzw/strict_decoder.h"

#include <optional>

namespace velkor6::lzw {
namespace {

[[noreturn]] void missingCode() {
    throw VbError(vberr::subscriptOutOfRange);
}

// Room for the output of typical text, so that the buffer seldom grows.
std::size_t expectedSize(std::string_view packed) {
    return packed.size() * 2;
}

} // namespace

std::string inflate(std::string_view packed, std::size_t limit) {
    const CodeReader codes = CodeReader::stored(packed);
    if (codes.count() == 0)
        missingCode();
    if (codes.first() != clearCode)
        return {};
    if (codes.count() < 2)
        missingCode();
    LooseDecoder d(expectedSize(packed), limit, nullptr);
    d.start(codes[1]);
    d.decode(codes, 2);
    return d.take();
}

std::string inflateStrict(std::string_view packed, std::size_t limit) {
    const CodeReader codes = CodeReader::stored(packed);
    if (codes.count() == 0)
        missingCode();
    if (codes.first() != clearCode)
        return {};
    StrictDecoder d(expectedSize(packed), limit, nullptr);
    if (!d.decode(codes, 1))
        missingCode();
    return d.take();
}

// The input is kept as bytes of the full stream, its dropped zero byte put back in front, and
// decoded in segments of whole groups of eight codes, so that every segment starts at a code the
// decoders' group reading expects.
class Inflater::Impl {
public:
    Impl(bool strict, Sink sink, std::size_t limit, std::size_t window)
        : strict_(strict), sink_(std::move(sink)), limit_(limit), window_(window) {}

    void write(std::string_view piece) {
        if (state_ == State::done)
            return;
        pending_.append(piece);
        if (pending_.size() >= segmentSize)
            decode(pending_.size() / 9 * 9, false);
    }

    void finish() {
        if (state_ != State::done)
            decode(pending_.size(), true);
    }

private:
    enum class State { first, running, done };
    static constexpr std::size_t segmentSize = std::size_t{1} << 16;

    void decode(std::size_t bytes, bool last) {
        const CodeReader codes = CodeReader::segment(std::string_view(pending_).substr(0, bytes));
        std::size_t from = 0;
        if (state_ == State::first) {
            if (codes.count() == 0)
                missingCode();
            if (codes[0] != clearCode) {
                state_ = State::done;
                return;
            }
            if (strict_) {
                strictDecoder_.emplace(window_, limit_, &sink_);
                from = 1;
            } else {
                if (codes.count() < 2)
                    missingCode();
                looseDecoder_.emplace(window_, limit_, &sink_);
                looseDecoder_->start(codes[1]);
                from = 2;
            }
            state_ = State::running;
        }
        const bool ended =
            strict_ ? strictDecoder_->decode(codes, from) : looseDecoder_->decode(codes, from);
        pending_.erase(0, bytes);
        if (!ended && !last)
            return;
        if (!ended && strict_)
            missingCode();
        state_ = State::done;
        if (strict_)
            strictDecoder_->finish();
        else
            looseDecoder_->finish();
    }

    bool strict_;
    Sink sink_;
    std::size_t limit_;
    std::size_t window_;
    State state_ = State::first;
    std::string pending_ = std::string(1, '\0');
    std::optional<StrictDecoder> strictDecoder_;
    std::optional<LooseDecoder> looseDecoder_;
};

Inflater::Inflater(bool strict, Sink sink, std::size_t limit, std::size_t window)
    : impl_(std::make_unique<Impl>(strict, std::move(sink), limit, window)) {}
Inflater::~Inflater() = default;
void Inflater::write(std::string_view piece) {
    impl_->write(piece);
}
void Inflater::finish() {
    impl_->finish();
}

} // namespace velkor6::lzw
