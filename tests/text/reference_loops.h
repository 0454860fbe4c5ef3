// The count and replace loops written out step by step on the whole text, the slow way: every
// test of a match scans the current text and every replacement rebuilds it. The fast loops must
// give the same results (and the same overflow errors) on any input.
#pragma once

#include "text/text_toolkit.h"
#include "velkor6/vb_error.h"

#include <algorithm>
#include <string>

namespace velkor6::text::reference {

inline std::vector<std::u16string> parts(std::u16string_view s) {
    std::vector<std::u16string> out;
    if (s.empty())
        return out;
    std::size_t from = 0;
    for (;;) {
        const std::size_t bar = s.find(u'|', from);
        out.emplace_back(s.substr(from, bar == s.npos ? s.npos : bar - from));
        if (bar == s.npos)
            return out;
        from = bar + 1;
    }
}

inline void fits(Pos v, Pos limit) {
    if (v > limit)
        throw VbError(vberr::overflow);
}

inline Pos countExt(std::u16string_view s, std::u16string_view find, Pos start, Compare mode,
                    std::u16string_view signs, Pos limit) {
    if (s.empty() || find.empty())
        return 0;
    Pos total = 0;
    for (const std::u16string& alternative : parts(find)) {
        Pos p = start;
        for (int guard = 0;; ++guard) {
            p = searchOne(s, alternative, p, mode, false, limit);
            if (p == 0)
                break;
            if (guard > 1000)
                throw VbError(vberr::overflow);
            const auto n = static_cast<Pos>(alternative.size());
            bool inside = false;
            for (const std::u16string& pair : parts(signs))
                inside = inside || isInSigns(s, pair, p, n);
            if (!inside)
                fits(++total, limit);
            fits(p += n, limit);
        }
    }
    return total;
}

struct Options {
    bool quotes = false;          // the double-quote rule of replaceInString
    std::u16string_view signs;    // the sign pairs of replaceInStringExt
    bool onlyAtBeginning = false; // the Ext meaning: stop at a match not at 1
    bool wholeWord = false;
    bool notNumeric = false;
    bool onlyNumeric = false;
};

inline std::u16string replace(std::u16string s, std::u16string_view find,
                              std::u16string_view replacement, Pos start, const Options& o,
                              Pos limit) {
    const std::vector<std::u16string> pairs = parts(o.signs);
    Pos p = start;
    for (int guard = 0;; ++guard) {
        std::u16string found;
        p = findSubString(s, find, p, Compare::Text, true, o.wholeWord, &found, limit);
        if (p < 1 || (o.onlyAtBeginning && p != 1))
            break;
        if (guard > 1000)
            throw VbError(vberr::overflow); // endless
        const auto n = static_cast<Pos>(found.size());
        const std::u16string_view before = std::u16string_view(s).substr(0, p - 1);
        bool skip = o.quotes && std::count(before.begin(), before.end(), u'"') % 2 != 0;
        if (!pairs.empty() || o.notNumeric || o.onlyNumeric)
            fits(n, limit);
        for (const std::u16string& pair : pairs)
            skip = skip || isInSigns(s, pair, p, n);
        if (!skip && (o.notNumeric || o.onlyNumeric)) {
            const bool numeric = isNumericWord(s, p, n, Locale::englishUS());
            skip = (o.notNumeric && numeric) || (o.onlyNumeric && !numeric);
        }
        if (skip) {
            fits(p += 1, limit);
            continue;
        }
        s = s.substr(0, p - 1) + std::u16string(replacement) + s.substr(p - 1 + n);
        fits(p += static_cast<Pos>(replacement.size()), limit);
    }
    return s;
}

} // namespace velkor6::text::reference
