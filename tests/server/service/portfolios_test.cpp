// The portfolios of a service: what is taken and what not, and that searches follow each change at once.
#include "server/service/portfolios.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "server/service/local_service.h"
#include "tests/server/engine/test_market.h"
#include "tests/server/market/scratch_folder.h"
#include "tests/server/service/requests.h"

namespace jogeon::service {
namespace {

using Codes = std::vector<std::string>;

class PortfoliosTest : public testing::Test {
protected:
    // What a search over one group finds, from another window; its first two bytes if it failed.
    static std::string Find(LocalService& of, const std::string& kinds, const std::string& group,
                            const std::string& user = "kim01") {
        test::SearchText text{.header = test::Header("A", "01"),
                              .blocks = test::PriceBlock('A', "0", "99999")};
        test::Put(text.header, 95, kinds);
        if (!group.empty()) test::Put(text.header, 109, "0001" + group);
        const std::string reply = of.Handle(test::SearchRequest(test::SearchPayload(text), 77, user));
        return reply.starts_with("T1") ? test::CodesOfRows(reply, 28, 12) : reply.substr(0, 2);
    }
    std::string FindGroup(const std::string& group) { return Find(service, "01", group); }

    // Codes and names of the groups, joined by commas.
    std::string Names(const std::string& user = "kim01") {
        std::vector<std::string> names;
        for (const InterestGroup& group : portfolios.Groups(user))
            names.push_back(group.code + " " + ToUtf8(group.name));
        return Join(names, ", ");
    }

