// A service over a connection: the same answers as without one, and what happens when an end fails.
#include "server/remote/remote_service.h"

#include <algorithm>
#include <cmath>
#include <future>
#include <optional>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "server/remote/loopback_address.h"
#include "server/remote/service_server.h"
#include "server/service/local_service.h"
#include "tests/server/engine/test_market.h"
#include "tests/server/market/scratch_folder.h"
#include "tests/server/service/requests.h"

namespace jogeon::remote {
namespace {

using service::LocalService;
using service::Request;
using std::chrono::milliseconds;
using test::Header;
using test::PriceBlock;
using testing::ElementsAre;
using testing::HasSubstr;

class RemoteServiceTest : public testing::Test {
protected:
    RemoteServiceTest()
        : local(test::TestMarket(), std::make_unique<service::StoreService>(folder / "sets.sqlite")) {
        server.emplace(local, 0);
        address = LoopbackAddress(server->Port());
    }

    std::unique_ptr<RemoteService> Connect(const RemoteSettings& settings = {}) {
        const auto log = [this](const Trouble& trouble) {
            kinds.push_back(trouble.kind);
            lines.push_back(trouble.line);
        };
        return std::make_unique<RemoteService>(address, log, settings);
    }

    static Request Search() {
        test::SearchText text{.header = Header("A", "01"), .blocks = PriceBlock('A', "0", "99999", true)};
        text.columns = "0003900390179018";
        return test::SearchRequest(test::SearchPayload(text));
    }

    static std::string Ask(service::Service& service, const std::string& payload) {
        return service.Handle({"kim01", 7, "pisodbop", 0xA2, payload});
    }

