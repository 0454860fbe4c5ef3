// Throughput of the compressor and both decoders on text and on random bytes.
#include "lzw/lzw.h"

#include <benchmark/benchmark.h>
#include <random>
#include <string>
#include <vector>

namespace {

std::string sampleText(std::size_t n) {
    static const std::vector<std::string> words{
        "Auftrag ", "order ", "customer ", "Kunde ",      "invoice ", "Rechnung ",
        "the ",     "der ",   "and ",      "und ",        "4711 ",    "2024-03-15 ",
        "shipped ", "paid ",  ".\r\n",     "Müller GmbH "};
    std::mt19937 rng(1);
    std::uniform_int_distribution<std::size_t> pick(0, words.size() - 1);
    std::string s;
    while (s.size() < n)
        s += words[pick(rng)];
    s.resize(n);
    return s;
}

std::string sampleBytes(std::size_t n) {
    std::mt19937 rng(2);
    std::string s(n, '\0');
    for (char& c : s)
        c = static_cast<char>(rng());
    return s;
}

std::string sample(const benchmark::State& state) {
    const auto n = static_cast<std::size_t>(state.range(0));
    return state.range(1) == 0 ? sampleText(n) : sampleBytes(n);
}

void label(benchmark::State& state, std::size_t bytes) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
    state.SetLabel(state.range(1) == 0 ? "text" : "random");
}

void BM_LzwDeflate(benchmark::State& state) {
    const std::string s = sample(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(velkor6::lzw::deflate(s));
    label(state, s.size());
}

void BM_LzwInflate(benchmark::State& state) {
    const std::string s = sample(state);
    const std::string packed = velkor6::lzw::deflate(s);
    for (auto _ : state)
        benchmark::DoNotOptimize(velkor6::lzw::inflate(packed));
    label(state, s.size());
}

void BM_LzwInflateStrict(benchmark::State& state) {
    const std::string s = sample(state);
    const std::string packed = velkor6::lzw::deflate(s);
    for (auto _ : state)
        benchmark::DoNotOptimize(velkor6::lzw::inflateStrict(packed));
    label(state, s.size());
}

// Sizes 1 MB and 10 MB; 0 text, 1 random bytes. Rates count the uncompressed bytes.
void sizes(benchmark::internal::Benchmark* b) {
    for (std::int64_t n : {1 << 20, 10 << 20})
        for (std::int64_t kind : {0, 1})
            b->Args({n, kind});
    b->Unit(benchmark::kMillisecond);
}

BENCHMARK(BM_LzwDeflate)->Apply(sizes);
BENCHMARK(BM_LzwInflate)->Apply(sizes);
BENCHMARK(BM_LzwInflateStrict)->Apply(sizes);

} // namespace
