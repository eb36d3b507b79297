// A watch over a day: its verdict is a search's at every moment, and its events tell what changed.
#include "server/watch/watch_session.h"

#include <set>

#include "screen/saved/saved_condition_file.h"
#include "screen/text/cp949.h"
#include "server/market/generated_market.h"
#include "server/watch/replay_feed.h"
#include "tests/server/indicators/bars_of_tests.h"
#include "tests/server/indicators/catalogue_files.h"
#include "tests/server/watch/forming_day.h"

namespace jogeon::watch {
namespace {

using engine::SearchOrder;

struct NamedOrder {
    std::string name;
    SearchOrder order;
};

void ChooseAll(TargetFields& target) {
    target.Upjong = 1;
    target.Group = {"ALL"};
}

// Formulas that carry something from bar to bar, ranks, earlier bars, weeks and months.
constexpr std::pair<const char*, const char*> kConditions[] = {
    {"010201", "10^0|20^W|30^0|40^9|60^50"}, {"010202", "10^2|20^M|30^0|40^3|41^6|42^3"},
    {"010101", "10^2|20^M|30^0|40^5|50^1"},  {"010302", "10^0|20^W|30^0|40^5"},
    {"010402", "10^0|20^D|30^0|40^10"},      {"040106", "10^0|20^D|30^0|40^3"},
    {"040101", "10^0|20^W|30^0|40^10|50^1"}, {"080103", "50^1|60^20"},
    {"040103", "20^D|30^1|60^1|61^30"},      {"040202", "20^M|30^0|60^50|61^100"},
    {"010302", "10^1|20^D|30^2|40^14"},      {"070102", "10^2|60^15"},
};

class WatchSessionTest : public indicators::CatalogueFiles {
protected:
    std::vector<NamedOrder> Orders() const {
        std::vector<NamedOrder> orders;
        for (const auto& set : LoadVendorConditions(VendorConditionPath(indicators::Home()), catalogue_)) {
            SearchOrder order;
            ChooseAll(order.target);
            order.expression = set->Exp;
            for (const auto& condition : set->m_Conditions)
                order.conditions.push_back(*DecodeConditionBlock(BuildConditionBlock(*condition)));
            orders.push_back({ToUtf8(set->Name), order});
        }
        for (const auto& [key, values] : kConditions) {
            SearchOrder order;
            ChooseAll(order.target);
            order.target.Except7 = 1;  // a stock comes in with its first share
            order.expression = "A";
            order.conditions = {indicators::ConditionOf(key, values)};
            order.conditions.front().inUse = true;
            orders.push_back({std::string(key) + " " + values, order});
        }
        return orders;
    }
};

// A session beside what its events say.
struct Watched {
    NamedOrder asked;
    WatchSession session;
    std::set<int> byEvents;
    int moves = 0;

    Watched(NamedOrder order, const std::shared_ptr<const market::Market>& market, const WatchGroups& groups)
        : asked(std::move(order)),
          session(market, asked.order, groups, std::make_unique<ReplayFeed>(*market), 5 * kMinute) {}

