#include "screen/fbgrid/fb_grid_geometry.h"

#include <chrono>
#include <random>

#include <gtest/gtest.h>

namespace jogeon {
namespace {

// A grid of these row heights and column widths, the first of each being headers.
std::unique_ptr<FBGridData> Grid(const std::vector<int>& heights, const std::vector<int>& widths,
                                 int fixedRows = 1, int fixedColumns = 1) {
    auto grid = std::make_unique<FBGridData>();
    grid->SetRowCnt(static_cast<int>(heights.size()));
    grid->SetColCnt(static_cast<int>(widths.size()));
    for (int row = 0; row < grid->GetRowCnt(); ++row)
        grid->SetRowHeight(row, heights[static_cast<std::size_t>(row)]);
    for (int col = 0; col < grid->GetColCnt(); ++col)
        grid->SetColWidth(col, widths[static_cast<std::size_t>(col)]);
    grid->SetFixedRowCnt(fixedRows);
    grid->SetFixedColCnt(fixedColumns);
    return grid;
}

TEST(FBGridGeometryTest, StartsWithAWholeRow) {
    const auto grid = Grid({10, 20, 20, 20, 20}, {30, 0, 40, 50});
    const std::tuple<int, CCellRange, int> cases[] = {
        {0, {1, 1, 3, 2}, -1},  {1, {2, 1, 4, 2}, 50},   {20, {2, 1, 4, 2}, 50}, {21, {3, 1, 4, 2}, 30},
        {39, {3, 1, 4, 2}, 30}, {999, {3, 1, 4, 2}, 30},  // a stale position is the last one
    };
    for (const auto& [scrollY, visible, topOfLast] : cases) {
        const FBGridGeometry geometry(*grid, {60, 51}, 0, scrollY);
        EXPECT_EQ(visible, geometry.GetVisibleRange()) << scrollY;
        EXPECT_EQ((CCellID{visible.minRow, 1}), geometry.GetTopleftNonFixedCell()) << scrollY;
        EXPECT_EQ(topOfLast, geometry.GetCellRect(4, 0).value_or(GridRect{0, -1, 0, 0}).top) << scrollY;
    }
}

TEST(FBGridGeometryTest, ALastRowLongerThanThePageIsShown) {
    const auto grid = Grid({10, 20, 300}, {30}, 1, 0);
    for (const int scrollY : {20, 21, 270}) {
        const FBGridGeometry geometry(*grid, {60, 60}, 0, scrollY);
        EXPECT_EQ((GridRect{0, 10, 30, 300}), geometry.GetCellRect(2, 0)) << scrollY;
        EXPECT_EQ(0, geometry.AfterVerticalStep(ScrollStep::LineUp)) << scrollY;
    }
}

TEST(FBGridGeometryTest, FindsCellsAndTheirRectangles) {
    const auto grid = Grid({10, 20, 20, 20}, {30, 0, 40, 50, 60});
    const FBGridGeometry geometry(*grid, {150, 60}, 1, 20);  // the columns from 3 on, the rows from 2 on
    const std::tuple<GridPoint, CCellID, CCellID> cases[] = {
        {{0, 0}, {0, 0}, {-1, -1}},   {{29, 9}, {0, 0}, {-1, -1}},   {{30, 9}, {0, 3}, {-1, 3}},
        {{29, 10}, {2, 0}, {2, -1}},  {{79, 29}, {2, 3}, {2, 3}},    {{80, 30}, {3, 4}, {3, 4}},
        {{139, 49}, {3, 4}, {3, 4}},  {{140, 49}, {3, -1}, {3, -1}}, {{139, 50}, {-1, 4}, {-1, 4}},
        {{-1, 15}, {2, -1}, {2, -1}}, {{35, 200}, {-1, 3}, {-1, 3}},
    };
    for (const auto& [point, any, body] : cases) {
        EXPECT_EQ(any, geometry.GetCellFromPt(point, true)) << point.x << " " << point.y;
        EXPECT_EQ(body, geometry.GetCellFromPt(point, false)) << point.x << " " << point.y;
        _tagGridHitTestInfo info{7, 7, {7, 7, 7, 7}, 7, 7};
        const bool hit = any.row >= 0 && any.col >= 0;
        ASSERT_EQ(hit ? 1 : 0, geometry.HitTest(point, info));
        EXPECT_EQ(hit ? any : (CCellID{0, 0}), (CCellID{info.row, info.col}));
        EXPECT_EQ(hit ? 1 : 0, info.cell);
        EXPECT_EQ(hit && any.row == 0 ? 1 : 0, info.header);
        if (hit)
            EXPECT_TRUE(info.rect.Contains(point));
        else
            EXPECT_EQ(GridRect{}, info.rect);
    }
    EXPECT_EQ((GridRect{80, 30, 60, 20}), geometry.GetCellRect(3, 4));
    EXPECT_EQ((GridRect{0, 10, 140, 20}), geometry.GetRowRect(2));
    EXPECT_EQ(std::nullopt, geometry.GetCellRect(1, 3)) << "scrolled out";
    EXPECT_EQ(std::nullopt, geometry.GetCellRect(2, 2)) << "scrolled out";
    EXPECT_EQ(std::nullopt, geometry.GetCellRect(4, 0));
    EXPECT_EQ(std::nullopt, geometry.GetCellRect(2, -1));
    EXPECT_EQ(std::nullopt, geometry.GetRowRect(1));
    const FBGridGeometry cut(*grid, {35, 35}, 0, 0);
    EXPECT_EQ((GridRect{30, 10, 0, 20}), cut.GetCellRect(1, 1)) << "a hidden column has a place";
    EXPECT_EQ((GridRect{30, 30, 40, 20}), cut.GetCellRect(2, 2)) << "begins on the window";
    EXPECT_EQ((GridRect{0, 30, 70, 20}), cut.GetRowRect(2));
}

TEST(FBGridGeometryTest, StepsThroughTheRows) {
    const auto grid = Grid({10, 20, 30, 0, 20, 20}, {10}, 1, 0);  // body 90 high, page 40
    const auto after = [&](int scrollY, ScrollStep step) {
        return FBGridGeometry(*grid, {10, 50}, 0, scrollY).AfterVerticalStep(step);
    };
    const ScrollRange range = FBGridGeometry(*grid, {10, 50}, 0, 0).VerticalRange();
    EXPECT_TRUE(range.needed);
    EXPECT_EQ(50, range.maximum);
    EXPECT_EQ(40, range.page);
    const std::tuple<int, int, int, int, int> cases[] = {
        {0, 0, 20, 0, 40},    {20, 0, 50, 0, 50},
        {25, 0, 25, 0, 50},  // row 3 is at the top: hidden, so a line down stands still
        {50, 20, 50, 20, 50}, {99, 20, 50, 20, 50},
    };
    for (const auto& [from, lineUp, lineDown, pageUp, pageDown] : cases) {
        EXPECT_EQ(lineUp, after(from, ScrollStep::LineUp)) << from;
        EXPECT_EQ(lineDown, after(from, ScrollStep::LineDown)) << from;
        EXPECT_EQ(pageUp, after(from, ScrollStep::PageUp)) << from;
        EXPECT_EQ(pageDown, after(from, ScrollStep::PageDown)) << from;
        EXPECT_EQ(0, after(from, ScrollStep::Top));
        EXPECT_EQ(50, after(from, ScrollStep::Bottom));
    }
}

TEST(FBGridGeometryTest, ALineRightStepsOverHiddenColumns) {
    const auto grid = Grid({10}, {10, 20, 0, 0, 30, 40, 50}, 1, 1);  // body 140 wide
    const auto after = [&](int scrollX, ScrollStep step) {
        return FBGridGeometry(*grid, {60, 10}, scrollX, 0).AfterHorizontalStep(step);
    };
    EXPECT_EQ(20, after(0, ScrollStep::LineDown));
    EXPECT_EQ(50, after(20, ScrollStep::LineDown));
    EXPECT_EQ(90, after(50, ScrollStep::LineDown));
    EXPECT_EQ(20, after(50, ScrollStep::LineUp));
    EXPECT_EQ(0, after(20, ScrollStep::LineUp));
    EXPECT_EQ(90 - (50 - 10), after(90, ScrollStep::PageUp));
}

// Steps about in a grid whose columns are as its rows.
void Wander(const FBGridData& grid, GridSize client) {
    int scroll = 0;
    for (int i = 0; i < 20; ++i) {
        const FBGridGeometry geometry(grid, client, scroll, scroll);
        const CCellRange visible = geometry.GetVisibleRange();
        ASSERT_LT(visible.maxRow, grid.GetRowCnt());
        for (int row = visible.minRow; row <= visible.maxRow; ++row)
            ASSERT_TRUE(geometry.GetCellRect(row, row));
        const auto step = static_cast<ScrollStep>(i % 6);
        scroll = geometry.AfterVerticalStep(step);
        ASSERT_TRUE(step == ScrollStep::LineDown || scroll == geometry.AfterHorizontalStep(step));
        ASSERT_TRUE(scroll >= 0 && scroll <= geometry.VerticalRange().maximum);
    }
}

TEST(FBGridGeometryTest, OddGridsNeitherHangNorCrash) {
    const std::vector<std::vector<int>> sizes = {
        {}, {0}, {10}, {0, 0, 0}, {10, 0}, {200, 10}, {10, 300, 0}, {10, 5, 300}, {0, 20}, {10, 0, 20}};
    for (const auto& heights : sizes) {
        for (const int fixed : {-1, 0, 1, 2, 9}) {
            const auto grid = Grid(heights, heights, fixed, fixed);
            for (const int client : {-5, 0, 1, 30, 100}) Wander(*grid, {client, client});
        }
    }
}

// Whoever steps on comes to the end, and back, and sees every cell on the way.
TEST(FBGridGeometryTest, StepsReachEveryRow) {
    std::mt19937 random(3);
    for (int round = 0; round < 200; ++round) {
        std::vector<int> heights(2 + random() % 12);
        for (int& height : heights) height = 1 + static_cast<int>(random() % 40);
        const auto grid = Grid(heights, {10}, 1, 0);
        const GridSize client{10, heights[0] + 1 + static_cast<int>(random() % 80)};
        int scroll = 0;
        int seen = 0;
        const auto at = [&] { return FBGridGeometry(*grid, client, 0, scroll); };
        for (std::size_t i = 0; i <= heights.size(); ++i) {
            ASSERT_LE(at().GetVisibleRange().minRow, seen + 1) << "a row was passed over";
            seen = at().GetVisibleRange().maxRow;
            scroll = at().AfterVerticalStep(ScrollStep::LineDown);
        }
        ASSERT_EQ(grid->GetRowCnt() - 1, seen);
        for (std::size_t i = 0; i < 3000 && scroll > 0; ++i) {
            const auto back = i % 2 == 0 ? ScrollStep::PageUp : ScrollStep::LineUp;
            ASSERT_LT(at().AfterVerticalStep(back), scroll);
            scroll = at().AfterVerticalStep(back);
        }
        ASSERT_EQ(0, scroll);
    }
}

TEST(FBGridGeometryTest, HeadersStayWithoutBodyRows) {
    const auto grid = Grid({10}, {10, 20, 30}, 1, 1);
    EXPECT_EQ((CCellRange{1, 1, 0, 2}), FBGridGeometry(*grid, {40, 40}, 0, 0).GetVisibleRange());
    EXPECT_FALSE(FBGridGeometry(*grid, {40, 40}, 0, 0).VerticalRange().needed);
    EXPECT_TRUE(FBGridGeometry(*grid, {40, 40}, 0, 0).HorizontalRange().needed);
    EXPECT_FALSE(FBGridGeometry(*grid, {60, 10}, 0, 0).HorizontalRange().needed);
}

// Walking the rows for each question would take minutes.
TEST(FBGridGeometryTest, LongGridsAnswerAtOnce) {
    FBGridData grid;
    grid.SetRowCnt(1'000'000);
    grid.SetColCnt(2);
    grid.SetFixedRowCnt(1);
    const auto start = std::chrono::steady_clock::now();
    int scroll = 0;
    for (int i = 0; i < 20'000; ++i) {
        const FBGridGeometry geometry(grid, {100, 100}, 0, scroll);
        ASSERT_EQ(geometry.GetTopleftNonFixedCell().row,
                  geometry.GetCellFromPt({5, grid.GetFixedRowHeight()}, false).row);
        ASSERT_TRUE(geometry.GetCellRect(geometry.GetVisibleRange().maxRow, 0));
        scroll = geometry.AfterVerticalStep(i % 2 == 0 ? ScrollStep::Bottom : ScrollStep::PageUp);
        grid.SetRowHeight(i, 17);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

}  // namespace
}  // namespace jogeon
