#include "screen/expression/expression_text.h"

#include <utility>

#include <gtest/gtest.h>

namespace jogeon {
namespace {

TEST(ExpressionTextTest, ConvertsBetweenTheForms) {
    const std::pair<const char*, const char*> compact[] = {
        {"A and (B or !C)", "A&(B|!C)"},
        {"a AND b Or c", "A&B|C"},
        {"A&B | c", "A&B|C"},
        {"not A", "!A"},
        {"A and Not(B)", "A&!(B)"},
        {"(not not a)", "(!!A)"},
        {"!NOT A", "!!A"},
        {"A and N", "A&N"},
        {"KNOT", "KNOT"},  // no words: the check refuses these texts
        {"NOTA", "NOTA"},
        {"NOT_", "NOT_"},
        {"1NOT A", "1NOTA"},
        {"", ""},
    };
    for (const auto& [display, expected] : compact) {
        EXPECT_EQ(expected, ToCompactForm(display)) << display;
        EXPECT_EQ(expected, ToCompactForm(ToDisplayForm(expected))) << expected;
    }
    EXPECT_EQ("A and (B or !C)", ToDisplayForm("A&(B|!C)"));
    EXPECT_EQ(" and ", ToDisplayForm("&"));
}

// An accepted text still is one in its compact form, as nothing of it is lost.
TEST(ExpressionTextTest, TheCompactFormIsAcceptedWhereTheDisplayFormIs) {
    for (const char* text : {"not A", "A and not B or NOT(C)", "!not(A and B)", "A or(not B)"}) {
        EXPECT_TRUE(CheckExpressionText(text).valid) << text;
        EXPECT_TRUE(CheckExpressionText(ToCompactForm(text)).valid) << text;
    }
}

TEST(ExpressionTextTest, TellsWholeBracketsFromPairsAtBothEnds) {
    for (const char* text : {"(A)", "(A&B)", "((A)&(B))", "()"}) EXPECT_TRUE(IsWhollyBracketed(text)) << text;
    for (const char* text : {"", "A", "(", ")", "(A)&(B)", "((A)", "(A)B", "!(A)", "A)", "(A))"}) {
        EXPECT_FALSE(IsWhollyBracketed(text)) << text;
    }
}

TEST(ExpressionTextTest, RemovesABracketWithItsPartner) {
    using Case = std::tuple<const char*, int, const char*>;
    const Case fromClose[] = {
        {"A&(B|C)", 6, "A&B|C"},
        {"!(A)", 3, "A"},
        {"(A&(B|C))", 8, "A&(B|C)"},
        {"!((A)&B)", 4, "!(A&B)"},
        {"A&B)", 3, "&B"},
        {")A", 0, "A"},
        {"A", 5, "A"},
        {"A", -1, "A"},
    };
    for (const auto& [text, index, result] : fromClose)
        EXPECT_EQ(result, RemoveBracketFromClose(text, index));
    const Case fromOpen[] = {
        {"A&(B|C)", 2, "A&B|C"}, {"!(A)", 1, "!A"}, {"(A&(B|C))", 0, "A&(B|C)"},
        {"((A)&B)", 1, "(A&B)"}, {"A&(B", 2, "&B"}, {"(A", 0, "A"},
        {"A", 5, "A"},           {"A", -1, "A"},
    };
    for (const auto& [text, index, result] : fromOpen) EXPECT_EQ(result, RemoveBracketFromOpen(text, index));
}

}  // namespace
}  // namespace jogeon
