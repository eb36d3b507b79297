#include "screen/transactions/search_request.h"

#include <gtest/gtest.h>

#include "screen/condition/saved_index_info.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/bytes.h"
#include "tests/screen/support/columns.h"
#include "tests/screen/support/conditions.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

using test::Blanks;
using test::Fields;

class SearchRequestTest : public testing::Test {
protected:
    SearchRequestTest() {
        first.m_bShowValue = 1;
        skipped.m_bChecked = 0;
        inputs.window = 0x1A2B;
        inputs.header.userId = "nv3787";
        inputs.header.target.Upjong = 1;
        inputs.header.target.Group = {"ALL"};
        inputs.conditions = {&first, &skipped, &second};
        inputs.expressionText = "  A and not c ";
        inputs.checkExpression = [this](const std::string& text) {
            checkedText = text;
            return expressionIsValid;
        };
    }

    std::optional<std::string> Compose() { return ComposeSearch(inputs, tables, questions); }

    CIndexInfo first = test::MakeCondition('A', "0401030008", 1, {{20, "1"}, {40, "5"}, {60, "100"}});
    CIndexInfo skipped = test::MakeCondition('B', "0605010008", 2, {});
    CIndexInfo second = test::MakeCondition('C', "0803010008", 3, {{50, "2"}, {60, "10"}});
    SearchInputs inputs;
    ColumnTables tables = test::SmallTables();
    test::ScriptedQuestions questions;
    std::string checkedText;
    bool expressionIsValid = true;
};

// Letter, window, scope, then header and blocks of the two checked conditions.
std::string SearchOf(char scope) {
    return Fields("T|00001a2b|") + scope + "nv3787  99" + std::string("임시조건"_cp949) + Blanks(72) + "1" +
           Blanks(4) + "10" + Blanks(11) + Fields("0|0001|ALL") + Blanks(597) +
           Fields("0000000|00|0|0  |A&!C") + Blanks(96) + "02" +  //
           Fields("B11A|040103|001|1    5") + Blanks(13) + "      100" + Blanks(30) +
           Fields("R01C|080301|003|2  10") + Blanks(53);
}

TEST_F(SearchRequestTest, WholeSearchByteForByte) {
    ASSERT_EQ(SearchOf('0').size(), 10u + 828 + 2 * 71);
    tables.sequenceStart = 1;
    EXPECT_EQ(Compose(), SearchOf('0') + Fields("0003|3001|2001|4001"));
    EXPECT_EQ(checkedText, "A and not c");
    EXPECT_EQ(tables.sequenceStart, 0);

    tables.FindFixed("9001")->selected = 0;
    tables.FindFixed("2001")->selected = 0;
    EXPECT_EQ(Compose(), SearchOf('0') + Fields("0002|3001|4001"));
    EXPECT_EQ(tables.sequenceStart, 1);
}

TEST_F(SearchRequestTest, SearchWithinAResultCarriesItsCodes) {
    inputs.prior = PriorResult{2, {"A005930", "KR1234567890X"}};
    const std::string columns = Fields("0003|3001|2001|4001");
    const std::string codes = Fields("0002|A005930     |KR1234567890");
    inputs.scope = SearchScope::Within;
    EXPECT_EQ(Compose(), SearchOf('1') + columns + codes);
    inputs.scope = SearchScope::Outside;
    EXPECT_EQ(Compose(), SearchOf('2') + columns + codes);
    inputs.scope = SearchScope::Sequential;
    EXPECT_EQ(Compose(), SearchOf('0') + columns);
}

TEST_F(SearchRequestTest, AllSelectedColumnsAreAskedForHoweverMany) {
    for (int i = 0; i < 40; ++i) test::AddFixed(tables, std::to_string(6000 + i), "more", 5);
    const auto payload = Compose();
    ASSERT_TRUE(payload);
    ASSERT_EQ(payload->size(), 980u + 4 + 43 * 4);
    EXPECT_EQ(payload->substr(980, 4), "0043");
    EXPECT_EQ(payload->substr(payload->size() - 4), "6039");
}

TEST_F(SearchRequestTest, StepsThatFailGiveNothingInSilence) {
    inputs.scope = SearchScope::Within;
    EXPECT_FALSE(Compose()) << "no result tab";
    inputs.scope = SearchScope::Whole;
    expressionIsValid = false;
    EXPECT_FALSE(Compose()) << "refused expression";
    expressionIsValid = true;
    first.m_bChecked = second.m_bChecked = 0;
    EXPECT_FALSE(Compose()) << "no checked condition";
    inputs.conditions.clear();
    checkedText.clear();
    EXPECT_FALSE(Compose()) << "no condition";
    EXPECT_TRUE(checkedText.empty()) << "an empty list is not worth a check";
    EXPECT_TRUE(questions.boxes.empty());
}

TEST_F(SearchRequestTest, AnExpressionThatDoesNotFitIsRefusedInWords) {
    inputs.expressionText = "A";
    for (int i = 0; i < 49; ++i) inputs.expressionText += " and A";
    inputs.expressionText = "!" + inputs.expressionText;  // 100 bytes in compact form
    ASSERT_TRUE(Compose());
    inputs.expressionText = "!" + inputs.expressionText;
    EXPECT_FALSE(Compose());
    ASSERT_EQ(questions.boxes.size(), 1u);
    EXPECT_EQ(questions.boxes[0].caption, "조건검색"_cp949);
    EXPECT_NE(questions.boxes[0].text.find("101"), std::string::npos);
}

TEST(NextPage, ByteForByte) {
    EXPECT_EQ(ComposeNextPage(0xDEADBEEF, "nv3787", 4, 30), Fields("N|deadbeef|nv3787  |04|0030"));
}

TEST(Release, ByteForByte) {
    EXPECT_EQ(ComposeRelease(0, "longuserid", "99"), Fields("Z|00000000|longuser|99"));
    EXPECT_EQ(ComposeRelease(1, "", ""), "Z00000001" + Blanks(10));
}

}  // namespace
}  // namespace jogeon
