#include "screen/transactions/sequential_request.h"

#include <gtest/gtest.h>

#include "screen/condition/condition_editor.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/bytes.h"
#include "tests/screen/support/columns.h"
#include "tests/screen/support/condition_list_view.h"
#include "tests/screen/support/conditions.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

using test::Blanks;
using test::Fields;

// Conditions A, b (unchecked), C and D in the editor, and the expression that its box shows.
class SequentialRequestTest : public testing::Test {
protected:
    SequentialRequestTest() {
        CSavedIndexInfo saved;
        const auto add = [&](CIndexInfo condition) {
            saved.m_Conditions.push_back(std::make_unique<CIndexInfo>(std::move(condition)));
        };
        add(test::MakeCondition('A', "0401030008", 1, {{20, "1"}, {40, "5"}, {60, "100"}}));
        add(test::MakeCondition('B', "0605010008", 2, {}));
        add(test::MakeCondition('C', "0803010008", 3, {{50, "2"}, {60, "10"}}));
        add(test::MakeCondition('D', "0101010008", 11, {{20, "1"}, {40, "5"}}));
        saved.m_Conditions[1]->m_bChecked = 0;
        saved.Exp = "A&!C|D";
        editor.Load(saved);
    }

    std::optional<std::string> Compose() {
        SearchInputs inputs;
        inputs.window = 0x1A2B;
        inputs.scope = SearchScope::Sequential;
        inputs.header.userId = "nv3787";
        inputs.header.target.Upjong = 1;
        inputs.header.target.Group = {"ALL"};
        inputs.conditions = editor.Conditions();
        inputs.expressionText = view.expression;
        inputs.checkExpression = [this](const std::string&) { return expressionIsValid; };
        inputs.nextSequenceStep = [this] { return editor.NextSequenceStep(); };
        return BuildSequentialRequest(inputs, tables, questions);
    }

    test::ConditionListView view;
    test::ScriptedQuestions questions;
    ScreenSettings settings;
    ConditionEditor editor{view, questions, settings};
    ColumnTables tables = test::SmallTables();
    bool expressionIsValid = true;
};

// Letter, window, scope and header with this expression and count; blocks and columns follow.
std::string HeadOf(const std::string& expression, const std::string& count) {
    return Fields("T|00001a2b|0|nv3787  |99|") + std::string("임시조건"_cp949) + Blanks(72) + "1" +
           Blanks(4) + "10" + Blanks(11) + Fields("0|0001|ALL") + Blanks(597) + Fields("0000000|00|0|0  |") +
           expression + Blanks(100 - expression.size()) + count;
}

const std::string kBlockA = Fields("B01A|040103|001|1    5") + Blanks(13) + "      100" + Blanks(30);
const std::string kBlockC = Fields("R01C|080301|003|2  10") + Blanks(53);
const std::string kBlockD = Fields("T01D|010101|011|1    5") + Blanks(52);
const std::string kColumns = Fields("0003|3001|2001|4001");

TEST_F(SequentialRequestTest, EachStepTakesOneConditionMoreAndTheLastStartsOver) {
    const std::string steps[] = {HeadOf("A", "01") + kBlockA + kColumns,
                                 HeadOf("A&!C", "02") + kBlockA + kBlockC + kColumns,
                                 HeadOf("A&!C|D", "03") + kBlockA + kBlockC + kBlockD + kColumns};
    const std::string marks[] = {"1", "13", "134"};
    ASSERT_EQ(steps[0].size(), 10u + 828 + 71 + 16);
    for (const std::size_t step : {0u, 1u, 2u, 0u, 1u, 2u}) {
        EXPECT_EQ(Compose(), steps[step]);
        EXPECT_EQ(view.marks, marks[step]);
        EXPECT_EQ(editor.SequenceStep(), static_cast<int>(step) + 1);
    }
}

TEST_F(SequentialRequestTest, OneConditionSendsTheSameAtEveryPress) {
    editor.OnHeaderPressed(kColumnChecked);  // all, then none, then A
    editor.OnHeaderPressed(kColumnChecked);
    editor.OnCellPressed(1, kColumnChecked);
    for (int press = 0; press < 3; ++press) {
        EXPECT_EQ(Compose(), HeadOf("A", "01") + kBlockA + kColumns);
        EXPECT_EQ(editor.SequenceStep(), 1);
        EXPECT_EQ(view.marks, "1");
    }
}

TEST_F(SequentialRequestTest, ARefusalLeavesTheStepWhereItStood) {
    ASSERT_TRUE(Compose());
    const std::string text = view.expression;
    expressionIsValid = false;  // which isn't asked before the brackets are gone
    for (const char* brackets : {"(A and !C) or D", "A or D)", "( A"}) {
        view.expression = brackets;
        questions.boxes.clear();
        EXPECT_FALSE(Compose()) << brackets;
        ASSERT_EQ(questions.boxes.size(), 1u);
        EXPECT_EQ(questions.boxes[0].text,
                  "조건식에 괄호가 포함되어 있으면, [순차검색]을 사용할 수 없습니다."_cp949);
        EXPECT_EQ(questions.boxes[0].caption, "순차검색"_cp949);
    }
    view.expression = text;
    EXPECT_FALSE(Compose());
    expressionIsValid = true;
    EXPECT_EQ(editor.SequenceStep(), 1);
    EXPECT_EQ(view.marks, "1");
    EXPECT_EQ(Compose(), HeadOf("A&!C", "02") + kBlockA + kBlockC + kColumns);

    editor.OnHeaderPressed(kColumnChecked);
    editor.OnHeaderPressed(kColumnChecked);
    view.expression = "A";
    EXPECT_FALSE(Compose()) << "no condition is checked";
    EXPECT_EQ(editor.SequenceStep(), 0);
}

// A text edited by hand pairs with the blocks as the list has them.
TEST_F(SequentialRequestTest, TextAndBlocksAreCutEachByItsOwnOrder) {
    view.expression = "D or A";
    EXPECT_EQ(Compose(), HeadOf("D", "01") + kBlockA + kColumns);
    EXPECT_EQ(Compose(), HeadOf("D|A", "02") + kBlockA + kBlockC + kColumns);
    EXPECT_EQ(Compose(), HeadOf("D|A", "02") + kBlockA + kBlockC + kBlockD + kColumns);
}

TEST_F(SequentialRequestTest, ColumnsAreThoseBehindTheFirst) {
    tables.FindFixed("9001")->selected = 0;
    tables.FindFixed("2001")->selected = 0;
    EXPECT_EQ(Compose(), HeadOf("A", "01") + kBlockA + Fields("0002|3001|4001"));
    EXPECT_EQ(tables.sequenceStart, 0) << "the steps leave it alone";
}

}  // namespace
}  // namespace jogeon
