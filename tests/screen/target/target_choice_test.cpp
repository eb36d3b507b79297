#include "screen/target/target_choice.h"

#include <sstream>

#include <gtest/gtest.h>

#include "screen/text/bytes.h"
#include "tests/screen/support/recorders.h"
#include "tests/screen/support/target_lists.h"

namespace jogeon::test {
namespace {

constexpr TargetTab kTabs[] = {TargetTab::Sector, TargetTab::Portfolio, TargetTab::Recommend};

// A target in one line: "S" and its codes, "P" or "R" with the kind and its codes, "@" before an account.
TargetFields FieldsOf(const std::string& text) {
    TargetFields target;
    std::istringstream words(text);
    std::string word;
    while (words >> word) {
        if (word == "S") {
            target.Upjong = 1;
        } else if (word[0] == 'P') {
            target.Portfolio = word[1] - '0';
        } else if (word[0] == 'R') {
            target.Recommend = word[1] - '0';
        } else if (word[0] == '@') {
            target.Acc = word.substr(1);
        } else {
            target.Group.push_back(word);
        }
    }
    return target;
}

std::string LineOf(const TargetFields& target) {
    std::string line;
    if (target.Upjong) line += "S ";
    if (target.Portfolio) line += "P" + Decimal(target.Portfolio) + " ";
    if (target.Recommend) line += "R" + Decimal(target.Recommend) + " ";
    for (const std::string& code : target.Group) line += code + " ";
    if (!target.Acc.empty()) line += "@" + target.Acc + " ";
    return std::string(TrimRight(line));
}

class DashedLinks : public RecordingLinkStore {
public:
    std::string NVLink_GetAccountFmt(const std::string& account, int) override {
        return account.substr(0, 8) + "-" + account.substr(8);
    }
};

class TargetChoiceTest : public testing::Test {
protected:
    TargetChoiceTest() { links_.accounts = {"12345678901", "55556666777"}; }

    // Toggles the nodes of a text like "0 1.2": branch, or branch and leaf.
    static void Click(TargetTree& tree, const std::string& nodes) {
        std::istringstream words(nodes);
        std::string word;
        while (words >> word) {
            const auto digit = [&word](std::size_t at) { return static_cast<std::size_t>(word[at] - '0'); };
            TargetTree::Node node{digit(0)};
            if (word.size() > 1) node.leaf = digit(2);
            tree.Toggle(node);
        }
    }

    // The checked nodes in the same form.
    static std::string Checked(const TargetTree& tree) {
        std::string nodes;
        for (std::size_t i = 0; i < tree.Branches().size(); ++i) {
            const TargetTree::Branch& branch = tree.Branches()[i];
            if (branch.checked) nodes += std::to_string(i) + " ";
            for (std::size_t j = 0; j < branch.leaves.size(); ++j) {
                if (branch.leaves[j].checked) nodes += std::to_string(i) + "." + std::to_string(j) + " ";
            }
        }
        return std::string(TrimRight(nodes));
    }

