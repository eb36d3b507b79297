#include "terminal/sheet/xlsx_export.h"

#include <csignal>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "screen/files/atomic_file.h"
#include "screen/text/cp949.h"
#include "terminal/sheet/sheet_text.h"
#include "terminal/sheet/xlsx_package.h"
#include "tests/screen/support/full_disk.h"
#include "tests/screen/support/recorders.h"
#include "tests/screen/support/spreadsheet.h"

namespace jogeon::terminal {
namespace {

namespace fs = std::filesystem;
using host::SheetFormat;

// A sheet of UTF-8 texts.
host::Sheet SheetOf(const char* name, std::vector<std::pair<const char*, SheetFormat>> columns,
                    const std::vector<std::vector<const char*>>& rows) {
    host::Sheet sheet{ToCp949(name), {}, {}};
    for (const auto& [title, format] : columns) sheet.columns.push_back({ToCp949(title), format});
    for (const auto& row : rows) {
        sheet.rows.emplace_back();
        for (const char* cell : row) sheet.rows.back().push_back(ToCp949(cell));
    }
    return sheet;
}

host::Sheet Result() {
    return SheetOf("적삼병 5/20",
                   {{"종목명", SheetFormat::Text},
                    {"코드", SheetFormat::Text},
                    {"현재가", SheetFormat::Integer},
                    {"PER", SheetFormat::Decimal},
                    {"등락률", SheetFormat::Percent}},
                   {{"삼성전자", "005930", "71800", "-1234.50", "-2.30"},
                    {"=1+1", "", "", "없음", ""},
                    {"똠방 \"각\" <하>;\t", "000660", "+0", "1234567890123456789", "12"}});
}

// Saves to a file in a folder of its own and tells the boxes that came.
class XlsxExportTest : public testing::Test {
protected:
    std::vector<host::Box> Save(const host::Sheet& sheet) {
        questions_.boxes.clear();
        XlsxExport(questions_, [] {
            return SheetOrigin{"가상 시장"_cp949, "2024-12-30", "tester"};
        }).Save(sheet, {{"조건식"_cp949, "A and\n(B or !C)"}, {"대상"_cp949, "=전체"_cp949}});
        return questions_.boxes;
    }
    long Files() const {
        return std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator());
    }
    void ExpectUntouched(const std::vector<host::Box>& boxes, const char* said) const {
        ASSERT_EQ(1u, boxes.size());
        EXPECT_EQ("엑셀 저장"_cp949, boxes[0].caption);
        EXPECT_TRUE(ToUtf8(boxes[0].text).find(said) != std::string::npos) << ToUtf8(boxes[0].text);
        EXPECT_EQ("old", test::ReadBytes(path_));
        EXPECT_EQ(1, Files());
    }

    const test::TempFolder folder_;
    const fs::path path_ = folder_.Path() / "sheet.xlsx";
    test::ScriptedQuestions questions_;

