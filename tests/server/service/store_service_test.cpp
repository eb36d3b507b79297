#include "server/service/store_service.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "server/service/local_service.h"
#include "tests/server/engine/test_market.h"
#include "tests/server/market/scratch_folder.h"
#include "tests/server/service/requests.h"

namespace jogeon::service {
namespace {

using test::Header;
using test::PriceBlock;
using test::Put;

const std::string kNine(9, ' ');

std::string Named(std::string_view name, std::string_view number = "99", std::string_view count = "01") {
    std::string header = Header("A", count);
    Put(header, 8, number);
    Put(header, 10, std::string(80, ' '));
    Put(header, 10, name);
    return header;
}

// A delete request's block places: those that aren't used are blank.
std::string Places(const std::string& blocks) {
    return blocks + std::string(1420 - blocks.size(), ' ');
}

class StoreServiceTest : public testing::Test {
protected:
    std::string Ask(const std::string& payload, const std::string& user = "kim01") {
        failure.clear();
        return service.Handle({user, 7, "pisodbop", 0xA2, payload});
    }

    // The answer to the first request for the list, from somebody who has nothing.
    std::string List(const std::string& user = "kim01") {
        return Ask("V0" + user + std::string(8 - user.size(), ' ') + "00nothing", user);
    }

    const std::string block = PriceBlock('A', "1000", "5000", true);
    market::ScratchFolder folder;
    std::string failure;
    StoreService service{folder / "sets.sqlite", [this](const std::string& why) { failure = why; }};
};

TEST_F(StoreServiceTest, CommandsAndListAreLaidOutByteForByte) {
    EXPECT_EQ(Ask("V0kim01   00000.000"), "VE" + std::string(22, ' '));
    EXPECT_EQ(Ask("A000.000" + Named("가격"_cp949) + block), "A1" + kNine + "00000.001");
    EXPECT_EQ(Ask("A000.001" + Named("b", "07") + block), "A1" + kNine + "01000.002");
    EXPECT_EQ(Ask("E000.002" + Named("c", "05") + block), "E1" + kNine + "05000.003") << "which wasn't there";
    EXPECT_EQ(Ask("E000.003" + Named("d", "01") + block), "E1" + kNine + "01000.004");
    EXPECT_EQ(List(), "VD0" + std::string(10, ' ') + "000.0040003" + Named("가격"_cp949, "00") + block +
                          Named("d", "01") + block + Named("c", "05") + block);
    EXPECT_EQ(Ask("V0kim01   00000.004"), "VE" + std::string(22, ' '));
    EXPECT_EQ(Ask("C000.004kim01   0003050100"), "C1        000.005");
    EXPECT_EQ(Ask("D000.005" + Named("d", "01") + Places(block)), "D1" + kNine + "  000.006");
    EXPECT_EQ(List(), "VD0" + std::string(10, ' ') + "000.0060002" + Named("c", "00") + block +
                          Named("가격"_cp949, "02") + block);
    EXPECT_EQ(Ask("V0kim01   00000.009").substr(0, 2), "VD") << "a version that the store never had";
    EXPECT_EQ(Ask("D000.006" + Named("c", "00", "00") + Places("")), "D1" + kNine + "  000.007")
        << "a set that has lost its conditions at the screen";
    Ask("D000.007" + Named("c", "02") + Places(block));
    EXPECT_EQ(List(), "VD0" + std::string(10, ' ') + "000.0080000");
    EXPECT_EQ(failure, "");
}

TEST_F(StoreServiceTest, AnotherVersionIsRefusedWithTheServicesOwn) {
    Ask("A000.000" + Named("a") + block);
    const std::string told = kNine + "  000.001";
    EXPECT_EQ(Ask("A000.000" + Named("b") + block), "A0" + told);
    EXPECT_EQ(failure, "pisodbop A of \"kim01\": its version is \"000.000\", the user's sets have 000.001");
    EXPECT_EQ(Ask("E000.002" + Named("b", "00") + block), "E0" + told);
    EXPECT_EQ(Ask("D       " + Named("a", "00") + Places(block)), "D0" + told);
    EXPECT_EQ(Ask("C000.000kim01   000100"), "C0        000.001");
    EXPECT_EQ(List().substr(24), Named("a", "00") + block);
}

TEST_F(StoreServiceTest, ValuesStandAtTheRightAndTheOneMarkedIndicatorIsMarked) {
    std::string rate = PriceBlock('B', "-5", "5");
    Put(rate, 4, "040103430D");
    std::string left = block;
    Put(left, 32, "1000     ");
    Ask("A000.000" + Named("a", "99", "02") + left + rate);
    Put(rate, 28, "VV");
    EXPECT_EQ(List().substr(24 + 828), block + rate) << failure;
}

TEST_F(StoreServiceTest, UsersSeeAndChangeOnlyTheirOwn) {
    Ask("A000.000" + Named("a") + block);
    EXPECT_EQ(List("lee02").substr(0, 2), "VD");
    EXPECT_EQ(List("lee02").substr(20), "0000");
    for (const std::string& payload :
         {"E000.000" + Named("x", "00") + block, "A000.000" + Named("x") + block,
          "D000.000" + Named("a", "00") + Places(block), std::string("C000.000kim01   000100")})
        EXPECT_EQ(Ask(payload, "lee02").substr(1, 1), "0") << "a payload of kim01's";
    EXPECT_EQ(Ask("V0kim01   00000.009", "lee02"), "");
    std::string own = Named("b");
    Put(own, 0, "lee02");
    EXPECT_EQ(Ask("A000.000" + own + block, "lee02"), "A1" + kNine + "00000.001");
    EXPECT_EQ(List().substr(13), "000.0010001" + Named("a", "00") + block);
}

TEST_F(StoreServiceTest, WhatASetMayNotHoldIsRefused) {
    Ask("A000.000" + Named("a") + block);
    const std::string whole = Header("A", "01") + block;
    struct Case {
        const char* what;
        std::size_t offset;  // in header and block
        std::string bytes;
    };
    const Case cases[] = {
        {"user", 0, "lee02"},
        {"no name", 10, "    "},
        {"control byte in the name", 10, "te\nt"},
        {"zero byte", 10, std::string("t\0xt", 4)},
        {"half a character", 13, "\xb0"},
        {"no character of CP949", 10, "\xff\xff"},
        {"position", 90, "3"},
        {"filler", 92, "x"},
        {"sectors", 95, "2"},
        {"portfolio", 96, "4"},
        {"account without holdings", 97, "1"},
        {"recommendation", 108, "4"},
        {"fewer groups than listed", 109, "0000"},
        {"more groups than listed", 109, "0002"},
        {"more groups than there is room for", 109, "0201"},
        {"group count", 109, "00x1"},
        {"group code", 113, "A;L"},
        {"exclusion", 713, "2"},
        {"unused exclusion", 720, "1"},
        {"month code", 723, "6"},
        {"month without its code", 724, "12"},
        {"month 13", 723, "513"},
        {"month that has a code", 723, "503"},
        {"no expression", 726, " "},
        {"letter of another alphabet", 726, "a"},
        {"word", 726, "(A)AND(A)"},
        {"blank in the expression", 726, "A &A"},
        {"wrong expression", 726, "A&"},
        {"letters side by side", 726, "AA"},
        {"no conditions", 826, "00"},
        {"more conditions than there are", 826, "02"},
        {"21 conditions", 826, "21"},
        {"count", 826, "1 "},
        {"family", 828, "T"},
        {"no family", 828, " "},
        {"value flag", 829, "2"},
        {"use flag", 830, " "},
        {"letter", 831, "a"},
        {"indicator", 832, "049999"},
        {"variant", 838, "421"},
        {"number", 838, "4 2"},
        {"value that would break the saved file", 860, "1|2"},
        {"control byte in a value", 860, "\t"},
        {"high byte in a value", 860, "\xb0\xa1"},
        {"bytes beside the values", 828 + 60, "1"},
    };
    for (const Case& c : cases) {
        std::string damaged = whole;
        Put(damaged, c.offset, c.bytes);
        EXPECT_EQ(Ask("A000.001" + damaged), "A0" + kNine + "  000.001") << c.what;
        EXPECT_TRUE(failure.starts_with("pisodbop A of \"kim01\": ")) << c.what;
        EXPECT_EQ(failure.find('\n'), failure.npos) << c.what;
        EXPECT_EQ(Ask("E000.001" + damaged).substr(0, 2), "E0") << c.what;
    }
    EXPECT_EQ(Ask("A000.001" + Header("A", "02") + block + block).substr(0, 2), "A0") << "a letter twice";
    EXPECT_EQ(Ask("A000.001" + whole + block).substr(0, 2), "A0") << "a block too many";
    EXPECT_EQ(List().substr(13), "000.0010001" + Named("a", "00") + block);
    EXPECT_EQ(Ask("A000.001" + whole).substr(0, 2), "A1") << failure;
}

TEST_F(StoreServiceTest, ThingsOfOtherCommandsThatAreRefused) {
    Ask("A000.000" + Named("a") + block);
    Ask("A000.001" + Named("b") + block);
    std::string otherUser = Named("a", "00");
    Put(otherUser, 0, "lee02");
    for (const std::string& payload :
         {"E000.002" + Named("x", "99") + block, "E000.002" + Named("x", "-1") + block,
          "D000.002" + Named("a", "99") + Places(block), "D000.002" + Named("a", "02") + Places(block),
          "D000.002" + Named("a", "00") + block, "D000.002" + Named("a", "00") + Places(block) + " ",
          "D000.002" + Named("a", "00", "00") + Places(block),
          "D000.002" + Named("a", "00", "21") + Places(block), "D000.002" + otherUser + Places(block)})
        EXPECT_EQ(Ask(payload), payload.substr(0, 1) + "0" + kNine + "  000.002") << payload.substr(0, 100);
    for (const char* order :
         {"lee02   00020100", "kim01   000101", "kim01   00020101", "kim01   000201", "kim01   0003010002",
          "kim01   000201000", "kim01   00020199", "kim01   0002010x", "kim01   -002", "kim01   9999"})
        EXPECT_EQ(Ask(std::string("C000.002") + order), "C0        000.002") << order;
    for (const char* list : {"V0lee02   00000.000", "V0kim01   01000.000", "V1kim01   99000.000",
                             "V1kim01   00nothing", "V2kim01   00000.000", "V0kim01   00000.0000"})
        EXPECT_EQ(Ask(list), "") << list;
    EXPECT_EQ(Ask("X"), "");
    EXPECT_EQ(Ask(""), "");
    EXPECT_EQ(List().substr(13, 11), "000.0020002");
}

TEST_F(StoreServiceTest, CutAndRandomPayloadsOnlyFail) {
    Ask("A000.000" + Named("a") + block);
    const std::string before = List();
    const std::string wholes[] = {"A000.001" + Header("A", "02") + block + PriceBlock('B', "1", "2"),
                                  "E000.001" + Named("x", "00") + block,
                                  "D000.001" + Named("a", "00") + Places(block), "C000.001kim01   000100",
                                  "V1kim01   00000.001"};
    std::mt19937 random(11);
    for (const std::string& whole : wholes) {
        const char letter = whole.front();
        const std::size_t size = letter == 'V' ? 0 : letter == 'C' ? 17 : 20;
        for (std::size_t length = 1; length < whole.size(); ++length) {
            const std::string reply = Ask(whole.substr(0, length));
            ASSERT_EQ(reply.size(), size) << letter << length;
            ASSERT_EQ(reply.substr(0, 2), size ? letter + std::string("0") : "") << letter << length;
        }
        ASSERT_EQ(List(), before);
        for (int round = 0; round < 300; ++round) {
            std::string noise(random() % 3000, ' ');
            std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random()); });
            ASSERT_EQ(Ask(letter + noise).size(), size);
        }
        ASSERT_EQ(List(), before);
    }
    for (int round = 0; round < 2000; ++round) {
        std::string damaged = wholes[random() % std::size(wholes)];
        for (int i = 0; i < 2; ++i)
            damaged[1 + random() % (damaged.size() - 1)] = static_cast<char>(random());
        Ask(damaged);
        const std::string list = List();
        ASSERT_EQ(list.substr(0, 2), "VD");
        ASSERT_EQ(Ask("V0kim01   00" + list.substr(13, 7)).substr(0, 2), "VE");
    }
}

