// The find of the tree pane, and the order and texts of its list, without a window.
#include "screen/panes/tree_find.h"

#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen/panes/tree_nodes.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

using testing::ElementsAre;

// 0x8161 and 0x8141 are syllables whose second byte looks like a letter; 0xb0a1 0xb0a2 holds 0xa1b0, a
// character too, across its middle.
TEST(TreeFindTest, LettersMatchInEitherCaseButNoHalfOfACharacterDoes) {
    EXPECT_EQ("A\x81\x61Z\x81", FoldCase("a\x81\x61z\x81"));
    const struct {
        std::string text, part;
        bool found;
    } cases[] = {{"MACD 시그널"_cp949, "macd"_cp949, true},
                 {"볼린저밴드"_cp949, "밴드"_cp949, true},
                 {"볼린저밴드"_cp949, "밴드폭"_cp949, false},
                 {"\x81\x61", "a", false},
                 {"\x81\x41", "A", false},
                 {"\x81\x61", "\x81\x41", false},
                 {"\xb0\xa1\xb0\xa2", "\xa1\xb0", false},
                 {"\xb0\xa1\xb0\xa2", "\xb0\xa2", true},
                 {"\xb0", "\xb0\xa1", false}};
    for (const auto& [text, part, found] : cases) {
        TreeFind find;
        find.Search(part, {text});
        EXPECT_EQ(found, find.HasHit()) << ToUtf8(text) << " / " << ToUtf8(part);
    }
}

TEST(TreeFindTest, HitsAreSteppedThroughRoundTheEnds) {
    TreeFind find;
    EXPECT_EQ("", find.CounterText());
    EXPECT_FALSE(find.Next());

    find.Search("a", {"xa", "b", "A", "aa"});
    EXPECT_THAT(find.FoundTexts(), ElementsAre("xa", "A", "aa"));
    EXPECT_EQ("1/3", find.CounterText());
    const struct {
        bool (TreeFind::*step)();
        std::size_t item;
        const char* counter;
    } steps[] = {{&TreeFind::Previous, 3, "3/3"},
                 {&TreeFind::Next, 0, "1/3"},
                 {&TreeFind::Next, 2, "2/3"},
                 {&TreeFind::Previous, 0, "1/3"}};
    for (const auto& [step, item, counter] : steps) {
        EXPECT_TRUE((find.*step)());
        EXPECT_EQ(item, find.Item());
        EXPECT_EQ(counter, find.CounterText());
    }
    find.Search("b", {"xa", "b"});
    EXPECT_TRUE(find.Next());
    EXPECT_EQ("1/1", find.CounterText());
    find.Search("c", {"xa", "b"});
    EXPECT_EQ("0/0", find.CounterText());
    EXPECT_FALSE(find.Previous());
    find.Search("", {"xa", "b"});
    EXPECT_EQ("", find.CounterText());
}

TEST(TreeFindTest, EveryTriggerHoldsTheNextOneOffForASecond) {
    const struct {
        std::uint32_t tick;
        bool done;
    } cases[] = {{0xfffffe00, true}, {0xffffffff, false}, {800, false}, {1799, false}, {2799, true}};
    TreeFind find;
    for (const auto& [tick, done] : cases) EXPECT_EQ(done, find.Trigger(tick)) << tick;
}

// 0x8c63 is 똠, which CP949 keeps far from 또 and 뚜.
TEST(TreeNodesTest, RowsSortInTheOrderOfTheAlphabet) {
    const std::array ordered{"52주"_cp949, "ADX"_cp949, "rsi"_cp949,
                             "갭"_cp949,   "또"_cp949,  std::string("\x8c\x63"),
                             "뚜렷"_cp949, "힘"_cp949};
    for (std::size_t i = 1; i < ordered.size(); ++i) {
        EXPECT_LT(SortKey(ordered[i - 1]), SortKey(ordered[i])) << ToUtf8(ordered[i]);
    }
    EXPECT_EQ(SortKey("RSI"), SortKey("rsi"));
}

TEST(TreeNodesTest, AGroupIsTheAncestorsFromTheRoot) {
    EXPECT_EQ("A:B", GroupText({"A", "B"}, "own"));
    EXPECT_EQ("own", GroupText({}, "own"));
    EXPECT_EQ(255u, GroupText({std::string(200, 'x'), std::string(200, 'y')}, "").size());
}

TEST(TreeNodesTest, AWalkIsDepthFirstHoweverDeep) {
    std::deque<CatalogueNode> nodes(20'000);
    for (std::size_t i = 1; i + 1 < nodes.size(); ++i) nodes[i - 1].children.push_back(&nodes[i]);
    nodes[0].children.push_back(&nodes.back());
    const std::vector<LevelledNode> walked = WalkDepthFirst({&nodes[0]});
    ASSERT_EQ(nodes.size(), walked.size());
    EXPECT_EQ(&nodes[2], walked[2].node);
    EXPECT_EQ(2u, walked[2].level);
    EXPECT_EQ(kDeepestLevel, walked[walked.size() - 2].level);
    EXPECT_EQ(&nodes.back(), walked.back().node);
    EXPECT_EQ(1u, walked.back().level);
}

}  // namespace
}  // namespace jogeon
