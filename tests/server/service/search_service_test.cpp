#include "server/service/search_service.h"

#include <algorithm>
#include <random>
#include <thread>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "tests/server/engine/test_market.h"
#include "tests/server/service/requests.h"

namespace jogeon::service {
namespace {

using test::ChangeBlock;
using test::CodesOfRows;
using test::Header;
using test::PagePayload;
using test::PriceBlock;
using test::Put;
using test::SearchPayload;
using test::SearchText;

const std::string kFailedSearch = "T0" + std::string(26, ' ');
const std::string kFailedPage = "N0" + std::string(26, ' ');

class SearchServiceTest : public testing::Test {
protected:
    std::string Ask(const std::string& payload, std::uint32_t window = 0x2a,
                    const std::string& user = "kim01") {
        return service.Handle(test::SearchRequest(payload, window, user));
    }

    // The codes that a search without columns finds, or the bytes of its failure.
    std::string Find(const SearchText& text) {
        const std::string reply = Ask(SearchPayload(text));
        return reply.starts_with("T1") ? CodesOfRows(reply, 28, 12) : reply;
    }

    std::string failure;
    SearchService service{test::TestMarket(), [this](const std::string& why) { failure = why; }};
};

TEST_F(SearchServiceTest, ReplyIsLaidOutByteForByte) {
    SearchText text{.header = Header("A", "01"), .blocks = PriceBlock('A', "19000", "30000", true)};
    text.columns = "00049003900590060042";  // the last one is no column of ours
    const std::string reply = Ask(SearchPayload(text));
    EXPECT_EQ(reply,
              "T1        "
              "00"
              "0002"
              "0002"
              "0002"
              "0004"
              "9003"
              "9005"
              "9006"
              "9501"
              "K000020     "
              "20000    "
              "0.05    "
              "300         "
              "20000       "
              "Q100010     "
              "30000    "
              "0.03    "
              "90          "
              "30000       ");
}

TEST_F(SearchServiceTest, ExpressionIsEvaluatedWithThreeValues) {
    const std::string cheap = PriceBlock('A', "0", "4000");
    const std::string risen = ChangeBlock('B', "4", "0", "99");  // unknown for 100040, which is two days old
    EXPECT_EQ(Find({.header = Header("A", "01"), .blocks = cheap}),
              "K000030 K000040 Q100020 Q100030 Q100060");
    EXPECT_EQ(Find({.header = Header("!A", "01"), .blocks = cheap}),
              "K000010 K000020 K000025 Q100010 Q100040");
    EXPECT_EQ(Find({.header = Header("!A&B", "02"), .blocks = cheap + risen}),
              "K000010 K000020 K000025 Q100010");
    EXPECT_EQ(Find({.header = Header("!A&!B", "02"), .blocks = cheap + risen}), "");
    EXPECT_EQ(Find({.header = Header("B|!B", "02"), .blocks = cheap + risen}),
              "K000010 K000020 K000025 K000030 K000040 Q100010 Q100020 Q100030 Q100060");
}

TEST_F(SearchServiceTest, ValuesComeInListOrderAndStayBlankWhereUnknown) {
    SearchText text{.header = Header("A", "02")};
    text.blocks = ChangeBlock('C', "4", "0", "0", true) + PriceBlock('A', "7000", "20000", true);
    EXPECT_EQ(Ask(SearchPayload(text)),
              "T1        "
              "00"
              "0002"
              "0002"
              "0002"
              "0002"
              "9503"
              "9501"
              "K000020     "
              "0.20        "
              "20000       "
              "Q100040     "
              "            "
              "7000        ");
}

TEST_F(SearchServiceTest, NarrowsByTheCodesOfAnEarlierResult) {
    const std::string codes = "0003K000010     Q100060     K999999     ";
    SearchText text{
        .scope = "1", .header = Header("A", "01"), .blocks = PriceBlock('A', "0", "99999"), .codes = codes};
    EXPECT_EQ(Find(text), "K000010 Q100060");
    text.scope = "2";
    EXPECT_EQ(Find(text), "K000020 K000025 K000030 K000040 Q100010 Q100020 Q100030 Q100040");
}

TEST_F(SearchServiceTest, TargetOfTheHeaderCounts) {
    SearchText text{.header = Header("A", "01"), .blocks = PriceBlock('A', "0", "99999")};
    Put(text.header, 109, "0002017112");
    EXPECT_EQ(Find(text), "K000020 K000025 Q100020 Q100060");
    Put(text.header, 716, "1");  // no preferred stocks
    EXPECT_EQ(Find(text), "K000020 Q100020 Q100060");
    Put(text.header, 723, "512");  // settled in the month 12
    EXPECT_EQ(Find(text), "K000020 Q100020");

    const std::string account = service.Accounts("kim01").at(0);
    SearchText held{.header = Header("A", "01"), .blocks = PriceBlock('A', "0", "99999")};
    Put(held.header, 95, "02" + account + "00000   ");
    EXPECT_EQ(Find(held), "K000025 K000030 Q100010") << "the first, third and sixth by market value";
}

TEST_F(SearchServiceTest, WhatCantBeEvaluatedFails) {
    const std::string block = PriceBlock('A', "0", "9");
    struct Case {
        const char* what;
        SearchText text;
    };
    std::string unknown = block, family = block, number = block, unused = block, empty = block;
    Put(unknown, 4, "049999");
    Put(family, 0, "T");
    Put(number, 10, "421");
    Put(unused, 2, "0");
    Put(empty, 32, std::string(18, ' '));
    std::string groups = Header("A", "01"), month = groups, noGroup = groups, manyGroups = groups;
    Put(groups, 95, "0");
    Put(month, 723, "513");
    Put(noGroup, 109, "0000   ");
    Put(manyGroups, 109, "0201");
    const Case cases[] = {
        {"no block", {.header = Header("A", "00")}},
        {"letter without a block", {.header = Header("A&B", "01"), .blocks = block}},
        {"letter twice", {.header = Header("A", "02"), .blocks = block + block}},
        {"no expression", {.header = Header("", "01"), .blocks = block}},
        {"bad expression", {.header = Header("A&", "01"), .blocks = block}},
        {"unknown indicator", {.header = Header("A", "01"), .blocks = unknown}},
        {"another family's letter", {.header = Header("A", "01"), .blocks = family}},
        {"a variant that isn't there", {.header = Header("A", "01"), .blocks = number}},
        {"a condition that isn't in use", {.header = Header("A", "01"), .blocks = unused}},
        {"a condition without its values", {.header = Header("A", "01"), .blocks = empty}},
        {"no universe", {.header = groups, .blocks = block}},
        {"no group", {.header = noGroup, .blocks = block}},
        {"more groups than there is room for", {.header = manyGroups, .blocks = block}},
        {"month 13", {.header = month, .blocks = block}},
        {"scope", {.scope = "3", .header = Header("A", "01"), .blocks = block}},
        {"count of blocks", {.header = Header("A", "x1"), .blocks = block}},
        {"more columns than listed", {.header = Header("A", "01"), .blocks = block, .columns = "00029003"}},
        {"columns behind the end", {.header = Header("A", "01"), .blocks = block, .columns = "00009003"}},
        {"negative count", {.header = Header("A", "01"), .blocks = block, .columns = "-001"}},
        {"no codes to narrow by", {.scope = "1", .header = Header("A", "01"), .blocks = block}},
        {"codes unasked", {.header = Header("A", "01"), .blocks = block, .codes = "0000"}},
    };
    for (const Case& c : cases) {
        failure.clear();
        EXPECT_EQ(Ask(SearchPayload(c.text)), kFailedSearch) << c.what;
        EXPECT_FALSE(failure.empty()) << c.what;
    }
}

TEST_F(SearchServiceTest, ReasonOfAFailureIsOneLineWhateverTheRequestHolds) {
    Ask(SearchPayload({.header = Header("A&&\xb0\xa1\r\nB", "01"), .blocks = PriceBlock('A', "0", "9")}));
    EXPECT_EQ(failure, "\"A&&????B\" is no expression over condition letters");
}

TEST_F(SearchServiceTest, EmptyResultIsNoFailure) {
    EXPECT_EQ(Ask(SearchPayload({.header = Header("A", "01"), .blocks = PriceBlock('A', "1", "2")})),
              "T1        "
              "00"
              "0000"
              "0000"
              "0000"
              "0000");
}

TEST_F(SearchServiceTest, OtherTransactions) {
    const std::string version = "V0kim01   00000.000";
    EXPECT_EQ(service.Handle({"kim01", 1, "pisodbop", 0xA1, version}), "");
    EXPECT_EQ(service.Handle({"kim01", 1, "pisodbop", 0xA1, version.substr(0, 18)}), "");
    EXPECT_EQ(service.Handle({"kim01", 1, "PIBOFIDJ", 0xFF, "1"}), "");
    EXPECT_EQ(service.Handle({"kim01", 1, "pisodbop", 0xA1, SearchPayload({.header = Header("A", "00")})}),
              "");
    EXPECT_EQ(Ask(""), "");
    EXPECT_EQ(Ask("Q"), "");
}

TEST_F(SearchServiceTest, CutAndRandomPayloadsOnlyFail) {
    SearchText text{.scope = "1", .header = Header("A&B", "02"), .codes = "0002K000010     K000020     "};
    text.blocks = PriceBlock('A', "0", "9") + ChangeBlock('B', "1", "0", "9");
    text.columns = "000290039004";
    const std::string whole = SearchPayload(text);
    ASSERT_TRUE(Ask(whole).starts_with("T1")) << failure;
    for (std::size_t length = 1; length < whole.size(); ++length)
        ASSERT_EQ(Ask(whole.substr(0, length)), kFailedSearch) << length;
    const std::string page = PagePayload("00", "0000");
    for (std::size_t length = 1; length < page.size(); ++length)
        ASSERT_EQ(Ask(page.substr(0, length)), kFailedPage) << length;

    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        std::string damaged = whole;
        for (int i = 0; i < 4; ++i)
            damaged[1 + random() % (damaged.size() - 1)] = static_cast<char>(random());
        const std::string reply = Ask(damaged);
        ASSERT_TRUE(reply.starts_with("T0") || reply.starts_with("T1"));
        std::string noise(random() % 2000, ' ');
        std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random()); });
        Ask("T" + noise);
        Ask("N" + noise);
        service.Handle({"kim01", 1, "pisodbop", 1, noise});
    }
}