    market::ScratchFolder folder;
    LocalService local;
    std::optional<ServiceServer> server;
    std::string address;
    std::vector<Trouble::Kind> kinds;
    std::vector<std::string> lines;
};

TEST_F(RemoteServiceTest, EveryCallGivesWhatTheServiceItselfGives) {
    const auto remote = Connect();
    const std::string reply = remote->Handle(Search());
    EXPECT_THAT(reply, testing::StartsWith("T1        00"));
    std::string again = local.Handle(Search());
    EXPECT_EQ(reply, again) << "byte for byte";
    EXPECT_EQ(remote->Handle({"kim01", 7, "pisodbop", 0xA2, "V0kim01   00000.000"}),
              "VE" + std::string(22, ' '));
    EXPECT_EQ(remote->Handle({"kim01", 7, "PIBOFIDJ", 255, "1"}), "") << "no reply, and no trouble";

    std::map<std::string, std::vector<std::string>> there{{"0504", {"old"}}, {"0502", {}}, {"none", {"old"}}};
    auto here = there;
    EXPECT_TRUE(remote->FillCodeLists("kim01", there));
    EXPECT_TRUE(local.FillCodeLists("kim01", here));
    EXPECT_EQ(there, here);
    EXPECT_THAT(there["0502"], testing::Contains("501 대형주"_cp949));
    EXPECT_EQ(remote->Accounts("kim01"), local.Accounts("kim01"));
    EXPECT_FALSE(remote->Accounts("kim01").empty());
    EXPECT_EQ(remote->StockName("000030"), "다제약"_cp949);
    EXPECT_EQ(remote->StockName("999999"), "");
    EXPECT_EQ(remote->Market(), (service::MarketSummary{"test", false, 11, 20260306}));
    EXPECT_THAT(lines, ElementsAre());
}

TEST_F(RemoteServiceTest, PortfoliosAreTheServicesOwnAndStocksAreAskedForOnce) {
    using service::Verdict;
    const auto remote = Connect();
    service::Portfolios& there = remote->GetPortfolios();
    service::Portfolios& here = local.GetPortfolios();
    const service::Addition added = there.Add("kim01", "내 종목"_cp949, {"100020", "000010"});
    EXPECT_EQ(added.verdict, Verdict::Taken);
    EXPECT_EQ(added.code, "504");
    EXPECT_EQ(there.Add("kim01", "내 종목"_cp949, {}).verdict, Verdict::NameInUse);
    EXPECT_EQ(there.Rename("kim01", "504", "새 이름"_cp949), Verdict::Taken);
    EXPECT_EQ(there.SetStocks("kim01", "504", {"100020", "000010"}, {"000020", "000010"}), Verdict::Taken);
    EXPECT_EQ(there.SetStocks("kim01", "504", {"100020", "000010"}, {}), Verdict::StocksChanged);
    EXPECT_EQ(there.SetStocks("kim01", "599", {}, {}), Verdict::NoSuchGroup);
    EXPECT_EQ(there.Delete("kim01", "501"), Verdict::Taken);
    EXPECT_EQ(there.Reorder("kim01", {"504", "503", "502"}), Verdict::Taken);
    EXPECT_EQ(here.Groups("kim01").at(0),
              (service::InterestGroup{"504", "새 이름"_cp949, {"000020", "000010"}}));
    EXPECT_EQ(there.Groups("kim01"), here.Groups("kim01"));

    EXPECT_EQ(there.SetHoldings("kim01", "12345678901", {{"000020", 7, 1234.5}}), Verdict::Taken);
    EXPECT_EQ(there.RemoveAccount("kim01", here.Accounts("kim01").at(0).number), Verdict::Taken);
    EXPECT_EQ(there.Accounts("kim01"), here.Accounts("kim01"));
    EXPECT_EQ(there.Accounts("kim01").back(), (service::HeldAccount{"12345678901", {{"000020", 7, 1234.5}}}));
    EXPECT_EQ(remote->Accounts("kim01"), local.Accounts("kim01"));

    const std::vector<service::Quote> quotes = there.Quotes({"000010", "999999"});
    EXPECT_EQ(quotes.at(0).close, 50000);
    EXPECT_EQ(quotes.at(0).change, 10);
    EXPECT_TRUE(std::isnan(quotes.at(1).close));
    EXPECT_THROW(there.Groups("../x"), RemoteError) << "no user";
    const std::vector<service::StockEntry> stocks = there.Stocks();
    EXPECT_EQ(stocks, here.Stocks());
    server.reset();
    EXPECT_EQ(there.Stocks(), stocks) << "without a call";
    EXPECT_THROW(there.SetStocks("kim01", "504", {}, {}), RemoteError);
}

TEST_F(RemoteServiceTest, ChartsAreThoseOfTheServiceAndAFaultReachesTheAskerAsItsLine) {
    const auto remote = Connect();
    service::Charts& there = remote->GetCharts();
    service::Charts& here = local.GetCharts();
    for (const auto timeframe : {market::Timeframe::Day, market::Timeframe::Month}) {
        EXPECT_EQ(there.Bars("100040", timeframe), here.Bars("100040", timeframe));
        EXPECT_EQ(there.Bars("999999", timeframe), std::nullopt);
    }
    ASSERT_EQ(there.Bars("100040", market::Timeframe::Day)->bars.size(), 2u);
    const std::string set = Header("A", "01") + PriceBlock('A', "6990", "6990");
    EXPECT_THAT(there.TrueDays("kim01", set, "100040"), ElementsAre(20260305));
    try {
        there.TrueDays("kim01", set.substr(1), "100040");
        ADD_FAILURE() << "a set that is cut";
    } catch (const RemoteError& error) {
        EXPECT_THAT(error.what(), HasSubstr("the server at " + address + " failed: \"001A\" is no number"));
    }
    EXPECT_THAT(lines, ElementsAre()) << "thrown, not logged";
}

TEST_F(RemoteServiceTest, WindowsOfTwoTerminalsWithOneHandleKeepTheirResults) {
    const auto one = Connect();
    const auto other = Connect();
    one->Handle(Search());
    EXPECT_EQ(other->Handle(Search()).substr(10, 2), "00");
    other->Handle(test::SearchRequest("Z0000002akim01   99"));
    EXPECT_EQ(one->Handle(test::SearchRequest(test::PagePayload("00", "0000"))).substr(0, 2), "N1");
    EXPECT_EQ(other->Handle(test::SearchRequest(test::PagePayload("00", "0000"))).substr(0, 2), "N0");
}

TEST_F(RemoteServiceTest, UserAtTwoTerminalsIsRefusedAndRecoversByADownload) {
    const auto one = Connect();
    const auto other = Connect();
    const std::string set = Header("A", "01") + PriceBlock('A', "1000", "5000");
    const std::string nine(9, ' ');
    EXPECT_EQ(Ask(*one, "A000.000" + set), "A1" + nine + "00000.001");
    EXPECT_EQ(Ask(*other, "A000.000" + set), "A0" + nine + "  000.001") << "he doesn't know the first one";
    const std::string list = Ask(*other, "V0kim01   00000.000");
    EXPECT_EQ(list.substr(0, 24), "VD0" + std::string(10, ' ') + "000.0010001");
    EXPECT_EQ(Ask(*other, "A" + list.substr(13, 7) + set), "A1" + nine + "01000.002");
    EXPECT_EQ(Ask(*one, "V0kim01   00000.001").substr(20, 4), "0002");
}

TEST_F(RemoteServiceTest, ServerThatIsGoneFailsAtOnceAndOneThatIsBackServes) {
    const auto remote = Connect();
    const int port = server->Port();
    ASSERT_EQ(remote->StockName("000010"), "가전자"_cp949);
    server.reset();
    const std::string told = "the server at " + address + " can't be reached; jogeond serve starts one";
    EXPECT_EQ(remote->Handle(Search()), "");
    EXPECT_EQ(remote->StockName("000010"), "") << "silently, so soon behind a trouble";
    std::map<std::string, std::vector<std::string>> lists{{"0504", {"old"}}};
    EXPECT_FALSE(remote->FillCodeLists("kim01", lists));
    EXPECT_THAT(lists["0504"], ElementsAre());
    EXPECT_THROW(remote->Accounts("kim01"), RemoteError);
    EXPECT_THROW(remote->GetPortfolios().Add("kim01", "a", {"000010"}), RemoteError);
    EXPECT_THROW(remote->Market(), RemoteError);
    EXPECT_THAT(lines, ElementsAre(told, told));
    EXPECT_THAT(kinds, testing::Each(Trouble::Kind::Unreachable));

    server.emplace(local, port);
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (remote->Handle(Search()).empty() && std::chrono::steady_clock::now() < until)
        std::this_thread::sleep_for(milliseconds(50));
    EXPECT_EQ(remote->Handle(Search()).substr(0, 2), "T1");
    EXPECT_EQ(remote->StockName("000010"), "가전자"_cp949);
}

TEST_F(RemoteServiceTest, OtherProtocolsAndPortsThatAreTakenAreToldInOneLine) {
    RemoteSettings next;
    next.protocol = kProtocol + 1;
    EXPECT_EQ(Connect(next)->Handle(Search()), "");
    EXPECT_THAT(kinds, ElementsAre(Trouble::Kind::OtherProtocol));
    EXPECT_EQ(lines.back(),
              "the server at " + address + " is of another version: it speaks protocol 3, the asker 4");
    try {
        ServiceServer(local, server->Port());
        ADD_FAILURE() << "two servers on one port";
    } catch (const ListenError& error) {
        EXPECT_EQ(error.what(), "can't listen on " + address +
                                    ": another program has the port, or this user may not use it");
    }
    EXPECT_EQ(Connect()->Handle(Search()).substr(0, 2), "T1") << "the first one serves on";
}

TEST_F(RemoteServiceTest, WhoIsNoUserIsRefused) {
    const auto remote = Connect();
    for (const char* user : {"", "nine_char", "a b", "../x"})
        EXPECT_THROW(remote->Accounts(user), RemoteError) << user;
    EXPECT_EQ(remote->Handle({"../x", 7, "pisodbop", 1, "V0"}), "");
    EXPECT_THAT(lines, ElementsAre(HasSubstr(" failed: a user id is 1 to 8 letters, digits or _")));
    EXPECT_EQ(remote->Accounts("kim01").size(), local.Accounts("kim01").size());
}

// Hangs or throws as a test has it.
class TroubledService : public LocalService {
public:
    TroubledService() : LocalService(test::TestMarket(), nullptr) {}

