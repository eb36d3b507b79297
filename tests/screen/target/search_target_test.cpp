#include "screen/target/search_target.h"

#include <gtest/gtest.h>

#include "screen/text/cp949.h"

namespace jogeon {
namespace {

std::string Label(const TargetFields& target) {
    return ToUtf8(BuildTargetLabel(target, [](const std::string& account) { return "00" + account; }));
}

TargetFields Target(int upjong, int portfolio, int recommend, std::vector<std::string> group) {
    TargetFields target;
    target.Upjong = upjong;
    target.Portfolio = portfolio;
    target.Recommend = recommend;
    target.Group = std::move(group);
    return target;
}

TEST(SearchTargetTest, StartsWithAllSectors) {
    const SearchTarget target = SearchTarget::ForNewScreen();
    EXPECT_EQ(target.Upjong, 1);
    EXPECT_EQ(target.Group, std::vector<std::string>{"ALL"});
    EXPECT_EQ(ToUtf8(target.m_strTargetLabel), "<업종대상(전체)><제외없음><전체월결산>");
    EXPECT_EQ(Label(target), "<업종대상(전체)><제외없음><전체월결산>");
    EXPECT_FALSE(HasUniverse(SearchTarget()));
}

TEST(SearchTargetTest, NamesTheUniverse) {
    const struct {
        TargetFields target;
        const char* part;
        TargetTab tab;
    } cases[] = {{Target(1, 0, 0, {"301", "101", "002", "003"}), "<업종대상(거래소,코스닥,KOSTAR)>",
                  TargetTab::Sector},
                 {Target(1, 0, 0, {"201"}), "<업종대상(KOSPI200)>", TargetTab::Sector},
                 {Target(1, 0, 0, {"401"}), "<업종대상()>", TargetTab::Sector},
                 {Target(1, 0, 0, {}), "<업종대상()>", TargetTab::Sector},
                 {Target(1, 3, 1, {"ALL"}), "<업종대상(전체)>", TargetTab::Sector},
                 {Target(0, 1, 1, {"0AL"}), "<추천대상(테마)>", TargetTab::Recommend},
                 {Target(0, 0, 2, {"902", "908"}), "<추천대상(뉴스)>", TargetTab::Recommend},
                 {Target(0, 0, 3, {"902", "017"}), "<추천대상(테마,뉴스)>", TargetTab::Recommend},
                 {Target(0, 1, 0, {"0AL"}), "<포트폴리오(관심)>", TargetTab::Portfolio},
                 {Target(0, 0, 0, {"ALL"}), "", TargetTab::Sector}};
    for (const auto& c : cases) {
        EXPECT_EQ(Label(c.target), std::string(c.part) + "<제외없음><전체월결산>");
        EXPECT_EQ(ActiveTab(c.target), c.tab) << c.part;
    }
}

TEST(SearchTargetTest, NamesTheHoldingsByTheShownAccount) {
    TargetFields target = Target(0, 2, 0, {});
    target.Acc = "123456789";
    EXPECT_EQ(Label(target), "<포트폴리오(보유:0012-3456)><제외없음><전체월결산>");
    target.Portfolio = 3;
    target.Group = {"001"};
    target.Except10 = 1;
    target.Acc = "12";
    EXPECT_EQ(Label(target), "<포트폴리오(관심,보유:0012-)제외><제외없음><전체월결산>");
}

TEST(SearchTargetTest, NamesExclusionsAndMonth) {
    TargetFields target = Target(1, 0, 0, {"ALL"});
    target.Except3 = target.Except10 = 1;
    target.Month = 4;
    EXPECT_EQ(Label(target), "<업종대상(전체)><제외없음><4월결산>");
    target.Except1 = target.Except2 = target.Except4 = target.Except5 = target.Except6 = target.Except7 = 1;
    EXPECT_EQ(ToUtf8(ExclusionPart(target)),
              "<관리+투자경고/위험+우선주+담보대출불가능+증거금100%+거래정지제외>");
    target.Except1 = 0;
    target.Except4 = 2;
    EXPECT_EQ(ToUtf8(ExclusionPart(target)), "<투자경고/위험+담보대출불가능+증거금100%+거래정지제외>");
}

TEST(SearchTargetTest, GoesIntoASavedSetAndBack) {
    TargetFields target = Target(0, 3, 0, {"0AL", "001"});
    target.Acc = "1234567890";
    target.Except7 = 1;
    target.Month = 9;
    CSavedIndexInfo saved;
    saved.Name = "kept";
    saved.Group = {"ALL"};
    StoreTarget(target, saved);
    EXPECT_EQ(saved.Name, "kept");
    EXPECT_EQ(saved.Group, target.Group);
    EXPECT_EQ(saved.Acc, "1234567890");

    const SearchTarget back = TargetOfSaved(saved, [](const std::string& account) { return account; });
    EXPECT_TRUE(static_cast<const TargetFields&>(back) == target);
    EXPECT_EQ(ToUtf8(back.m_strTargetLabel), "<포트폴리오(관심,보유:1234-5678)><거래정지제외><9월결산>");
}

}  // namespace
}  // namespace jogeon
