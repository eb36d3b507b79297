#include "screen/condition/condition_editor.h"

#include <algorithm>
#include <cctype>
#include <random>

#include <gtest/gtest.h>

#include "screen/expression/expression_check.h"
#include "screen/expression/expression_text.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/condition_list_view.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

// An editor over a list like "AbC", the small letters unchecked, with a compact expression.
struct Desk {
    explicit Desk(const std::string& rows, const std::string& expression) {
        CSavedIndexInfo saved;
        saved.Exp = expression;
        for (const char row : rows) {
            auto condition = std::make_unique<CIndexInfo>();
            condition->m_chLetter = static_cast<char>(std::toupper(row));
            condition->m_bChecked = std::isupper(row) ? 1 : 0;
            saved.m_Conditions.push_back(std::move(condition));
        }
        editor.Load(saved);
    }

    std::string LastBox() const { return questions.boxes.empty() ? "" : ToUtf8(questions.boxes.back().text); }

    test::ConditionListView view;
    test::ScriptedQuestions questions;
    ScreenSettings settings;
    ConditionEditor editor{view, questions, settings};
};

enum Command { kPress, kButton, kHeader, kDouble, kDrop };

struct ListCase {
    const char* rows;
    const char* expression;  // compact
    Command command;
    int row, col;
    const char* rowsAfter;
    const char* expressionAfter;  // as the box shows it
};

TEST(ConditionEditorTest, EachCommandRewritesListAndExpression) {
    constexpr ListCase kCases[] = {
        // unchecking and checking
        {"ABC", "A&B|C", kPress, 2, kColumnChecked, "AbC", "A or C"},
        {"AB", "A&B", kPress, 1, kColumnChecked, "aB", "B"},
        {"BCD", "(B&C)|D", kPress, 1, kColumnChecked, "bCD", "C or D"},
        {"AB", "A&!B", kPress, 2, kColumnChecked, "Ab", "A"},
        {"aBC", "B|C", kPress, 1, kColumnChecked, "ABC", "A and B or C"},
        {"AbC", "A|C", kPress, 2, kColumnChecked, "ABC", "A and B or C"},
        {"ABc", "A|B", kPress, 3, kColumnChecked, "ABC", "A or B and C"},
        {"a", "", kPress, 1, kColumnChecked, "A", "A"},
        {"ABC", "A&B|C", kPress, 2, kColumnContent, "ABC", "A and B or C"},
        {"ABC", "A&B|C", kPress, 9, kColumnChecked, "ABC", "A and B or C"},
        {"ABC", "A&B|C", kPress, 2, kColumnDelete, "ABC", "A and B or C"},
        // moving
        {"ABC", "A&B|C", kButton, 3, kColumnUp, "ACB", "A and C and B"},
        {"ABC", "A&!B|C", kButton, 2, kColumnFirst, "BAC", "!B and A or C"},
        {"ABC", "A&B|C", kButton, 1, kColumnLast, "BCA", "B or C and A"},
        {"AbC", "A|C", kButton, 2, kColumnDown, "ACb", "A or C"},
        {"AB", "A|B", kButton, 1, kColumnUp, "AB", "A or B"},
        {"AB", "A|B", kButton, 2, kColumnLast, "AB", "A or B"},
        {"ABCD", "A&B|C&D", kDrop, 1, 4, "DABC", "D and A and B or C"},
        {"ABCD", "A&B|C&D", kDrop, 3, 1, "BCAD", "B or C and A and D"},
        {"ABCD", "A|B|C|D", kDrop, 5, 1, "ABCD", "A or B or C or D"},
        {"ABCD", "A|B|C|D", kDrop, 1, 9, "ABCD", "A or B or C or D"},
        // deleting
        {"ABC", "A&B|C", kButton, 1, kColumnDelete, "BC", "B or C"},
        {"AbC", "A|C", kDouble, 2, kColumnContent, "AC", "A or C"},
        {"AB", "A|B", kDouble, 2, kColumnValue, "AB", "A or B"},
        {"A", "A", kDouble, 1, kColumnLetter, "", ""},
        // headers
        {"BaC", "B|C", kHeader, 0, kColumnChecked, "BAC", "B and A or C"},
        {"CdA", "A|C", kHeader, 0, kColumnLetter, "AbC", "A or C"},
        {"ABC", "A|B|C", kHeader, 0, kColumnDelete, "", ""},
        {"ABC", "A|B|C", kHeader, 0, kColumnContent, "ABC", "A or B or C"},
    };
    for (const ListCase& each : kCases) {
        SCOPED_TRACE(std::string(each.rows) + " " + each.expression + " command " +
                     std::to_string(each.command) + " row " + std::to_string(each.row) + " col " +
                     std::to_string(each.col));
        Desk desk(each.rows, each.expression);
        desk.questions.answers = {host::Answer::Yes};
        switch (each.command) {
            case kPress:
                desk.editor.OnCellPressed(each.row, each.col);
                break;
            case kButton:
                desk.editor.OnButtonPressed(each.row, each.col);
                break;
            case kHeader:
                desk.editor.OnHeaderPressed(each.col);
                break;
            case kDouble:
                desk.editor.OnDoubleClicked(each.row, each.col);
                break;
            case kDrop:
                desk.editor.OnRowDropped(each.row, each.col);
                break;
        }
        EXPECT_EQ(each.rowsAfter, desk.view.rows);
        EXPECT_EQ(each.expressionAfter, desk.view.expression);
        EXPECT_EQ(desk.view.rows != each.rows, desk.editor.Dirty());
        if (desk.view.rows.empty()) {
            EXPECT_EQ('A', desk.editor.NextLetter());
        }
    }
}

