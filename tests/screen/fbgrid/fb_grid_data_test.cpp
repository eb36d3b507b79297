#include "screen/fbgrid/fb_grid_data.h"

#include <limits>

#include <gtest/gtest.h>

#include "screen/fbgrid/fb_index.h"

namespace jogeon {
namespace {

// A grid that writes down what a window over it would be told.
class RecordingGrid : public FBGridData {
public:
    std::string events;

protected:
    void OnSizesChanged(bool redraw) override { events += redraw ? "S" : "s"; }
    void OnCellsChanged() override { events += "C"; }
};

// `rows` rows, the first of them a header, whose cells say "row,column"; row r is 10 + r high.
void Fill(FBGridData& grid, int rows, int columns) {
    grid.SetColCnt(columns);
    grid.SetRowCnt(rows);
    grid.SetFixedRowCnt(1);
    for (int row = 0; row < rows; ++row) {
        grid.SetRowHeight(row, 10 + row);
        for (int col = 0; col < columns; ++col)
            grid[row][col].text = std::to_string(row) + "," + std::to_string(col);
    }
}

std::string FirstColumn(const FBGridData& grid) {
    std::string texts;
    for (int row = 0; row < grid.GetRowCnt(); ++row) {
        texts += grid.GetCell(row, 0).text + ":" + std::to_string(grid.GetRowHeight(row)) + " ";
    }
    return texts;
}

TEST(FBGridDataTest, GrowsWithDefaultsAndShrinks) {
    RecordingGrid grid;
    EXPECT_EQ((CCellID{-1, -1}), grid.GetFocusedCellID());
    grid.SetColCnt(2);
    grid.SetRowCnt(2);
    grid.SetDefRowHeight(30);
    grid.SetDefColWidth(50);
    grid.SetRowCnt_NoRedraw(3);
    grid.SetColCnt(3);
    grid.SetFixedRowCnt(1);
    grid.SetFixedColCnt(2);
    EXPECT_EQ("SSsS", grid.events);
    EXPECT_EQ(18 + 18 + 30, grid.GetVirtualHeight());
    EXPECT_EQ(80 + 80 + 50, grid.GetVirtualWidth());
    EXPECT_EQ(18, grid.GetFixedRowHeight());
    EXPECT_EQ(160, grid.GetFixedColWidth());
    const CCell& cell = grid.GetCell(2, 2);
    EXPECT_TRUE(cell.text.empty() && cell.value == 0 && cell.state == 0 && cell.format == 2 &&
                cell.image == -1 && cell.listIndex == -1 && cell.check == 0);
    EXPECT_EQ(fbcolour::kWindow, cell.backColour);
    EXPECT_EQ(fbcolour::kWindowText, cell.textColour);

    grid.events.clear();
    grid.SetRowCnt(3);
    grid.SetRowCnt(-1);
    EXPECT_EQ(1, grid.SetColWidth(0, 50 + 30));
    EXPECT_EQ(0, grid.SetColWidth(3, 9));
    EXPECT_EQ(0, grid.SetRowHeight(-1, 9));
    EXPECT_EQ("", grid.events) << "nothing has changed";
    grid.SetRowCnt(0);
    grid.SetColCnt(0);
    EXPECT_EQ(0, grid.GetFixedRowCnt());
    EXPECT_EQ(0, grid.GetFixedColCnt());
}

TEST(FBGridDataTest, AddColumnLeavesTheHeaderRowOnly) {
    FBGridData grid;
    grid.AddColumn("A", 20);
    grid.AddColumn("B", 0);
    grid.SetRowCnt(4);
    grid.AddColumn("C", 30);
    EXPECT_EQ(1, grid.GetRowCnt());
    EXPECT_EQ(1, grid.GetFixedRowCnt());
    EXPECT_EQ(50, grid.GetVirtualWidth());
    EXPECT_EQ("A", grid[0][0].text);
    EXPECT_EQ("C", grid[0][2].text);
    EXPECT_EQ(CCell::kCentre, grid[0][2].format);
}

TEST(FBGridDataTest, DeletingARowMovesCellsAndLeavesHeights) {
    FBGridData grid;
    Fill(grid, 4, 2);
    grid.DeleteRow(1);
    EXPECT_EQ("0,0:10 2,0:11 3,0:12 ", FirstColumn(grid));
    EXPECT_EQ("3,1", grid[2][1].text);
    grid.DeleteRow(2);
    grid.DeleteRow(1);
    EXPECT_EQ("0,0:10 ", FirstColumn(grid));
    EXPECT_EQ(1, grid.GetFixedRowCnt());
    grid.DeleteRow(0);
    EXPECT_EQ(0, grid.GetRowCnt());
    EXPECT_EQ(0, grid.GetFixedRowCnt());
}

TEST(FBGridDataTest, DeleteAllDropsTheListsWithTheRows) {
    FBGridData grid;
    Fill(grid, 1, 1);
    grid.AddDropDownItem(std::make_unique<CStringArray>(CStringArray{"a", "b"}));
    grid.DeleteAll();
    ASSERT_NE(nullptr, grid.DropDownItems(0)) << "there was no row to delete";
    EXPECT_EQ("b", grid.DropDownItems(0)->at(1));
    EXPECT_EQ(nullptr, grid.DropDownItems(-1));
    Fill(grid, 3, 1);
    grid.DeleteAll();
    EXPECT_EQ("0,0:10 ", FirstColumn(grid));
    EXPECT_EQ(nullptr, grid.DropDownItems(0));
}

CCell FilledCell(std::uint32_t state) {
    CCell cell;
    cell.text = "t";
    cell.value = 5;
    cell.state = state;
    cell.format = CCell::kLeft;
    cell.image = 3;
    cell.listIndex = 4;
    cell.backColour = 0x123456;
    cell.textColour = 0x654321;
    cell.check = CCell::kOn;
    return cell;
}

// All fields in one text, so that a difference shows which.
std::string Fields(const CCell& cell) {
    std::string fields = cell.text + "/" + std::to_string(static_cast<int>(cell.value));
    for (const std::uint32_t field : {cell.state, cell.format, static_cast<std::uint32_t>(cell.image + 1),
                                      static_cast<std::uint32_t>(cell.listIndex + 1), cell.backColour & 0xFF,
                                      cell.textColour & 0xFF, cell.check})
        fields += "/" + std::to_string(field);
    return fields;
}

TEST(FBGridDataTest, ClearsByTheKindOfTheCell) {
    RecordingGrid grid;
    Fill(grid, 4, 3);
    for (int row = 0; row < 4; ++row) {
        grid.SetCell(row, 0, FilledCell(CCell::kCheck));
        grid.SetCell(row, 1, FilledCell(CCell::kCheck | CCell::kButton));
    }
    grid.SetFixedColCnt(1);
    grid.events.clear();

    grid.ClearRow(1, false);
    EXPECT_EQ("/0/4/0/0/0/86/33/3", Fields(grid[1][0])) << "a check box stays one, disabled";
    EXPECT_EQ("/0/0/0/0/0/86/33/0", Fields(grid[1][1]));
    grid.ClearRow(1, true);
    EXPECT_EQ("C", grid.events);

    grid.MoveRowData(2, 1, true);
    EXPECT_EQ("t/5/4/0/4/5/86/33/1", Fields(grid[1][0]));
    EXPECT_EQ("/0/4/0/0/0/86/33/3", Fields(grid[2][0]));
    EXPECT_EQ("CC", grid.events);

    grid.InitNonFixedCell();
    EXPECT_EQ("t/5/12/0/4/5/86/33/1", Fields(grid[0][1])) << "header row";
    EXPECT_EQ("t/5/4/0/4/5/86/33/1", Fields(grid[3][0])) << "header column";
    EXPECT_EQ("/0/0/0/0/5/86/33/0", Fields(grid[3][1])) << "the list stays";
    EXPECT_EQ("CCC", grid.events);
}

TEST(FBGridDataTest, SetsAndSwapsCells) {
    FBGridData grid;
    Fill(grid, 2, 2);
    grid[1][0].state = CCell::kEdit;
    grid[1][0].format = CCell::kCentre;
    grid.SetCellValue(1, 0, 7);
    EXPECT_EQ("1,0/7/17/2/0/0/5/8/0", Fields(grid[1][0]));
    grid.SetCell(1, 1, FilledCell(CCell::kList));
    grid.SwapCellInfo(1, 0, 1, 1);
    grid.SwapCellInfo(1, 0, 1, 0);
    EXPECT_EQ("t/5/2/0/4/5/86/33/1", Fields(grid[1][0]));
    EXPECT_EQ("1,0/7/17/2/0/0/5/8/0", Fields(grid[1][1]));
    EXPECT_TRUE(grid.IsNonHeaderCell(0, 1));
    EXPECT_FALSE(grid.IsNonHeaderCell(1, 0));
    EXPECT_TRUE(grid.IsValid(1, 1));
    EXPECT_FALSE(grid.IsValid(2, 0) || grid.IsValid(0, 2) || grid.IsValid(-1, 0) || grid.IsValid(0, -1));
}

TEST(FBGridDataTest, AReleaseBuildIgnoresWrongIndices) {
    const ReleaseIndexRule rule;
    FBGridData grid;
    Fill(grid, 3, 2);
    grid.GetCell(3, 0).text = "lost";
    EXPECT_EQ("", grid.GetCell(0, 2).text) << "what was written to no cell is gone";
    grid[-1].Resize(9);
    EXPECT_EQ(0, grid[7].Count());
    EXPECT_EQ("", std::as_const(grid)[7][3].text);
    grid.SwapCellInfo(1, 0, 9, 0);
    grid.MoveRowData(1, 3, true);
    grid.MoveRowData(-1, 1, true);
    grid.SetCell(0, -1, FilledCell(0));
    grid.SetCellValue(0, 2, 1);
    grid.ClearRow(3, true);
    grid.DeleteRow(3);
    grid.DeleteRow(-1);
    EXPECT_EQ("0,0:10 1,0:11 2,0:12 ", FirstColumn(grid));
}

#if !defined(NDEBUG)
TEST(FBGridDataDeathTest, ADebugBuildStopsAtWrongIndices) {
    FBGridData grid;
    Fill(grid, 2, 2);
    EXPECT_DEATH(grid.GetCell(2, 0), "doesn't have");
    EXPECT_DEATH(grid[0][2], "doesn't have");
    EXPECT_DEATH(grid.DeleteRow(-1), "doesn't have");
    EXPECT_DEATH(grid.SwapCellInfo(0, 0, 0, 2), "doesn't have");
}
#endif

TEST(FBGridDataTest, FormatsNumbers) {
    const std::tuple<double, int, const char*> cases[] = {
        {0, 0, "0"},
        {100, 0, "100"},
        {1000, 0, "1,000"},
        {1234567, 0, "1,234,567"},
        {-1000, 0, "-1,000"},
        {-100, 0, "-100"},
        {1234.5, 0, "1234.50"},
        {1000, 2, "1000.00"},
        {2.005, 1, "2.00"},  // the nearest double lies below
        {0.0000001, 0, "0"},
        {0.000001, 0, "0.00"},
        {999999.9999999, 0, "1,000,000"},
        {1e21, 0, "1,000,000,000,000,000,000,000"},
        {std::numeric_limits<double>::infinity(), 0, "inf"},
        {-std::numeric_limits<double>::infinity(), 1, "-inf"},
        {std::numeric_limits<double>::quiet_NaN(), 0, "nan"},
    };
    for (const auto& [value, decimals, text] : cases)
        EXPECT_EQ(text, FBGridData::FormatFloat(value, decimals)) << value;
    EXPECT_EQ(309u + 102, FBGridData::FormatFloat(std::numeric_limits<double>::max(), 0).size());
    EXPECT_EQ(1 + 309u + 3, FBGridData::FormatFloat(std::numeric_limits<double>::lowest(), 2).size());
}

TEST(FBGridDataTest, ShowsANumberWithTheTextBehindIt) {
    CCell cell;
    cell.text = " won";
    cell.value = 1234;
    EXPECT_EQ(" won", FBGridData::ShownText(cell));
    cell.state = CCell::kNumeric;
    EXPECT_EQ("1,234 won", FBGridData::ShownText(cell));
    cell.state |= CCell::kTwoDecimals;
    EXPECT_EQ("1234.00 won", FBGridData::ShownText(cell));
}

}  // namespace
}  // namespace jogeon
