// The exchange's real prices, where the developer has them: JOGEON_MARKET_DATA names their folder.
#include <cstdlib>
#include <filesystem>
#include <set>

#include "server/market/generated_market.h"
#include "server/market/import.h"
#include "tests/server/market/market_values.h"

namespace jogeon::market {
namespace {

class Quiet : public ImportListener {
    void OnReject(const ImportReject& reject) override {
        ADD_FAILURE() << reject.file << ":" << reject.line << ": " << reject.reason;
    }
    void OnProgress(const ImportProgress&) override {}
};

class RealMarket : public testing::Test {
protected:
    void SetUp() override {
        const char* const folder = std::getenv("JOGEON_MARKET_DATA");
        if (!folder) GTEST_SKIP() << "JOGEON_MARKET_DATA names no folder with real prices";
        folder_ = folder;
        options_.symbols = {folder_ / "symbols.csv"};
        options_.inputs = {folder_ / "daily.csv.gz"};
    }

    std::filesystem::path folder_;
    ImportOptions options_;
    Quiet listener_;
};

TEST_F(RealMarket, ImportsWhole) {
    Import import(options_, listener_);
    const ImportSummary summary = import.Read();
    EXPECT_EQ(summary.bars, 906'411u);
    EXPECT_EQ(summary.halted, 26'719u);
    EXPECT_EQ(summary.widened, 84u);
    EXPECT_EQ(summary.withoutBars, 15);
    EXPECT_EQ(summary.unnamed, 0);
    EXPECT_TRUE(summary.duplicates.empty());
    const auto market = import.Builder().Build();
    EXPECT_EQ(market->Instruments().size(), 2761u);
    EXPECT_EQ(market->LastDate(), 20250430);
    EXPECT_EQ(BarText(*market, Timeframe::Day, "005930", 0), "72300 72400 71200 71200 12129682");
}

TEST_F(RealMarket, NoGeneratedStockHasARealName) {
    options_.inputs.push_back(folder_ / "samples/market_20260320_cp949.csv");
    Import import(options_, listener_);
    import.Read();
    std::set<std::string> names;
    const auto market = import.Builder().Build();
    for (const Instrument& stock : market->Instruments()) names.insert(stock.name);
    const auto generated = GenerateMarket();
    for (const Instrument& stock : generated->Instruments())
        EXPECT_EQ(names.count(stock.name), 0u) << stock.name;
}

}  // namespace
}  // namespace jogeon::market
