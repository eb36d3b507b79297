// Watches over a connection: the news of the service itself, its refusals as such, and a server that is gone.
#include <optional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "server/remote/loopback_address.h"
#include "server/remote/remote_service.h"
#include "server/remote/service_server.h"
#include "server/service/local_service.h"
#include "tests/server/engine/test_market.h"
#include "tests/server/service/requests.h"

namespace jogeon::remote {
namespace {

using service::WatchError;

// A change of 0.1 percent or more over a day, at most 5,000 won: both move during the day.
std::string TestSet() {
    return test::Header("A&!B", "02") + test::ChangeBlock('A', "1", "0.1", "99") +
           test::PriceBlock('B', "5001", "99999");
}

TEST(RemoteWatchesTest, EveryCallGivesWhatTheServiceItselfGives) {
    service::LocalService local(test::TestMarket(), nullptr);
    ServiceServer server(local, 0);
    RemoteService remote(LoopbackAddress(server.Port()));
    service::Watches& here = local.GetWatches();
    service::Watches& there = remote.GetWatches();
    const service::WatchStart start = there.Open("kim01", TestSet());
    const service::WatchStart own = here.Open("kim01", TestSet());
    EXPECT_EQ(start, (service::WatchStart{start.id, own.date, own.replay, own.opens, own.closes}));
    std::size_t events = 0;
    for (int minute = 0; minute <= 400; minute += 20) {
        const service::WatchNews news = there.Advance("kim01", start.id, minute ? 20 * 60'000 : 0);
        EXPECT_EQ(news, here.Advance("kim01", own.id, minute ? 20 * 60'000 : 0)) << minute;
        events += news.events.size();
    }
    EXPECT_GT(events, 5u);
    there.Close("kim01", start.id);
    EXPECT_THROW(there.Advance("kim01", start.id, 1), WatchError);
    EXPECT_THROW(here.Advance("kim01", start.id, 1), WatchError);
}

TEST(RemoteWatchesTest, RefusalIsAnAnswerAndAServerThatIsGoneIsNone) {
    service::LocalService local(test::TestMarket(), nullptr);
    std::vector<std::string> told;
    std::optional<ServiceServer> server;
    server.emplace(local, 0, [&told](const std::string& why) { told.push_back(why); });
    RemoteService remote(LoopbackAddress(server->Port()));
    const auto open = [&remote](const char* user, const std::string& set) {
        try {
            remote.GetWatches().Open(user, set);
        } catch (const WatchError& refusal) {
            return std::string("refused: ") + refusal.what();
        } catch (const RemoteError& error) {
            return std::string("failed: ") + error.what();
        }
        return std::string();
    };
    EXPECT_EQ(open("kim01", test::Header("B", "01") + test::PriceBlock('A', "1", "2")),
              "refused: there is no condition B");
    EXPECT_NE(remote.StockName("000010"), "") << "a refusal is no trouble";
    EXPECT_THAT(told, testing::IsEmpty());
    EXPECT_THAT(open("../x", TestSet()), testing::HasSubstr("a user id is 1 to 8 letters"));
    server.reset();
    EXPECT_THAT(open("kim01", TestSet()), testing::HasSubstr("can't be reached"));
    EXPECT_THROW(remote.GetWatches().Close("kim01", 1), RemoteError);
}

}  // namespace
}  // namespace jogeon::remote
