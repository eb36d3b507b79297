#include "server/indicators/bit_set.h"

#include <vector>

#include <gtest/gtest.h>

namespace jogeon::indicators {

namespace {

// Sizes around the border of a word: the bits beyond the size must stay clear.
TEST(BitSet, HasNoBitsBeyondItsSize) {
    for (std::size_t size : {0u, 1u, 63u, 64u, 65u, 128u, 130u}) {
        EXPECT_EQ(BitSet(size, true).Count(), size);
        EXPECT_EQ((~BitSet(size)).Count(), size);
        EXPECT_EQ(~BitSet(size), BitSet(size, true));
        EXPECT_EQ(~~BitSet(size), BitSet(size));
    }
}

TEST(BitSet, VisitsTheSetBitsInOrder) {
    BitSet bits(200);
    const std::vector<std::size_t> wanted = {0, 63, 64, 127, 128, 199};
    for (std::size_t bit : wanted) bits.Set(bit);
    bits.Set(100);
    bits.Set(100, false);
    std::vector<std::size_t> visited;
    bits.ForEach([&](std::size_t bit) { visited.push_back(bit); });
    EXPECT_EQ(visited, wanted);
    EXPECT_EQ(bits.Count(), wanted.size());
    EXPECT_TRUE(bits.Get(127));
    EXPECT_FALSE(bits.Get(126));
}

TEST(BitSet, CombinesBitByBit) {
    BitSet left(70), right(70);
    left.Set(1), left.Set(66);
    right.Set(66), right.Set(69);
    EXPECT_EQ((left & right).Count(), 1u);
    EXPECT_TRUE((left & right).Get(66));
    EXPECT_EQ((left | right).Count(), 3u);
    EXPECT_EQ((left & ~right).Count(), 1u);
}

}  // namespace

}  // namespace jogeon::indicators