TEST_F(SearchServiceTest, CodeListsByClass) {
    std::map<std::string, std::vector<std::string>> lists = {{"0202", {"old"}}, {"0203", {}}, {"0204", {}},
                                                             {"0502", {}},      {"0504", {}}, {"0505", {}},
                                                             {"0999", {"old"}}};
    ASSERT_TRUE(service.FillCodeLists("kim01", lists));
    const std::vector<std::string> kospi = {"005 제약"_cp949, "012 전기·전자"_cp949, "014 건설"_cp949,
                                            "017 은행"_cp949};
    EXPECT_EQ(lists["0202"], kospi);
    EXPECT_EQ(lists["0204"], std::vector<std::string>{"201 KOSPI200 1~50위"_cp949});
    EXPECT_EQ(lists["0504"].front(), "005 거래소 제약"_cp949);
    EXPECT_EQ(lists["0504"].size(), kospi.size() + lists["0203"].size() + 3);
    EXPECT_EQ(lists["0502"].front(), "501 대형주"_cp949);
    EXPECT_EQ(lists["0505"].front(), "601 반도체"_cp949);
    EXPECT_TRUE(lists["0999"].empty());
    EXPECT_EQ(service.StockName("100030"), "사호스팩"_cp949);
    EXPECT_EQ(service.StockName("1"), "");
}

