#include "terminal/window/size_rules.h"

#include <gtest/gtest.h>

namespace jogeon::terminal {
namespace {

TEST(SizeRulesTest, AWindowGrowsOnItsDesktopOnly) {
    const QRect desktop(0, 30, 1000, 700);
    struct Case {
        const char* what;
        QRect window;
        QSize extra;
        QRect grown;
    };
    const Case cases[] = {
        {"room enough", {100, 100, 400, 300}, {300, 0}, {100, 100, 700, 300}},
        {"moves left for it", {500, 100, 400, 300}, {300, 0}, {300, 100, 700, 300}},
        {"and up", {100, 400, 400, 300}, {0, 200}, {100, 230, 400, 500}},
        {"as wide as the desktop", {200, 100, 700, 300}, {600, 0}, {0, 100, 1000, 300}},
        {"shrinks where it is", {100, 100, 700, 300}, {-300, 0}, {100, 100, 400, 300}},
        {"larger already", {-50, 100, 1200, 300}, {100, 0}, {-50, 100, 1200, 300}},
        {"across the edge already", {700, 100, 400, 300}, {100, 0}, {700, 100, 500, 300}},
    };
    for (const Case& c : cases) EXPECT_EQ(Grown(c.window, c.extra, desktop), c.grown) << c.what;
}

TEST(SizeRulesTest, ANewWindowLiesOnItsDesktopAsAWhole) {
    const QRect desktop(0, 30, 1000, 700);
    EXPECT_EQ(PlacedWhole({100, 50}, {400, 300}, desktop), QRect(100, 50, 400, 300));
    EXPECT_EQ(PlacedWhole({900, 600}, {400, 300}, desktop), QRect(600, 430, 400, 300));
    EXPECT_EQ(PlacedWhole({2000, -90}, {1400, 300}, desktop), QRect(0, 30, 1000, 300));
}

}  // namespace
}  // namespace jogeon::terminal
