// A second of ticks on a watch: 10,000 of them, in batches of a quarter of a second, over 2,700 stocks, for a
// set of five conditions and one of twenty.
//
// Beside it, on the same ticks, stand the two plain ways to do the same: the conditions of one stock,
// computed afresh from its bars after each of its ticks, and behind each batch a market that is built anew
// and searched. All three must come to the same number of matching stocks. The market is the one that
// JOGEON_BENCH_MARKET names or else the generated one, with as many of its stocks once more as 2,700 takes.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/textbook.h"
#include "screen/text/bytes.h"
#include "server/engine/search.h"
#include "server/market/generated_market.h"
#include "server/market/market_builder.h"
#include "server/market/market_file.h"
#include "server/market/random_numbers.h"
#include "server/watch/watch_session.h"

namespace jogeon {
namespace {

using engine::SearchOrder;
using market::Bar;
using market::Bars;
using market::PriceField;
using market::Timeframe;
using textbook::MeanBefore;
using textbook::Rsi;
using textbook::RunOf;
using watch::Tick;

constexpr int kStocks = 2'700;
constexpr int kTicksOfASecond = 10'000;
constexpr int kBatches = 4;
constexpr int kSecond = 1'000;  // milliseconds

Bar BarAt(const Bars& days, int day, std::size_t stock) {
    const auto value = [&](PriceField field) { return days.Row(field, day)[stock]; };
    return {value(PriceField::Open), value(PriceField::High), value(PriceField::Low),
            value(PriceField::Close), value(PriceField::Volume)};
}

// All but the last day of the market.
const market::MarketBuilder& EarlierDays() {
    static const market::MarketBuilder builder = [] {
        const char* file = std::getenv("JOGEON_BENCH_MARKET");
        const auto source = file ? market::OpenMarket(file) : market::GenerateMarket();
        const Bars& days = source->BarsOf(Timeframe::Day);
        const int known = static_cast<int>(source->Instruments().size());
        market::MarketBuilder all;
        for (int number = 0; number < std::max(kStocks, known); ++number) {
            const auto stock = static_cast<std::size_t>(number % known);
            market::Instrument instrument = source->Instruments()[stock];
            if (number >= known) instrument.code = "Z" + ZeroPadded(number, 5);
            all.AddInstrument(std::move(instrument));
            for (int day = 0; day + 1 < days.Count(); ++day) {
                const Bar bar = BarAt(days, day, stock);
                if (!std::isnan(bar.close)) all.AddFittedBar(number, days.Date(day), bar);
            }
        }
        return all;
    }();
    return builder;
}

constexpr int kToday = 20'991'231;

// The earlier days and one more, on which every stock that was there the day before opens where it closed.
const std::shared_ptr<const market::Market>& TheMarket() {
    static const std::shared_ptr<const market::Market> market = [] {
        const auto earlier = EarlierDays().Build();
        const Bars& days = earlier->BarsOf(Timeframe::Day);
        market::MarketBuilder builder = EarlierDays();
        for (int number = 0; number < builder.Instruments(); ++number) {
            const auto stock = static_cast<std::size_t>(earlier->Find(builder.At(number).code));
            const double close = days.Row(PriceField::Close, days.Count() - 1)[stock];
            if (!std::isnan(close)) builder.AddFittedBar(number, kToday, {close, close, close, close, 1});
        }
        return builder.Build();
    }();
    return market;
}

// Ticks without end, as many at a time as a batch has, on stocks by chance. The first batch opens every
// stock.
class SteadyFeed : public watch::Feed {
public:
    SteadyFeed() : random_(1, 1) {
        const Bars& days = TheMarket()->BarsOf(Timeframe::Day);
        const auto opens = days.Row(PriceField::Open, days.Count() - 1);
        for (int stock = 0; stock < days.Instruments(); ++stock)
            if (!std::isnan(opens[static_cast<std::size_t>(stock)]))
                last_.push_back({stock, watch::kOpening, opens[static_cast<std::size_t>(stock)], 1'000});
    }

    void Take(watch::TimeOfDay, std::vector<Tick>& ticks) override {
        if (!opened_) ticks = last_;
        for (int i = 0; opened_ && i < kTicksOfASecond / kBatches; ++i) {
            Tick& tick = last_[static_cast<std::size_t>(random_.Below(static_cast<int>(last_.size())))];
            tick.price = std::max(1.0, std::round(tick.price * random_.Between(0.997, 1.003)));
            ticks.push_back(tick);
        }
        opened_ = true;
    }

    bool Over() const override { return false; }

private:
    market::RandomNumbers random_;
    std::vector<Tick> last_;
    bool opened_ = false;
};

struct Pair {
    int average;
    int rsi;
};
using Pairs = std::vector<Pair>;

// Above the average, RSI not above 70, volume at least 80 % of its average, a price range, a change in range;
// for each pair of numbers.
SearchOrder OrderOf(const Pairs& pairs) {
    SearchOrder order;
    order.target.Upjong = 1;
    order.target.Group = {"ALL"};
    const auto add = [&order](const char* key, int number, std::map<int, std::string> roles) {
        const char letter = static_cast<char>('A' + order.conditions.size());
        order.expression += (order.conditions.empty() ? "" : "&") + std::string(1, letter);
        order.conditions.push_back(
            {number < 400 ? 'T' : 'B', false, true, letter, key, number, 0, std::move(roles)});
    };
    for (const auto& [average, rsi] : pairs) {
        const std::string n = Decimal(average);
        add("010101", 12, {{20, "D"}, {30, "0"}, {40, n}, {50, "0"}});
        add("010201", 111, {{20, "D"}, {30, "0"}, {40, Decimal(rsi)}, {60, "70"}});
        add("040201", 510, {{20, "D"}, {30, "0"}, {40, n}, {60, "80"}});
        add("040102", 420, {{30, "0"}, {60, "1000"}, {61, "100000"}});
        add("040104", 440, {{20, "D"}, {30, "0"}, {40, n}, {60, "-30"}, {61, "30"}});
    }
    return order;
}

const Pairs kFive = {{20, 14}};
const Pairs kTwenty = {{5, 5}, {20, 9}, {60, 14}, {120, 21}};

// What all ways start from: the market as it has opened, and the same ticks.
std::vector<Tick> Opening(SteadyFeed& feed) {
    std::vector<Tick> ticks;
    feed.Take(watch::kOpening, ticks);
    return ticks;
}

void Watch(benchmark::State& state, const Pairs& pairs) {
    const engine::MarketGroups groups;
    watch::WatchSession session(TheMarket(), OrderOf(pairs), {groups, std::make_shared<engine::UserGroups>()},
                                std::make_unique<SteadyFeed>());
    watch::News news = session.Advance(0);
    for (auto _ : state)
        for (int batch = 0; batch < kBatches; ++batch) news = session.Advance(kSecond / kBatches);
    state.counters["matching"] = static_cast<double>(news.matches.size());
}

// The bars of one stock up to its forming day.
struct Forming : textbook::Run {
    std::uint32_t truths = 0;

    void Take(const Tick& tick) {
        close.back() = tick.price;
        volume.back() += tick.volume;
    }
};

std::vector<Forming> OpenedRuns(const std::vector<Tick>& opening) {
    const Bars& days = TheMarket()->BarsOf(Timeframe::Day);
    std::vector<Forming> runs(static_cast<std::size_t>(days.Instruments()));
    for (const Tick& tick : opening) {
        const auto stock = static_cast<std::size_t>(tick.stock);
        runs[stock] = {RunOf(days, stock, days.Count() - 1)};
        runs[stock].close.push_back(tick.price);
        runs[stock].volume.push_back(tick.volume);
    }
    return runs;
}

// The truth of each condition of OrderOf for one stock, as a bit set: which of them turned is asked for, so
// that none can be left out.
std::uint32_t Truths(const Forming& run, const Pairs& pairs) {
    std::uint32_t truths = 0;
    const std::size_t size = run.close.size();
    const auto add = [&truths](bool holds) { truths = truths << 1 | (holds ? 1 : 0); };
    for (const auto& [average, rsi] : pairs) {
        const auto n = static_cast<std::size_t>(average);
        const bool known = size > n;
        const double close = size ? run.close.back() : 0;
        const double before = known ? run.close[size - 1 - n] : 0;
        const double volume = known ? MeanBefore(run.volume, size - 1, n) : 0;
        const double change = 100 * (close - before) / before;
        add(known && close > MeanBefore(run.close, size, n));
        add(size > static_cast<std::size_t>(rsi) && Rsi(run.close, static_cast<std::size_t>(rsi)) <= 70);
        add(volume > 0 && 100 * run.volume.back() / volume >= 80);
        add(close >= 1'000 && close <= 100'000);
        add(known && change >= -30 && change <= 30);
    }
    return truths;
}

bool Matches(std::uint32_t truths, const Pairs& pairs) {
    return truths + 1 == std::uint32_t{1} << (5 * pairs.size());
}

void StockAloneAfterEachTick(benchmark::State& state, const Pairs& pairs) {
    SteadyFeed feed;
    std::vector<Forming> runs = OpenedRuns(Opening(feed));
    for (Forming& run : runs) run.truths = Truths(run, pairs);
    std::vector<Tick> ticks;
    for (auto _ : state)
        for (int batch = 0; batch < kBatches; ++batch) {
            ticks.clear();
            feed.Take(0, ticks);
            for (const Tick& tick : ticks) {
                Forming& run = runs[static_cast<std::size_t>(tick.stock)];
                run.Take(tick);
                run.truths = Truths(run, pairs);
            }
        }
    const auto matching = std::count_if(runs.begin(), runs.end(),
                                        [&](const Forming& run) { return Matches(run.truths, pairs); });
    state.counters["matching"] = static_cast<double>(matching);
}

// The bars of today beside those of the days before.
class Rebuilt {
public:
    void Take(const std::vector<Tick>& ticks) {
        for (const Tick& tick : ticks) {
            Bar& bar =
                today_.try_emplace(tick.stock, Bar{tick.price, tick.price, tick.price, 0, 0}).first->second;
            bar = {bar.open, std::max(bar.high, tick.price), std::min(bar.low, tick.price), tick.price,
                   bar.volume + tick.volume};
        }
    }

    std::size_t Search(const SearchOrder& order) const {
        market::MarketBuilder builder = EarlierDays();
        for (const auto& [stock, bar] : today_) {
            const std::string& code = TheMarket()->Instruments()[static_cast<std::size_t>(stock)].code;
            builder.AddFittedBar(*builder.NumberOf(code), kToday, bar);
        }
        indicators::MarketDay day(builder.Build());
        return engine::Search(day, {}, {}, order).matches.size();
    }

private:
    std::map<int, Bar> today_;
};

void MarketRebuiltForEachBatch(benchmark::State& state, const Pairs& pairs) {
    SteadyFeed feed;
    Rebuilt market;
    market.Take(Opening(feed));
    std::size_t matching = 0;
    std::vector<Tick> ticks;
    for (auto _ : state)
        for (int batch = 0; batch < kBatches; ++batch) {
            ticks.clear();
            feed.Take(0, ticks);
            market.Take(ticks);
            matching = market.Search(OrderOf(pairs));
        }
    state.counters["matching"] = static_cast<double>(matching);
}

// As many seconds for each way, so that all come to the same moment and the same stocks.
constexpr int kSeconds = 10;

BENCHMARK_CAPTURE(Watch, five conditions, kFive)->Unit(benchmark::kMillisecond)->Iterations(kSeconds);
BENCHMARK_CAPTURE(StockAloneAfterEachTick, five conditions, kFive)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(kSeconds);
BENCHMARK_CAPTURE(MarketRebuiltForEachBatch, five conditions, kFive)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(kSeconds);
BENCHMARK_CAPTURE(Watch, twenty conditions, kTwenty)->Unit(benchmark::kMillisecond)->Iterations(kSeconds);
BENCHMARK_CAPTURE(StockAloneAfterEachTick, twenty conditions, kTwenty)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(kSeconds);
BENCHMARK_CAPTURE(MarketRebuiltForEachBatch, twenty conditions, kTwenty)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(kSeconds);

}  // namespace
}  // namespace jogeon

BENCHMARK_MAIN();