// Sets of twenty conditions, 2248 bytes each: fourteen of them fit into a packet.
class StoreServiceChainTest : public StoreServiceTest {
protected:
    StoreServiceChainTest() {
        std::string blocks;
        for (char letter = 'A'; letter <= 'T'; ++letter) blocks += PriceBlock(letter, "1", "2");
        for (int number = 0; number < 40; ++number)
            Ask("A000.0" + std::to_string(100 + number).substr(1) + Named("s", "99", "20") + blocks);
    }

    std::string Next(const std::string& number, const std::string& version = "000.040") {
        return Ask("V1kim01   " + number + version);
    }

    static std::string HeadOf(const std::string& packet) { return packet.substr(0, 24); }
    static std::string NumberOf(const std::string& packet, std::size_t record) {
        return packet.substr(24 + 2248 * record + 8, 2);
    }
};

TEST_F(StoreServiceChainTest, PacketsGoOnUntilAllIsTold) {
    std::string packet = List();
    EXPECT_EQ(HeadOf(packet), "VD1        14000.0400014");
    EXPECT_EQ(packet.size(), 24u + 14 * 2248);
    packet = Next("14");
    EXPECT_EQ(HeadOf(packet), "VD1        28000.0400014");
    EXPECT_EQ(NumberOf(packet, 0), "14");
    packet = Next("28");
    EXPECT_EQ(HeadOf(packet), "VD0          000.0400012");
    EXPECT_EQ(NumberOf(packet, 11), "39");
}

