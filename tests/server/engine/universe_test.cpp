#include "server/engine/universe.h"

#include <functional>

#include <gtest/gtest.h>

#include "tests/server/engine/test_market.h"

namespace jogeon::engine {
namespace {

using indicators::BitSet;

constexpr char kAllTraded[] = "000010 000020 000025 000030 000040 100010 100020 100030 100040 100060";

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

    std::string ReachAll(const std::function<void(TargetFields&)>& exclude) {
        return Reach([&](TargetFields& target) {
            target.Upjong = 1;
            target.Group = {"ALL"};
            exclude(target);
        });
    }

    std::shared_ptr<const market::Market> market = test::TestMarket();
    MarketGroups groups = BuildMarketGroups(*market);
    UserGroups user;
};

TEST_F(UniverseTest, SectorsAreJoined) {
    EXPECT_EQ(ReachAll([](TargetFields&) {}), kAllTraded);
    EXPECT_EQ(Reach([](TargetFields& t) { t.Upjong = 1, t.Group = {"017"}; }), "000020 000025");
    EXPECT_EQ(Reach([](TargetFields& t) {
                  t.Upjong = 1, t.Group = {"017", "112"};
              }),
              "000020 000025 100020 100060");
    EXPECT_EQ(Reach([](TargetFields& t) { t.Upjong = 1, t.Group = {"201"}; }), "000010 000020");
}

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

TEST_F(UniverseTest, ExclusionsAndMonthNarrow) {
    struct Case {
        const char* what;
        int TargetFields::*flag;
        int value;
        const char* gone;
    };
    const Case cases[] = {
        {"관리종목", &TargetFields::Except1, 1, "000030"},
        {"투자경고", &TargetFields::Except2, 1, "000040"},
        {"투자유의 has no meaning", &TargetFields::Except3, 1, ""},
        {"우선주", &TargetFields::Except4, 1, "000025"},
        {"담보대출불가능", &TargetFields::Except5, 1, "100010"},
        {"증거금 100%", &TargetFields::Except6, 1, "100020"},
        {"거래정지", &TargetFields::Except7, 1, "100030"},
        {"a portfolio to turn over isn't there", &TargetFields::Except10, 1, ""},
    };
    for (const Case& c : cases) {
        std::string expected = kAllTraded;
        const std::string gone = c.gone;
        if (!gone.empty()) expected.erase(expected.find(gone), gone.size() + 1);
        EXPECT_EQ(ReachAll([&](TargetFields& t) { t.*c.flag = c.value; }), expected) << c.what;
    }
    EXPECT_EQ(ReachAll([](TargetFields& t) { t.Month = 3; }), "000030");
    EXPECT_EQ(ReachAll([](TargetFields& t) { t.Month = 9, t.Except7 = 1; }), "100040");
    EXPECT_EQ(ReachAll([](TargetFields& t) { t.Month = 1; }), "");
}

TEST_F(UniverseTest, OneKindGoesBeforeTheOthers) {
    EXPECT_EQ(
        Reach([](TargetFields& t) { t.Upjong = 1, t.Recommend = 1, t.Portfolio = 1, t.Group = {"201"}; }),
        "000010 000020");
    EXPECT_EQ(Reach([](TargetFields& t) { t.Recommend = 1, t.Portfolio = 1, t.Group = {"601"}; }), "000030");
}

TEST_F(UniverseTest, RefusesWhatTheUserMustChooseAgain) {
    EXPECT_EQ(Reach([](TargetFields&) {}), "error: the target has no universe");
    EXPECT_EQ(Reach([](TargetFields& t) { t.Upjong = 1; }), "error: the target names no group");
    EXPECT_EQ(Reach([](TargetFields& t) {
                  t.Upjong = 1, t.Group = {"001", "099"};
              }),
              "error: there is no group \"001\"")
        << "a sector without a stock has no group";
    EXPECT_EQ(Reach([](TargetFields& t) { t.Portfolio = 1, t.Group = {"601"}; }),
              "error: there is no group \"601\"");
    EXPECT_EQ(Reach([](TargetFields& t) { t.Portfolio = 2, t.Acc = "1"; }),
              "error: there is no account \"1\"");
    EXPECT_EQ(Reach([](TargetFields& t) { t.Recommend = 1, t.Group = {"909"}; }),
              "error: there is no group \"909\"");
    EXPECT_EQ(Reach([](TargetFields& t) { t.Recommend = 4, t.Group = {"601"}; }),
              "error: the target has no universe");
}

TEST_F(UniverseTest, ScopeNarrowsByAnEarlierResult) {
    const BitSet universe = Stocks({"000010", "000020", "100020"});
    const std::vector<std::string> earlier = {"100020", "000040", "999999", ""};
    EXPECT_EQ(test::CodesOf(*market, Narrow(*market, universe, Scope::Whole, earlier)),
              "000010 000020 100020");
    EXPECT_EQ(test::CodesOf(*market, Narrow(*market, universe, Scope::Within, earlier)), "100020");
    EXPECT_EQ(test::CodesOf(*market, Narrow(*market, universe, Scope::Outside, earlier)), "000010 000020");
    EXPECT_EQ(test::CodesOf(*market, Narrow(*market, universe, Scope::Within, {})), "");
}

}  // namespace
}  // namespace jogeon::engine
