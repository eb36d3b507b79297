// Family F: yearly figures, against a value or a range, or by rank.

#include "server/indicators/families.h"
#include "server/indicators/moving_average.h"
#include "server/indicators/ranking.h"
#include "server/indicators/trading_value.h"
#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

namespace {

using market::Fundamental;
using market::Instrument;

// A figure of one stock; `close` is its last one, kMissing if the stock has no bar on the last day.
using Figure = double (*)(const Instrument& stock, double close);

double MarketCapitalization(const Instrument& stock, double close) {
    return Capitalization(close, stock.shares);
}

// Price over a figure per share; a loss or an empty book makes no multiple.
template <Fundamental figure>
double Multiple(const Instrument& stock, double close) {
    const double perShare = stock.Get(figure);
    return perShare > 0 ? close / perShare : kMissing;
}

template <Fundamental figure>
double Plain(const Instrument& stock, double) {
    return stock.Get(figure);
}

Column FigureColumn(const MarketDay& day, Figure figure) {
    const Bars& bars = day.GetMarket().BarsOf(Timeframe::Day);
    const Column close = ColumnAt(bars, PriceField::Close, bars.Count() - 1);
    Column figures(day.Instruments());
    for (std::size_t i = 0; i < figures.size(); ++i)
        figures[i] = figure(day.GetMarket().Instruments()[i], close[i]);
    return figures;
}

// Variants: at least or at most (role 50), within, the highest n, the lowest n.
template <Figure figure>
Verdict EvaluateFigure(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Column figures = FigureColumn(day, figure);
    switch (parameters.Variant()) {
        case 0: {
            const bool atLeast = parameters.Choice(50, "12") == 0;
            const double level = parameters.Number(60);
            return Judge(figures, {},
                         [&](std::size_t i) { return atLeast ? figures[i] >= level : figures[i] <= level; });
        }
        case 1:
            return JudgeRange(figures, RangeOf(parameters));
        default: {
            const bool highest = parameters.Variant() == 2;
            const int count = parameters.Whole(highest ? 60 : 61);
            const Column ranks = RanksOf(figures, highest);
            return Judge(figures, {}, [&](std::size_t i) { return ranks[i] <= count; });
        }
    }
}

constexpr int kRoles[] = {10, 50, 60, 61};

constexpr Indicator kIndicators[] = {
    {"070101", 'F', 710, 4, 0, kRoles, "Close * shares, in 억원. The exchange's 시가총액.",
     EvaluateFigure<MarketCapitalization>},
    {"070102", 'F', 720, 4, 2, kRoles,
     "Close / earnings per share. B. Graham, The Intelligent Investor, 1949.",
     EvaluateFigure<Multiple<Fundamental::EarningsPerShare>>},
    {"070103", 'F', 730, 4, 2, kRoles, "Close / book value per share. Graham, 1949.",
     EvaluateFigure<Multiple<Fundamental::BookValuePerShare>>},
    {"070104", 'F', 740, 4, 2, kRoles, "Dividend in percent of the last price. As the market's data say.",
     EvaluateFigure<Plain<Fundamental::DividendYield>>},
    {"070201", 'F', 750, 4, 2, kRoles, "Return on equity in percent. As the market's data say.",
     EvaluateFigure<Plain<Fundamental::ReturnOnEquity>>},
    {"070202", 'F', 760, 4, 2, kRoles, "Operating profit in percent of sales. As the market's data say.",
     EvaluateFigure<Plain<Fundamental::OperatingMargin>>},
    {"070203", 'F', 770, 4, 2, kRoles, "Growth of sales against the year before. As the market's data say.",
     EvaluateFigure<Plain<Fundamental::SalesGrowth>>},
    {"070204", 'F', 780, 4, 2, kRoles, "Debt in percent of equity. As the market's data say.",
     EvaluateFigure<Plain<Fundamental::DebtRatio>>},
};

}  // namespace

std::span<const Indicator> FundamentalIndicators() {
    return kIndicators;
}

}  // namespace jogeon::indicators
