#include <future>
#include <memory>

#include "server/market/calendar.h"
#include "server/market/market_builder.h"
#include "server/market/market_file.h"
#include "server/market/random_numbers.h"
#include "tests/server/market/market_values.h"
#include "tests/server/market/scratch_folder.h"

namespace jogeon::market {
namespace {

constexpr int kFirstDate = 20241111;
constexpr int kLastDate = 20250221;

// Five stocks over a winter of weekdays with holes, up to and with `lastDate`.
MarketBuilder Winter(int lastDate) {
    MarketBuilder builder;
    for (const char* code : {"000010", "000020", "000030", "000040", "000050"}) {
        Instrument stock;
        stock.code = code;
        builder.AddInstrument(std::move(stock));
    }
    RandomNumbers random(1, 1);
    for (int day = DayNumber(kFirstDate); day <= DayNumber(kLastDate); ++day) {
        const bool closed = random.Chance(0.15);
        for (int stock = 0; stock < builder.Instruments(); ++stock) {
            const double close = 100 + random.Below(50);
            const double volume = random.Below(1000);
            const bool missing = random.Chance(0.3);
            const int date = DateOfDay(day);
            if (!closed && !missing && Weekday(date) < 5 && date <= lastDate)
                builder.AddBar(stock, date, close + 1, close + 3, close - 2, close, volume);
        }
    }
    return builder;
}

TEST(EarlierMarket, IsTheMarketThatWasBuiltThen) {
    const ScratchFolder folder;
    const MarketBuilder builder = Winter(kLastDate);
    builder.Write(folder / "winter");
    for (const auto& whole : {builder.Build(), OpenMarket(folder / "winter")})
        for (int day = DayNumber(kFirstDate); day <= DayNumber(kLastDate); ++day) {
            const int date = DateOfDay(day);
            const auto earlier = whole->AsOf(date);
            const auto then = Winter(date).Build();
            if (then->LastDate() == 0) {
                EXPECT_EQ(earlier, nullptr);
                continue;
            }
            SCOPED_TRACE(date);
            ASSERT_TRUE(earlier);
            ExpectSameBars(*earlier, *then);
            ASSERT_FALSE(HasFatalFailure());
        }
}

TEST(EarlierMarket, OutlivesTheWholeAndCanBeCutAgain) {
    const auto whole = Winter(kLastDate).Build();
    EXPECT_EQ(whole->AsOf(20991231), whole);
    const std::shared_ptr<const Market> earlier = Winter(kLastDate).Build()->AsOf(20250115);
    ExpectSameBars(*earlier->AsOf(20241220), *Winter(20241220).Build());
    EXPECT_EQ(earlier->AsOf(20250221)->LastDate(), earlier->LastDate()) << "later days are gone";
    EXPECT_EQ(earlier->AsOf(20241110), nullptr);
    EXPECT_EQ(earlier->Find("000030"), 2);
}

TEST(EarlierMarket, ManyThreadsMayCutOneFile) {
    const ScratchFolder folder;
    Winter(kLastDate).Write(folder / "winter");
    const auto whole = OpenMarket(folder / "winter");
    std::vector<std::future<int>> dates;
    for (int i = 0; i < 8; ++i)
        dates.push_back(std::async(std::launch::async, [&whole] {
            const auto earlier = whole->AsOf(20250115);
            ExpectSameBars(*earlier, *Winter(20250115).Build());
            return earlier->LastDate();
        }));
    const int expected = Winter(20250115).Build()->LastDate();
    for (std::future<int>& date : dates) EXPECT_EQ(date.get(), expected);
}

}  // namespace
}  // namespace jogeon::market
