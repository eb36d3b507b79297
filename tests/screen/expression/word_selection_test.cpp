#include "screen/expression/word_selection.h"

#include <vector>

#include <gtest/gtest.h>

#include "screen/expression/operator_hover.h"
#include "tests/screen/support/marked_text.h"

namespace jogeon {
namespace {

// Presses arrows with Shift held from the caret, which `text` shows as '^': 'l' and 'r', a '-' when Shift is
// let go and pressed again where the selection ended. Gives the marked text after each arrow, "=" where the
// selection stays.
std::vector<std::string> Press(std::string text, const char* keys) {
    int caret = static_cast<int>(text.find('^'));
    text.erase(text.find('^'), 1);
    WordSelection words;
    words.OnShiftDown(caret);
    std::vector<std::string> after;
    for (const char* key = keys; *key; ++key) {
        if (*key == '-') {
            words.OnShiftUp();
            words.OnShiftDown(caret);
            continue;
        }
        const auto selection = *key == 'l' ? words.OnShiftLeft(text) : words.OnShiftRight(text);
        if (selection) caret = selection->end;
        after.push_back(selection ? test::WithMarks(text, *selection) : "=");
    }
    return after;
}

TEST(WordSelectionTest, ShiftAndArrowsSelectWholeWords) {
    const std::tuple<const char*, const char*, std::vector<std::string>> cases[] = {
        {"A and B^", "llllll", {"A and [B]", "A and[ B]", "A [and B]", "A[ and B]", "[A and B]", "="}},
        {"A and B^",
         "lllrrr",
         {"A and [B]", "A and[ B]", "A [and B]", "A and[ B]", "A and [B]", "A and B[]"}},
        {"^A and B", "rrrrr", {"[A] and B", "[A ]and B", "[A and] B", "[A and ]B", "="}},
        {"^A and B",
         "rrrlll",
         {"[A] and B", "[A ]and B", "[A and] B", "[A ]and B", "[A] and B", "[]A and B"}},
        {"A a^nd B", "l", {"A [and] B"}},
        {"A a^nd B", "r", {"A [and] B"}},
        {"A and B^", "l-l", {"A and [B]", "A and[ ]B"}},
        {"^", "lr", {"=", "[]"}},
    };
    for (const auto& [caret, keys, after] : cases) EXPECT_EQ(after, Press(caret, keys)) << caret;
}

TEST(WordSelectionTest, ATextThatChangesUnderShiftIsSelectedFromItsCaret) {
    WordSelection words;
    words.OnShiftDown(6);
    words.OnTextChanged(7);  // a capital was typed
    EXPECT_EQ((TextSelection{7, 6}), words.OnShiftLeft("A and B"));
}

TEST(OperatorHoverTest, FindsTheOperatorBetweenBlanks) {
    const std::tuple<const char*, int, OperatorKind, TextSelection> cases[] = {
        {"A and B", 2, OperatorKind::And, {2, 5}},     {"A and B", 4, OperatorKind::And, {2, 5}},
        {"A AnD B", 3, OperatorKind::And, {2, 5}},     {"A or B", 2, OperatorKind::Or, {2, 4}},
        {"A & B", 2, OperatorKind::Ampersand, {2, 3}}, {"A | B", 2, OperatorKind::Bar, {2, 3}},
        {"A and B", 1, OperatorKind::None, {1, 2}},    {"A and B", 6, OperatorKind::None, {6, 7}},
        {"A&B", 1, OperatorKind::None, {0, 3}},        {"A or(B)", 3, OperatorKind::None, {2, 7}},
    };
    for (const auto& [text, index, kind, place] : cases) {
        OperatorHover hover;
        TestHover(text, index, hover);
        EXPECT_EQ(kind, hover.kind) << text << index;
        EXPECT_EQ(place, hover.place) << text << index;
    }
    OperatorHover hover{OperatorKind::Or, {2, 4}};
    TestHover("A or B", 6, hover);
    EXPECT_EQ(OperatorKind::Or, hover.kind) << "no character, no news";
}

TEST(OperatorHoverTest, ASecondToggleIsTheWayBack) {
    for (const auto& [text, toggled] : {std::pair<std::string, std::string>{"A and B", "A or B"},
                                        {"A or B", "A and B"},
                                        {"A & B", "A | B"},
                                        {"A | B", "A & B"},
                                        {"A OR B", "A and B"}}) {
        OperatorHover hover;
        TestHover(text, 2, hover);
        const OperatorToggle toggle = ToggleOf(hover);
        std::string after = text;
        after.replace(static_cast<std::size_t>(toggle.place.start),
                      static_cast<std::size_t>(toggle.place.end - toggle.place.start), toggle.replacement);
        EXPECT_EQ(toggled, after);
        TestHover(after, 2, hover);
        EXPECT_EQ(hover.kind, toggle.after.kind) << after;
        EXPECT_EQ(hover.place, toggle.after.place) << after;
    }
}

}  // namespace
}  // namespace jogeon
