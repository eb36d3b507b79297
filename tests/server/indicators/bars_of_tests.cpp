#include "tests/server/indicators/bars_of_tests.h"

#include <chrono>
#include <sstream>

namespace jogeon::indicators {

std::vector<int> Weekdays(int count) {
    std::vector<int> dates;
    for (std::chrono::sys_days day = std::chrono::year(2024) / 1 / 1; std::ssize(dates) < count;
         day += std::chrono::days(1)) {
        const std::chrono::year_month_day date(day);
        if (std::chrono::weekday(day).iso_encoding() > 5) continue;
        dates.push_back(static_cast<int>(date.year()) * 10000 +
                        static_cast<int>(static_cast<unsigned>(date.month())) * 100 +
                        static_cast<int>(static_cast<unsigned>(date.day())));
    }
    return dates;
}

void AddStock(market::MarketBuilder& builder, market::Instrument stock, const std::vector<Bar>& bars,
              const std::vector<int>& dates) {
    const int number = builder.AddInstrument(std::move(stock));
    const std::size_t first = dates.size() - bars.size();
    for (std::size_t i = 0; i < bars.size(); ++i) {
        const Bar& bar = bars[i];
        if (bar.close != 0)
            builder.AddBar(number, dates[first + i], bar.open, bar.high, bar.low, bar.close, bar.volume);
    }
}

std::shared_ptr<const market::Market> MarketOf(const std::vector<Bar>& bars) {
    market::MarketBuilder builder;
    market::Instrument stock;
    stock.code = "000010";
    AddStock(builder, stock, bars, Weekdays(static_cast<int>(bars.size())));
    return builder.Build();
}

std::vector<Bar> Flat(const std::vector<double>& closes) {
    std::vector<Bar> bars;
    bars.reserve(closes.size());
    for (double close : closes) bars.push_back({close, close, close, close, 100});
    return bars;
}

Roles RolesOf(const std::string& values) {
    Roles roles;
    std::istringstream entries(values);
    for (std::string entry; std::getline(entries, entry, '|');) {
        const std::size_t mark = entry.find('^');
        roles[std::stoi(entry.substr(0, mark))] = entry.substr(mark + 1);
    }
    return roles;
}

DecodedBlock ConditionOf(std::string_view key, const std::string& values) {
    const Indicator* indicator = FindIndicator(key);
    if (!indicator) throw std::invalid_argument("no indicator " + std::string(key));
    DecodedBlock block;
    block.roles = RolesOf(values);
    const int variant = block.roles.contains(10) ? std::stoi(block.roles.at(10)) : 0;
    block.family = indicator->family;
    block.key = key;
    block.letter = 'A';
    block.number = indicator->number + (block.family == 'F' ? 0 : variant);
    block.mode = block.family == 'F' ? variant : 0;
    return block;
}

Verdict Evaluate(std::shared_ptr<const market::Market> market, std::string_view key,
                 const std::string& values) {
    MarketDay day(std::move(market));
    return FindIndicator(key)->evaluate(day, ConditionOf(key, values));
}

std::string Signs(const Verdict& verdict) {
    std::string signs;
    for (std::size_t i = 0; i < verdict.known.Size(); ++i)
        signs += verdict.truth.Get(i) ? '1' : verdict.known.Get(i) ? '0' : '?';
    return signs;
}

}  // namespace jogeon::indicators