    // The numbers of the stocks that match, after the clock went on.
    std::vector<std::uint32_t> Advance(int milliseconds) {
        const News news = session.Advance(milliseconds);
        for (const Event& event : news.events) {
            ++moves;
            if (event.entered)
                EXPECT_TRUE(byEvents.insert(event.quote.stock).second) << "came in twice";
            else
                EXPECT_EQ(byEvents.erase(event.quote.stock), 1u) << "left without having come in";
        }
        std::vector<std::uint32_t> matches;
        std::set<int> stocks;
        for (const Match& match : news.matches) {
            matches.push_back(static_cast<std::uint32_t>(match.quote.stock));
            stocks.insert(match.quote.stock);
        }
        EXPECT_EQ(stocks, byEvents) << asked.name;
        return matches;
    }
};

TEST_F(WatchSessionTest, VerdictIsThatOfASearchOnTheSameBarsThroughoutTheDay) {
    const auto generated = market::GenerateMarket();
    const int days = generated->BarsOf(market::Timeframe::Day).Count();
    const auto whole = test::Excerpt(*generated, days, 7).Build();
    const engine::MarketGroups groups = engine::BuildMarketGroups(*whole);
    const auto user = std::make_shared<engine::UserGroups>();
    std::vector<std::unique_ptr<Watched>> watched;
    for (const NamedOrder& order : Orders())
        watched.push_back(std::make_unique<Watched>(order, whole, WatchGroups{groups, user}));
    ASSERT_GE(watched.size(), 25u);

    ReplayFeed feed(*whole);
    test::FormingDay independent(*whole);
    constexpr int kStep = 13 * kMinute;
    for (TimeOfDay now = kOpening; now < kClosing + kStep; now += kStep) {
        std::vector<Tick> ticks;
        feed.Take(now, ticks);
        independent.Take(ticks);
        const bool over = now >= kClosing;
        indicators::MarketDay day(over ? whole : independent.Build());
        for (const auto& one : watched) {
            const auto matches = one->Advance(now == kOpening ? 0 : kStep);
            EXPECT_EQ(matches, engine::Search(day, groups, *user, one->asked.order).matches)
                << one->asked.name << " at minute " << (now - kOpening) / kMinute;
        }
    }
    int moved = 0;
    for (const auto& one : watched) moved += one->moves > static_cast<int>(one->byEvents.size()) ? 1 : 0;
    EXPECT_GT(moved, 15) << "most sets see stocks come and go";
}

// Gives what the test has put in, when it is asked.
class ScriptedFeed : public Feed {
public:
    void Take(TimeOfDay, std::vector<Tick>& ticks) override { ticks.swap(next); }
    bool Over() const override { return over; }

    std::vector<Tick> next;
    bool over = false;
};

std::string Told(const News& news) {
    std::string told;
    for (const Event& event : news.events) {
        told += std::to_string(event.quote.stock) + (event.entered ? " in" : " out");
        for (const Flip& flip : event.flips) told += std::string(flip.holds ? " +" : " -") + flip.letter;
        told += "; ";
    }
    for (const Match& match : news.matches)
        told += std::to_string(match.quote.stock) + "=" +
                std::to_string(static_cast<int>(match.quote.price)) + " " + match.holding + "@" +
                std::to_string((match.since - kOpening) / 1000) + " ";
    return told;
}

class EventsTest : public testing::Test {
protected:
    // Two stocks that closed at 100 and 200; the third is new today.
    EventsTest() {
        market::MarketBuilder builder;
        for (const char* code : {"000010", "000020", "000030"}) {
            market::Instrument stock;
            stock.code = code;
            builder.AddInstrument(stock);
        }
        for (int stock = 0; stock < 3; ++stock)
            for (const int date : {20260305, 20260306})
                if (stock < 2 || date == 20260306)
                    builder.AddBar(stock, date, 100 * (stock + 1), 100 * (stock + 1), 100 * (stock + 1),
                                   100 * (stock + 1), 10);
        market_ = builder.Build();
        ChooseAll(order_.target);
        Add('A', "040102", "30^0|60^100|61^150");     // a price of 100 to 150
        Add('B', "040103", "20^D|30^0|60^10|61^99");  // up by 10 percent or more
        Add('C', "040102", "30^1|60^1|61^150");       // not above 150 yesterday
        order_.expression = "A&(B|!C)";
    }

    void Add(char letter, const char* key, const char* values) {
        order_.conditions.push_back(indicators::ConditionOf(key, values));
        order_.conditions.back().letter = letter;
        order_.conditions.back().inUse = true;
    }

    std::unique_ptr<WatchSession> Watch() {
        auto feed = std::make_unique<ScriptedFeed>();
        feed_ = feed.get();
        return std::make_unique<WatchSession>(
            market_, order_, WatchGroups{groups_, std::make_shared<engine::UserGroups>()}, std::move(feed));
    }

