// Every choice of a target, sent as a search against the generated market: what comes back is what a plain
// filter over the market's stocks leaves, and it is less than all.
#include <algorithm>
#include <cmath>
#include <functional>
#include <set>

#include <gtest/gtest.h>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "server/engine/news_groups.h"
#include "server/engine/sectors.h"
#include "server/engine/user_groups.h"
#include "server/market/generated_market.h"
#include "server/service/example_portfolio.h"
#include "server/service/portfolios.h"
#include "tests/server/service/requests.h"

namespace jogeon::service {
namespace {

using market::Exchange;
using market::Instrument;
using market::Status;
using Codes = std::set<std::string>;
using Filter = std::function<bool(std::size_t stock)>;

class UniverseChoicesTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        market_ = market::GenerateMarket();
        service_ = std::make_unique<SearchService>(market_, [](const std::string& why) { failure_ = why; });
        everything_ = Where([](std::size_t) { return true; });
    }
    static void TearDownTestSuite() {
        service_.reset();
        market_.reset();
    }

    static const Instrument& Stock(std::size_t stock) { return market_->Instruments()[stock]; }

    // A field of the last day, or of a day before it.
    static double Last(market::PriceField field, std::size_t stock) {
        const market::Bars& days = market_->BarsOf(market::Timeframe::Day);
        return days.Row(field, days.Count() - 1)[stock];
    }

    // The traded stocks that pass.
    static Codes Where(const Filter& passes) {
        Codes codes;
        for (std::size_t i = 0; i < market_->Instruments().size(); ++i) {
            if (!std::isnan(Last(market::PriceField::Close, i)) && passes(i)) codes.insert(Stock(i).code);
        }
        return codes;
    }

    static Codes In(const indicators::BitSet& members) {
        return Where([&members](std::size_t stock) { return members.Get(stock); });
    }

    // All codes that a search with this header finds, page by page.
    static Codes Find(const std::string& header) {
        constexpr std::size_t kRowsAt = 28, kRowWidth = 12;
        const std::string blocks = test::PriceBlock('A', "0", "999999999");
        std::string reply =
            service_->Handle(test::SearchRequest(test::SearchPayload({.header = header, .blocks = blocks})));
        Codes codes;
        while (reply.size() > kRowsAt && reply[1] == '1') {
            for (std::size_t at = kRowsAt; at < reply.size(); at += kRowWidth)
                codes.insert(reply.substr(at + 1, 6));
            reply = service_->Handle(
                test::SearchRequest(test::PagePayload(reply.substr(10, 2), reply.substr(16, 4))));
        }
        return codes;
    }

    // The header of a search over `kinds` (bytes 95 to 108: sectors, portfolio, account, recommendation) and
    // groups.
    static std::string Over(const std::string& kinds, const std::vector<std::string>& groups) {
        std::string header = test::Header("A", "01");
        test::Put(header, 95, kinds);
        test::Put(header, 109, ZeroPadded(static_cast<int>(groups.size()), 4));
        std::string codes;
        for (const std::string& group : groups) codes += group;
        test::Put(header, 113, codes + "   ");
        return header;
    }

    static void ExpectNarrowed(const Codes& found, const Codes& expected, const std::string& what) {
        EXPECT_EQ(found, expected) << what << " " << failure_;
        EXPECT_FALSE(expected.empty()) << what;
        EXPECT_LT(found.size(), everything_.size()) << what;
    }

    static std::vector<std::string> List(const std::string& codeClass) {
        std::map<std::string, std::vector<std::string>> lists = {{codeClass, {}}};
        EXPECT_TRUE(service_->FillCodeLists("kim01", lists));
        return lists[codeClass];
    }

    inline static std::shared_ptr<const market::Market> market_;
    inline static std::unique_ptr<SearchService> service_;
    inline static std::string failure_;
    inline static Codes everything_;
};

constexpr char kSectors[] = "10           0";
constexpr char kInterests[] = "01           0";
constexpr char kThemes[] = "00           1";
constexpr char kNews[] = "00           2";

TEST_F(UniverseChoicesTest, EverySectorOfAnExchangeIsItsOwnStocks) {
    EXPECT_EQ(Find(Over(kSectors, {"ALL"})), everything_);
    const std::pair<const char*, Exchange> exchanges[] = {{"0202", Exchange::Kospi},
                                                          {"0203", Exchange::Kosdaq}};
    for (const auto& [codeClass, exchange] : exchanges) {
        for (const std::string& line : List(codeClass)) {
            const std::string name = ToUtf8(line.substr(4));
            const Codes expected = Where([&name, exchange = exchange](std::size_t stock) {
                const auto sector = static_cast<std::size_t>(engine::SectorOf(Stock(stock).industry));
                return Stock(stock).exchange == exchange && engine::AllSectors()[sector].name == name;
            });
            ExpectNarrowed(Find(Over(kSectors, {line.substr(0, 3)})), expected, ToUtf8(line));
        }
    }
}

