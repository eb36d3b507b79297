// Kills jogeond serve in the middle of saves, again and again: no set that was answered is lost, and none is
// there in part. JOGEON_KILL_ROUNDS says how often, where two hundred times aren't enough.

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <random>
#include <thread>

#include <gtest/gtest.h>

#include "screen/text/bytes.h"
#include "server/market/market_file.h"
#include "server/remote/remote_service.h"
#include "tests/server/engine/test_market.h"
#include "tests/server/market/scratch_folder.h"
#include "tests/server/service/requests.h"
#include "tests/tools/jogeond/serve_process.h"

namespace jogeon {
namespace {

using remote::RemoteService;

constexpr int kRounds = 200;
constexpr int kBlocks = 20;
constexpr std::size_t kHeaderBytes = 828;
constexpr std::size_t kSetBytes = kHeaderBytes + kBlocks * 71;
constexpr std::size_t kListHead = 24;
constexpr int kMostSets = 99;
constexpr int kMostMicroseconds = 40'000;  // from the start of the saves to the kill

// The user's set of this number: twenty conditions, with the number in its name and in every condition.
std::string SetOf(const std::string& user, int number) {
    std::string set = test::Header("A", Decimal(kBlocks));
    test::Put(set, 0, user);
    test::Put(set, 8, ZeroPadded(number, 2));
    test::Put(set, 10, "set " + Decimal(number));
    for (int i = 0; i < kBlocks; ++i)
        set += test::PriceBlock(static_cast<char>('A' + i), Decimal(number), Decimal(number + i));
    return set;
}

struct Tally {
    int saved = 0, cutShort = 0, lost = 0, torn = 0;
    int landed = 0;  // saves without an answer that were there
};

// A user who saves one set after the other until the server is gone, and knows what he was answered.
class Saver {
public:
    explicit Saver(int number) : user_("s" + ZeroPadded(number, 6)) {}

    void SaveUntilTheEnd(RemoteService& service) {
        for (std::string version = "000.000"; answered_ < kMostSets; ++answered_) {
            underWay_ = true;
            const std::string reply = Ask(service, "A" + version + SetOf(user_, answered_));
            if (reply.empty()) return;
            ASSERT_EQ(reply.substr(0, 2), "A1") << reply;
            underWay_ = false;
            version = reply.substr(13, 7);
        }
    }

    // Compares what the service has with what it answered. A save without an answer may be there or not.
    void Check(RemoteService& service, Tally& tally) {
        const std::vector<std::string> sets = Download(service, tally);
        const int found = static_cast<int>(sets.size());
        tally.saved += answered_;
        tally.cutShort += underWay_;
        if (underWay_ && found == answered_ + 1) ++answered_, ++tally.landed;
        underWay_ = false;
        tally.lost += std::max(answered_ - found, 0);
        tally.torn += std::max(found - answered_, 0);  // never sent as a whole
        for (int number = 0; number < std::min(found, answered_); ++number)
            tally.torn += sets[static_cast<std::size_t>(number)] != SetOf(user_, number);
    }

private:
    std::string Ask(RemoteService& service, std::string payload) const {
        return service.Handle({user_, 1, "pisodbop", 1, std::move(payload)});
    }

    // The sets, packet by packet. Each made the version greater by one.
    std::vector<std::string> Download(RemoteService& service, Tally& tally) const {
        std::vector<std::string> sets;
        std::string step = "0", from = "00", version = "nothing";
        for (std::string more = "1"; more == "1"; step = "1") {
            const std::string packet = Ask(service, "V" + step + user_ + " " + from + version);
            if (packet.substr(0, 2) != "VD") throw std::runtime_error("no list: " + packet.substr(0, 20));
            more = packet.substr(2, 1);
            from = packet.substr(11, 2);
            version = packet.substr(13, 7);
            for (std::size_t at = kListHead; at < packet.size(); at += kSetBytes)
                sets.push_back(packet.substr(at, kSetBytes));
        }
        tally.torn += version != "000." + ZeroPadded(static_cast<int>(sets.size()), 3);
        return sets;
    }

    const std::string user_;
    int answered_ = 0;
    bool underWay_ = false;
};

int Rounds() {
    const char* text = std::getenv("JOGEON_KILL_ROUNDS");
    return text ? std::atoi(text) : kRounds;
}

class ServeDurabilityTest : public testing::Test {
protected:
    void SetUp() override { market::WriteMarket(*test::TestMarket(), folder_ / "small.market"); }

    test::ServeProcess Start() {
        return {{"--market", folder_ / "small.market", "--store", folder_ / "sets.sqlite", "--listen",
                 "127.0.0.1:0"},
                folder_ / "errors.txt"};
    }

    // Starts a server, checks what the last one left, has three users save until it is killed at a moment of
    // chance.
    void Round() {
        test::ServeProcess server = Start();
        RemoteService service(server.Address());
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < 3; ++i) {
            if (savers_.size() >= 3) savers_[savers_.size() - 3]->Check(service, tally_);
            savers_.push_back(std::make_unique<Saver>(static_cast<int>(savers_.size())));
        }
        for (std::size_t i = savers_.size() - 3; i < savers_.size(); ++i)
            threads.emplace_back([&, i] { savers_[i]->SaveUntilTheEnd(service); });
        std::this_thread::sleep_for(std::chrono::microseconds(random_() % kMostMicroseconds));
        server.End(SIGKILL);
        for (std::thread& thread : threads) thread.join();
    }

    void CheckAll() {
        const test::ServeProcess server = Start();
        RemoteService service(server.Address());
        for (const auto& saver : savers_) saver->Check(service, last_);
    }

    market::ScratchFolder folder_;
    std::mt19937 random_{std::random_device{}()};
    std::vector<std::unique_ptr<Saver>> savers_;
    Tally tally_;  // after each kill
    Tally last_;   // of all users at the end
};

TEST_F(ServeDurabilityTest, KillsInTheMiddleOfSavesLoseAndTearNothing) {
    const int rounds = Rounds();
    for (int round = 0; round < rounds && !HasFailure(); ++round) ASSERT_NO_THROW(Round()) << round;
    ASSERT_NO_THROW(CheckAll());
    const int cutShort = tally_.cutShort + last_.cutShort;
    std::cout << rounds << " kills: " << last_.saved << " saves answered, " << cutShort
              << " cut short, of which " << tally_.landed + last_.landed << " had been stored; "
              << tally_.lost + last_.lost << " lost, " << tally_.torn + last_.torn << " torn\n";
    EXPECT_EQ(tally_.lost + last_.lost, 0);
    EXPECT_EQ(tally_.torn + last_.torn, 0);
    EXPECT_GT(cutShort, rounds) << "most kills must come in the middle of saves";
    EXPECT_GT(last_.saved, rounds);
}

}  // namespace
}  // namespace jogeon