TEST(ConditionEditorTest, AddingTakesTheNextLetterAndStopsAtItsLimits) {
    Desk desk("", "");
    desk.editor.Clear();
    for (int i = 0; i < 20; ++i) desk.editor.Add();
    EXPECT_EQ("ABCDEFGHIJKLMNOPQRST", desk.view.rows);
    EXPECT_EQ(20, desk.view.focusedRow);
    desk.editor.Add();
    EXPECT_EQ(20u, desk.editor.Conditions().size());
    EXPECT_EQ("더이상 지표를 추가할 수 없습니다. (최대 20개)", desk.LastBox());

    // Letters aren't used again: after six deletions and additions Z is gone, though the list has room.
    for (int i = 0; i < 6; ++i) {
        desk.editor.OnDoubleClicked(1, kColumnContent);
        desk.editor.Add();
    }
    desk.editor.OnDoubleClicked(1, kColumnContent);
    EXPECT_EQ("HIJKLMNOPQRSTUVWXYZ", desk.view.rows);
    desk.questions.answers = {host::Answer::No, host::Answer::Yes};
    desk.editor.Add();
    EXPECT_EQ("더이상 추가할 문자(A-Z)가 없습니다.\n문자를 재정렬하시겠습니까?", desk.LastBox());
    EXPECT_EQ("HIJKLMNOPQRSTUVWXYZ", desk.view.rows);
    desk.editor.Add();
    EXPECT_EQ("ABCDEFGHIJKLMNOPQRST", desk.view.rows);
    EXPECT_TRUE(desk.view.expression.starts_with("A and B and C")) << desk.view.expression;
    EXPECT_TRUE(desk.view.expression.ends_with("S and T")) << desk.view.expression;
}

TEST(ConditionEditorTest, AddingJoinsOnlyWhereSomethingIsChecked) {
    Desk desk("ab", "");
    desk.editor.Add();
    EXPECT_EQ("C", desk.view.expression);
    desk.view.SetExpressionText("(C)");
    desk.editor.Add();
    EXPECT_EQ("(C) and D", desk.view.expression);
}

TEST(ConditionEditorTest, ReplacingKeepsLetterAndChecks) {
    Desk desk("Ab", "A");
    desk.view.panelKey = "0102030008";
    desk.view.FocusRow(2);
    desk.editor.OnCellPressed(2, kColumnValue);
    desk.editor.SetDirty(false);
    desk.editor.Replace();
    const CIndexInfo& replaced = *desk.editor.Conditions()[1];
    EXPECT_EQ("0102030008", replaced.m_strKey);
    EXPECT_EQ('B', replaced.m_chLetter);
    EXPECT_EQ(0, replaced.m_bChecked);
    EXPECT_EQ(1, replaced.m_bShowValue);
    EXPECT_TRUE(desk.editor.Dirty());
    desk.view.FocusRow(-1);
    desk.editor.Replace();  // no row, nothing to replace
    EXPECT_EQ("Ab", desk.view.rows);
}

