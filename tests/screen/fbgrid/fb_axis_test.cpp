#include "screen/fbgrid/fb_axis.h"

#include <random>

#include <gtest/gtest.h>

namespace jogeon {
namespace {

// Every answer of the axis against plain sums over the same sizes.
void ExpectSame(const std::vector<int>& sizes, const FBAxis& axis) {
    ASSERT_EQ(static_cast<int>(sizes.size()), axis.Count());
    std::int64_t offset = 0;
    for (int i = 0; i < axis.Count(); ++i) {
        const int size = sizes[static_cast<std::size_t>(i)];
        EXPECT_EQ(size, axis.Size(i));
        EXPECT_EQ(offset, axis.Offset(i));
        for (int pixel = 0; pixel < size; ++pixel) ASSERT_EQ(i, axis.IndexAt(offset + pixel)) << pixel;
        offset += size;
    }
    EXPECT_EQ(offset, axis.Total());
    EXPECT_EQ(axis.Count(), axis.IndexAt(offset));
}

TEST(FBAxisTest, AgreesWithPlainSumsAfterAnyChange) {
    std::mt19937 random(7);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    std::vector<int> sizes;
    FBAxis axis;
    for (int change = 0; change < 400; ++change) {
        if (change % 4 == 0) {
            const int count = below(70);
            const int size = below(5);
            sizes.resize(static_cast<std::size_t>(count), size);
            axis.Resize(count, size);
        } else if (!sizes.empty()) {
            const int index = below(axis.Count());
            const int size = below(3) * below(9);
            sizes[static_cast<std::size_t>(index)] = size;
            axis.SetSize(index, size);
        }
        ExpectSame(sizes, axis);
    }
}

TEST(FBAxisTest, TakesOddValues) {
    FBAxis axis;
    EXPECT_EQ(0, axis.IndexAt(0));
    EXPECT_EQ(0, axis.Offset(5));
    axis.Resize(3, -7);
    axis.SetSize(1, 4);
    axis.SetSize(2, -4);
    axis.SetSize(3, 9);
    axis.SetSize(-1, 9);
    ExpectSame({0, 4, 0}, axis);
    EXPECT_EQ(0, axis.Size(3));
    EXPECT_EQ(0, axis.IndexAt(-5));
    EXPECT_EQ(0, axis.Offset(-1));
    EXPECT_EQ(4, axis.Offset(99));
    axis.Resize(-1, 5);
    EXPECT_EQ(0, axis.Count());
    axis.Resize(3, 2'000'000'000);  // beyond 32 bits in sum
    EXPECT_EQ(6'000'000'000, axis.Total());
    EXPECT_EQ(2, axis.IndexAt(5'999'999'999));
}

}  // namespace
}  // namespace jogeon
