#include "screen/condition/condition_editor.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <random>

#include <gtest/gtest.h>

#include "screen/expression/expression_check.h"
#include "screen/expression/expression_operations.h"
#include "screen/expression/expression_text.h"
#include "screen/text/cp949.h"
#include "screen/transactions/search_request.h"
#include "tests/screen/support/columns.h"
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
        SCOPED_TRACE(testing::Message() << each.rows << " " << each.expression << " command " << each.command
                                        << " row " << each.row << " col " << each.col);
        Desk desk(each.rows, each.expression);
        desk.questions.answers = {host::Answer::Yes};
        ConditionEditor& editor = desk.editor;
        if (each.command == kPress) editor.OnCellPressed(each.row, each.col);
        if (each.command == kButton) editor.OnButtonPressed(each.row, each.col);
        if (each.command == kHeader) editor.OnHeaderPressed(each.col);
        if (each.command == kDouble) editor.OnDoubleClicked(each.row, each.col);
        if (each.command == kDrop) editor.OnRowDropped(each.row, each.col);
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

TEST(ConditionEditorTest, TheNextLetterFollowsTheHighest) {
    for (const auto& [rows, next] : {std::pair("CA", 'D'), {"", 'B'}, {"Z", '['}})
        EXPECT_EQ(next, Desk(rows, "").editor.NextLetter()) << rows;
}

TEST(ConditionEditorTest, AddingJoinsOnlyWhereSomethingIsChecked) {
    Desk desk("ab", "");
    desk.editor.Add();
    EXPECT_EQ("C", desk.view.expression);
    desk.view.SetExpressionText("(C)");
    desk.editor.Add();
    EXPECT_EQ("(C) and D", desk.view.expression);
}

TEST(ConditionEditorTest, ReplacesTheConditionInThePanelAndKeepsLetterAndChecks) {
    Desk desk("Ab", "A");
    desk.view.panelKey = "0102030008";
    desk.editor.OnCellPressed(2, kColumnValue);
    desk.view.FocusRow(-1);  // as a press of a row's button leaves it
    desk.editor.SetDirty(false);
    desk.editor.Replace();
    const CIndexInfo& replaced = *desk.editor.Conditions()[1];
    EXPECT_EQ("0102030008", replaced.m_strKey);
    EXPECT_EQ('B', replaced.m_chLetter);
    EXPECT_EQ(0, replaced.m_bChecked);
    EXPECT_EQ(1, replaced.m_bShowValue);
    EXPECT_TRUE(desk.editor.Dirty());
    desk.editor.ApplyBarsAgo(3, 0);
    EXPECT_EQ(&replaced, desk.view.refreshed);
    desk.view.ResetPanel();
    desk.view.FocusRow(1);
    desk.editor.Replace();  // the panel shows none of the list
    EXPECT_EQ("", desk.editor.Conditions()[0]->m_strKey);
}