    std::string Handle(const Request& request) override {
        if (request.payload == "throw") throw std::bad_alloc();
        release.get_future().wait();
        return "late";
    }

    std::promise<void> release;
};

TEST_F(RemoteServiceTest, RecoveryIsToldOnceWhenACallSucceedsAgain) {
    RemoteSettings settings;
    int lost = 0, recovered = 0;
    settings.lost = [&lost] { ++lost; };
    settings.recovered = [&recovered] { ++recovered; };
    const auto remote = Connect(settings);
    remote->Handle(Search());
    EXPECT_EQ(recovered, 0) << "nothing had failed";
    const int port = server->Port();
    server.reset();
    EXPECT_EQ(lost, 0);
    EXPECT_THROW(remote->Market(), RemoteError);
    EXPECT_EQ(lost, 1) << "thrown or not";
    server.emplace(local, port);
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (remote->Handle(Search()).empty() && std::chrono::steady_clock::now() < until)
        std::this_thread::sleep_for(milliseconds(50));
    remote->Handle(Search());
    EXPECT_EQ(recovered, 1);
}

TEST_F(RemoteServiceTest, CallsThatAreGivenUpEndAtOnceAndSilently) {
    TroubledService troubled;
    server.emplace(troubled, 0);
    address = LoopbackAddress(server->Port());
    const auto remote = Connect();
    ASSERT_EQ(remote->Market().stocks, 11) << "connected";
    const auto before = std::chrono::steady_clock::now();
    auto hanging = std::async(std::launch::async, [&] { return Ask(*remote, "hang"); });
    EXPECT_EQ(hanging.wait_for(milliseconds(200)), std::future_status::timeout);
    remote->GiveUpCalls();
    EXPECT_EQ(hanging.get(), "");
    EXPECT_EQ(Ask(*remote, "hang"), "") << "nor does a later one wait";
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(10));
    EXPECT_THAT(lines, ElementsAre());
    troubled.release.set_value();
}

TEST_F(RemoteServiceTest, HangingServiceEndsAtTheDeadlineAndAThrowingOneFailsItsCallOnly) {
    TroubledService troubled;
    std::vector<std::string> told;
    server.emplace(troubled, 0, [&told](const std::string& why) { told.push_back(why); });
    address = LoopbackAddress(server->Port());
    RemoteSettings hasty;
    hasty.handleDeadline = milliseconds(300);
    const auto remote = Connect(hasty);
    ASSERT_EQ(remote->Market().stocks, 11) << "connected";
    const auto before = std::chrono::steady_clock::now();
    EXPECT_EQ(Ask(*remote, "hang"), "");
    EXPECT_GE(std::chrono::steady_clock::now() - before, milliseconds(290));
    EXPECT_EQ(lines.back(), "the server at " + address + " didn't answer within 0.3 s");
    troubled.release.set_value();

    const auto patient = Connect();
    EXPECT_EQ(Ask(*patient, "throw"), "");
    EXPECT_EQ(kinds.back(), Trouble::Kind::Failed);
    EXPECT_THAT(told, ElementsAre(HasSubstr("bad_alloc")));
    EXPECT_EQ(patient->Market().stocks, 11);
}

TEST(LoopbackAddressTest, OnlyLoopbackAndAPortIsTaken) {
    EXPECT_EQ(ReadLoopbackAddress("127.0.0.1:0"), 0);
    EXPECT_EQ(ReadLoopbackAddress("127.0.0.1:65535"), 65535);
    for (const char* other : {"0.0.0.0:50150", "192.168.0.7:50150", "[::]:50150", "localhost:50150", ":50150",
                              "50150", "127.0.0.1.example.com:1", ""}) {
        try {
            ReadLoopbackAddress(other);
            ADD_FAILURE() << other;
        } catch (const BadAddress& error) {
            EXPECT_THAT(error.what(), HasSubstr("loopback only until accounts exist")) << other;
        }
    }
    for (const char* port : {"127.0.0.1", "127.0.0.1:", "127.0.0.1:65536", "127.0.0.1:-1", "127.0.0.1:1x"})
        EXPECT_THROW(ReadLoopbackAddress(port), BadAddress) << port;
}

}  // namespace
}  // namespace jogeon::remote
