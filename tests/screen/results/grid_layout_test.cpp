// The layout file of the result grid: its bytes, and what is made of damaged ones.
#include "screen/results/grid_layout.h"

#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"

namespace jogeon {
namespace {

class GridLayoutFile : public testing::Test {
protected:
    void SetUp() override {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        path_ = std::filesystem::path(testing::TempDir()) / (std::string(test->name()) + ".dlg");
        std::filesystem::remove(path_);
    }
    void TearDown() override { std::filesystem::remove(path_); }

    GridLayout Read(const std::string& bytes) {
        std::ofstream(path_, std::ios::binary) << bytes;
        return ReadGridLayout(path_);
    }

    std::filesystem::path path_;
};

TEST_F(GridLayoutFile, KeepsEveryPropertyOfAColumn) {
    const GridLayout layout{{1, "9001", "종목명"_cp949, 120, false, CellFormat::Text},
                            {2, "", "", 72, true, CellFormat::Decimal}};
    ASSERT_TRUE(WriteGridLayout(path_, layout));

    std::stringstream written;
    written << std::ifstream(path_, std::ios::binary).rdbuf();
    EXPECT_EQ(
        written.str(),
        "[Column01]\r\nNumber=1\r\nFid=9001\r\nHeader=\xC1\xBE\xB8\xF1\xB8\xED\r\nWidth=120\r\nHidden=0\r\n"
        "Format=text\r\n\r\n"
        "[Column02]\r\nNumber=2\r\nFid=\r\nHeader=\r\nWidth=72\r\nHidden=1\r\nFormat=decimal\r\n\r\n");

    const GridLayout read = ReadGridLayout(path_);
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].fid, "9001");
    EXPECT_EQ(read[0].header, "종목명"_cp949);
    EXPECT_EQ(read[0].width, 120);
    EXPECT_FALSE(read[0].hidden);
    EXPECT_EQ(read[1].fid, "");
    EXPECT_TRUE(read[1].hidden);
    EXPECT_EQ(read[1].format, CellFormat::Decimal);
}

TEST_F(GridLayoutFile, NumbersOrderTheColumnsWithoutAGap) {
    const GridLayout layout =
        Read("[a]\nNumber=7\nFid=9003\n[b]\nNumber=1\nFid=9001\n[c]\nNumber=7\nFid=9004\n");
    ASSERT_EQ(layout.size(), 3u);
    EXPECT_EQ(layout[0].fid + layout[1].fid + layout[2].fid, "900190039004");
    for (int i = 0; i < 3; ++i) EXPECT_EQ(layout[static_cast<std::size_t>(i)].number, i + 1);
}

TEST_F(GridLayoutFile, TakesWhatCanBeReadFromDamage) {
    const GridLayout layout = Read(
        "Fid=1111\n[one]\nWidth=-5\nFid= 9001 \nFormat=hologram\n[two\nFid=2222\n[three]\nNumber=x\n"
        "Width=99999999999\nHidden=yes\n=\n[four]\n[three]\nWidth=30\n\xff\xfe\n");
    ASSERT_EQ(layout.size(), 3u);  // a second [three] replaces the first, and [two is no section
    EXPECT_EQ(layout[0].fid, "9001");
    EXPECT_EQ(layout[0].width, kMinColumnWidth);
    EXPECT_EQ(layout[0].format, CellFormat::Text);
    EXPECT_EQ(layout[1].width, 30);
    EXPECT_EQ(layout[2].width, kDefaultColumnWidth);
}

TEST_F(GridLayoutFile, AnEndlessFileGivesAGridThatCanBeShown) {
    std::string bytes;
    for (int i = 0; i < 5000; ++i) bytes += "[c" + std::to_string(i) + "]\nWidth=2000000000\n";
    const GridLayout layout = Read(bytes);
    EXPECT_EQ(layout.size(), kMaxGridColumns);
    EXPECT_EQ(layout.back().width, kMaxColumnWidth);
}

TEST_F(GridLayoutFile, AMissingFileHasNoColumnsAndNoColumnsMakeNoFile) {
    EXPECT_TRUE(ReadGridLayout(path_).empty());
    EXPECT_FALSE(WriteGridLayout(path_, {}));
    EXPECT_FALSE(std::filesystem::exists(path_));
}

}  // namespace
}  // namespace jogeon
