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
        inputs.checkExpression = [this](const std::string&) {
            ++checks;
            return expressionIsValid;
        };
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
    int checks = 0;  // of the expression
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

// With what was handed over last, whatever is missing now.
TEST_F(RealtimeCommandTest, WithNothingToHandOverTheScreenOpensAllTheSame) {
    Run();
    const auto before = links.tags;
    const SearchInputs good = inputs;
    const auto noneChecked = [this] { first.m_bChecked = second.m_bChecked = 0; };
    struct Case {
        const char* what;
        int checks;
        bool expressionIsValid;
        std::function<void()> spoil;
    };
    const Case cases[] = {
        {"no target", 0, true, [this] { inputs.header.target.Upjong = 0; }},
        {"no target, bad expression", 0, false, [this] { inputs.header.target.Upjong = 0; }},
        {"no condition", 0, false, [this] { inputs.conditions.clear(); }},
        {"bad expression", 1, false, [] {}},
        {"bad expression, nothing checked", 1, false, noneChecked},
        {"nothing checked", 1, true, noneChecked},
    };
    for (const Case& c : cases) {
        inputs = good;
        first.m_bChecked = second.m_bChecked = 1;
        expressionIsValid = c.expressionIsValid;
        c.spoil();
        checks = 0;
        EXPECT_EQ(Run(), Journal{"open 4 0156"}) << c.what;
        EXPECT_EQ(checks, c.checks) << c.what;
    }
    EXPECT_EQ(links.tags, before);
    EXPECT_TRUE(questions.boxes.empty());
}

}  // namespace
}  // namespace jogeon