TEST(ConditionEditorTest, ADeletionIsAskedForAsTheSettingSays) {
    const std::tuple<int, bool, const char*> kCases[] = {{0, true, ""},
                                                         {0, false, ""},
                                                         {1, true, ""},
                                                         {1, false, "개별조건 전체를 삭제하시겠습니까?"},
                                                         {2, true, "조건을 삭제하시겠습니까?"},
                                                         {2, false, "개별조건 전체를 삭제하시겠습니까?"}};
    for (const auto& [delConfirm, button, box] : kCases) {
        Desk desk("AB", "A&B");
        desk.settings.delConfirm = delConfirm;
        desk.questions.answers = {host::Answer::No};
        if (button) {
            desk.editor.OnButtonPressed(1, kColumnDelete);
        } else {
            desk.editor.OnHeaderPressed(kColumnDelete);
        }
        EXPECT_EQ(box, desk.LastBox());
        EXPECT_EQ(*box != 0, desk.view.rows == "AB") << delConfirm << button;
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

// A desk whose list and expression are worked on at random.
struct RandomDesk {
    explicit RandomDesk(unsigned seed) : random(seed) {
        desk.editor.Clear();
        desk.settings.delConfirm = 0;
    }

    int Pick(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }

    void ChangeList() {
        ConditionEditor& editor = desk.editor;
        const int anyRow = static_cast<int>(desk.view.rows.size()) + 1;
        switch (Pick(8)) {
            case 0:
            case 1:
                return editor.Add();
            case 2:
                return editor.OnCellPressed(1 + Pick(anyRow), kColumnChecked);
            case 3:
                return editor.OnButtonPressed(1 + Pick(anyRow), kColumnUp + Pick(4));
            case 4:
                return editor.OnRowDropped(1 + Pick(anyRow), 1 + Pick(anyRow));
            case 5:
                if (Pick(3) == 0) editor.OnButtonPressed(1 + Pick(anyRow), kColumnDelete);
                return;
            case 6:
                if (Pick(4) == 0) editor.OnHeaderPressed(kColumnLetter);
                return;
            default:
                if (Pick(10) == 0) editor.OnHeaderPressed(kColumnChecked);
                return;
        }
    }

    // Negates or brackets a part of the expression that is an expression itself, of whole words, or takes
    // brackets away.
    void ChangeExpression() {
        std::string& text = desk.view.expression;
        const int start = Pick(static_cast<int>(text.size()) + 1);
        const int end = start + Pick(static_cast<int>(text.size()) - start + 1);
        const auto from = static_cast<std::size_t>(start), to = static_cast<std::size_t>(end);
        const bool cutsWord = (from > 0 && std::islower(text[from - 1]) && std::islower(text[from])) ||
                              (to > 0 && std::islower(text[to - 1]) && std::islower(text[to]));
        if (cutsWord || !CheckExpressionText(text.substr(from, to - from)).valid) return;
        constexpr std::array kOperations = {ToggleNot, Parenthesize, RemoveParenthesis};
        text = kOperations[static_cast<std::size_t>(Pick(3))](text, {start, end}).text;
    }

    // Of the checked conditions, sorted.
    std::string CheckedLetters() const {
        std::string letters;
        for (const CIndexInfo* condition : desk.editor.Conditions()) {
            if (condition->m_bChecked) letters += condition->m_chLetter;
        }
        std::sort(letters.begin(), letters.end());
        return letters;
    }

    std::string LettersOfText() const {
        std::string letters = ToCompactForm(desk.view.expression);
        std::erase_if(letters, [](char c) { return c < 'A' || c > 'Z'; });
        std::sort(letters.begin(), letters.end());
        return letters;
    }

    bool TextIsValid() const { return CheckExpressionText(desk.view.expression).valid; }

    bool ListIsAsShown() const {
        std::string rows;
        for (const CIndexInfo* condition : desk.editor.Conditions()) {
            const char letter = condition->m_chLetter;
            rows += condition->m_bChecked ? letter : static_cast<char>(std::tolower(letter));
        }
        return rows == desk.view.rows;
    }

    bool SearchGoesOut() {
        SearchInputs inputs;
        inputs.conditions = desk.editor.Conditions();
        inputs.expressionText = desk.view.expression;
        inputs.checkExpression = [](const std::string& text) { return CheckExpressionText(text).valid; };
        return ComposeSearch(inputs, columns, desk.questions).has_value();
    }

    std::mt19937 random;
    Desk desk{"", ""};
    ColumnTables columns = test::SmallTables();
};

// Whatever is done to the list, the text holds exactly the letters of the checked conditions, and is well
// formed as long as nobody brackets or negates. Brackets and negations of parts come between the commands in
// the later runs: the rules of the letters don't look at the syntax and may leave a text that is no
// expression (A out of
// `(((A)))`): then it is refused, and no search goes out.
TEST(ConditionEditorTest, RandomCommandsNeverLoseALetterOfAnExpression) {
    constexpr unsigned kPlainRuns = 300, kRuns = 1300;
    int broken = 0;
    for (unsigned run = 0; run < kRuns; ++run) {
        RandomDesk random(run);
        bool whole = true;  // the text has been an expression, or empty, up to the step before
        for (int step = 0; step < 40; ++step) {
            run < kPlainRuns || random.Pick(2) == 0 ? random.ChangeList() : random.ChangeExpression();
            const std::string& text = random.desk.view.expression;
            SCOPED_TRACE(random.desk.view.rows + " " + text);
            ASSERT_TRUE(random.ListIsAsShown());
            if (whole) {
                ASSERT_EQ(random.CheckedLetters(), random.LettersOfText());
            }
            const bool fits = ToCompactForm(text).size() <= kMaxExpressionBytes;
            const bool searchable = random.TextIsValid() && fits && !random.CheckedLetters().empty();
            ASSERT_EQ(searchable, random.SearchGoesOut());
            if (whole && !random.TextIsValid() && !text.empty()) {
                ASSERT_GE(run, kPlainRuns);
                whole = false;
                ++broken;
            }
        }
    }
    EXPECT_GT(broken, 0) << "no text was broken: then the letters can be compared at every step";
}

}  // namespace
}  // namespace jogeon
