#include "screen/expression/expression_operations.h"

#include <gtest/gtest.h>

#include "screen/expression/expression_characters.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/marked_text.h"

namespace jogeon {
namespace {

using test::MarkedText;

// The marked text afterwards, or what was wrong with the selection: "short", "nothing", "refused at 3".
std::string After(SelectionEdit (*operation)(std::string_view, TextSelection), const char* marked) {
    const MarkedText before(marked);
    const SelectionEdit edit = operation(before.text, before.selection);
    switch (edit.outcome) {
        case SelectionEdit::Outcome::Changed:
            return test::WithMarks(edit.text, edit.selection);
        case SelectionEdit::Outcome::Nothing:
            return "nothing";
        case SelectionEdit::Outcome::TooShort:
            return "short";
        default:
            return "refused at " + std::to_string(edit.check.errorPosition);
    }
}

using Case = std::pair<const char*, const char*>;

TEST(ExpressionOperationsTest, NotComesAndGoes) {
    const Case cases[] = {
        {"[]A", "short"},
        {"[A] and B", "[!A] and B"},
        {"[!A] and B", "[A] and B"},
        {"[!]A and B", "[]A and B"},  // too short for an expression, and not looked at as one
        {"A and[ B ]or C", "A and[ !B ]or C"},
        {"[ !]A", "[ ]A"},
        {"[A and B]", "[!(A and B)]"},
        {"[!(A and B)]", "[A and B]"},
        {"[(A and B)]", "[!(A and B)]"},
        {"C or[ ! (A and B) ]", "C or[  A and B ]"},
        {"[!(A) and (B)]", "[!(!(A) and (B))]"},
        {"[!A and !B]", "[!(!A and !B)]"},
        {"[!A ]and B", "[!(!A) ]and B"},  // three characters, but no bracket behind the `!`
        {"[a]", "[!(a)]"},                // not yet a letter of a condition
        {"[A B]", "refused at 0"},
        {"[A and] B", "refused at 2"},
        {"[!(A and)]", "refused at 4"},
        {"[  ]", "refused at -1"},
    };
    for (const auto& [before, after] : cases) EXPECT_EQ(after, After(ToggleNot, before)) << before;
}

TEST(ExpressionOperationsTest, BracketsComeAndGo) {
    const Case put[] = {
        {"[]A", "short"},
        {"[A]", "[(A)]"},
        {"A or[ B and C ]", "A or[ (B and C) ]"},
        {"[(A)]", "[((A))]"},
        {"A and [(B] or C)", "refused at 0"},
        {"[ ]A", "refused at -1"},
    };
    for (const auto& [before, after] : put) EXPECT_EQ(after, After(Parenthesize, before)) << before;

    const Case remove[] = {
        {"[A]", "short"},
        {"[(A)]", "[A]"},
        {"[(A and (B or C))]", "[A and (B or C)]"},
        {"[!(A and B)] or C", "[!A and B] or C"},
        {"[(A) and (B)]", "[A and (B)]"},
        {"[A and B]", "nothing"},
        {"[A and (B]) or C", "refused at 6"},
        {"([A)] and B", "refused at 1"},
    };
    for (const auto& [before, after] : remove) {
        EXPECT_EQ(after, After(RemoveParenthesis, before)) << before;
    }
}

TEST(ExpressionOperationsTest, AllMarksGoEvenWhereNoExpressionIsSelected) {
    const Case cases[] = {
        {"[!]A", "short"}, {"[!(A and] B)", "[A and] B)"}, {"C or [!(!A and ((B)))]", "C or [A and B]"},
        {"[((]A", "[]A"},  {"[A and B]", "nothing"},
    };
    for (const auto& [before, after] : cases) EXPECT_EQ(after, After(RemoveAllMarks, before)) << before;
}

TEST(ExpressionCharactersTest, OnlyATextThatGrowsBeyondItsRoomIsRefused) {
    EXPECT_EQ(8, CompactLength("A and (b OR !c)"));  // A&(B|!C)
    EXPECT_EQ(2, CompactLength("A an")) << "no longer than the and that it becomes";
    const std::string full(100, '!');
    EXPECT_FALSE(RefuseLength("", full));
    EXPECT_FALSE(RefuseLength(full, full + " "));
    const auto refusal = RefuseLength(full, full + "!");
    ASSERT_TRUE(refusal);
    EXPECT_EQ("조건검색", ToUtf8(refusal->caption));
    EXPECT_NE(std::string::npos, ToUtf8(refusal->text).find("101자"));
    EXPECT_FALSE(RefuseLength(full + "!!!", full + "!!")) << "on its way back";
    EXPECT_FALSE(RefuseLength("", std::string(256, ' ')));
    EXPECT_TRUE(RefuseLength("", std::string(257, ' ')));
}

}  // namespace
}  // namespace jogeon