    void SetUp() override { questions_.savePath = path_; }
};

TEST_F(XlsxExportTest, ASpreadsheetProgramReadsBothSheets) {
    if (!test::HasSpreadsheetProgram()) GTEST_SKIP() << "soffice is not installed";
    // UTF-8, semicolons between columns; texts are quoted, numbers as the cell shows them; every sheet.
    const std::string shown = "59,34,76,1,,0,true,true,true,false,false,-1";
    EXPECT_TRUE(Save(Result()).empty());
    EXPECT_EQ(
        "\"종목명\";\"코드\";\"현재가\";\"PER\";\"등락률(%)\"\n"
        "\"삼성전자\";\"005930\";71,800;-1,234.50;-2.30\n"
        "\"=1+1\";;;\"없음\";\n"
        "\"똠방 \"\"각\"\" <하>;\t\";\"000660\";0;\"1234567890123456789\";12.00\n",
        test::AsCsv(folder_.Path(), "sheet.xlsx", shown, "sheet-적삼병 5_20.csv"));
    const std::string notes = test::ReadBytes(folder_.Path() / "sheet-조건.csv");
    const std::string before =
        "\"조건식\";\"A and\n(B or !C)\"\n\"대상\";\"=전체\"\n\"시장\";\"가상 시장\"\n"
        "\"기준일\";\"2024-12-30\"\n\"저장 시각\";\"";
    const std::string after = "\"\n\"사용자\";\"tester\"\n";
    EXPECT_EQ(before, notes.substr(0, before.size()));
    EXPECT_EQ(before.size() + 19 + after.size(), notes.size()) << notes;
    EXPECT_TRUE(notes.ends_with(after)) << notes;
}

// What no conversion shows: the header stays, the filter covers the table, no cell is marked as suspicious,
// a cell is as wide as its text.
TEST_F(XlsxExportTest, TheTableIsFurnished) {
    EXPECT_TRUE(Save(Result()).empty());
    auto parts = ReadParts(test::ReadBytes(path_));
    ASSERT_TRUE(parts);
    const std::string& sheet = (*parts)["xl/worksheets/sheet1.xml"];
    for (const char* piece :
         {"<pane ySplit=\"1\" topLeftCell=\"A2\" activePane=\"bottomLeft\" state=\"frozen\"/>",
          "<autoFilter ref=\"A1:E4\"/>", "<ignoredError sqref=\"A1:E4\" numberStoredAsText=\"1\"/>",
          "<col min=\"1\" max=\"1\" width=\"17.7"}) {
        EXPECT_TRUE(sheet.find(piece) != std::string::npos) << piece << "\n" << sheet.substr(0, 900);
    }
}

TEST_F(XlsxExportTest, ProposesAFileAndMayBeCancelled) {
    questions_.savePath.reset();
    EXPECT_TRUE(Save(Result()).empty());
    EXPECT_EQ(0, Files());
    ASSERT_EQ(1u, questions_.files.size());
    EXPECT_EQ("Excel Worksheet Files (*.xlsx)", questions_.files[0].filterName);
    EXPECT_EQ("xlsx", questions_.files[0].extension);
    EXPECT_TRUE(ToUtf8(questions_.files[0].name).starts_with("적삼병 5_20_2"));
}

TEST_F(XlsxExportTest, OddSheetsAreWrittenToo) {
    for (const host::Sheet& sheet :
         {host::Sheet{}, SheetOf("빈 것", {{"코드", SheetFormat::Text}}, {}),
          SheetOf("조건", {{"짧음", SheetFormat::Text}, {"줄", SheetFormat::Integer}},
                  {{"하나"}, {"하나", "2", "3"}}),
          SheetOf("깨진 글\x01", {{"\x02", SheetFormat::Text}}, {{std::string(40000, 'x').c_str()}})}) {
        EXPECT_TRUE(Save(sheet).empty()) << ToUtf8(sheet.name);
        EXPECT_TRUE(IsWhole(test::ReadBytes(path_))) << ToUtf8(sheet.name);
    }
}

TEST_F(XlsxExportTest, AFileThatCantBeWrittenStaysAsItWas) {
    test::WriteBytes(path_, "old");
    for (const FileStep step : {FileStep::Open, FileStep::Write, FileStep::Flush, FileStep::Rename}) {
        const FileFault fault(step, 100);
        ExpectUntouched(Save(Result()), "sheet.xlsx");
    }
    questions_.savePath = folder_.Path() / "missing" / "sheet.xlsx";
    ExpectUntouched(Save(Result()), "missing");
}

// The library says that all went well when there was no room for its scratch files.
TEST_F(XlsxExportTest, ScratchFilesWithoutRoomMakeNoFile) {
    test::WriteBytes(path_, "old");
    host::Sheet sheet = SheetOf("많음", {{"값", SheetFormat::Integer}}, {});
    sheet.rows.assign(9999, {"1"});
    const auto save = [&] {
        const test::FullDisk disk(100'000);  // the whole package is smaller
        return Save(sheet);
    };
    ExpectUntouched(save(), "임시 폴더");
    EXPECT_TRUE(Save(sheet).empty());
    EXPECT_LT(fs::file_size(path_), 100'000u);
}

TEST(XlsxPackageTest, TellsADamagedPackage) {
    const test::TempFolder folder;
    test::ScriptedQuestions questions;
    questions.savePath = folder.Path() / "sheet.xlsx";
    XlsxExport(questions, [] { return SheetOrigin{}; }).Save(Result(), {});
    const std::string whole = test::ReadBytes(*questions.savePath);
    EXPECT_TRUE(IsWhole(whole));
    for (std::size_t size = 0; size < whole.size(); size += 7) {
        EXPECT_FALSE(IsWhole(whole.substr(0, size))) << size;
        std::string damaged = whole;
        damaged[size] = static_cast<char>(damaged[size] ^ 0x55);
        static_cast<void>(IsWhole(damaged));  // whatever it says, it reads nothing beyond the end
    }
}

TEST(SheetTextTest, Names) {
    const struct {
        const char* text;
        const char* name;
    } cases[] = {{"적삼병", "적삼병"},
                 {" a/b\\c[d]e:f*g?h' ", "a_b_c_d_e_f_g_h_"},
                 {"", "결과"},
                 {"조건", "조건_"},
                 {"history", "history_"},
                 {"가나다라마바사아자차가나다라마바사아자차가나다라마바사아자차카타",
                  "가나다라마바사아자차가나다라마바사아자차가나다라마바사아자차카"}};
    for (const auto& c : cases) EXPECT_EQ(c.name, ToUtf8(SheetName(ToCp949(c.text))));
}

TEST(SheetTextTest, Numbers) {
    const struct {
        const char* text;
        double value;
        std::size_t decimals;
    } cases[] = {{"0", 0, 0},
                 {"-12.50", -12.5, 2},
                 {"+3", 3, 0},
                 {" 7 ", 7, 0},
                 {"1.", 1, 0},
                 {".5", 0.5, 1},
                 {"000000000000000012", 12, 0},
                 {"999999999999999", 999999999999999, 0}};
    for (const auto& c : cases) {
        const auto number = NumberOf(c.text);
        ASSERT_TRUE(number) << c.text;
        EXPECT_EQ(c.value, number->value) << c.text;
        EXPECT_EQ(c.decimals, number->decimals) << c.text;
    }
    for (const char* text : {"", "-", ".", "1,000", "1e5", "0x10", "nan", "inf", "1 2", "1.2.3", "--1",
                             "9999999999999999", "0.0000000000000001"}) {
        EXPECT_FALSE(NumberOf(text)) << text;
    }
}

}  // namespace
}  // namespace jogeon::terminal