// 450 stocks on one price: three pages.
std::shared_ptr<const market::Market> Crowd(int stocks) {
    market::MarketBuilder builder;
    for (int i = 0; i < stocks; ++i) {
        market::Instrument stock;
        stock.code = std::to_string(100000 + i);
        builder.AddBar(builder.AddInstrument(stock), 20260302, 1000, 1000, 1000, 1000, 1);
    }
    return builder.Build();
}

const std::string kEveryStock =
    SearchPayload({.header = Header("A", "01"), .blocks = PriceBlock('A', "1", "9999")});

std::string HeadOf(const std::string& reply) {
    return reply.substr(0, 28);
}

TEST(SearchServicePagesTest, PagesGoOnFromWhatTheAskerHas) {
    SearchService service(Crowd(450));
    const auto ask = [&](const std::string& payload, std::uint32_t window = 7, const char* user = "kim01") {
        return service.Handle(test::SearchRequest(payload, window, user));
    };
    std::string reply = ask(kEveryStock);
    EXPECT_EQ(HeadOf(reply),
              "T1        "
              "00"
              "0450"
              "0200"
              "0200"
              "0000");
    EXPECT_EQ(reply.size(), 28u + 200 * 12);
    EXPECT_EQ(reply.substr(28, 12), "K100000     ");
    reply = ask(PagePayload("00", "0200"));
    EXPECT_EQ(HeadOf(reply),
              "N1        "
              "00"
              "0450"
              "0400"
              "0200"
              "0000");
    EXPECT_EQ(reply.substr(28, 12), "K100200     ");
    reply = ask(PagePayload("00", "0400"));
    EXPECT_EQ(HeadOf(reply),
              "N1        "
              "00"
              "0450"
              "0450"
              "0050"
              "0000");
    EXPECT_EQ(reply.substr(reply.size() - 12), "K100449     ");
    EXPECT_EQ(HeadOf(ask(PagePayload("00", "0450"))),
              "N1        "
              "00"
              "0450"
              "0450"
              "0000"
              "0000");
    EXPECT_EQ(HeadOf(ask(PagePayload("00", "0010"))),
              "N1        "
              "00"
              "0450"
              "0210"
              "0200"
              "0000");
    EXPECT_EQ(ask(PagePayload("00", "0451")), kFailedPage);
    EXPECT_EQ(ask(PagePayload("01", "0000")), kFailedPage);
    EXPECT_EQ(ask(PagePayload("00", "0200"), 8), kFailedPage) << "another window";
    EXPECT_EQ(ask(PagePayload("00", "0200"), 7, "lee02"), kFailedPage) << "another user";
}

