// Drives jogeond serve: its start, its end, and what it refuses.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "server/market/market_file.h"
#include "server/remote/remote_service.h"
#include "tests/server/engine/test_market.h"
#include "tests/server/market/scratch_folder.h"
#include "tests/tools/jogeond/run_jogeond.h"
#include "tests/tools/jogeond/serve_process.h"

namespace jogeon {
namespace {

using testing::HasSubstr;

class ServeCommandTest : public testing::Test {
protected:
    void SetUp() override { market::WriteMarket(*test::TestMarket(), folder_ / "small.market"); }

    test::ServeProcess Start(const std::string& address = "127.0.0.1:0") {
        return {
            {"--market", folder_ / "small.market", "--store", folder_ / "sets.sqlite", "--listen", address},
            folder_ / "errors.txt"};
    }

    test::Outcome Run(const std::string& words) {
        return test::RunJogeond("serve --store " + (folder_ / "other.sqlite").string() + " " + words);
    }

    market::ScratchFolder folder_;
};

TEST_F(ServeCommandTest, ServesUntilASignalAndTheNextOneGetsItsPort) {
    for (const int signal : {SIGTERM, SIGINT}) {
        test::ServeProcess server = Start();
        const std::string address = server.Address();
        EXPECT_EQ(remote::RemoteService(address).Market(),
                  (service::MarketSummary{"test", false, 11, 20260306}));
        const test::Outcome second =
            Run("--market " + (folder_ / "small.market").string() + " --listen " + address);
        EXPECT_EQ(second.code, 2);
        EXPECT_EQ(second.out, "");
        EXPECT_EQ(second.err, "jogeond serve: can't listen on " + address +
                                  ": another program has the port, or this user may not use it\n");
        EXPECT_EQ(server.End(signal), 0);
        EXPECT_EQ(folder_.Read("errors.txt"), "");
        EXPECT_EQ(Start(address).Address(), address) << "the port is free again";
    }
}

TEST_F(ServeCommandTest, WrongUseIsToldInOneLine) {
    struct Case {
        std::string words, told;
    };
    for (const auto& [words, told] : {
             Case{"--listen 0.0.0.0:50150", "0.0.0.0:50150: loopback only until accounts exist"},
             Case{"--listen 127.0.0.1:x", "127.0.0.1:x: no port"},
             Case{"--market /no/such", "/no/such"},
             Case{"--port 1", "unknown option --port; \"jogeond serve --help\""},
         }) {
        const test::Outcome outcome = Run(words);
        EXPECT_EQ(outcome.code, 2) << words;
        EXPECT_THAT(outcome.err, testing::StartsWith("jogeond serve: " + told.substr(0, 4)));
        EXPECT_THAT(outcome.err, HasSubstr(told));
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    }
    EXPECT_THAT(Run("--help").out, HasSubstr("listening on 127.0.0.1:PORT"));
    EXPECT_EQ(Run("--help").code, 0);
}

}  // namespace
}  // namespace jogeon
