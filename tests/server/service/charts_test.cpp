// Charts of a stock: its bars, and the true days of the firm's sets against real searches on earlier markets.
#include "server/service/charts.h"

#include <algorithm>
#include <map>

#include <gmock/gmock.h>

#include "screen/saved/saved_condition_file.h"
#include "screen/text/cp949.h"
#include "server/engine/search.h"
#include "server/market/generated_market.h"
#include "server/service/local_charts.h"
#include "server/service/request_reader.h"
#include "tests/server/engine/test_market.h"
#include "tests/server/indicators/catalogue_files.h"
#include "tests/server/service/requests.h"

namespace jogeon::service {
namespace {

using market::Timeframe;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ChartsTest, BarsAreTheStocksOwnAndTellOfGaps) {
    market::MarketBuilder builder;
    market::Instrument stock;
    stock.code = "000010";
    stock.name = "가전자";
    const int number = builder.AddInstrument(stock);
    stock.code = "000020";
    const int other = builder.AddInstrument(stock);
    for (int date : {20260302, 20260303, 20260304, 20260309}) builder.AddBar(other, date, 1, 1, 1, 1, 1);
    builder.AddBar(number, 20260303, 10, 12, 9, 11, 100);
    builder.AddBar(number, 20260309, 11, 15, 10, 14, 300);
    LocalCharts charts(builder.Build());

    const std::optional<StockBars> days = charts.Bars("000010", Timeframe::Day);
    ASSERT_TRUE(days);
    EXPECT_EQ(days->name, "가전자"_cp949);
    EXPECT_THAT(days->bars, ElementsAre(ChartBar{20260303, 10, 12, 9, 11, 100, false},
                                        ChartBar{20260309, 11, 15, 10, 14, 300, true}));
    EXPECT_THAT(charts.Bars("000010", Timeframe::Week)->bars,
                ElementsAre(ChartBar{20260304, 10, 12, 9, 11, 100}, ChartBar{20260309, 11, 15, 10, 14, 300}));
    EXPECT_THAT(charts.Bars("000010", Timeframe::Month)->bars,
                ElementsAre(ChartBar{20260309, 10, 15, 9, 14, 400}));
    EXPECT_FALSE(charts.Bars("999999", Timeframe::Day));
}

TEST(ChartsTest, SetThatNoSearchTakesIsRefusedWithItsReason) {
    LocalCharts charts(test::TestMarket());
    const auto fault = [&](const std::string& set, const char* code) -> std::string {
        try {
            charts.TrueDays("kim01", set, code);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "none";
    };
    const std::string price = test::PriceBlock('A', "49970", "49990");
    const std::string good = test::Header("A", "01") + price;
    std::string unnamed = good;
    test::Put(unnamed, 10, "    ");
    EXPECT_THAT(charts.TrueDays("kim01", unnamed, "000010"), ElementsAre(20260303, 20260304, 20260305));
    EXPECT_THAT(charts.TrueDays("kim01", good, "100030"), IsEmpty());
    EXPECT_EQ(fault(good, "999999"), "there is no stock \"999999\"");
    EXPECT_EQ(fault(test::Header("B", "01") + price, "000010"), "there is no condition B");
    EXPECT_EQ(fault(test::Header("A&", "01") + price, "000010"),
              "\"A&\" is no expression over condition letters");
    EXPECT_EQ(fault(test::Header("A", "01") + test::PriceBlock('A', "9", "1"), "000010"),
              "조건 A (040102): 범위의 하한이 상한보다 큽니다");
    for (const std::string& cut : {std::string(), good.substr(0, 500), good.substr(0, good.size() - 1),
                                   good + " ", test::Header("A", "02") + price})
        EXPECT_NE(fault(cut, "000010"), "none") << cut.size();
}

// The firm's sets, less those that need no search for an answer, on the market of a first start.
class FirmSetsTest : public indicators::CatalogueFiles {
protected:
    void SetUp() override {
        CatalogueFiles::SetUp();
        for (const auto& set : LoadVendorConditions(VendorConditionPath(indicators::Home()), catalogue_)) {
            std::string count = std::to_string(set->Count);
            std::string record = test::Header(set->Exp, count.insert(0, 2 - count.size(), '0'));
            for (const auto& condition : set->m_Conditions) record += BuildConditionBlock(*condition);
            records_.push_back(record);
        }
        ASSERT_GE(records_.size(), 12u);
    }

    std::vector<std::string> records_;
};

TEST_F(FirmSetsTest, AreTrueOnTheDaysOnWhichASearchFindsTheStock) {
    const auto market = market::GenerateMarket();
    LocalCharts charts(market);
    const market::Bars& days = market->BarsOf(Timeframe::Day);
    std::map<std::pair<std::size_t, std::uint32_t>, std::vector<int>> known;
    int found = 0;
    for (int bar : {499, 391, 100}) {
        indicators::MarketDay day(market->AsOf(days.Date(bar)));
        const engine::MarketGroups groups = engine::BuildMarketGroups(day.GetMarket());
        for (std::size_t set = 0; set < records_.size(); ++set) {
            const auto matches = engine::Search(day, groups, {}, ReadConditions(records_[set])).matches;
            std::vector<std::uint32_t> stocks{1500};
            if (!matches.empty()) stocks.insert(stocks.end(), {matches.front(), matches.back()});
            for (std::uint32_t stock : stocks) {
                const auto [dates, isNew] = known.try_emplace({set, stock});
                const std::string& code = market->Instruments()[stock].code;
                if (isNew) dates->second = charts.TrueDays("kim01", records_[set], code);
                const bool is =
                    std::binary_search(dates->second.begin(), dates->second.end(), days.Date(bar));
                EXPECT_EQ(std::binary_search(matches.begin(), matches.end(), stock), is)
                    << "set " << set << ", stock " << stock << " on " << days.Date(bar);
                found += is;
            }
        }
    }
    EXPECT_GT(found, 30);
}

}  // namespace
}  // namespace jogeon::service