TEST(SearchServicePagesTest, ReleaseForgetsTheWindowsResultsOnly) {
    SearchService service(Crowd(450));
    const auto ask = [&](const std::string& payload, std::uint32_t window) {
        return service.Handle(test::SearchRequest(payload, window));
    };
    ask(kEveryStock, 7);
    EXPECT_EQ(HeadOf(ask(kEveryStock, 7)).substr(10, 2), "01") << "a second result has its own number";
    ask(kEveryStock, 8);
    EXPECT_EQ(ask("Z00000007kim01   99", 7), "");
    EXPECT_EQ(ask(PagePayload("00", "0200"), 7), kFailedPage);
    EXPECT_EQ(ask(PagePayload("01", "0200"), 7), kFailedPage);
    EXPECT_TRUE(ask(PagePayload("00", "0200"), 8).starts_with("N1"));
    for (int i = 0; i < 99; ++i) ask(kEveryStock, 7);
    EXPECT_EQ(HeadOf(ask(kEveryStock, 7)).substr(10, 2), "00") << "99 numbers, then the oldest one's again";
}

TEST(SearchServicePagesTest, TotalHasFourDigits) {
    SearchService service(Crowd(10'050));
    EXPECT_EQ(HeadOf(service.Handle(test::SearchRequest(kEveryStock))),
              "T1        "
              "00"
              "9999"
              "0200"
              "0200"
              "0000");
    const std::string last = service.Handle(test::SearchRequest(PagePayload("00", "9900")));
    EXPECT_EQ(HeadOf(last),
              "N1        "
              "00"
              "9999"
              "9999"
              "0099"
              "0000");
    EXPECT_EQ(last.substr(last.size() - 12), "K109998     ");
}

TEST(SearchServicePagesTest, WindowsThatReleaseNothingAreForgottenInTheEnd) {
    SearchService service(Crowd(250));
    for (std::uint32_t window = 0; window < 65; ++window)
        service.Handle(test::SearchRequest(kEveryStock, window));
    EXPECT_EQ(service.Handle(test::SearchRequest(PagePayload("00", "0200"), 0)), kFailedPage);
    EXPECT_TRUE(service.Handle(test::SearchRequest(PagePayload("00", "0200"), 1)).starts_with("N1"));
}

TEST(SearchServicePagesTest, SeveralThreadsGetTheirOwnPages) {
    SearchService service(Crowd(450));
    std::vector<std::string> wrong(4);
    std::vector<std::thread> threads;
    for (std::uint32_t window = 0; window < wrong.size(); ++window)
        threads.emplace_back([&service, &wrong, window] {
            for (int round = 0; round < 20; ++round) {
                const std::string first = service.Handle(test::SearchRequest(kEveryStock, window));
                const std::string next =
                    service.Handle(test::SearchRequest(PagePayload(first.substr(10, 2), "0200"), window));
                if (next.substr(28, 12) != "K100200     ") wrong[window] = next;
                std::map<std::string, std::vector<std::string>> lists = {{"0502", {}}};
                service.FillCodeLists("user" + std::to_string(round % 3), lists);
            }
        });
    for (std::thread& thread : threads) thread.join();
    for (const std::string& reply : wrong) EXPECT_EQ(reply, "");
}

}  // namespace
}  // namespace jogeon::service