    const engine::MarketGroups groups_;
    std::shared_ptr<const market::Market> market_;
    SearchOrder order_;
    ScriptedFeed* feed_ = nullptr;
};

TEST_F(EventsTest, TellWhoCameAndWentWhenAndByWhichCondition) {
    const auto session = Watch();
    feed_->next = {{0, kOpening, 100, 1}, {1, kOpening, 200, 1}};
    EXPECT_EQ(Told(session->Advance(0)), "");
    feed_->next = {{0, kOpening, 112, 1}, {1, kOpening, 140, 1}};
    const News news = session->Advance(1000);
    EXPECT_EQ(Told(news), "0 in +B; 1 in +A; 0=112 ABC@1 1=140 A@1 ");
    EXPECT_EQ(news.events[0].time, kOpening + 1000);
    EXPECT_EQ(news.ticks, 2u);
    EXPECT_DOUBLE_EQ(news.events[0].quote.change, 12);
    EXPECT_DOUBLE_EQ(news.events[1].quote.change, -30);
    feed_->next = {{0, kOpening, 120, 1}};
    EXPECT_EQ(Told(session->Advance(1000)), "0=120 ABC@1 1=140 A@1 ") << "a price, and nothing else";
    EXPECT_EQ(Told(session->Advance(1000)), "0=120 ABC@1 1=140 A@1 ") << "nothing ticked";
    feed_->next = {{0, kOpening, 160, 1}, {0, kOpening, 105, 1}, {1, kOpening, 141, 1}};
    EXPECT_EQ(Told(session->Advance(1000)), "0 out -B; 1=141 A@1 ");
    feed_->next = {{0, kOpening, 110, 1}, {2, kOpening, 120, 1}};
    const News last = session->Advance(1000);
    EXPECT_EQ(Told(last), "0 in +B; 0=110 ABC@5 1=141 A@1 ") << "C is unknown for a stock that is new";
}

TEST_F(EventsTest, ClockEndsAtTheCloseAndARealFeedsTimeGoesBeforeOurs) {
    const auto session = Watch();
    feed_->next = {{0, kOpening + 5000, 130, 1}};
    EXPECT_EQ(session->Advance(1000).time, kOpening + 5000);
    feed_->over = true;
    const News news = session->Advance(std::numeric_limits<int>::max());
    EXPECT_EQ(news.time, kClosing);
    EXPECT_TRUE(news.over);
    EXPECT_EQ(session->Advance(1000).time, kClosing);
}

// A feed that counts how often it is asked.
TEST_F(EventsTest, LongAdvanceIsJudgedInBatches) {
    class CountedFeed : public Feed {
    public:
        explicit CountedFeed(int& asked) : asked_(asked) {}
        void Take(TimeOfDay until, std::vector<Tick>& ticks) override {
            ticks.push_back({0, until, ++asked_ % 2 ? 130.0 : 160.0, 1});
        }
        bool Over() const override { return false; }

    private:
        int& asked_;
    };
    int asked = 0;
    WatchSession session(market_, order_, {groups_, std::make_shared<engine::UserGroups>()},
                         std::make_unique<CountedFeed>(asked));
    const News news = session.Advance(35'000);
    EXPECT_EQ(asked, 4);
    EXPECT_EQ(news.ticks, 4u);
    ASSERT_EQ(news.events.size(), 4u) << "it came and went twice";
    EXPECT_EQ(news.events[2].time, kOpening + 30'000);
    EXPECT_EQ(news.time, kOpening + 35'000);
}

TEST_F(EventsTest, WhatCantBeJudgedIsRefusedBeforeTheFirstTick) {
    SearchOrder good = order_;
    order_.expression = "A&D";
    EXPECT_THROW(Watch(), engine::BadSearch);
    order_ = good;
    order_.target.Group = {"777"};
    EXPECT_THROW(Watch(), engine::BadSearch);
    order_ = good;
    order_.conditions[0].roles[60] = "200";
    EXPECT_THROW(Watch(), indicators::BadCondition);
    order_ = good;
    EXPECT_NO_THROW(Watch());
}

}  // namespace
}  // namespace jogeon::watch