TEST_F(StoreServiceChainTest, AListFromTwoStatesIsToldUnderTheOlderOne) {
    List();
    Ask("D000.040" + Named("s", "14", "00") + Places(""));
    std::string packet = Next("14");
    EXPECT_EQ(HeadOf(packet), "VD1        29000.0400014");
    EXPECT_EQ(NumberOf(packet, 0), "15");
    Ask("A000.041" + Named("new") + block);  // takes 14, which this chain has passed
    Ask("E000.042" + Named("new", "98") + block);
    packet = Next("29");
    EXPECT_EQ(HeadOf(packet), "VD0          000.0400012");
    EXPECT_EQ(NumberOf(packet, 11), "98");
    EXPECT_EQ(Ask("V0kim01   00000.040").substr(0, 3), "VD1") << "what the chain told is fetched again";
    EXPECT_EQ(Ask("E000.040" + Named("x", "00") + block), "E0" + kNine + "  000.043");
}

TEST_F(StoreServiceChainTest, AChainWhoseRestIsGoneEndsWithAnEmptyPacket) {
    List();
    Ask("C000.040kim01   0040" + [] {
        std::string numbers;
        for (int number = 39; number >= 0; --number) numbers += std::to_string(100 + number).substr(1);
        return numbers;
    }());
    for (int number = 14; number < 40; ++number)
        Ask("D000.0" + std::to_string(41 + number - 14) + Named("s", std::to_string(number), "00") +
            Places(""));
    EXPECT_EQ(Next("14"), "VD0          000.0400000");
}

