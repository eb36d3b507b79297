// A saved sheet as a spreadsheet program reads it that knows nothing of ours. Skipped where it isn't
// installed.
#include <gtest/gtest.h>

#include "screen/fbgrid/fb_grid_sheet.h"
#include "tests/screen/support/spreadsheet.h"

namespace jogeon {
namespace {

// UTF-8, commas between columns. Texts are quoted and numbers aren't, as each cell was stored.
constexpr const char* kQuotedTextInUtf8 = "44,34,76,1,,0,true,false";

TEST(GridSheetCalcTest, ASpreadsheetProgramReadsTheSheet) {
    if (!test::HasSpreadsheetProgram()) GTEST_SKIP() << "soffice is not installed";
    FBGridData grid;
    for (const char* title : {"", "종목명", "숨김", "값"})
        grid.AddColumn(ToCp949(title), std::string_view(title) == "숨김" ? 0 : 50);
    grid.SetRowCnt(4);
    grid[1][1].text = "삼성전자"_cp949;
    grid.SetCellValue(1, 3, 71800);
    grid[2][1].text = "123";  // a text of digits stays a text
    grid.SetCellValue(2, 3, 1234.5);
    grid.SetCellValue(3, 3, 5);
    grid[3][3].check = CCell::kOn;

    const test::TempFolder folder;
    ASSERT_TRUE(SaveSheetPartially(grid, folder.Path() / "sheet.xls", "A and (B or !C) 똠방"_cp949, 1, 3));
    EXPECT_EQ(
        ",\"종목명\",\"값\"\n"
        ",\"삼성전자\",71800\n"
        ",\"123\",1234.5\n"
        ",,-5\n"
        ",,\n"
        ",\"A and (B or !C) 똠방\",\n",
        test::AsCsv(folder.Path(), "sheet.xls", kQuotedTextInUtf8, "sheet.csv", "ko_KR.UTF-8"));
}

}  // namespace
}  // namespace jogeon