    TargetLists lists_;
    DashedLinks links_;
};

constexpr char kEverySector[] = "0 1 1.0 1.1 2 2.0 3 3.0 4 4.0 5 5.0";

// From a stored target to the checks, by way of clicks to the target that is agreed on.
TEST_F(TargetChoiceTest, ChecksComeFromATargetAndMakeOne) {
    const struct {
        const char* in;
        const char* restored;
        const char* clicks;
        const char* out;  // none where nothing is left
        const char* label;
    } cases[] = {
        {"S ALL", kEverySector, "", "S ALL", "업종대상(전체)"},
        {"S ALL", kEverySector, "1.1", "S 001 101 201 301 401",
         "업종대상(거래소,코스닥,KOSPI200,KOSTAR,KRX100)"},
        {"S ALL", kEverySector, "0", "", ""},
        {"S 001 201", "1.0 3 3.0", "1.1 2.0 4 5", "S 001 002 101 201 301 401", "업종대상(전체)"},
        {"S 001 201", "1.0 3 3.0", "0", "S ALL", "업종대상(전체)"},
        {"S 401", "5 5.0", "", "S 401", "업종대상(KRX100)"},
        {"S 999", "", "", "", ""},
        {"S x1101", "", "2", "S 101", "업종대상(코스닥)"},
        {"P1 0AL", "0 0.0 0.1", "", "P1 0AL", "포트폴리오(관심)"},
        {"P1 0AL", "0 0.0 0.1", "0.0", "P1 502", "포트폴리오(관심)"},
        {"P3 502 @55556666777", "0.1 1.1", "", "P3 502 @55556666777", "포트폴리오(관심,보유:5555-6666)"},
        {"P3 502 @55556666777", "0.1 1.1", "0.1 1.0", "P2 @12345678901", "포트폴리오(보유:1234-5678)"},
        {"P2 @55556666-777", "1.1", "1.1", "", ""},
        {"P2 @0", "", "1", "P2 @12345678901", "포트폴리오(보유:1234-5678)"},
        {"P2 @55556666777", "1.1", "1 0.0", "P1 501", "포트폴리오(관심)"},
        {"R1 0AL", "0 0.0 0.1 0.2", "", "R1 0AL", "추천대상(테마)"},
        {"R3 0AL 908", "0 0.0 0.1 0.2 1.6", "0.0 1.0", "R3 601 603 902 908", "추천대상(테마,뉴스)"},
        {"R2 903", "1.1", "1 0", "R3 0AL 902 903 904 905 906 907 908", "추천대상(전체)"},
        {"R2 902", "1.0", "1.0", "", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.in) + " then " + c.clicks);
        const TargetFields in = FieldsOf(c.in);
        const TargetTab tab = ActiveTab(in);
        TargetChoice choice(lists_, links_, in);
        EXPECT_EQ(Checked(choice.Tree(tab)), c.restored);
        for (const TargetTab other : kTabs) {
            EXPECT_TRUE(other == tab || Checked(choice.Tree(other)).empty());
        }
        Click(choice.Tree(tab), c.clicks);
        const std::optional<SearchTarget> out = choice.TargetOf(tab, {});
        EXPECT_EQ(out ? LineOf(*out) : "", c.out);
        if (out) {
            EXPECT_EQ(ToUtf8(out->m_strTargetLabel), "<" + std::string(c.label) + "><제외없음><전체월결산>");
        }
    }
}

TEST_F(TargetChoiceTest, ExclusionsAndMonthGoWithAnyTab) {
    TargetFields options;
    options.Except2 = options.Except3 = options.Except7 = options.Except10 = 1;
    options.Month = 4;
    options.Recommend = 2;  // of a target that is being left
    options.Acc = "1";
    options.Group = {"902"};
    const struct {
        const char* in;
        const char* label;
    } cases[] = {{"S ALL", "<업종대상(전체)>"},
                 {"P3 0AL @12345678901", "<포트폴리오(관심,보유:1234-5678)제외>"},
                 {"R2 908", "<추천대상(뉴스)>"}};
    for (const auto& c : cases) {
        TargetFields expected = FieldsOf(c.in);
        const auto out = TargetChoice(lists_, links_, expected).TargetOf(ActiveTab(expected), options);
        expected.Except2 = expected.Except3 = expected.Except7 = expected.Except10 = 1;
        expected.Month = 4;
        ASSERT_TRUE(out) << c.in;
        EXPECT_TRUE(static_cast<const TargetFields&>(*out) == expected) << c.in;
        EXPECT_EQ(ToUtf8(out->m_strTargetLabel),
                  std::string(c.label) + "<투자경고/위험+거래정지제외><4월결산>");
    }
}

TEST_F(TargetChoiceTest, ListsOfTheHostMayBeEmptyShortOrOddlyCoded) {
    lists_.lists = {{"0202", {"0", "", " 17 은행"_cp949, "018"}}};
    links_.accounts.clear();
    TargetChoice choice(lists_, links_, FieldsOf("S 17"));
    TargetTree& sectors = choice.Tree(TargetTab::Sector);
    EXPECT_EQ(Checked(sectors), "1.0") << "a code that a file has trimmed";
    ASSERT_EQ(sectors.Branches()[1].leaves.size(), 2u);
    EXPECT_EQ(ToUtf8(sectors.Branches()[1].leaves[0].text), "은행");
    Click(sectors, "2 3 4 5");
    EXPECT_EQ(Checked(sectors), "1.0");
    Click(sectors, "0");
    EXPECT_EQ(LineOf(*choice.TargetOf(TargetTab::Sector, {})), "S ALL");

    Click(choice.Tree(TargetTab::Portfolio), "0 1");
    Click(choice.Tree(TargetTab::Recommend), "0");
    EXPECT_FALSE(choice.TargetOf(TargetTab::Portfolio, {}));
    EXPECT_FALSE(choice.TargetOf(TargetTab::Recommend, {}));
    Click(choice.Tree(TargetTab::Recommend), "1");
    EXPECT_EQ(ToUtf8(choice.TargetOf(TargetTab::Recommend, {})->m_strTargetLabel),
              "<추천대상(뉴스)><제외없음><전체월결산>")
        << "there are no themes that could all be chosen";
}

TEST_F(TargetChoiceTest, OnlyThemesAreSorted) {
    const TargetChoice choice(lists_, links_, {});
    const auto texts = [&choice](TargetTab tab, std::size_t branch) {
        std::string all;
        for (const auto& leaf : choice.Tree(tab).Branches()[branch].leaves) all += ToUtf8(leaf.text) + " ";
        return all;
    };
    EXPECT_EQ(texts(TargetTab::Recommend, 0), "가가 나나 하하 ");
    EXPECT_EQ(texts(TargetTab::Portfolio, 0), "대형주 저가주 ");
    EXPECT_EQ(texts(TargetTab::Portfolio, 1), "12345678-901 55556666-777 ");
}

}  // namespace
}  // namespace jogeon::test
