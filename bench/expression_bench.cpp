// The check of an expression against the least that any checker must do: one pass that counts brackets.
//
// Both run on the same text in the same process; the counter "x_scan" is the check's time as a multiple of
// the scan's, which carries over from one machine to another where nanoseconds don't.
#include <chrono>
#include <string>

#include <benchmark/benchmark.h>

#include "screen/expression/expression_check.h"

namespace {

using Clock = std::chrono::steady_clock;

// The depth at the end of the text, -1 if a bracket closes too early.
int ScanBrackets(const std::string& text) {
    int depth = 0;
    for (const char c : text) {
        if (c == '(') ++depth;
        if (c == ')' && --depth < 0) return -1;
    }
    return depth;
}

std::string Repeat(const std::string& piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) text += piece;
    return text;
}

// What a trader's twenty conditions look like.
std::string TwentyLetters() {
    return "A and (B or !C) and (D or E or F) and !(G and H) and I and (J or (K and L)) and M and "
           "(N or O) and !P and (Q or R) and (S or !T)";
}

std::string LongChain() {
    return Repeat("A and (B or !C) and ", 20000) + "D";
}
std::string DeepNest() {
    return Repeat("A or (", 50000) + "A" + Repeat(")", 50000);
}

template <typename Work>
double SecondsOf(int times, Work work) {
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < times; ++i) benchmark::DoNotOptimize(work());
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// Scan and check take turns, so that both see the same machine. `times` spans the clock's own step.
void Check(benchmark::State& state, const std::string& text, int times) {
    if (!jogeon::CheckExpressionText(text).valid) return state.SkipWithError("not a valid expression");
    double scan = 0;
    double check = 0;
    for (auto _ : state) {
        scan += SecondsOf(times, [&] { return ScanBrackets(text); });
        const double turn = SecondsOf(times, [&] { return jogeon::CheckExpressionText(text); });
        state.SetIterationTime(turn / times);
        check += turn;
    }
    state.counters["x_scan"] = check / scan;
    state.counters["bytes"] = static_cast<double>(text.size());
}

BENCHMARK_CAPTURE(Check, twenty_letters, TwentyLetters(), 64)->UseManualTime();
BENCHMARK_CAPTURE(Check, long_chain, LongChain(), 1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Check, deep_nest, DeepNest(), 1)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
