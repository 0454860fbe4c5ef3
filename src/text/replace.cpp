// Replacing alternatives in a text, outside double quotes, sign pairs or (non-)numeric words.
//
// The loops read as "find from p, then S = Left(S, p - 1) & replacement & Mid(S, p + Len(found))
// and move p past the replacement, or move p on by one to skip". Since nothing before p ever
// changes again, the text is built in a separate buffer as p moves: `out` holds the final text
// before p, and the rest of the current text is the source from `cursor` on. Each step then
// costs time in proportion to what it passes over.
#include "text/forward_finder.h"
#include "text/numeric_word.h"
#include "text/sign_scanner.h"
#include "text/text_toolkit.h"
#include "text/word_rules.h"
#include "velkor6/vb_error.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace velkor6::text {
namespace {

constexpr std::size_t none = std::u16string_view::npos;

[[noreturn]] void overflow() {
    throw VbError(vberr::overflow);
}

// The text being rewritten: out (final) followed by source[cursor...] (untouched).
class Rewrite {
public:
    explicit Rewrite(std::u16string_view source) : source_(source) { out_.reserve(source.size()); }

    std::size_t cursor() const { return cursor_; }
    const std::u16string& out() const { return out_; }
    std::optional<char16_t> before() const {
        return out_.empty() ? std::nullopt : std::optional<char16_t>(out_.back());
    }
    // The 1-based position in the current text of a source index at or after the cursor.
    Pos positionOf(std::size_t index) const {
        return static_cast<Pos>(out_.size() + (index - cursor_) + 1);
    }

    // Passes over the source up to `index`; returns what was passed.
    std::u16string_view keepTo(std::size_t index) {
        const std::u16string_view kept = source_.substr(cursor_, index - cursor_);
        out_.append(kept);
        cursor_ = index;
        return kept;
    }
    void replace(std::size_t length, std::u16string_view replacement) {
        out_.append(replacement);
        cursor_ += length;
    }
    std::u16string finish() {
        keepTo(source_.size());
        return std::move(out_);
    }

private:
    std::u16string_view source_;
    std::u16string out_;
    std::size_t cursor_ = 0;
};

std::int64_t quotesIn(std::u16string_view s) {
    return std::count(s.begin(), s.end(), u'"');
}

// After two replacements of an empty match at one place, every further step sees the same text
// around p as the one before: the loop would never end. The Integer position overflows on the
// way (with an empty replacement it would not even move, and the call would hang).
class EmptyMatchGuard {
public:
    void replaced(std::size_t cursor, std::size_t length) {
        if (length != 0)
            return;
        if (cursor == last_)
            overflow();
        last_ = cursor;
    }

private:
    std::size_t last_ = none;
};

std::u16string replaceAtBeginning(std::u16string_view source, std::u16string_view find,
                                  std::u16string_view replacement, bool wholeWord, Pos limit) {
    std::u16string found;
    if (findSubString(trimSpaces(source), find, 1, Compare::Text, true, wholeWord, &found, limit) !=
        1)
        return std::u16string(source);
    // The untrimmed text may give another match; leading blanks stay in front of it.
    const Pos at = findSubString(source, find, 1, Compare::Text, true, wholeWord, &found, limit);
    if (at < 1)
        return std::u16string(source);
    std::u16string result(left(source, at - 1));
    result += replacement;
    result += mid(source, at + static_cast<Pos>(found.size()));
    return result;
}

bool startsNowhere(std::u16string_view source, Pos start) {
    // Nothing is found from such a start: the search fails or runs past the end.
    return source.empty() || start < 1 || start > static_cast<Pos>(source.size());
}

// The numeric-word test at the cursor of a rewrite, without scanning back over the output.
class NumericWords {
public:
    NumericWords(std::u16string_view source, const Locale& locale)
        : source_(source), locale_(locale) {}

    // Call after the output has grown by `added`.
    void outputGrew(const std::u16string& out, std::size_t added) {
        for (std::size_t i = out.size(); i-- > out.size() - added;) {
            if (isNumericWordDelimiter(out[i])) {
                wordStart_ = i + 1;
                return;
            }
        }
    }

    bool atCursor(const std::u16string& out, std::size_t cursor, std::size_t length) {
        if (length == 0 || cursor + length >= source_.size() || wordStart_ == none)
            return false;
        const std::size_t end = delimiterFrom(cursor + length);
        if (end == none)
            return false;
        std::u16string word = out.substr(wordStart_);
        word.append(source_.substr(cursor, end - cursor));
        return isNumericWordText(word, locale_);
    }

private:
    // The first delimiter at or after `from` in the source. The last answer holds for any
    // `from` between its start and the delimiter; a smaller `from` only adds the part in front.
    std::size_t delimiterFrom(std::size_t from) {
        if (known_ && from >= from_ && (delimiter_ == none || from <= delimiter_))
            return delimiter_;
        std::size_t stop = source_.size();
        std::size_t beyond = none;
        if (known_ && from < from_) {
            stop = from_;
            beyond = delimiter_;
        }
        std::size_t i = from;
        while (i < stop && !isNumericWordDelimiter(source_[i]))
            ++i;
        delimiter_ = i < stop ? i : beyond;
        from_ = from;
        known_ = true;
        return delimiter_;
    }

