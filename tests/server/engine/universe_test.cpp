#include "server/engine/universe.h"

#include <functional>

#include <gtest/gtest.h>

#include "tests/server/engine/test_market.h"

namespace jogeon::engine {
namespace {

using indicators::BitSet;

class UniverseTest : public testing::Test {
protected:
    UniverseTest() {
        user.interests = {{"501", "관심1", Stocks({"000010", "100020"})},
                          {"502", "관심2", Stocks({"000040"})}};
        user.themes = {{"601", "테마1", Stocks({"000030"})}, {"602", "테마2", Stocks({"100010", "100050"})}};
        user.news = {{"902", "장중시황", Stocks({"100040"})}};
        user.accounts = {{"10010001101", Stocks({"000020", "000025"})}};
    }

    BitSet Stocks(const std::vector<std::string>& codes) {
        BitSet stocks(market->Instruments().size());
        for (const std::string& code : codes) stocks.Set(static_cast<std::size_t>(market->Find(code)));
        return stocks;
    }

    // The codes that a target reaches, or what is wrong with it.
    std::string Reach(const std::function<void(TargetFields&)>& choose) {
        TargetFields target;
        choose(target);
        try {
            return test::CodesOf(*market, BuildUniverse(*market, groups, user, target));
        } catch (const BadSearch& error) {
            return std::string("error: ") + error.what();
        }
    }

    std::shared_ptr<const market::Market> market = test::TestMarket();
    MarketGroups groups = BuildMarketGroups(*market);
    UserGroups user;
};

TEST_F(UniverseTest, PortfolioTakesGroupsAndHoldings) {
    const auto reach = [this](int kind, std::vector<std::string> group, const char* account, int turned = 0) {
        return Reach([&](TargetFields& t) {
            t.Portfolio = kind, t.Group = std::move(group), t.Acc = account, t.Except10 = turned;
        });
    };
    EXPECT_EQ(reach(1, {"501"}, ""), "000010 100020");
    EXPECT_EQ(reach(1, {"0AL"}, ""), "000010 000040 100020");
    EXPECT_EQ(reach(1, {"501"}, "10010001101"), "000010 100020") << "holdings weren't asked for";
    EXPECT_EQ(reach(2, {}, "10010001101"), "000020 000025");
    EXPECT_EQ(reach(3, {"502"}, "10010001101"), "000020 000025 000040");
    EXPECT_EQ(reach(3, {"0AL"}, "10010001101", 1), "000030 100010 100030 100040 100060");
}

TEST_F(UniverseTest, RecommendationTakesThemesAndNews) {
    const auto reach = [this](int kind, std::vector<std::string> group) {
        return Reach([&](TargetFields& t) { t.Recommend = kind, t.Group = std::move(group); });
    };
    EXPECT_EQ(reach(1, {"601"}), "000030");
    EXPECT_EQ(reach(1, {"0AL"}), "000030 100010") << "100050 isn't traded any more";
    EXPECT_EQ(reach(2, {"902"}), "100040");
    EXPECT_EQ(reach(3, {"0AL", "902"}), "000030 100010 100040");
}

TEST_F(UniverseTest, OneKindGoesBeforeTheOthers) {
    EXPECT_EQ(
        Reach([](TargetFields& t) { t.Upjong = 1, t.Recommend = 1, t.Portfolio = 1, t.Group = {"201"}; }),
        "000010 000020");
    EXPECT_EQ(Reach([](TargetFields& t) { t.Recommend = 1, t.Portfolio = 1, t.Group = {"601"}; }), "000030");
}

TEST_F(UniverseTest, RefusesWhatTheUserMustChooseAgain) {
    const auto refusal = [this](int upjong, int portfolio, int recommend, std::vector<std::string> group) {
        return Reach([&](TargetFields& t) {
            t.Upjong = upjong, t.Portfolio = portfolio, t.Recommend = recommend, t.Group = std::move(group),
            t.Acc = "1";
        });
    };
    EXPECT_EQ(refusal(0, 0, 0, {}), "error: the target has no universe");
    EXPECT_EQ(refusal(0, 0, 4, {"601"}), "error: the target has no universe");
    EXPECT_EQ(refusal(1, 0, 0, {}), "error: the target names no group");
    EXPECT_EQ(refusal(1, 0, 0, {"001", "099"}), "error: there is no group \"001\"")
        << "a sector without a stock";
    EXPECT_EQ(refusal(0, 1, 0, {"601"}), "error: there is no group \"601\"");
    EXPECT_EQ(refusal(0, 0, 1, {"909"}), "error: there is no group \"909\"");
    EXPECT_EQ(refusal(0, 2, 0, {}), "error: there is no account \"1\"");
}

}  // namespace
}  // namespace jogeon::engine
