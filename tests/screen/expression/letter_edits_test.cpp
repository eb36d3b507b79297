#include "screen/expression/letter_edits.h"

#include <gtest/gtest.h>

namespace jogeon {
namespace {

TEST(LetterEditsTest, InsertsALetterAtItsPlaceAmongTheOthers) {
    const std::tuple<const char*, int, bool, const char*> cases[] = {
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
    for (const auto& [before, position, negated, result] : cases) {
        std::string text = before;
        InsertLetter(text, 'X', position, negated);
        EXPECT_EQ(result, text) << before << " " << position;
    }
}

TEST(LetterEditsTest, RemovesALetter) {
    const std::tuple<const char*, char, const char*, bool> cases[] = {
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
    for (const auto& [before, letter, result, negated] : cases) {
        std::string text = before;
        EXPECT_EQ(negated, RemoveLetter(text, letter)) << before;
        EXPECT_EQ(result, text) << before;
    }
}

TEST(LetterEditsTest, GivesLettersAnewFromLeftToRight) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"B&A", "AB", "A&B"},     {"C&(A|!F)", "ABD", "A&(B|!D)"},
        {"B&B|A", "AC", "A&C|A"},  // more letters than conditions
        {"B", "ABC", "A"},        {"B&A", "", "B&A"},
    };
    for (const auto& [before, letters, result] : cases) {
        std::string text = before;
        RenumberLetters(text, letters);
        EXPECT_EQ(result, text) << before;
    }
}

}  // namespace
}  // namespace jogeon
