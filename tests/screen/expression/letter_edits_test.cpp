#include "screen/expression/letter_edits.h"

#include <gtest/gtest.h>

namespace jogeon {
namespace {

TEST(LetterEditsTest, InsertsALetterAtItsPlaceAmongTheOthers) {
    struct Case {
        const char* text;
        int position;
        bool negated;
        const char* result;
    };
    const Case cases[] = {
        {"", 3, true, "X"},
        {"A", 0, false, "X&A"},
        {"A|B", 0, true, "!X&A|B"},
        {"A|B", 1, false, "A&X|B"},
        {"A|B", 1, true, "A&!X|B"},
        {"A|B", 2, false, "A|B&X"},
        {"A|B", 9, true, "A|B&!X"},
        {"A|(B&C)", 1, false, "A&X|(B&C)"},
        {"(A&B)|C", 2, false, "(A&B)&X|C"},
        {"A&!(B|C)", 2, false, "A&!(B&X|C)"},
        // Texts that nobody checked: where no operator stands before, nothing is inserted.
        {"AB", 1, false, "AB"},
        {"&", 1, false, "&&X"},
    };
    for (const Case& each : cases) {
        std::string text = each.text;
        InsertLetter(text, 'X', each.position, each.negated);
        EXPECT_EQ(each.result, text) << each.text << " " << each.position;
    }
}

TEST(LetterEditsTest, RemovesALetter) {
    struct Case {
        const char* text;
        char letter;
        const char* result;
        bool negated;
    };
    const Case cases[] = {
        {"A&B|C", 'X', "A&B|C", false},
        {"A", 'A', "", false},
        {"A&B|C", 'A', "B|C", false},
        {"A&B|C", 'B', "A|C", false},
        {"A&B|C", 'C', "A&B", false},
        {"(A&B)|C", 'A', "B|C", false},
        {"!(A&B)|C", 'A', "B|C", false},
        {"(A&B)|C", 'B', "A|C", false},
        {"C|(A&B)", 'B', "C|A", false},
        {"(A)", 'A', "", false},
        {"!(A)", 'A', "", false},
        {"C&!(A)", 'A', "C", false},
        {"!A", 'A', "", true},
        {"!A&B", 'A', "B", true},
        {"B&!A", 'A', "B", true},
        {"B&!A|C", 'A', "B|C", true},
        {"(!A&B)|C", 'A', "B|C", true},
        {"C|!(!A&B)", 'A', "C|B", true},
        {"(!A)&B", 'A', "B", true},
        {"AB", 'B', "AB", false},
        // Brackets that someone left open.
        {"(A&B", 'A', "B", false},
        {"A)", 'A', "", false},
        {"C&(A|B", 'A', "&B", false},
        {"(A)", ')', "(A)", false},  // no letter
    };
    for (const Case& each : cases) {
        std::string text = each.text;
        EXPECT_EQ(each.negated, RemoveLetter(text, each.letter)) << each.text;
        EXPECT_EQ(each.result, text) << each.text;
        EXPECT_EQ(each.result, RemoveLetterFromExpression(each.text, each.letter));
    }
}

TEST(LetterEditsTest, GivesLettersAnewFromLeftToRight) {
    struct Case {
        const char* text;
        const char* letters;
        const char* result;
    };
    const Case cases[] = {
        {"B&A", "AB", "A&B"},     {"C&(A|!F)", "ABD", "A&(B|!D)"},
        {"B&B|A", "AC", "A&C|A"},  // more letters than conditions
        {"B", "ABC", "A"},        {"B&A", "", "B&A"},
    };
    for (const Case& each : cases) {
        std::string text = each.text;
        RenumberLetters(text, each.letters);
        EXPECT_EQ(each.result, text) << each.text;
    }
}

}  // namespace
}  // namespace jogeon
