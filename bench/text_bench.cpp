// Search, count and replace over long SQL-like texts. Sizes are in characters, so the reported
// bytes per second are those of the text as an ANSI file.
#include "text/text_toolkit.h"

#include <benchmark/benchmark.h>
#include <random>
#include <string>

namespace {

using namespace velkor6;
using namespace velkor6::text;

// Statements with quoted literals in both quote styles, brackets, numbers and line ends.
std::u16string sqlText(std::size_t size) {
    static constexpr std::u16string_view pieces[] = {
        u"SELECT name, city FROM customers WHERE ",
        u"id = 12345 AND ",
        u"name = 'O''Brien' ",
        u"city = \"K\u00F6ln\" OR ",
        u"amount > 1,234.50 ",
        u"(status = 'open' OR status = \"late\") ",
        u"AND note LIKE 'where and when%' ",
        u"ORDER BY name;\r\n",
    };
    std::mt19937 rng(1);
    std::u16string text;
    text.reserve(size + 64);
    while (text.size() < size)
        text += pieces[rng() % std::size(pieces)];
    text.resize(size);
    return text;
}

const std::u16string& textOf(std::int64_t size) {
    static const std::u16string small = sqlText(1 << 20);
    static const std::u16string large = sqlText(8 << 20);
    return size == (1 << 20) ? small : large;
}

void report(benchmark::State& state, const std::u16string& text) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void BM_FindAbsentAlternatives(benchmark::State& state) {
    const std::u16string& text = textOf(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(
            findSubString(text, u"HAVING|GROUP BY", 1, Compare::Text, true, false, nullptr));
    report(state, text);
}

void BM_FindLast(benchmark::State& state) {
    const std::u16string& text = textOf(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(findLastSubString(text, u"having", 1, Compare::Text));
    report(state, text);
}

void BM_Count(benchmark::State& state) {
    const std::u16string& text = textOf(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(countSubString(text, u"where|and|or", 1, Compare::Text));
    report(state, text);
}

void BM_CountOutsideSigns(benchmark::State& state) {
    const std::u16string& text = textOf(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(
            countSubStringExt(text, u"where|and|or", 1, Compare::Text, u"''|\"\"|()"));
    report(state, text);
}

void BM_Replace(benchmark::State& state) {
    const std::u16string& text = textOf(state.range(0));
    const ReplaceOptions options{false, true, true};
    for (auto _ : state)
        benchmark::DoNotOptimize(replaceInString(text, u"where|and|or", u"&&", 1, options));
    report(state, text);
}

void BM_ReplaceOutsideSignsAndNumbers(benchmark::State& state) {
    const std::u16string& text = textOf(state.range(0));
    ReplaceExtOptions options;
    options.notNumericWords = true;
    options.notInSigns = u"''|\"\"|()";
    for (auto _ : state)
        benchmark::DoNotOptimize(
            replaceInStringExt(text, u".|and", u";", 1, options, Locale::englishUS()));
    report(state, text);
}

} // namespace

BENCHMARK(BM_FindAbsentAlternatives)->Arg(1 << 20)->Arg(8 << 20)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FindLast)->Arg(1 << 20)->Arg(8 << 20)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Count)->Arg(1 << 20)->Arg(8 << 20)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CountOutsideSigns)->Arg(1 << 20)->Arg(8 << 20)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Replace)->Arg(1 << 20)->Arg(8 << 20)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReplaceOutsideSignsAndNumbers)
    ->Arg(1 << 20)
    ->Arg(8 << 20)
    ->Unit(benchmark::kMillisecond);