TEST(ConditionEditorTest, ADeletionIsAskedForAsTheSettingSays) {
    struct Case {
        int delConfirm;
        bool button;  // else the header
        const char* box;
    };
    constexpr Case kCases[] = {{0, true, ""},
                               {0, false, ""},
                               {1, true, ""},
                               {1, false, "개별조건 전체를 삭제하시겠습니까?"},
                               {2, true, "조건을 삭제하시겠습니까?"},
                               {2, false, "개별조건 전체를 삭제하시겠습니까?"}};
    for (const Case& each : kCases) {
        Desk desk("AB", "A&B");
        desk.settings.delConfirm = each.delConfirm;
        desk.questions.answers = {host::Answer::No};
        if (each.button) {
            desk.editor.OnButtonPressed(1, kColumnDelete);
        } else {
            desk.editor.OnHeaderPressed(kColumnDelete);
        }
        EXPECT_EQ(each.box, desk.LastBox());
        EXPECT_EQ(*each.box != 0, desk.view.rows == "AB") << each.delConfirm << each.button;
    }
}

TEST(ConditionEditorTest, CheckingAllAndNoneForgetsTheBrackets) {
    Desk desk("ABc", "(A|B)");
    desk.editor.OnHeaderPressed(kColumnChecked);
    EXPECT_EQ("ABC", desk.view.rows);
    EXPECT_EQ("(A or B) and C", desk.view.expression);
    desk.editor.OnHeaderPressed(kColumnChecked);
    EXPECT_EQ("abc", desk.view.rows);
    EXPECT_EQ("", desk.view.expression);
}

// Whatever is done to the list, as long as nobody brackets or negates: the text is well formed and holds
// exactly the letters of the checked conditions.
TEST(ConditionEditorTest, RandomCommandsKeepListGridAndExpressionTogether) {
    std::mt19937 random(20240102);
    const auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int run = 0; run < 300; ++run) {
        Desk desk("", "");
        desk.editor.Clear();
        desk.settings.delConfirm = 0;
        for (int step = 0; step < 60; ++step) {
            const int rows = static_cast<int>(desk.view.rows.size());
            switch (pick(8)) {
                case 0:
                case 1:
                    desk.editor.Add();
                    break;
                case 2:
                    desk.editor.OnCellPressed(1 + pick(rows + 1), kColumnChecked);
                    break;
                case 3:
                    desk.editor.OnButtonPressed(1 + pick(rows + 1), kColumnUp + pick(4));
                    break;
                case 4:
                    desk.editor.OnRowDropped(1 + pick(rows + 1), 1 + pick(rows + 1));
                    break;
                case 5:
                    if (pick(3) == 0) desk.editor.OnButtonPressed(1 + pick(rows + 1), kColumnDelete);
                    break;
                case 6:
                    if (pick(4) == 0) desk.editor.OnHeaderPressed(kColumnLetter);
                    break;
                default:
                    if (pick(10) == 0) desk.editor.OnHeaderPressed(kColumnChecked);
                    break;
            }
            std::string checked, letters;
            const auto conditions = desk.editor.Conditions();
            ASSERT_EQ(conditions.size(), desk.view.rows.size());
            for (std::size_t i = 0; i < conditions.size(); ++i) {
                ASSERT_EQ(conditions[i]->m_chLetter, std::toupper(desk.view.rows[i]));
                if (conditions[i]->m_bChecked) checked += conditions[i]->m_chLetter;
            }
            for (const char c : ToCompactForm(desk.view.expression)) {
                if (c >= 'A' && c <= 'Z') letters += c;
            }
            std::sort(checked.begin(), checked.end());
            std::sort(letters.begin(), letters.end());
            ASSERT_EQ(checked, letters) << desk.view.rows << " " << desk.view.expression;
            ASSERT_TRUE(checked.empty() || CheckExpressionText(desk.view.expression).valid)
                << desk.view.rows << " " << desk.view.expression;
        }
    }
}

}  // namespace
}  // namespace jogeon
