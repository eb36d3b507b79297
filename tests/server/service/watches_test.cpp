// Watches of several users over one market: what is refused, who reaches which, and how long they live.
#include "server/service/watches.h"

#include <future>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "server/service/local_service.h"
#include "tests/server/engine/test_market.h"
#include "tests/server/service/requests.h"

namespace jogeon::service {
namespace {

using test::ChangeBlock;
using test::Header;
using test::PriceBlock;
using testing::HasSubstr;

constexpr int kWholeDay = 24 * 60 * 60'000;

// Stocks of 1,000 to 5,000 won.
std::string CheapStocks() {
    return Header("A", "01") + PriceBlock('A', "1000", "5000");
}

template <typename Action>
std::string RefusalOf(Action action) {
    try {
        action();
    } catch (const WatchError& error) {
        return error.what();
    }
    return "";
}

TEST(WatchesTest, DayIsReplayedToWhatASearchFinds) {
    LocalService service(test::TestMarket(), nullptr);
    Watches& watches = service.GetWatches();
    const WatchStart start = watches.Open("kim01", CheapStocks());
    EXPECT_EQ(start, (WatchStart{start.id, 20260306, true, 32'400'000, 55'800'000}));
    const WatchNews opening = watches.Advance("kim01", start.id, 0);
    EXPECT_EQ(opening.time, start.opens);
    EXPECT_EQ(opening.ticks, 10) << "every stock that has a bar on that day opens";
    const WatchNews close = watches.Advance("kim01", start.id, kWholeDay);
    EXPECT_TRUE(close.over);
    EXPECT_EQ(close.time, start.closes);
    ASSERT_EQ(close.matches.size(), 4u);
    EXPECT_EQ(close.matches[0],
              (WatchMatch{{"000030", "다제약"_cp949, 3000, 100.0 * 10 / 2990}, start.opens, "A"}));
    const WatchNews later = watches.Advance("kim01", start.id, 1000);
    EXPECT_EQ(later.ticks, 0);
    EXPECT_EQ(later.matches, close.matches);
}

TEST(WatchesTest, SetThatCantBeJudgedIsRefusedInOneLine) {
    LocalService service(test::TestMarket(), nullptr);
    const std::string good = CheapStocks();
    std::string noGroup = good;
    test::Put(noGroup, 113, "777");
    const std::pair<std::string, const char*> cases[] = {
        {"", ""},
        {good.substr(0, good.size() - 1), ""},
        {good + " ", ""},
        {Header("A&B", "01") + PriceBlock('A', "1000", "5000"), "there is no condition B"},
        {Header("A&", "01") + PriceBlock('A', "1000", "5000"), "no expression"},
        {Header("A", "01") + PriceBlock('A', "5000", "1000"),
         "조건 A (040102): 범위의 하한이 상한보다 큽니다"},
        {noGroup, "there is no group \"777\""},
    };
    for (const auto& [set, why] : cases) {
        const std::string refusal = RefusalOf([&] { service.GetWatches().Open("kim01", set); });
        EXPECT_NE(refusal, "") << why;
        EXPECT_THAT(refusal, HasSubstr(why));
        EXPECT_THAT(refusal, testing::Not(HasSubstr("\n")));
    }
}

// Watches whose clock the test turns.
class LifeOfWatchesTest : public testing::Test {
protected:
    int Open(const std::string& user) { return watches.Open(user, CheapStocks()).id; }
    bool Lives(const std::string& user, int id) {
        return RefusalOf([&] { watches.Advance(user, id, 0); }).empty();
    }

    LocalWatches::Clock::time_point now{};
    const engine::MarketGroups groups;
    LocalWatches watches{test::TestMarket(), groups,
                         [](const std::string&) { return std::make_shared<engine::UserGroups>(); },
                         [this] { return now; }};
};

TEST_F(LifeOfWatchesTest, UserHasEightAtMostAndNobodyReachesAnothers) {
    std::vector<int> ids;
    for (int i = 0; i < Watches::kMostOfUser; ++i) ids.push_back(Open("kim01"));
    EXPECT_THAT(RefusalOf([&] { Open("kim01"); }), HasSubstr("8"));
    const int other = Open("lee02");
    EXPECT_FALSE(Lives("kim01", other));
    EXPECT_FALSE(Lives("lee02", ids[0]));
    watches.Close("lee02", ids[0]);
    EXPECT_TRUE(Lives("kim01", ids[0])) << "not his to close";
    watches.Close("kim01", ids[0]);
    EXPECT_FALSE(Lives("kim01", ids[0]));
    EXPECT_TRUE(Lives("kim01", Open("kim01"))) << "there is room again";
    for (int user = 0; user < 1000; ++user)
        if (!RefusalOf([&] { Open("u" + std::to_string(user)); }).empty()) return;
    ADD_FAILURE() << "watches without limit";
}

TEST_F(LifeOfWatchesTest, WatchThatNobodyAsksForInFiveMinutesIsClosed) {
    const int asked = Open("kim01");
    const int forgotten = Open("kim01");
    for (int minute = 0; minute < 4; ++minute) {
        now += std::chrono::seconds(75);
        EXPECT_TRUE(Lives("kim01", asked));
    }
    now += std::chrono::seconds(1);
    EXPECT_FALSE(Lives("kim01", forgotten));
    EXPECT_TRUE(Lives("kim01", asked));
}

TEST_F(LifeOfWatchesTest, ThreadsShareOneWatchAndOpenTheirOwn) {
    const int shared = Open("kim01");
    std::vector<std::future<std::int64_t>> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.push_back(std::async(std::launch::async, [this, shared] {
            std::int64_t ticks = 0;
            for (int i = 0; i < 20; ++i) {
                ticks += watches.Advance("kim01", shared, kWholeDay / 200).ticks;
                const int own = Open("kim01");
                watches.Advance("kim01", own, kWholeDay);
                watches.Close("kim01", own);
            }
            return ticks;
        }));
    std::int64_t ticks = 0;
    for (auto& thread : threads) ticks += thread.get();
    const int alone = Open("kim01");
    EXPECT_EQ(ticks, watches.Advance("kim01", alone, kWholeDay).ticks) << "each tick was told to one of them";
}

}  // namespace
}  // namespace jogeon::service
