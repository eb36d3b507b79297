#include "screen/results/realtime_command.h"

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "tests/screen/support/bytes.h"
#include "tests/screen/support/conditions.h"
#include "tests/screen/support/link_journal.h"

namespace jogeon {
namespace {

using test::Blanks;
using test::Fields;
using test::Journal;

class RealtimeCommandTest : public testing::Test {
protected:
    RealtimeCommandTest() {
        mainWindow.Attach(0x10);
        first.m_strDescription = "거래량 5배"_cp949;
        skipped.m_bChecked = 0;
        second.m_strDescription = "순위 10위"_cp949;
        inputs.header.userId = "nv3787";
        inputs.header.buy = true;
        inputs.header.target.Upjong = 1;
        inputs.header.target.Group = {"ALL"};
        inputs.conditions = {&first, &skipped, &second};
        inputs.expressionText = " A and not c ";
        inputs.checkExpression = [this](const std::string&) { return expressionIsValid; };
    }

    Journal Run() {
        journal.clear();
        RealtimeCommand(inputs, links, questions, mainWindow);
        return journal;
    }

    Journal journal;
    test::JournalLinks links{journal};
    test::ScriptedQuestions questions;
    HostMainWindow mainWindow{[this](host::WindowHandle window, auto number, auto wParam, auto lParam) {
        EXPECT_EQ(window, 0x10u);
        journal.push_back(test::DescribeMessage(number, wParam, lParam));
        return std::intptr_t(0);
    }};
    CIndexInfo first = test::MakeCondition('A', "0401030008", 1, {{20, "1"}, {40, "5"}, {60, "100"}});
    CIndexInfo skipped = test::MakeCondition('B', "0605010008", 2, {});
    CIndexInfo second = test::MakeCondition('C', "0803010008", 3, {{50, "2"}, {60, "10"}});
    SearchInputs inputs;
    bool expressionIsValid = true;
};

TEST_F(RealtimeCommandTest, HandsTheCheckedConditionsOverInTheOrderThatReadersRelyOn) {
    EXPECT_EQ(Run(), (Journal{"set CS_REAL/REALINFO", "set CS_REAL/CONDMSG", "open 4 0156",
                              "notify 0 0|CS_REAL|CONDMSG", "notify 0 0|CS_REAL|REALINFO"}));
    const std::string header = Fields("nv3787  |99|") + std::string("임시조건"_cp949) + Blanks(72) + "2" +
                               Blanks(4) + "10" + Blanks(11) + Fields("0|0001|ALL") + Blanks(597) +
                               Fields("0000000|00|0|0  |A&!C") + Blanks(96) + "02";
    ASSERT_EQ(header.size(), 828u);
    EXPECT_EQ((links.tags[{"CS_REAL", "REALINFO"}]), header + Fields("B01A|040103|001|1    5") + Blanks(13) +
                                                         "      100" + Blanks(30) +
                                                         Fields("R01C|080301|003|2  10") + Blanks(53));
    EXPECT_EQ((links.tags[{"CS_REAL", "CONDMSG"}]), "거래량 5배 + 순위 10위"_cp949);
}

TEST_F(RealtimeCommandTest, WithNothingToHandOverTheScreenOpensAllTheSame) {
    const Journal opened{"open 4 0156"};
    inputs.header.target.Upjong = 0;
    EXPECT_EQ(Run(), opened) << "no target";
    inputs.header.target.Upjong = 1;
    expressionIsValid = false;
    EXPECT_EQ(Run(), opened) << "refused expression";
    expressionIsValid = true;
    first.m_bChecked = second.m_bChecked = 0;
    EXPECT_EQ(Run(), opened) << "nothing checked";
    inputs.conditions.clear();
    EXPECT_EQ(Run(), opened) << "no condition";
    EXPECT_TRUE(links.tags.empty());
    EXPECT_TRUE(questions.boxes.empty());
}

}  // namespace
}  // namespace jogeon