    LocalService service{test::TestMarket(), nullptr};
    Portfolios& portfolios = service.GetPortfolios();
};

TEST_F(PortfoliosTest, ASearchOfAnyTerminalFollowsEachChange) {
    EXPECT_EQ(portfolios.Add("kim01", " 내 종목 "_cp949, {"100020", "000040"}).code, "504");
    EXPECT_EQ(Names(), "501 대형주, 502 거래대금 상위, 503 저가주, 504 내 종목");
    EXPECT_EQ(FindGroup("504"), "K000040 Q100020");
    EXPECT_EQ(Find(service, "01", "504", "lee02"), "T0") << "another user has no such group";
    EXPECT_EQ(portfolios.SetStocks("kim01", "504", {"100020", "000040"}, {"000010"}), Verdict::Taken);
    EXPECT_EQ(FindGroup("504"), "K000010");
    EXPECT_EQ(portfolios.Rename("kim01", "504", "바뀐 이름"_cp949), Verdict::Taken);
    std::map<std::string, Codes> lists = {{"0502", {}}};
    service.FillCodeLists("kim01", lists);
    EXPECT_EQ(lists["0502"].back(), "504 바뀐 이름"_cp949);
    EXPECT_EQ(portfolios.Delete("kim01", "504"), Verdict::Taken);
    EXPECT_EQ(FindGroup("504"), "T0");

    const std::string account = "12345678901";
    EXPECT_EQ(Find(service, "02" + account + "0", ""), "T0");
    EXPECT_EQ(portfolios.SetHoldings("kim01", account, {{"100020", 2, 500}}), Verdict::Taken);
    EXPECT_EQ(service.Accounts("kim01").back(), account);
    EXPECT_EQ(Find(service, "02" + account + "0", ""), "Q100020");
    EXPECT_EQ(portfolios.SetHoldings("kim01", account, {{"000020", 1, 0}}), Verdict::Taken);
    EXPECT_EQ(Find(service, "02" + account + "0", ""), "K000020");
    EXPECT_EQ(portfolios.RemoveAccount("kim01", account), Verdict::Taken);
    EXPECT_EQ(Find(service, "02" + account + "0", ""), "T0");
}

TEST_F(PortfoliosTest, TwoServicesOnOneFileFollowEachOther) {
    const market::ScratchFolder folder;
    const auto start = [&] {
        return LocalService(test::TestMarket(), std::make_unique<StoreService>(folder / "sets"));
    };
    LocalService one = start(), other = start();
    EXPECT_EQ(Find(other, "01", "504"), "T0");
    EXPECT_EQ(one.GetPortfolios().Add("kim01", "a", {"000010"}).code, "504");
    EXPECT_EQ(Find(other, "01", "504"), "K000010");
}

TEST_F(PortfoliosTest, NamesAreLimitedInBytesAndDifferFromEachOther) {
    const std::string forty = std::string(20 * 3, ' ');
    std::string twenty;  // characters: forty bytes
    for (int i = 0; i < 20; ++i) twenty += "가"_cp949;
    const struct {
        std::string name;
        Verdict verdict;
    } cases[] = {
        {"", Verdict::BadName},
        {forty, Verdict::BadName},
        {"a\tb", Verdict::BadName},
        {"a\x7f", Verdict::BadName},
        {"a\xff", Verdict::BadName},
        {twenty + "a", Verdict::BadName},
        {"저가주"_cp949, Verdict::NameInUse},
        {" 저가주"_cp949, Verdict::NameInUse},
        {twenty, Verdict::Taken},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(portfolios.Add("kim01", c.name, {}).verdict, c.verdict) << ToUtf8(c.name);
        if (c.verdict == Verdict::Taken) continue;
        EXPECT_EQ(portfolios.Rename("kim01", "501", c.name), c.verdict) << ToUtf8(c.name);
    }
    EXPECT_EQ(portfolios.Rename("kim01", "503", "저가주"_cp949), Verdict::Taken) << "its own name";
    EXPECT_EQ(portfolios.Rename("kim01", "599", "x"), Verdict::NoSuchGroup);
    EXPECT_EQ(Names("lee02"), "501 대형주, 502 거래대금 상위, 503 저가주");
}

TEST_F(PortfoliosTest, CodesOfDeletedGroupsComeBackOnlyWhenAllOthersWereUsed) {
    EXPECT_EQ(portfolios.Delete("kim01", "503"), Verdict::Taken);
    EXPECT_EQ(portfolios.Add("kim01", "a", {}).code, "504") << "a saved search may still name 503";
    for (int i = 505; i <= 599; ++i) EXPECT_EQ(portfolios.Add("kim01", Decimal(i), {}).code, Decimal(i));
    EXPECT_EQ(portfolios.Add("kim01", "b", {}).code, "503");
    const Addition hundredth = portfolios.Add("kim01", "c", {});
    EXPECT_EQ(hundredth.verdict, Verdict::TooManyGroups);
    EXPECT_EQ(hundredth.code, "");
}

TEST_F(PortfoliosTest, StocksAreOfTheMarketAndStandOnce) {
    const InterestGroup before = portfolios.Groups("kim01").at(0);
    const auto set = [&](const Codes& stocks) {
        return portfolios.SetStocks("kim01", "501", before.stocks, stocks);
    };
    EXPECT_EQ(set({"000010", "999999"}), Verdict::BadStocks);
    EXPECT_EQ(set({"000010", "000010"}), Verdict::BadStocks);
    EXPECT_EQ(set({"10"}), Verdict::BadStocks);
    EXPECT_EQ(set(Codes(501, "000010")), Verdict::TooManyStocks);
    EXPECT_EQ(portfolios.Groups("kim01").at(0), before);
    EXPECT_EQ(portfolios.SetStocks("kim01", "500", {}, {}), Verdict::NoSuchGroup);
    EXPECT_EQ(portfolios.Reorder("kim01", {"503", "501"}), Verdict::NotEveryGroup);
    EXPECT_EQ(portfolios.Reorder("kim01", {"503", "501", "501"}), Verdict::NotEveryGroup);
    EXPECT_EQ(portfolios.Reorder("kim01", {"503", "501", "502"}), Verdict::Taken);
    EXPECT_EQ(Names(), "503 저가주, 501 대형주, 502 거래대금 상위");
}

TEST_F(PortfoliosTest, AStockThatHasLeftTheMarketStaysWhereItIs) {
    store::Portfolio portfolio;
    portfolio.groups = {{"501", "옛날", {"000010", "777777"}}};
    const auto market = test::TestMarket();
    const PortfolioRules rules(*market);
    const Codes first = {"000010", "777777"}, second = {"777777", "000020", "000010"}, third = {"000020"};
    EXPECT_EQ(rules.SetStocks(portfolio, "501", first, second), Verdict::Taken);
    EXPECT_EQ(rules.SetStocks(portfolio, "501", second, third), Verdict::Taken);
    EXPECT_EQ(rules.SetStocks(portfolio, "501", third, {"000020", "777777"}), Verdict::BadStocks)
        << "not added anew";
}

TEST_F(PortfoliosTest, AnEditLosesNothingThatAnotherTerminalAddsMeanwhile) {
    const std::string group = portfolios.Add("kim01", "a", {"000010"}).code;
    int calls = 0;
    const auto other = [](Codes& stocks) { stocks.push_back("000020"); };
    const auto edit = [&](Codes& stocks) {
        if (calls++ == 0) {
            EXPECT_EQ(portfolios.EditStocks("kim01", group, other), Verdict::Taken);
        }
        stocks.push_back("000030");
    };
    EXPECT_EQ(portfolios.EditStocks("kim01", group, edit), Verdict::Taken);
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(portfolios.Groups("kim01").back().stocks, (Codes{"000010", "000020", "000030"}));
    EXPECT_EQ(portfolios.SetStocks("kim01", group, {"000010"}, {}), Verdict::StocksChanged);
    EXPECT_EQ(portfolios.EditStocks("kim01", "599", other), Verdict::NoSuchGroup);
}

TEST_F(PortfoliosTest, HoldingsAreChecked) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        std::string account;
        std::vector<Holding> holdings;
        Verdict verdict;
    } cases[] = {
        {"1234567890", {}, Verdict::BadAccount},
        {"1234567890a", {}, Verdict::BadAccount},
        {"12345678901", {{"000010", 0, 1}}, Verdict::BadHolding},
        {"12345678901", {{"000010", 1'000'000'001, 1}}, Verdict::BadHolding},
        {"12345678901", {{"000010", 1, -1}}, Verdict::BadHolding},
        {"12345678901", {{"000010", 1, nan}}, Verdict::BadHolding},
        {"12345678901", {{"999999", 1, 1}}, Verdict::BadStocks},
        {"12345678901", {{"000010", 1, 1}, {"000010", 1, 1}}, Verdict::BadStocks},
        {"12345678901", {}, Verdict::Taken},
    };
    const std::size_t examples = portfolios.Accounts("kim01").size();
    for (const auto& c : cases)
        EXPECT_EQ(portfolios.SetHoldings("kim01", c.account, c.holdings), c.verdict) << &c - cases;
    for (int i = 0; i < 17; ++i)
        EXPECT_EQ(portfolios.SetHoldings("kim01", "999999999" + ZeroPadded(i, 2), {}), Verdict::Taken);
    EXPECT_EQ(portfolios.SetHoldings("kim01", "00000000000", {}), Verdict::TooManyAccounts);
    EXPECT_EQ(portfolios.Accounts("kim01").size(), examples + 18);
    EXPECT_EQ(portfolios.RemoveAccount("kim01", "00000000000"), Verdict::NoSuchAccount);
}

TEST_F(PortfoliosTest, ExamplesAreDifferentAccountsForDifferentUsers) {
    const std::vector<HeldAccount> kim = portfolios.Accounts("kim01"), lee = portfolios.Accounts("lee02");
    ASSERT_EQ(kim.size(), 2u);
    EXPECT_NE(kim[0].number, lee[0].number);
    for (const Holding& held : kim[0].holdings) {
        EXPECT_GT(held.quantity, 0);
        EXPECT_GT(held.averagePrice, 0);
    }
    EXPECT_EQ(portfolios.Groups("kim01").at(0).stocks.front(), "000025") << "the largest";
    const std::vector<Quote> quotes = portfolios.Quotes({"100050", "000020", "x"});
    EXPECT_TRUE(std::isnan(quotes.at(0).close)) << "not traded on the last day";
    EXPECT_EQ(quotes.at(1).close, 20000);
    EXPECT_EQ(quotes.at(1).change, 10);
    EXPECT_EQ(quotes.at(2).code, "x");
    EXPECT_EQ(portfolios.Stocks().at(5), (StockEntry{"100010", "마게임"_cp949, 'Q'}));
}

}  // namespace
}  // namespace jogeon::service