TEST(LocalServiceTest, SharesTransactionsOutByTheirNames) {
    const market::ScratchFolder folder;
    LocalService service(test::TestMarket(), std::make_unique<StoreService>(folder / "sets"));
    const std::string search =
        test::SearchPayload({.header = Header("A", "01"), .blocks = PriceBlock('A', "1", "9")});
    EXPECT_EQ(service.Handle({"kim01", 1, "pisodbop", 0xA1, "V0kim01   00000.000"}).substr(0, 2), "VE");
    EXPECT_EQ(service.Handle(test::SearchRequest(search)).substr(0, 2), "T1");
    EXPECT_EQ(service.Handle({"kim01", 1, "PIBOFIDJ", 0xFF, "1"}), "");
    LocalService without(test::TestMarket(), nullptr);
    EXPECT_EQ(without.Handle({"kim01", 1, "pisodbop", 0xA1, "V0kim01   00000.000"}), "");
}

TEST(StoreServiceFaultTest, AStoreThatFailsHasThePlainAnswer) {
    const market::ScratchFolder folder;
    std::string failure;
    StoreService service(folder / "sets", [&](const std::string& why) { failure = why; });
    store::Database(folder / "sets").Run("DROP TABLE sets; DROP TABLE users");
    const std::string save = "A000.007" + Header("A", "01") + PriceBlock('A', "1", "9");
    EXPECT_EQ(service.Handle({"kim01", 1, "pisodbop", 0xA2, save}), "A0" + kNine + "  000.007");
    EXPECT_NE(failure.find("sets: can't be used"), failure.npos) << failure;
    EXPECT_EQ(service.Handle({"kim01", 1, "pisodbop", 0xA1, "V0kim01   00000.000"}), "");
}

}  // namespace
}  // namespace jogeon::service
