// A market of eleven stocks over five days, each there for one rule of universes and columns.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "server/indicators/bit_set.h"
#include "server/market/market_builder.h"

namespace jogeon::test {

using market::Exchange;
using market::Fundamental;
using market::Instrument;
using market::Status;

inline constexpr int kDays[] = {20260302, 20260303, 20260304, 20260305, 20260306};

struct TestStock {
    const char* code;
    const char* name;
    Exchange exchange;
    const char* industry;
    int settlementMonth;
    double shares;
    int status;     // a Status, -1 for none
    int firstDay;   // index in kDays of its first bar
    int lastDay;    // and of its last
    double close;   // on its last day; 10 won less on each day before
    double volume;  // on its last day; 100 on each day before
};

inline constexpr TestStock kStocks[] = {
    {"000010", "가전자", Exchange::Kospi, "전자부품 제조업", 12, 9e6, -1, 0, 4, 50000, 200},
    {"000020", "나은행", Exchange::Kospi, "은행 및 저축기관", 12, 5e6, -1, 0, 4, 20000, 300},
    {"000025", "나은행우", Exchange::Kospi, "은행 및 저축기관", 12, 8e6, int(Status::Preferred), 0, 4, 90000,
     50},
    {"000030", "다제약", Exchange::Kospi, "의약품 제조업", 3, 1e6, int(Status::Administrative), 0, 4, 3000,
     400},
    {"000040", "라건설", Exchange::Kospi, "건물 건설업", 6, 1e6, int(Status::Alert), 0, 4, 2000, 500},
    {"100010", "마게임", Exchange::Kosdaq, "소프트웨어 개발 및 공급업", 12, 4e6, int(Status::NoCollateral), 0,
     4, 30000, 90},
    {"100020", "바반도체", Exchange::Kosdaq, "반도체 제조업", 12, 3e6, int(Status::FullMargin), 0, 4, 800,
     60},
    {"100030", "사호스팩", Exchange::Kosdaq, "금융 지원 서비스업", 12, 1e6, -1, 0, 4, 2100, 0},
    {"100040", "아신규", Exchange::Kosdaq, "", 9, 1e6, -1, 3, 4, 7000, 70},
    {"100050", "자폐지", Exchange::Kosdaq, "", 12, 1e6, -1, 0, 3, 500, 80},
    {"100060", "차미상", Exchange::Kosdaq, "반도체 제조업", 0, market::kMissing, -1, 0, 4, 4000, 1000},
};

inline std::shared_ptr<const market::Market> TestMarket() {
    market::MarketBuilder builder;
    for (const TestStock& stock : kStocks) {
        Instrument instrument;
        instrument.code = stock.code;
        instrument.name = stock.name;
        instrument.exchange = stock.exchange;
        instrument.industry = stock.industry;
        instrument.settlementMonth = stock.settlementMonth;
        instrument.shares = stock.shares;
        if (stock.status >= 0) instrument.status[static_cast<std::size_t>(stock.status)] = true;
        const int number = builder.AddInstrument(instrument);
        for (int day = stock.firstDay; day <= stock.lastDay; ++day) {
            const double close = stock.close - 10 * (stock.lastDay - day);
            const double volume = day == stock.lastDay ? stock.volume : 100;
            builder.AddBar(number, kDays[day], close - 5, close + 20, close - 30, close, volume);
        }
    }
    builder.SetSource("test");
    return builder.Build();
}

// The codes of a set, joined by blanks.
inline std::string CodesOf(const market::Market& market, const indicators::BitSet& stocks) {
    std::string codes;
    stocks.ForEach([&](std::size_t stock) {
        if (!codes.empty()) codes += ' ';
        codes += market.Instruments()[stock].code;
    });
    return codes;
}

}  // namespace jogeon::test
