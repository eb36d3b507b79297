#include <set>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "server/engine/market_groups.h"
#include "server/engine/sectors.h"
#include "server/engine/user_groups.h"
#include "server/market/generated_market.h"
#include "tests/server/engine/test_market.h"

namespace jogeon::engine {
namespace {

std::string_view SectorName(std::string_view industry) {
    return AllSectors()[static_cast<std::size_t>(SectorOf(industry))].name;
}

TEST(SectorsTest, IndustryTextsFindTheirSector) {
    const std::pair<const char*, const char*> cases[] = {
        {"의약품 도매업", "유통"},  // a dealer, whatever he deals in
        {"자동차 판매업", "유통"},
        {"화학섬유 제조업", "섬유·의류"},
        {"의료용품 및 기타 의약 관련제품 제조업", "제약"},
        {"의료용 기기 제조업", "의료·정밀기기"},
        {"구조용 금속제품, 탱크 및 증기발생기 제조업", "금속"},
        {"기타 비금속 광물제품 제조업", "비금속"},
        {"철도장비 제조업", "운송장비·부품"},
        {"해상 운송업", "운송·창고"},
        {"통신 및 방송 장비 제조업", "전기·전자"},
        {"전기 통신업", "통신"},
        {"금융 지원 서비스업", "증권"},
        {"컴퓨터 프로그래밍, 시스템 통합 및 관리업", "IT 서비스"},
        {"부동산 관련 서비스업", "부동산"},
        {"광고업", "일반서비스"},
        {"보험", "보험"},  // by the sector's own name
        {"어로 어업", "기타"},
        {"", "기타"},
    };
    for (const auto& [industry, sector] : cases) EXPECT_EQ(SectorName(industry), sector) << industry;
}

TEST(MarketGroupsTest, EveryStockOfAnExchangeIsInOneOfItsSectors) {
    const auto market = market::GenerateMarket();
    const MarketGroups groups = BuildMarketGroups(*market);
    indicators::BitSet all(market->Instruments().size());
    std::size_t members = 0, codes = 0;
    for (const GroupList* list : {&groups.kospi, &groups.kosdaq})
        for (const StockGroup& group : *list) {
            all |= group.members;
            members += group.members.Count();
        }
    EXPECT_EQ(all.Count(), market->Instruments().size());
    EXPECT_EQ(members, market->Instruments().size()) << "a stock stands in two sectors";

    std::set<std::string> seen;
    const std::pair<const GroupList*, char> lists[] = {{&groups.kospi, '0'},
                                                       {&groups.kosdaq, '1'},
                                                       {&groups.kospi200, '2'},
                                                       {&groups.kostar, '3'},
                                                       {&groups.krx100, '4'}};
    for (const auto& [list, first] : lists) {
        EXPECT_FALSE(list->empty());
        for (const StockGroup& group : *list) {
            EXPECT_EQ(group.code.size(), 3u);
            EXPECT_EQ(group.code[0], first);
            EXPECT_TRUE(seen.insert(group.code).second) << group.code;
            EXPECT_TRUE(TryToCp949(group.name)) << group.name;
            ++codes;
        }
    }
    EXPECT_LE(codes, 200u) << "a request has room for 200 codes";
    std::size_t krx = 0;
    for (const StockGroup& group : groups.krx100) krx += group.members.Count();
    EXPECT_EQ(krx, 100u);
}

TEST(UserGroupsTest, ThemesAreMadeOfTheMarket) {
    const GroupList themes = ExampleThemes(*market::GenerateMarket());
    EXPECT_FALSE(themes.empty());
    for (const StockGroup& group : themes) {
        EXPECT_GT(group.members.Count(), 0u) << group.name;
        EXPECT_EQ(group.code[0], '6');
    }
}

}  // namespace
}  // namespace jogeon::engine
