// Composing a search of 20 conditions, beside a memcpy of as many bytes.
//
// The copy is the floor for anything that writes the payload; the ratio says how far above it composing is.
// Both are timed in the same run, in turn, so that the machine's mood cancels out.

#include <chrono>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "screen/condition/index_info.h"
#include "screen/transactions/search_request.h"

namespace {

using namespace jogeon;
using Clock = std::chrono::steady_clock;

constexpr int kConditions = 20;
constexpr int kColumns = 32;
constexpr int kCopiesPerRound = 64;  // one copy is shorter than the clock's own step

class NoQuestions : public host::Questions {
public:
    host::Answer Ask(const host::Box&) override { return host::Answer::Ok; }
    bool Run(const std::string&, void*) override { return false; }
    std::optional<std::filesystem::path> AskSavePath(const host::FileQuestion&) override { return {}; }
};

CIndexInfo MakeCondition(char letter) {
    CIndexInfo condition;
    condition.m_strKey = "0102030008";
    condition.m_nIndexNo = 12;
    condition.m_bChecked = 1;
    condition.m_chLetter = letter;
    condition.m_RoleValues = {{20, "1"},   {30, "0"}, {40, "5"}, {41, "20"},  {42, "60"},
                              {43, "120"}, {50, "1"}, {51, "2"}, {60, "100"}, {61, "200"}};
    return condition;
}

ColumnTables MakeColumns() {
    ColumnTables tables;
    for (int i = 0; i < kColumns; ++i) {
        const std::string fid = std::to_string(3001 + i);
        const auto entry = tables.fixedColumns.emplace(fid, ResultColumn{"column", fid, 9, i + 1, 1}).first;
        tables.columns.push_back(&entry->second);
    }
    return tables;
}

SearchInputs MakeInputs(const std::vector<CIndexInfo>& conditions) {
    SearchInputs inputs;
    inputs.window = 0x1A2B;
    inputs.header.userId = "nv3787";
    inputs.header.target.Upjong = 1;
    inputs.header.target.Group.assign(100, "001");
    for (const CIndexInfo& condition : conditions) {
        inputs.conditions.push_back(&condition);
        inputs.expressionText += inputs.expressionText.empty() ? "" : " and ";
        inputs.expressionText += condition.m_chLetter;
    }
    inputs.checkExpression = [](const std::string&) { return true; };
    return inputs;
}

double NanosecondsOfCopy(const std::string& payload, std::string& target) {
    const auto start = Clock::now();
    for (int i = 0; i < kCopiesPerRound; ++i) {
        std::memcpy(target.data(), payload.data(), payload.size());
        benchmark::DoNotOptimize(target.data());
        benchmark::ClobberMemory();
    }
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / kCopiesPerRound;
}

void ComposeTwentyConditions(benchmark::State& state) {
    std::vector<CIndexInfo> conditions;
    for (int i = 0; i < kConditions; ++i) conditions.push_back(MakeCondition(static_cast<char>('A' + i)));
    const SearchInputs inputs = MakeInputs(conditions);
    ColumnTables columns = MakeColumns();
    NoQuestions questions;
    const std::string payload = ComposeSearch(inputs, columns, questions).value();
    std::string target(payload.size(), ' ');

    double composing = 0;
    double copying = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        auto composed = ComposeSearch(inputs, columns, questions);
        benchmark::DoNotOptimize(composed);
        const double nanoseconds = std::chrono::duration<double, std::nano>(Clock::now() - start).count();
        state.SetIterationTime(nanoseconds * 1e-9);
        composing += nanoseconds;
        copying += NanosecondsOfCopy(payload, target);
    }
    const auto rounds = static_cast<double>(state.iterations());
    state.counters["bytes"] = static_cast<double>(payload.size());
    state.counters["memcpy_ns"] = copying / rounds;
    state.counters["times_memcpy"] = composing / copying;
}
BENCHMARK(ComposeTwentyConditions)->UseManualTime();

}  // namespace

BENCHMARK_MAIN();
