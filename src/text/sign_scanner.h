// isInSigns for many terms of one text in linear total time, for loops that move through a
// text from left to right (counting, replacing).
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace velkor6::text {

// The text is seen as two parts: the characters before the cursor, fed one by one (a replace
// loop feeds its output, which may differ from the source), and the source from the cursor on,
// which is never changed. The answers equal isInSigns on the concatenation of both parts for
// the term that starts at the cursor.
class SignPairScanner {
public:
    // `pair` holds exactly two characters: the opening and the closing sign.
    SignPairScanner(std::u16string_view pair, std::u16string_view source);

    // Forgets the fed characters and moves the cursor back to the start of the source.
    void reset();
    void feed(char16_t c);
    void feed(std::u16string_view s);
    // Moves the cursor forward to index `to` of the source.
    void advanceTo(std::size_t to);
    std::size_t cursor() const { return cursor_; }

    bool encloses(std::size_t length) const;

private:
    int weight(char16_t c) const { return c == open_ ? 1 : (c == close_ ? -1 : 0); }
    std::int64_t termWeight(std::size_t length) const;

    char16_t open_;
    char16_t close_;
    bool same_;
    std::u16string_view source_;

    // Before the cursor: the sum of the weights (opening +1, closing -1; for equal signs the
    // number of signs) and the smallest partial sum short of the last character. The backward
    // scan reaches 1 exactly when that minimum lies below the sum.
    std::int64_t fedSum_ = 0;
    std::int64_t fedMinBeforeLast_ = 0;
    std::size_t fedLength_ = 0;

    // The source: the sum of the weights before the cursor and over all of it, and for distinct
    // signs whether the forward scan from each index reaches 1 (a closing sign without its
    // opening one).
    std::size_t cursor_ = 0;
    std::int64_t sourceSumToCursor_ = 0;
    std::int64_t sourceSum_ = 0;
    std::vector<bool> closesFrom_;
};

} // namespace velkor6::text
