// A search from the bytes of its request to the bytes of its first page, on the market file that
// JOGEON_BENCH_MARKET names or else on the generated market.
//
// Cold is the first search of a market day, warm any later one. Beside it stand the same five conditions
// evaluated plainly, stock by stock, which must find as many stocks, and one pass over the rows that a search
// with a recursive average can't do without: every day's closes, and the volumes of the windows.
#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/textbook.h"
#include "screen/condition/index_info.h"
#include "screen/target/search_target.h"
#include "screen/text/bytes.h"
#include "screen/transactions/search_reply.h"
#include "screen/transactions/search_request.h"
#include "server/market/generated_market.h"
#include "server/market/market_file.h"
#include "server/service/search_service.h"

namespace jogeon {
namespace {

using market::Bars;
using market::PriceField;
using market::Timeframe;
using textbook::MeanBefore;
using textbook::Rsi;
using textbook::Run;
using textbook::RunOf;

constexpr int kAverageDays = 20;
constexpr int kRsiDays = 14;
constexpr int kMostWindow = 120;  // of the twenty conditions

const std::shared_ptr<const market::Market>& TheMarket() {
    static const std::shared_ptr<const market::Market> market = [] {
        const char* file = std::getenv("JOGEON_BENCH_MARKET");
        return file ? market::OpenMarket(file) : market::GenerateMarket();
    }();
    return market;
}

CIndexInfo Condition(const char* key, int number, std::map<int, std::string> roles) {
    CIndexInfo condition;
    condition.m_strKey = key;
    condition.m_nIndexNo = number;
    condition.m_RoleValues = std::move(roles);
    condition.m_bChecked = 1;
    return condition;
}

// Above the average, RSI not above 70, volume at least 80 % of its average, a price range, a change in range.
void AddFive(std::vector<CIndexInfo>& conditions, int average, int rsi) {
    const std::string n = Decimal(average);
    conditions.push_back(Condition("0101010008", 12, {{20, "D"}, {30, "0"}, {40, n}, {50, "0"}}));
    conditions.push_back(
        Condition("0102010008", 111, {{20, "D"}, {30, "0"}, {40, Decimal(rsi)}, {60, "70"}}));
    conditions.push_back(Condition("0402010008", 510, {{20, "D"}, {30, "0"}, {40, n}, {60, "80"}}));
    conditions.push_back(Condition("0401020008", 420, {{30, "0"}, {60, "1000"}, {61, "100000"}}));
    conditions.push_back(
        Condition("0401040008", 440, {{20, "D"}, {30, "0"}, {40, n}, {60, "-30"}, {61, "30"}}));
}

// The payload of a search for all of the conditions, over all sectors.
std::string Payload(std::vector<CIndexInfo> conditions) {
    std::string expression;
    std::vector<const CIndexInfo*> blocks;
    for (CIndexInfo& condition : conditions) {
        condition.m_chLetter = static_cast<char>('A' + blocks.size());
        blocks.push_back(&condition);
        expression += (expression.empty() ? "" : "&") + std::string(1, condition.m_chLetter);
    }
    HeaderSource header;
    header.userId = "bench";
    header.target = SearchTarget::ForNewScreen();
    const std::vector<std::string> fids = {"9002", "9003", "9004", "9005", "9006", "9007", "9011", "9017"};
    return "T000000010" + ComposeConditionSet(header, expression, static_cast<int>(blocks.size()), blocks) +
           ComposeFidList(fids);
}

std::string FivePayload() {
    std::vector<CIndexInfo> conditions;
    AddFive(conditions, kAverageDays, kRsiDays);
    return Payload(std::move(conditions));
}

std::string TwentyPayload() {
    std::vector<CIndexInfo> conditions;
    const int rsi[] = {5, 9, 14, 21};
    const int averages[] = {5, 20, 60, kMostWindow};
    for (int i = 0; i < 4; ++i) AddFive(conditions, averages[i], rsi[i]);
    return Payload(std::move(conditions));
}

service::Request RequestOf(const std::string& payload) {
    return {"bench", 1, "pisoscop", 1, payload};
}

// Stocks found by a reply, -1 for a failure.
int TotalOf(const std::string& reply) {
    const std::optional<SearchReply> read = ParseSearchReply(reply);
    return read && read->outcome != ReplyOutcome::Failure ? read->total : -1;
}

void Cold(benchmark::State& state, const std::string& payload) {
    int total = -1;
    for (auto _ : state) {
        state.PauseTiming();
        auto service = std::make_unique<service::SearchService>(TheMarket());
        state.ResumeTiming();
        total = TotalOf(service->Handle(RequestOf(payload)));
        state.PauseTiming();
        service.reset();
        state.ResumeTiming();
    }
    if (total < 0) state.SkipWithError("the search failed");
    state.counters["found"] = total;
}

void Warm(benchmark::State& state, const std::string& payload) {
    service::SearchService service(TheMarket());
    int total = TotalOf(service.Handle(RequestOf(payload)));
    for (auto _ : state) total = TotalOf(service.Handle(RequestOf(payload)));
    if (total < 0) state.SkipWithError("the search failed");
    state.counters["found"] = total;
}

bool MatchesFive(const Run& run) {
    const std::size_t size = run.close.size();
    if (size < kAverageDays + 1) return false;
    const double close = run.close.back();
    const double before = run.close[size - 1 - kAverageDays];
    const double change = 100 * (close - before) / before;
    const double volume = 100 * run.volume.back() / MeanBefore(run.volume, size - 1, kAverageDays);
    return close > MeanBefore(run.close, size, kAverageDays) && Rsi(run.close, kRsiDays) <= 70 &&
           volume >= 80 && close >= 1000 && close <= 100000 && change >= -30 && change <= 30;
}

void StockByStock(benchmark::State& state) {
    const Bars& days = TheMarket()->BarsOf(Timeframe::Day);
    int found = 0;
    for (auto _ : state) {
        found = 0;
        for (std::size_t stock = 0; stock < TheMarket()->Instruments().size(); ++stock)
            found += MatchesFive(RunOf(days, stock, days.Count()));
        benchmark::DoNotOptimize(found);
    }
    service::SearchService service(TheMarket());
    if (TotalOf(service.Handle(RequestOf(FivePayload()))) != found)
        state.SkipWithError("the service finds another number of stocks");
    state.counters["found"] = found;
}

void SweepOfRows(benchmark::State& state) {
    const Bars& days = TheMarket()->BarsOf(Timeframe::Day);
    for (auto _ : state) {
        double sum = 0;
        for (int bar = 0; bar < days.Count(); ++bar)
            for (double close : days.Row(PriceField::Close, bar)) sum += close;
        for (int bar = std::max(0, days.Count() - 1 - kMostWindow); bar < days.Count(); ++bar)
            for (double volume : days.Row(PriceField::Volume, bar)) sum += volume;
        benchmark::DoNotOptimize(sum);
    }
}

BENCHMARK_CAPTURE(Cold, five conditions, FivePayload())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Warm, five conditions, FivePayload())->Unit(benchmark::kMillisecond);
BENCHMARK(StockByStock)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Cold, twenty conditions, TwentyPayload())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Warm, twenty conditions, TwentyPayload())->Unit(benchmark::kMillisecond);
BENCHMARK(SweepOfRows)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace jogeon

BENCHMARK_MAIN();
