#include "server/engine/columns.h"

#include <cstdlib>
#include <filesystem>
#include <limits>

#include <gtest/gtest.h>

#include "screen/results/grid_layout.h"
#include "screen/text/cp949.h"
#include "screen/transactions/result_columns.h"
#include "tests/server/engine/test_market.h"

namespace jogeon::engine {
namespace {

std::filesystem::path Home() {
    const char* home = std::getenv("JOGEON_HOME_DATA");
    return home ? home : "home";
}

// The column file must say what the service sends, or the screen cuts rows at the wrong places.
TEST(ColumnsTest, ColumnFileAgreesWithTheService) {
    const ColumnTables tables = LoadColumnTable(Home() / "System" / "XcsFid.dat");
    ASSERT_EQ(tables.columns.size(), AllColumns().size() + 1) << Home();
    EXPECT_EQ(tables.columns[0]->fid, "9001");
    EXPECT_EQ(tables.columns[0]->width, 12);
    for (std::size_t i = 0; i < AllColumns().size(); ++i) {
        EXPECT_EQ(tables.columns[i + 1]->fid, AllColumns()[i].fid);
        EXPECT_EQ(tables.columns[i + 1]->width, AllColumns()[i].width);
        EXPECT_EQ(ToUtf8(tables.columns[i + 1]->name), AllColumns()[i].title);
    }
    EXPECT_EQ(tables.optionalColumns.size(), 26u);
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const ResultColumn* column = tables.FindOptional(ValueColumnFid(letter));
        ASSERT_TRUE(column) << letter;
        EXPECT_EQ(column->width, kValueColumnWidth);
        EXPECT_EQ(ToUtf8(column->name), std::string(1, letter) + "값");
    }
}

TEST(ColumnsTest, GridTemplateHasEveryColumnAndRoomForValues) {
    const GridLayout layout = ReadGridLayout(Home() / "Screen" / "Dlg" / "0150TempGrid.dlg");
    ASSERT_GT(layout.size(), AllColumns().size() + 1);
    EXPECT_EQ(layout[0].fid, "9001");
    for (std::size_t i = 0; i < AllColumns().size(); ++i) {
        EXPECT_EQ(layout[i + 1].fid, AllColumns()[i].fid);
        EXPECT_EQ(ToUtf8(layout[i + 1].header), AllColumns()[i].title);
        const bool text =
            layout[i + 1].format == CellFormat::Text || layout[i + 1].format == CellFormat::Code;
        EXPECT_EQ(text, !AllColumns()[i].number) << layout[i + 1].fid;
    }
    std::size_t spare = 0;
    for (const GridColumn& column : layout) spare += column.fid.empty() && column.hidden;
    EXPECT_EQ(spare, 26u);
}

TEST(ColumnsTest, CellsOfAStock) {
    indicators::MarketDay day(test::TestMarket());
    const auto cell = [&](const char* code, const char* fid) {
        const int stock = day.GetMarket().Find(code);
        return ToUtf8(FindColumn(fid)->text(day, static_cast<std::size_t>(stock)));
    };
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"000020", "9002", "000020"}, {"000020", "9003", "20000"},  {"000020", "9004", "10"},
        {"000020", "9005", "0.05"},   {"000020", "9006", "300"},    {"000020", "9007", "6"},
        {"000020", "9008", "19995"},  {"000020", "9009", "20020"},  {"000020", "9010", "19970"},
        {"000020", "9011", "1000"},   {"000020", "9012", ""},       {"000020", "9013", ""},
        {"000020", "9014", "20020"},  {"000020", "9015", "19930"},  {"000020", "9016", "140"},
        {"000020", "9017", "은행"},   {"000020", "9018", "거래소"}, {"100030", "9006", "0"},
        {"100030", "9014", "2120"},   {"100030", "9015", "2030"},   {"100040", "9004", "10"},
        {"100040", "9015", "6960"},   {"100040", "9016", "85"},     {"100040", "9017", ""},
        {"100060", "9011", ""},       {"100060", "9018", "코스닥"},
    };
    for (const auto& [code, fid, expected] : cases)
        EXPECT_EQ(cell(code, fid), expected) << code << ' ' << fid;
}

TEST(ColumnsTest, RatiosNeedAPositiveFigure) {
    market::MarketBuilder builder;
    market::Instrument stock;
    stock.code = "000010";
    stock.fundamentals[static_cast<std::size_t>(market::Fundamental::EarningsPerShare)] = -100;
    stock.fundamentals[static_cast<std::size_t>(market::Fundamental::BookValuePerShare)] = 3000;
    builder.AddBar(builder.AddInstrument(stock), 20260302, 1000, 1000, 1000, 1000, 1);
    indicators::MarketDay day(builder.Build());
    EXPECT_EQ(FindColumn("9012")->text(day, 0), "") << "a loss";
    EXPECT_EQ(FindColumn("9013")->text(day, 0), "0.33");
    EXPECT_EQ(FindColumn("9004")->text(day, 0), "") << "no day before";
}

TEST(ColumnsTest, NumbersAreNeverCutToOtherNumbers) {
    EXPECT_EQ(NumberText(-0.001, 2), "0.00");
    EXPECT_EQ(NumberText(-1234.5, 1), "-1234.5");
    EXPECT_EQ(NumberText(market::kMissing, 2), "");
    EXPECT_EQ(NumberText(std::numeric_limits<double>::infinity(), 2), "");
    EXPECT_EQ(NumberText(1e15, 0), "1000000000000000");
    EXPECT_EQ(NumberField("1234", 4), "1234");
    EXPECT_EQ(NumberField("12345", 4), "****");
    EXPECT_EQ(NumberField("-1", 4), "-1  ");
    EXPECT_EQ(TextField("가나다"_cp949, 5), "가나"_cp949 + " ");
}

}  // namespace
}  // namespace jogeon::engine
