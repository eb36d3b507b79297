#include "screen/fbgrid/fb_grid_sheet.h"

#include <gtest/gtest.h>

#include "screen/files/atomic_file.h"
#include "tests/screen/support/bytes.h"
#include "tests/screen/support/condition_files.h"

namespace jogeon {
namespace {

using test::Hex;
using test::ReadBytes;

class GridSheetTest : public testing::Test {
protected:
    // Four columns, the second one hidden, under a header; two body rows.
    void SetUp() override {
        for (const char* title : {"A", "B", "C", "D"}) grid_.AddColumn(title, *title == 'B' ? 0 : 50);
        grid_.SetRowCnt(3);
        grid_[1][0].text = "a1";
        grid_[1][0].format = CCell::kLeft;
        grid_[1][1].format = CCell::kCentre;
        grid_[1][2].format = 5;  // no format of ours: that of the cell before, hidden as it is
        grid_.SetCellValue(1, 3, 5);
        grid_.SetCellValue(2, 2, 5);
        grid_[2][2].check = CCell::kOn;
        grid_[2][3].text = "d2";
    }

    test::TempFolder folder_;
    const std::filesystem::path path_ = folder_.Path() / "sheet.xls";
    FBGridData grid_;
};

const std::string kHead = Hex("0908 0600 0002 1000 0000  0002 0A00 0000 FFFF 0000 0001 0000");
const std::string kEnd = Hex("0A00 0000");

TEST_F(GridSheetTest, SavesAllShownColumns) {
    ASSERT_TRUE(SaveSheet(grid_, path_));
    EXPECT_EQ(kHead +
                  Hex("0400 0900 0000 0000 00007A 01 41"
                      "0400 0900 0000 0100 00007A 01 43"
                      "0400 0900 0000 0200 00007A 01 44"
                      "0400 0A00 0100 0000 000001 02 6131"
                      "0400 0800 0100 0100 000002 00"
                      "0300 0F00 0100 0200 000003 0000000000001440"
                      "0400 0800 0200 0000 000043 00"
                      "0300 0F00 0200 0100 000043 00000000000014C0"
                      "0400 0A00 0200 0200 000043 02 6432") +
                  kEnd,
              ReadBytes(path_));
}

TEST_F(GridSheetTest, SavesAPartInItsPlaceWithTheTitleBelow) {
    ASSERT_TRUE(SaveSheetPartially(grid_, path_, "A and B", 1, 2));
    EXPECT_EQ(kHead +
                  Hex("0400 0900 0000 0100 00007A 01 43"
                      "0400 0800 0100 0100 000002 00"
                      "0300 0F00 0200 0100 000043 00000000000014C0"
                      "0400 0F00 0400 0100 000041 07 4120616E642042") +
                  kEnd,
              ReadBytes(path_));
    ASSERT_TRUE(SaveSheetPartially(grid_, path_, "", 3, 99));
    EXPECT_EQ(kHead +
                  Hex("0400 0900 0000 0300 00007A 01 44"
                      "0300 0F00 0100 0300 000003 0000000000001440"
                      "0400 0A00 0200 0300 000043 02 6432"
                      "0400 0800 0400 0300 000041 00") +
                  kEnd,
              ReadBytes(path_));
}

TEST_F(GridSheetTest, SavesAnEmptyGridAndTellsAFailure) {
    ASSERT_TRUE(SaveSheet(FBGridData(), path_));
    EXPECT_EQ(kHead + kEnd, ReadBytes(path_));
    for (const FileStep step : {FileStep::Open, FileStep::Write}) {
        const FileFault fault(step, 40);
        EXPECT_FALSE(SaveSheet(grid_, path_));
        EXPECT_FALSE(SaveSheetPartially(grid_, path_, "t", 0, 3));
    }
    EXPECT_EQ(kHead + kEnd, ReadBytes(path_));
}

}  // namespace
}  // namespace jogeon
