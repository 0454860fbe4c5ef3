#include "text/sign_scanner.h"

#include <algorithm>
#include <limits>

namespace velkor6::text {
namespace {

constexpr std::int64_t noMinimum = std::numeric_limits<std::int64_t>::max();

bool isOdd(std::int64_t v) {
    return v % 2 != 0;
}

} // namespace

SignPairScanner::SignPairScanner(std::u16string_view pair, std::u16string_view source)
    : open_(pair[0]), close_(pair[1]), same_(open_ == close_), source_(source) {
    for (char16_t c : source_)
        sourceSum_ += weight(c);
    if (!same_) {
        // Going backwards with the running minimum of the partial sums after each index: the
        // forward scan from a reaches 1 when some later partial sum drops below the one at a.
        closesFrom_.assign(source_.size() + 1, false);
        std::int64_t sumAt = sourceSum_;
        std::int64_t minAfter = noMinimum;
        for (std::size_t a = source_.size(); a-- > 0;) {
            minAfter = std::min(minAfter, sumAt);
            sumAt -= weight(source_[a]);
            closesFrom_[a] = minAfter < sumAt;
        }
    }
    reset();
}

void SignPairScanner::reset() {
    fedSum_ = 0;
    fedMinBeforeLast_ = noMinimum;
    fedLength_ = 0;
    cursor_ = 0;
    sourceSumToCursor_ = 0;
}

void SignPairScanner::feed(char16_t c) {
    fedMinBeforeLast_ = std::min(fedMinBeforeLast_, fedSum_);
    fedSum_ += weight(c);
    ++fedLength_;
}

void SignPairScanner::feed(std::u16string_view s) {
    for (char16_t c : s)
        feed(c);
}

void SignPairScanner::advanceTo(std::size_t to) {
    for (; cursor_ < to; ++cursor_)
        sourceSumToCursor_ += weight(source_[cursor_]);
}

std::int64_t SignPairScanner::termWeight(std::size_t length) const {
    std::int64_t sum = 0;
    for (char16_t c : source_.substr(cursor_, length))
        sum += weight(c);
    return sum;
}

bool SignPairScanner::encloses(std::size_t length) const {
    if (fedLength_ == 0 || length == 0 || cursor_ + length >= source_.size())
        return false;
    const std::int64_t sumAfterTerm = sourceSumToCursor_ + termWeight(length);
    if (same_)
        return isOdd(fedSum_) && isOdd(sourceSum_ - sumAfterTerm);
    const bool openBefore = fedMinBeforeLast_ < fedSum_ || isOdd(fedSum_);
    const bool closeAfter = closesFrom_[cursor_ + length] || isOdd(sourceSum_ - sumAfterTerm);
    return openBefore && closeAfter;
}

} // namespace velkor6::text
