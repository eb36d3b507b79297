#include "screen/transactions/result_columns.h"

#include <gtest/gtest.h>

#include "tests/screen/support/columns.h"
#include "tests/screen/support/condition_files.h"

namespace jogeon {
namespace {

std::vector<std::string> Fids(const std::vector<ResultColumn*>& columns) {
    std::vector<std::string> fids;
    for (const ResultColumn* column : columns) fids.push_back(column->fid);
    return fids;
}

TEST(LoadColumnTable, KeepsFileOrderAndReadsWidths) {
    const test::TempFolder folder;
    test::WriteText(
        folder.Path() / "XcsFid.dat",
        "[Basic_Fid]\r\n9001=name;12\r\n4001= change ; 6\r\n3001=price\r\n2001=volume;-9\r\n4001=twice;7\r\n"
        "[Extend_Fid]\r\n5101=value A;8;\r\n");
    const ColumnTables tables = LoadColumnTable(folder.Path() / "XcsFid.dat");
    EXPECT_EQ(Fids(tables.columns), (std::vector<std::string>{"9001", "4001", "3001", "2001"}));
    EXPECT_EQ(tables.columns[1]->gridColumn, 2);
    EXPECT_EQ(tables.columns[1]->selected, 1);
    EXPECT_EQ(tables.columns[2]->width, 0);  // a value without ";"
    EXPECT_EQ(tables.columns[3]->width, 0);
    EXPECT_EQ(tables.sequenceStart, 0);
    const ResultColumn* optional = tables.FindOptional("5101");
    ASSERT_TRUE(optional);
    EXPECT_EQ(optional->name, "value A");
    EXPECT_EQ(optional->width, 8);
    EXPECT_EQ(optional->gridColumn, 0);
    EXPECT_EQ(optional->selected, 0);
}

TEST(LoadColumnTable, MissingFileLeavesTheTablesEmpty) {
    const ColumnTables tables = LoadColumnTable("/no/such/XcsFid.dat");
    EXPECT_TRUE(tables.columns.empty());
    EXPECT_TRUE(tables.fixedColumns.empty());
    EXPECT_EQ(tables.sequenceStart, 1);
}

TEST(GridLayout, SelectsPlacesAndAsksForWhatIsVisible) {
    ColumnTables tables = test::SmallTables();
    const GridColumnLayout layout[] = {
        {1, "4001", false}, {2, "9001", false}, {3, "", false}, {4, "3001", true}, {5, "8888", false}};
    ApplyGridLayout(tables, layout);
    EXPECT_EQ(tables.FindFixed("4001")->gridColumn, 1);
    EXPECT_EQ(tables.FindFixed("9001")->gridColumn, 2);
    EXPECT_EQ(tables.FindFixed("3001")->gridColumn, 4);
    EXPECT_EQ(tables.FindFixed("3001")->selected, 0);
    // Not in the grid: its place of file order is another column's now.
    EXPECT_EQ(tables.FindFixed("2001")->gridColumn, 0);
    EXPECT_EQ(SelectedFids(tables), std::vector<std::string>{"4001"});
    EXPECT_EQ(tables.sequenceStart, 0);
}

TEST(GridLayout, AHiddenNameColumnMovesTheStartOfTheMatch) {
    ColumnTables tables = test::SmallTables();
    const GridColumnLayout layout[] = {{1, "9001", true}, {2, "3001", false}};
    ApplyGridLayout(tables, layout);
    EXPECT_EQ(tables.sequenceStart, 1);
}

TEST(SelectedFids, NeverNamesValueColumnsOfAnEarlierResult) {
    ColumnTables tables = test::SmallTables();
    ResultColumn value{"value A", "5101", 8, 5, 1};
    tables.columns.push_back(&value);
    EXPECT_EQ(SelectedFids(tables), (std::vector<std::string>{"3001", "2001", "4001"}));
    EXPECT_EQ(SelectedFids(tables, 2), (std::vector<std::string>{"2001", "4001"}));
    tables.CutToFixed();
    EXPECT_EQ(tables.columns.size(), 4u);
}

}  // namespace
}  // namespace jogeon