    std::u16string_view source_;
    const Locale& locale_;
    std::size_t wordStart_ = none; // in the output, just after its last delimiter
    bool known_ = false;
    std::size_t from_ = 0;
    std::size_t delimiter_ = none;
};

} // namespace

std::u16string replaceInString(std::u16string_view source, std::u16string_view find,
                               std::u16string_view replacement, Pos start,
                               const ReplaceOptions& options, Pos limit) {
    if (options.onlyAtBeginning)
        return replaceAtBeginning(source, find, replacement, options.wholeWord, limit);
    if (startsNowhere(source, start))
        return std::u16string(source);

    ForwardFinder finder(source, find, Compare::Text, options.wholeWord);
    Rewrite text(source);
    // Double quotes in the text before p, including those of earlier replacements.
    std::int64_t quotes = quotesIn(text.keepTo(static_cast<std::size_t>(start - 1)));
    EmptyMatchGuard guard;
    while (const auto match = finder.next(text.cursor(), text.before())) {
        const Pos p = text.positionOf(match->index);
        if (p > limit)
            break;
        quotes += quotesIn(text.keepTo(match->index));
        const std::u16string_view found = finder.alternative(match->alternative);
        if (options.notInQuotes && quotes % 2 != 0) {
            if (p + 1 > limit)
                overflow();
            quotes += quotesIn(text.keepTo(text.cursor() + 1));
            continue;
        }
        guard.replaced(text.cursor(), found.size());
        text.replace(found.size(), replacement);
        quotes += quotesIn(replacement);
        if (p + static_cast<Pos>(replacement.size()) > limit)
            overflow();
    }
    return text.finish();
}

std::u16string replaceInStringExt(std::u16string_view source, std::u16string_view find,
                                  std::u16string_view replacement, Pos start,
                                  const ReplaceExtOptions& options, const Locale& locale,
                                  Pos limit) {
    if (startsNowhere(source, start))
        return std::u16string(source);

    ForwardFinder finder(source, find, Compare::Text, options.wholeWord);
    const std::vector<std::u16string_view> pairList = splitAlternatives(options.notInSigns);
    std::vector<SignPairScanner> pairs;
    for (std::u16string_view pair : pairList) {
        if (pair.size() == 2)
            pairs.emplace_back(pair, source);
    }
    const bool numericTest = options.notNumericWords || options.onlyNumericWords;
    NumericWords numeric(source, locale);

    Rewrite text(source);
    const auto keepTo = [&](std::size_t index) {
        const std::u16string_view kept = text.keepTo(index);
        for (SignPairScanner& pair : pairs) {
            pair.feed(kept);
            pair.advanceTo(index);
        }
        if (numericTest)
            numeric.outputGrew(text.out(), kept.size());
    };
    keepTo(static_cast<std::size_t>(start - 1));

    EmptyMatchGuard guard;
    // Replacing an empty match again and again at one place may change the tests' answers
    // for a while; a run this long would have overflowed the Integer position.
    std::size_t runAt = none;
    Pos run = 0;
    while (const auto match = finder.next(text.cursor(), text.before())) {
        const Pos p = text.positionOf(match->index);
        if (p > limit || (options.onlyAtBeginning && p != 1))
            break;
        keepTo(match->index);
        const std::u16string_view found = finder.alternative(match->alternative);
        const auto length = static_cast<Pos>(found.size());
        // The tests take the term's length as an Integer argument.
        if ((!pairList.empty() || numericTest) && length > limit)
            overflow();
        bool skip = std::any_of(pairs.begin(), pairs.end(), [&](const SignPairScanner& pair) {
            return pair.encloses(found.size());
        });
        if (!skip && numericTest) {
            const bool inNumber = numeric.atCursor(text.out(), text.cursor(), found.size());
            skip = (options.notNumericWords && inNumber) || (options.onlyNumericWords && !inNumber);
        }
        if (skip) {
            if (p + 1 > limit)
                overflow();
            keepTo(text.cursor() + 1);
            continue;
        }
        if (found.empty()) {
            if (replacement.empty())
                guard.replaced(text.cursor(), 0);
            run = runAt == text.cursor() ? run + 1 : 1;
            runAt = text.cursor();
            if (run > integerLimit)
                overflow();
        }
        text.replace(found.size(), replacement);
        for (SignPairScanner& pair : pairs) {
            pair.feed(replacement);
            pair.advanceTo(text.cursor());
        }
        if (numericTest)
            numeric.outputGrew(text.out(), replacement.size());
        if (p + static_cast<Pos>(replacement.size()) > limit)
            overflow();
    }
    return text.finish();
}

} // namespace velkor6::text
