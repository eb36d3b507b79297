#include "server/engine/true_days.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>

#include "server/indicators/ranking.h"
#include "server/market/stock_history.h"

namespace jogeon::engine {
namespace {

using indicators::BitSet;
using indicators::MarketDay;
using indicators::Verdict;
using market::PriceField;
using market::Timeframe;

using Verdicts = std::map<char, Verdict>;

// How many days are judged at once: enough to share the work, few enough that their rows stay small.
constexpr int kDaysAtOnce = 256;

Verdict Unknown(std::size_t size) {
    return {BitSet(size), BitSet(size), indicators::Column(size, market::kMissing)};
}

class Judge {
public:
    Judge(const market::Market& market, int stock, const ConditionPlan& plan)
        : market_(market), stock_(static_cast<std::size_t>(stock)), plan_(plan), history_(market, stock) {
        for (const auto& [letter, step] : plan.Steps())
            if (step.inExpression && indicators::RanksStocks(step.condition)) ranked_ += letter;
    }

    // The dates among the `count` days from `first` on.
    void AppendTrue(int first, int count, std::vector<int>& dates) const {
        const std::shared_ptr<const market::Market> days = history_.DaysAsStocks(first, count);
        MarketDay day(days);
        Verdicts verdicts = JudgeAlone(day);
        Truth truth = plan_.Combine(verdicts);
        if (!ranked_.empty()) {
            (~truth.known).ForEach([&](std::size_t at) {
                if (HasBar(first, at)) RankOn(DateOf(first, at), at, verdicts);
            });
            truth = plan_.Combine(verdicts);
        }
        truth.truth.ForEach([&](std::size_t at) {
            if (HasBar(first, at)) dates.push_back(DateOf(first, at));
        });
    }

    int Days() const { return history_.Days(); }

    // Whether the parameters of the ranking conditions make sense doesn't depend on the day. Throws if not.
    void CheckRanks() const {
        MarketDay last(market_.AsOf(market_.LastDate()));
        for (const auto& [letter, step] : plan_.Steps())
            if (indicators::RanksStocks(step.condition) && (step.inExpression || step.condition.showValue))
                step.indicator->evaluate(last, step.condition);
    }

private:
    // The verdicts for every day, unknown where other stocks matter.
    Verdicts JudgeAlone(MarketDay& day) const {
        Verdicts verdicts;
        for (const auto& [letter, step] : plan_.Steps()) {
            if (indicators::RanksStocks(step.condition))
                verdicts.emplace(letter, Unknown(day.Instruments()));
            else if (step.inExpression || step.condition.showValue)
                verdicts.emplace(letter, step.indicator->evaluate(day, step.condition));
        }
        return verdicts;
    }

    // Puts in what the ranking conditions say of the stock on `date`, as bit `at`.
    void RankOn(int date, std::size_t at, Verdicts& verdicts) const {
        MarketDay whole(market_.AsOf(date));
        for (char letter : ranked_) {
            const ConditionPlan::Step& step = plan_.Steps().at(letter);
            const Verdict among = step.indicator->evaluate(whole, step.condition);
            verdicts.at(letter).truth.Set(at, among.truth.Get(stock_));
            verdicts.at(letter).known.Set(at, among.known.Get(stock_));
        }
    }

    int DateOf(int first, std::size_t at) const {
        return history_.BarsOf(Timeframe::Day).Date(first + static_cast<int>(at));
    }
    bool HasBar(int first, std::size_t at) const {
        const int bar = first + static_cast<int>(at);
        return !std::isnan(history_.BarsOf(Timeframe::Day).Row(PriceField::Close, bar)[0]);
    }

    const market::Market& market_;
    const std::size_t stock_;
    const ConditionPlan& plan_;
    const market::StockHistory history_;
    std::string ranked_;  // letters of the conditions that rank stocks
};

}  // namespace

std::vector<int> TrueDays(const market::Market& market, int stock, const ConditionPlan& plan) {
    const Judge judge(market, stock, plan);
    std::vector<int> dates;
    if (judge.Days() == 0) return dates;
    judge.CheckRanks();
    for (int first = 0; first < judge.Days(); first += kDaysAtOnce)
        judge.AppendTrue(first, std::min(kDaysAtOnce, judge.Days() - first), dates);
    return dates;
}

}  // namespace jogeon::engine
