// What a trader reads in a cell, by format, for the forms in which a server sends numbers.
#include "screen/results/cell_format.h"

#include <gtest/gtest.h>

#include "screen/text/cp949.h"

namespace jogeon {
namespace {

TEST(CellFormat, ShowsNumbersAsATraderReadsThem) {
    struct Case {
        CellFormat format;
        const char* raw;
        const char* shown;  // UTF-8
        const char* copied;
    };
    const Case cases[] = {
        {CellFormat::Price, "71000", "71,000", "71000"},
        {CellFormat::Price, "    999", "999", "999"},
        {CellFormat::Price, "000001000", "1,000", "1000"},
        {CellFormat::Integer, "12345678901234567890123", "12,345,678,901,234,567,890,123",
         "12345678901234567890123"},
        {CellFormat::Integer, "-100", "-100", "-100"},
        {CellFormat::Integer, "-123456", "-123,456", "-123456"},
        {CellFormat::Integer, "000", "0", "0"},
        {CellFormat::Decimal, "1234567.8900", "1,234,567.8900", "1234567.8900"},
        {CellFormat::Decimal, "-0.25", "-0.25", "-0.25"},
        {CellFormat::Change, "1200", "▲ 1,200", "1200"},
        {CellFormat::Change, "+500", "▲ 500", "500"},
        {CellFormat::Change, "-0300", "▼ 300", "-300"},
        {CellFormat::Change, "-0", "0", "0"},
        {CellFormat::Percent, "1.23", "+1.23%", "1.23"},
        {CellFormat::Percent, "-29.97", "-29.97%", "-29.97"},
        {CellFormat::Percent, "+0.00", "0.00%", "0.00"},
        // What is no number is shown as it is, and never half of it.
        {CellFormat::Price, "", "", ""},
        {CellFormat::Price, "-", "-", "-"},
        {CellFormat::Price, "12a", "12a", "12a"},
        {CellFormat::Percent, "1.2.3", "1.2.3", "1.2.3"},
        {CellFormat::Decimal, "1e5", "1e5", "1e5"},
        {CellFormat::Change, "거래정지", "거래정지", "거래정지"},
        {CellFormat::Code, "005930", "005930", "005930"},
        {CellFormat::Text, "007\t전기\r\n전자", "007\t전기\r\n전자", "007 전기  전자"},
    };
    for (const Case& c : cases) {
        const std::string raw = ToCp949(c.raw);
        EXPECT_EQ(ToUtf8(ShownText(c.format, raw)), c.shown) << c.raw;
        EXPECT_EQ(ToUtf8(CopiedText(c.format, raw)), c.copied) << c.raw;
    }
}

TEST(CellFormat, TellsRiseFromFall) {
    EXPECT_EQ(SignOf(" 12"), Sign::Rise);
    EXPECT_EQ(SignOf("-0.01"), Sign::Fall);
    EXPECT_EQ(SignOf("-0.00"), Sign::None);
    EXPECT_EQ(SignOf("-"), Sign::None);

    struct Case {
        const char* price;
        const char* current;
        const char* change;
        Sign sign;
    };
    const Case cases[] = {
        {"71000", "71000", "1200", Sign::Rise},   // the current price itself
        {"69800", "71000", "1200", Sign::None},   // opened at the close of the day before
        {"69700", "71000", "1200", Sign::Fall},   // fell below it while the day rose
        {"10.30", "10.20", "-0.10", Sign::None},  // decimals that don't add up exactly in binary
        {"0", "71000", "0", Sign::None},          // not traded
        {"71000", "71000", "", Sign::None},       // a result that didn't bring the change
    };
    for (const Case& c : cases) {
        EXPECT_EQ(SignOfPrice(c.price, c.current, c.change), c.sign) << c.price << " " << c.change;
    }
}

}  // namespace
}  // namespace jogeon
