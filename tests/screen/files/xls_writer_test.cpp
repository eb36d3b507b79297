#include "screen/files/xls_writer.h"

#include <gtest/gtest.h>

#include "tests/screen/support/bytes.h"
#include "tests/screen/support/condition_files.h"

namespace jogeon {
namespace {

namespace fs = std::filesystem;
using test::Hex;
using test::ReadBytes;

const std::string kHead = Hex("0908 0600 0002 1000 0000  0002 0A00 0000 FFFF 0000 0001 0000");
const std::string kEnd = Hex("0A00 0000");

class XlsWriterTest : public testing::Test {
protected:
    std::string Saved() const { return ReadBytes(path_); }

    test::TempFolder folder_;
    const fs::path path_ = folder_.Path() / "sheet.xls";
    XlsWriter sheet_;
};

TEST_F(XlsWriterTest, WritesCellsByteForByte) {
    ASSERT_EQ(1, sheet_.Open(path_));
    sheet_.WriteLabel(0, 0, "A");
    sheet_.SetAlignment(XlsWriter::kCentre);
    sheet_.SetBorder(XlsWriter::kAllSides);
    sheet_.WriteLabel(1, 258, "조건"_cp949);
    sheet_.SetBorder(XlsWriter::kBottom);
    sheet_.WriteNumber(0x1234, 3, -5);
    sheet_.SetAlignment(XlsWriter::kRight);
    sheet_.WriteNumber(0x12345, 0x10001, 1.5);
    sheet_.WriteLabel(2, 0, std::string_view("ab\0cd", 5));
    ASSERT_TRUE(sheet_.Close());
    EXPECT_EQ(kHead +
                  Hex("0400 0900 0000 0000 000000 01 41"
                      "0400 0C00 0100 0201 00007A 04 C1B6B0C7"
                      "0300 0F00 3412 0300 000042 00000000000014C0"
                      "0300 0F00 4523 0100 000043 000000000000F83F"
                      "0400 0A00 0200 0000 000043 02 6162") +
                  kEnd,
              Saved());
}

TEST_F(XlsWriterTest, CutsALongLabelBeforeTheCharacterThatDoesntFit) {
    const std::string han = "가"_cp949;
    std::string longText;
    for (int i = 0; i < 150; ++i) longText += han;
    ASSERT_EQ(1, sheet_.Open(path_));
    sheet_.WriteLabel(0, 0, longText);
    sheet_.WriteLabel(0, 1, "x" + longText);
    ASSERT_TRUE(sheet_.Close());
    EXPECT_EQ(kHead + Hex("0400 0601 0000 0000 000000 FE") + longText.substr(0, 254) +
                  Hex("0400 0701 0000 0100 000000 FF") + "x" + longText.substr(0, 254) + kEnd,
              Saved());
}

TEST_F(XlsWriterTest, AnotherOpenEndsTheSheetBefore) {
    ASSERT_EQ(1, sheet_.Open(path_));
    const fs::path other = folder_.Path() / "other.xls";
    ASSERT_EQ(1, sheet_.Open(other));
    EXPECT_EQ(kHead + kEnd, Saved());
    EXPECT_FALSE(fs::exists(other));
    EXPECT_TRUE(sheet_.Close());
    EXPECT_EQ(28u, fs::file_size(other));
    sheet_.WriteLabel(0, 0, "closed");
    EXPECT_FALSE(sheet_.Close());
    EXPECT_EQ(28u, fs::file_size(other));
    EXPECT_EQ(0, sheet_.Open(folder_.Path()));
    EXPECT_EQ(0, sheet_.Open(folder_.Path() / "missing" / "sheet.xls"));
    EXPECT_FALSE(sheet_.Close());
}

TEST_F(XlsWriterTest, AFailureLeavesTheOldFile) {
    test::WriteBytes(path_, "old");
    for (const FileStep step : {FileStep::Open, FileStep::Write}) {
        const FileFault fault(step, 30);
        EXPECT_EQ(step == FileStep::Open ? 0 : 1, sheet_.Open(path_));
        sheet_.WriteLabel(0, 0, "new");
        EXPECT_FALSE(sheet_.Close());
        EXPECT_EQ("old", Saved());
    }
    {
        XlsWriter abandoned;
        ASSERT_EQ(1, abandoned.Open(path_));
        abandoned.WriteLabel(0, 0, "new");
    }
    EXPECT_EQ("old", Saved());
    EXPECT_EQ(1, std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator()));
}

}  // namespace
}  // namespace jogeon
