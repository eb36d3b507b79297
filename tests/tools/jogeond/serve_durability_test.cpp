// Kills jogeond serve in the middle of saves, again and again: no set that was answered is lost, and none is
// there in part. JOGEON_KILL_ROUNDS says how often, where two hundred times aren't enough.

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <map>
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
constexpr std::size_t kMostSets = 99;
constexpr std::size_t kEnoughSets = 60;    // the next round begins with another user
constexpr int kMostMicroseconds = 40'000;  // from the start of the saves to the kill

// A set of twenty conditions, with its serial in its name and in every condition.
std::string SetOf(int serial) {
    std::string set = test::Header("A", Decimal(kBlocks));
    test::Put(set, 10, "set " + Decimal(serial));
    for (int i = 0; i < kBlocks; ++i)
        set += test::PriceBlock(static_cast<char>('A' + i), Decimal(serial), Decimal(serial + i));
    return set;
}

// The same as a list has it: with its owner and number.
std::string ListedSet(int serial, const std::string& user, int number) {
    std::string set = SetOf(serial);
    test::Put(set, 0, user);
    test::Put(set, 8, ZeroPadded(number, 2));
    return set;
}

struct Found {
    std::string version;
    std::vector<std::string> sets;
};

// Saves one set after the other until the server is gone, and knows what it was answered. It goes on with
// another user when one has all the sets that he may have.
class Saver {
public:
    explicit Saver(int id) : id_(id) {}

    // Compares what the service has with what it answered. A save without an answer may be there or not.
    void Check(RemoteService& service) {
        const Found found = Download(service, User());
        if (underWay_ && found.sets.size() == answered_.size() + 1) {
            answered_.push_back(serial_);
            ++landed;
        }
        underWay_ = false;
        Compare(found, User(), answered_);
        version_ = found.version;
        if (answered_.size() > kEnoughSets) NextUser();
    }

    // The same for the users whom it has left behind.
    void CheckPast(RemoteService& service) {
        for (const auto& [user, serials] : past_) Compare(Download(service, user), user, serials);
    }

    void SaveUntilTheEnd(RemoteService& service) {
        while (answered_.size() < kMostSets) {
            std::string set = SetOf(++serial_);
            test::Put(set, 0, User());
            underWay_ = true;
            const std::string reply = Ask(service, User(), "A" + version_ + set);
            if (reply.empty()) return;
            ASSERT_EQ(reply.substr(0, 2), "A1") << reply;
            underWay_ = false;
            answered_.push_back(serial_);
            version_ = reply.substr(13, 7);
            ++saved;
        }
    }

    bool UnderWay() const { return underWay_; }

    int saved = 0, lost = 0, torn = 0;
    int landed = 0;  // saves without an answer that were there

private:
    void Compare(const Found& found, const std::string& user, const std::vector<int>& serials) {
        const std::size_t both = std::min(serials.size(), found.sets.size());
        lost += static_cast<int>(serials.size() - both);
        torn += static_cast<int>(found.sets.size() - both);  // never sent as a whole
        for (std::size_t i = 0; i < both; ++i)
            torn += found.sets[i] == ListedSet(serials[i], user, static_cast<int>(i)) ? 0 : 1;
        torn += found.version == "000." + ZeroPadded(static_cast<int>(found.sets.size()), 3) ? 0 : 1;
    }

    std::string User() const { return "s" + Decimal(id_) + "_" + ZeroPadded(users_, 5); }

    void NextUser() {
        past_.emplace(User(), std::move(answered_));
        answered_.clear();
        ++users_;
        version_ = "000.000";
    }

    static std::string Ask(RemoteService& service, const std::string& user, std::string payload) {
        return service.Handle({user, 1, "pisodbop", 1, std::move(payload)});
    }

    // A user's sets, packet by packet.
    static Found Download(RemoteService& service, const std::string& user) {
        Found found;
        std::string step = "0", from = "00", version = "nothing";
        for (std::string more = "1"; more == "1"; step = "1") {
            const std::string packet = Ask(service, user, "V" + step + user + from + version);
            if (packet.substr(0, 2) != "VD") throw std::runtime_error("no list: " + packet.substr(0, 20));
            more = packet.substr(2, 1);
            from = packet.substr(11, 2);
            found.version = version = packet.substr(13, 7);
            for (std::size_t at = kListHead; at < packet.size(); at += kSetBytes)
                found.sets.push_back(packet.substr(at, kSetBytes));
        }
        return found;
    }

    const int id_;
    int users_ = 0;
    int serial_ = 0;
    bool underWay_ = false;
    std::string version_ = "000.000";
    std::vector<int> answered_;  // serials by number
    std::map<std::string, std::vector<int>> past_;
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

    // Starts a server, checks what the last one left, saves until it is killed at a moment of chance.
    void Round() {
        test::ServeProcess server = Start();
        RemoteService service(server.Address());
        for (Saver& saver : savers_) saver.Check(service);
        std::vector<std::thread> threads;
        for (Saver& saver : savers_) threads.emplace_back([&] { saver.SaveUntilTheEnd(service); });
        std::this_thread::sleep_for(std::chrono::microseconds(random_() % kMostMicroseconds));
        server.End(SIGKILL);
        for (std::thread& thread : threads) thread.join();
        for (const Saver& saver : savers_) cutShort_ += saver.UnderWay() ? 1 : 0;
    }

    void CheckAll() {
        const test::ServeProcess server = Start();
        RemoteService service(server.Address());
        for (Saver& saver : savers_) saver.Check(service);
        for (Saver& saver : savers_) saver.CheckPast(service);
    }

    int Sum(int Saver::*count) const {
        int sum = 0;
        for (const Saver& saver : savers_) sum += saver.*count;
        return sum;
    }

    market::ScratchFolder folder_;
    std::mt19937 random_{std::random_device{}()};
    std::vector<Saver> savers_{Saver(1), Saver(2), Saver(3)};
    int cutShort_ = 0;
};

TEST_F(ServeDurabilityTest, KillsInTheMiddleOfSavesLoseAndTearNothing) {
    const int rounds = Rounds();
    for (int round = 0; round < rounds && !HasFailure(); ++round) ASSERT_NO_THROW(Round()) << round;
    ASSERT_NO_THROW(CheckAll());
    std::cout << rounds << " kills: " << Sum(&Saver::saved) << " saves answered, " << cutShort_
              << " cut short, of which " << Sum(&Saver::landed) << " had been stored; " << Sum(&Saver::lost)
              << " lost, " << Sum(&Saver::torn) << " torn\n";
    EXPECT_EQ(Sum(&Saver::lost), 0);
    EXPECT_EQ(Sum(&Saver::torn), 0);
    EXPECT_GT(cutShort_, rounds) << "most kills must come in the middle of saves";
    EXPECT_GT(Sum(&Saver::saved), rounds);
}

}  // namespace
}  // namespace jogeon