// The largest ordinary shares without a warning, by shares times close.
TEST_F(UniverseChoicesTest, IndicesAreTheLargestStocks) {
    const struct {
        const char* codeClass;
        std::size_t size;
        Filter member;
    } indices[] = {
        {"0204", 200, [](std::size_t stock) { return Stock(stock).exchange == Exchange::Kospi; }},
        {"0205", 30, [](std::size_t stock) { return Stock(stock).exchange == Exchange::Kosdaq; }},
        {"0209", 100, [](std::size_t) { return true; }},
    };
    for (const auto& index : indices) {
        std::vector<std::pair<double, std::string>> ranked;
        for (std::size_t i = 0; i < market_->Instruments().size(); ++i) {
            const Instrument& stock = Stock(i);
            const bool warned = stock.Is(Status::Administrative) || stock.Is(Status::Alert);
            const double value = stock.shares * Last(market::PriceField::Close, i);
            if (index.member(i) && !warned && !stock.Is(Status::Preferred) && !std::isnan(value))
                ranked.emplace_back(-value, stock.code);
        }
        std::sort(ranked.begin(), ranked.end());
        Codes expected;
        for (std::size_t i = 0; i < index.size; ++i) expected.insert(ranked[i].second);
        std::vector<std::string> groups;
        for (const std::string& line : List(index.codeClass)) groups.push_back(line.substr(0, 3));
        ExpectNarrowed(Find(Over(kSectors, groups)), expected, index.codeClass);
    }
}

TEST_F(UniverseChoicesTest, GroupsOfTheUserAreSearchedAlone) {
    const std::pair<const char*, engine::GroupList> lists[] = {{kThemes, engine::ExampleThemes(*market_)},
                                                               {kNews, engine::ExampleNews(*market_)}};
    for (const auto& [kinds, groups] : lists) {
        for (const engine::StockGroup& group : groups)
            ExpectNarrowed(Find(Over(kinds, {group.code})), In(group.members), group.name);
    }
    const engine::GroupList& news = lists[1].second;
    ASSERT_EQ(news.size(), 7u);
    for (std::size_t i = 1; i < news.size(); ++i)
        EXPECT_NE(news[i].members, news[i - 1].members) << news[i].name;

    const store::Portfolio own = ExamplePortfolio(*market_, "kim01");
    for (const store::InterestGroup& group : own.groups)
        ExpectNarrowed(Find(Over(kInterests, {group.code})), {group.stocks.begin(), group.stocks.end()},
                       group.name);
    EXPECT_EQ(Find(Over(kInterests, {"503"})),
              Where([](std::size_t stock) { return Last(market::PriceField::Close, stock) < 1000; }));
    for (const HeldAccount& account : own.accounts) {
        Codes held, others = everything_;
        for (const Holding& holding : account.holdings) {
            held.insert(holding.stock);
            others.erase(holding.stock);
        }
        std::string header = Over("02" + account.number + "0", {});
        ExpectNarrowed(Find(header), held, account.number);
        test::Put(header, 722, "1");  // everything but what is held
        ExpectNarrowed(Find(header), others, "all but " + account.number);
    }
}

TEST_F(UniverseChoicesTest, EachExclusionAndMonthTakesItsStocksAway) {
    struct Case {
        std::string what;
        std::size_t offset;
        std::string bytes;
        Filter stays;
    };
    const auto isnt = [](Status status) {
        return [status](std::size_t stock) { return !Stock(stock).Is(status); };
    };
    std::vector<Case> cases = {
        {"관리종목", 713, "1", isnt(Status::Administrative)},
        {"투자경고/위험", 714, "1", isnt(Status::Alert)},
        {"우선주", 716, "1", isnt(Status::Preferred)},
        {"담보대출불가능", 717, "1", isnt(Status::NoCollateral)},
        {"증거금 100%", 718, "1", isnt(Status::FullMargin)},
        {"거래정지", 719, "1", [](std::size_t stock) { return Last(market::PriceField::Volume, stock) > 0; }},
    };
    const std::pair<const char*, int> months[] = {{"1  ", 3}, {"2  ", 6}, {"3  ", 9}, {"4  ", 12}};
    for (const auto& [bytes, month] : months) {
        cases.push_back({"month", 723, bytes, [month = month](std::size_t stock) {
                             return Stock(stock).settlementMonth == month;
                         }});
    }
    for (const Case& c : cases) {
        std::string header = Over(kSectors, {"ALL"});
        test::Put(header, c.offset, c.bytes);
        ExpectNarrowed(Find(header), Where(c.stays), c.what);
    }
}

}  // namespace
}  // namespace jogeon::service
