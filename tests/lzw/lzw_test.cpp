#include "fake/error_of.h"
#include "lzw/lzw.h"
#include "reference_lzw.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace velkor6::lzw {
namespace {

std::string randomBytes(std::mt19937& rng, std::size_t n, int alphabet = 256) {
    std::uniform_int_distribution<int> pick(0, alphabet - 1);
    std::string s(n, '\0');
    for (char& c : s)
        c = static_cast<char>(pick(rng));
    return s;
}

// Words from a small vocabulary: long and repetitive enough to fill the dictionary many times.
std::string randomText(std::mt19937& rng, std::size_t n) {
    static const std::vector<std::string> words{
        "the ",  "order ", "was ",        "shipped ", "to ",   "Müller ",
        "GmbH ", "on ",    "2024-03-15 ", "invoice ", "no. ",  "4711 ",
        "and ",  "paid ",  "in ",         "full",     ".\r\n", "customer "};
    std::uniform_int_distribution<std::size_t> pick(0, words.size() - 1);
    std::string s;
    while (s.size() < n)
        s += words[pick(rng)];
    s.resize(n);
    return s;
}

std::vector<std::string> sampleInputs() {
    std::mt19937 rng(20240315);
    std::vector<std::string> in{"",
                                "A",
                                "AA",
                                "TOBEORNOTTOBEORTOBEORNOT",
                                std::string(1, '\0'),
                                std::string(70000, 'a'),
                                std::string(3000, '\xFF')};
    for (std::size_t n : {1u, 2u, 255u, 256u, 700u, 5000u, 20000u}) {
        in.push_back(randomBytes(rng, n));
        in.push_back(randomBytes(rng, n, 2));
        in.push_back(randomBytes(rng, n, 5));
        in.push_back(randomText(rng, n));
    }
    return in;
}

// True when code 258 appears after a clear code that is not the first code.
bool uses258AfterClear(std::string_view packed) {
    const auto codes = reference::unpack(packed);
    bool afterClear = false;
    for (std::size_t i = 1; i < codes.size() && codes[i] != endCode; ++i) {
        afterClear = afterClear || codes[i] == clearCode;
        if (afterClear && codes[i] == firstLearned)
            return true;
    }
    return false;
}

TEST(Lzw, KnownStreams) {
    // Codes 256 65 257 0 packed least significant bit first; the leading zero byte dropped.
    EXPECT_EQ(deflate("A"), "\x83\x04\x04");
    EXPECT_EQ(inflate("\x83\x04\x04"), "A");
    EXPECT_EQ(deflate(""), "\x03\x02");
    EXPECT_EQ(inflate("\x03\x02"), "");
    EXPECT_EQ(inflateStrict("\x03\x02"), "");

    const std::string s = "TOBEORNOTTOBEORTOBEORNOT";
    const std::vector<std::uint32_t> expected{256, 'T', 'O', 'B', 'E', 'O', 'R', 'N', 'O', 'T',
                                              258, 260, 262, 267, 261, 263, 265, 257, 0};
    const std::string packed = deflate(s);
    std::vector<std::uint32_t> codes = reference::unpack(packed);
    codes.resize(expected.size());
    EXPECT_EQ(codes, expected);
    // Whole bytes of all codes' bits, the trailing 0 included, less the dropped byte.
    EXPECT_EQ(packed.size(), expected.size() * 9 / 8 - 1);
    EXPECT_EQ(inflate(packed), s);
}

TEST(Lzw, MatchesThePlainModelAndRestoresEveryInput) {
    for (const std::string& s : sampleInputs()) {
        const std::string packed = deflate(s);
        ASSERT_EQ(packed, reference::deflate(s)) << "length " << s.size();
        EXPECT_EQ(inflate(packed), reference::inflate(packed)) << "length " << s.size();
        EXPECT_EQ(inflateStrict(packed), s) << "length " << s.size();
    }
    // Larger than the plain model checks in good time: many clears, many output buffers.
    std::mt19937 rng(4711);
    for (std::size_t n : {257u, 4099u, 33333u, 65536u, 100000u}) {
        for (const std::string& s :
             {randomBytes(rng, n), randomBytes(rng, n, 3), randomText(rng, n * 3)})
            EXPECT_EQ(inflateStrict(deflate(s)), s) << "length " << s.size();
    }
}

TEST(Lzw, DamagedStreamsDecodeLikeThePlainModel) {
    const auto check = [](const std::string& s, int round) {
        std::string expected;
        const int expectedError = errorOf([&] { expected = reference::inflate(s); });
        std::string actual;
        EXPECT_EQ(errorOf([&] { actual = inflate(s); }), expectedError) << "round " << round;
        EXPECT_EQ(actual, expected) << "round " << round;
        const int strictError = errorOf([&] { inflateStrict(s); });
        EXPECT_TRUE(strictError == 0 || strictError == vberr::subscriptOutOfRange);
    };
    // Arbitrary bytes with the clear code in front reach every odd path of the decoder: empty
    // entries, codes far beyond the next free one, a dictionary that overflows without a clear.
    std::mt19937 rng(7);
    for (int round = 0; round < 200; ++round) {
        std::string s = randomBytes(rng, 1 + round % 50 * 20);
        s[0] = static_cast<char>(s[0] | 1);
        check(s, round);
    }
    // Valid streams with one flipped bit reach the strict decoder's checks further in.
    const std::string packed = deflate(randomText(rng, 8000));
    for (int round = 0; round < 60; ++round) {
        std::string s = packed;
        s[rng() % s.size()] ^= static_cast<char>(1 << rng() % 8);
        check(s, round);
    }
}

TEST(Lzw, DecodersAgreeUnlessCode258FollowsAClear) {
    std::mt19937 rng(99);
    int agreeing = 0;
    int differing = 0;
    for (int round = 0; round < 60; ++round) {
        const std::string s = round % 2 ? randomText(rng, 500 + 300 * round)
                                        : randomBytes(rng, 200 + 900 * round, 2 + round % 7);
        const std::string packed = deflate(s);
        if (uses258AfterClear(packed)) {
            ++differing;
            EXPECT_NE(inflate(packed), s);
        } else {
            ++agreeing;
            EXPECT_EQ(inflate(packed), s);
        }
    }
    EXPECT_GT(agreeing, 5);
    EXPECT_GT(differing, 5);
}

TEST(Lzw, EstablishedDecoderLearnsASingleCharacterAfterAClear) {
    // Bytes 0..255 code one by one; coding 254 overflows the dictionary, so after the clear 258
    // holds FE FF in the compressor. The tail FF FE FF then codes as FF, 258.
    std::string s;
    for (int i = 0; i < 256; ++i)
        s += static_cast<char>(i);
    s += "\xFE\xFF";
    const std::vector<std::uint32_t> codes = reference::unpack(deflate(s));
    ASSERT_EQ(codes.size(), 260u); // the last bits of the trailing 0 are not stored
    EXPECT_EQ(codes[255], 254u);
    const std::vector<std::uint32_t> tail(codes.begin() + 256, codes.end());
    EXPECT_EQ(tail, (std::vector<std::uint32_t>{clearCode, 0xFF, firstLearned, endCode}));

    EXPECT_EQ(inflateStrict(deflate(s)), s);
    // The established decoder has learned the lone FF at 258 instead.
    EXPECT_EQ(inflate(deflate(s)), s.substr(0, 256) + "\xFF");
}

TEST(Lzw, ShortOrForeignStreams) {
    EXPECT_EQ(errorOf([] { inflate(""); }), vberr::subscriptOutOfRange);
    EXPECT_EQ(errorOf([] { inflateStrict(""); }), vberr::subscriptOutOfRange);
    EXPECT_EQ(errorOf([] { inflate("\x01"); }), vberr::subscriptOutOfRange);
    EXPECT_EQ(inflate("\x02"), "");
    EXPECT_EQ(inflate("plain text"), ""); // 'p' is even: the first code is not the clear code
    EXPECT_EQ(inflateStrict("plain text"), "");

    // A cut stream: the established decoder returns what it has, the strict one refuses.
    const std::string s = "TOBEORNOTTOBEORTOBEORNOT";
    const std::string cut = deflate(s).substr(0, 10);
    EXPECT_EQ(inflate(cut), reference::inflate(cut));
    EXPECT_EQ(errorOf([&] { inflateStrict(cut); }), vberr::subscriptOutOfRange);

    using Codes = std::vector<std::uint32_t>;
    for (const Codes& bad : {Codes{256, 300, 257, 0},       // not yet defined
                             Codes{256, 65, 260, 257, 0},   // beyond the next free code
                             Codes{256, 65, 256, 259, 257}, // after a clear only 258 is known
                             Codes{256, 65, 66, 67}})       // no end code
        EXPECT_EQ(errorOf([&] { inflateStrict(reference::pack(bad)); }),
                  vberr::subscriptOutOfRange);
    Codes full{256, 65};
    for (std::uint32_t c = 0; c < 254; ++c) // fills 258 to 511
        full.push_back(66);
    full.insert(full.end(), {257, 0});
    EXPECT_EQ(inflateStrict(reference::pack(full)), "A" + std::string(254, 'B'));
    full.insert(full.end() - 2, 66); // one string more than the dictionary holds, no clear
    EXPECT_EQ(errorOf([&] { inflateStrict(reference::pack(full)); }), vberr::subscriptOutOfRange);
}

TEST(Lzw, RunawayOutputStopsAtTheLimit) {
    // Each code is the one being defined: strings of length 2, 3, 4, ... add up quadratically.
    std::vector<std::uint32_t> codes{256, 65};
    for (std::uint32_t c = 258; c < 512; ++c)
        codes.push_back(c);
    codes.insert(codes.end(), {endCode, 0});
    const std::string packed = reference::pack(codes);
    const std::size_t full = 255 * 256 / 2;
    EXPECT_EQ(inflateStrict(packed, full).size(), full);
    EXPECT_EQ(inflate(packed, full).size(), full);
    EXPECT_EQ(errorOf([&] { inflateStrict(packed, full - 1); }), vberr::outOfStringSpace);
    EXPECT_EQ(errorOf([&] { inflate(packed, full - 1); }), vberr::outOfStringSpace);
}

// Feeds `packed` to an Inflater in pieces of the given sizes, in turn; returns the output and the
// error number (0 for none).
std::pair<std::string, int> inflateInPieces(std::string_view packed, bool strict,
                                            const std::vector<std::size_t>& sizes,
                                            std::size_t window) {
    std::string out;
    const int error = errorOf([&] {
        Inflater inflater(
            strict, [&](std::string_view piece) { out.append(piece); }, maxDecodedSize, window);
        for (std::size_t at = 0, k = 0; at < packed.size(); ++k) {
            const std::size_t n = std::min(sizes[k % sizes.size()], packed.size() - at);
            inflater.write(packed.substr(at, n));
            at += n;
        }
        inflater.finish();
    });
    return {error ? std::string() : out, error};
}

TEST(Lzw, StreamingDecodesLikeTheWholeText) {
    std::mt19937 rng(65536);
    std::vector<std::string> streams;
    for (const std::string& s : sampleInputs())
        streams.push_back(deflate(s));
    // Long enough to pass through the output buffer several times.
    streams.push_back(deflate(randomText(rng, 3 << 20)));
    streams.push_back(deflate(randomBytes(rng, 1 << 20)));
    streams.push_back(deflate(randomBytes(rng, 1 << 20, 3)));
    for (const char* damaged : {"", "\x01", "\x02", "\x03", "plain text", "\x83\x04"})
        streams.emplace_back(damaged);
    for (int round = 0; round < 20; ++round) {
        std::string s = streams[round % 12];
        s[rng() % s.size()] ^= static_cast<char>(1 << rng() % 8);
        streams.push_back(s);
    }

    // Piece sizes in turn, and how much output the decoder holds before it hands it on.
    struct Feed {
        std::vector<std::size_t> sizes;
        std::size_t window;
    };
    const std::vector<Feed> feeds{
        {{1}, 64}, {{9, 4, 100}, 300}, {{65536}, Inflater::defaultWindow}, {{100000, 7}, 1000}};
    for (const std::string& packed : streams) {
        for (bool strict : {false, true}) {
            std::string whole;
            const int error =
                errorOf([&] { whole = strict ? inflateStrict(packed) : inflate(packed); });
            for (const auto& [sizes, window] : feeds) {
                if (sizes[0] == 1 && packed.size() > 50000)
                    continue;
                const auto [out, streamError] = inflateInPieces(packed, strict, sizes, window);
                EXPECT_EQ(streamError, error) << packed.size() << (strict ? " strict" : "");
                EXPECT_TRUE(out == whole) << packed.size() << (strict ? " strict" : "");
            }
        }
    }
}

} // namespace
} // namespace velkor6::lzw
