#include "terminal/interest/holdings_csv.h"

#include <gtest/gtest.h>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "tests/server/market/scratch_folder.h"

namespace jogeon::terminal {
namespace {

const StockIndex& Stocks() {
    static const StockIndex stocks({{"000030", "다제약"_cp949, 'K'},
                                    {"0001A0", "새 Code"_cp949, 'K'},
                                    {"005930", "삼전자"_cp949, 'K'},
                                    {"071200", "인피"_cp949, 'Q'},
                                    {"100020", "바반도체"_cp949, 'Q'}});
    return stocks;
}

// "code quantity price" of each holding, then "line:fault" of each refused line, joined by " / ".
std::string Read(const std::string& bytes) {
    const market::ScratchFolder folder;
    const HoldingsFile file = ReadHoldings(folder.Write("holdings.csv", bytes), Stocks());
    if (file.fault == FileFault::NoHeader) return "no header";
    if (file.fault == FileFault::Utf16) return "utf-16";
    std::vector<std::string> parts;
    for (const service::Holding& held : file.holdings)
        parts.push_back(held.stock + " " + std::to_string(held.quantity) + " " +
                        GeneralDecimal(held.averagePrice));
    const char* const faults[] = {"unreadable", "no stock", "unknown", "quantity", "price"};
    for (const RefusedLine& line : file.refused)
        parts.push_back(std::to_string(line.number) + ":" + faults[static_cast<int>(line.fault)] + " " +
                        line.text);
    return Join(parts, " / ");
}

TEST(HoldingsCsvTest, FormsOfBrokersAndSpreadsheets) {
    const struct {
        const char* what;
        std::string bytes;
        const char* read;
    } cases[] = {
        {"as a broker writes it, in CP949",
         "종목명,종목코드,잔고수량,매입단가,현재가\r\n삼전자,A005930,\"1,234\",\"71,234.56\",70000\r\n"_cp949,
         "005930 1234 71234.6"},
        {"in UTF-8 with a byte order mark",
         "\xEF\xBB\xBF"
         "코드,보유수량,평균단가\n005930,10,70000\n",
         "005930 10 70000"},
        {"in English, other columns and order", "Name,Average Price,QTY,Code\nx,12.5,3,0001a0\n",
         "0001A0 3 12.5"},
        {"units in the titles, lines above the header",
         "계좌번호,123-45\n\n종목 코드,보유 수량(주),매입단가(원)\n100020,5,800\n", "100020 5 800"},
        {"the better column of two", "종목코드,수량,잔고수량,price,평균단가\n005930,1,2,3,4\n", "005930 2 4"},
        {"codes that a spreadsheet has harmed",
         "code,quantity,price\n5930,1,1\n'000030,2,1\n=\"100020\",3,1\nA71200,4,1\n",
         "005930 1 1 / 000030 2 1 / 100020 3 1 / 071200 4 1"},
        {"names where there is no code, and no price", "종목명,수량\n바반도체,7\n새code,8\n",
         "100020 7 0 / 0001A0 8 0"},
        {"one stock for cash and on credit", "코드,수량,매입가\n005930,1,100\n005930,3,200\n",
         "005930 4 175"},
        {"semicolons", "종목코드;수량;매입단가\n005930;\"1;0\";2\n=\"100020\";1,234;800.5\n",
         "100020 1234 800.5 / 2:quantity \"1;0\""},
        {"tabs, with an empty field before a quoted one",
         "코드\t종목명\t수량\t매입가\n\t\"바반도체\"\t \"5\" \t800\n\t삼전자\t6\t\n\t\t\t\n",
         "100020 5 800 / 005930 6 0"},
        {"empty lines and fields at the end", "코드,수량,\n\n005930,1,,,\n,,\n", "005930 1 0"},
    };
    for (const auto& c : cases) EXPECT_EQ(Read(c.bytes), c.read) << c.what;
}

TEST(HoldingsCsvTest, EachBadLineIsNamedWithItsReason) {
    EXPECT_EQ(Read("코드,종목명,수량,매입단가\n"
                   "005930,,1,2\n"
                   "999999,,1,2\n"
                   ",합계,1,2\n"
                   ",,1,2\n"
                   "005930,,0,2\n"
                   "005930,,1.5,2\n"
                   "005930,,,2\n"
                   "005930,,\"12,34\",2\n"
                   "005930,,1,-2\n"
                   "005930,,1,이\n"
                   "005930,,1,234,500\n"
                   "005930,,1\n"
                   "\"005930,,1,2\n"
                   "1000200,,1,2\n"),
              "005930 1 2 / 3:unknown \"999999\" / 4:unknown \"합계\" / 5:no stock \",,1,2\" / "
              "6:quantity \"0\" / 7:quantity \"1.5\" / 8:quantity \"\" / 9:quantity \"12,34\" / "
              "10:price \"-2\" / 11:price \"이\" / 12:unreadable \"005930,,1,234,500\" / "
              "13:unreadable \"005930,,1\" / 14:unreadable \"\"005930,,1,2\" / 15:unknown \"1000200\"");
}

TEST(HoldingsCsvTest, WhatIsNoTableOfHoldingsIsSaid) {
    for (const char* bytes : {"", "code,price\n005930,1\n", "quantity\n1\n", "\x01\x02\xff\n"})
        EXPECT_EQ(Read(bytes), "no header") << bytes;
    EXPECT_EQ(Read(std::string("\xff\xfe\x54\xcf\xdc\xb4\t\0", 8)), "utf-16") << "as Unicode text is saved";
    EXPECT_EQ(ReadHoldings("/nowhere/holdings.csv", Stocks()).fault, FileFault::Unreadable);
}

TEST(PastedStocksTest, CodesNamesAndRowsOfTables) {
    const struct {
        std::string text;
        const char* codes;
        std::size_t unknown;
    } cases[] = {
        {"005930", "005930", 0},
        {"005930 A100020,\n000030;005930", "005930 100020 000030", 0},
        {"삼전자\t070000\t71200\n새 Code\t1\n"_cp949, "005930 0001A0", 0},
        {"1\t100020\t071200\r\n", "100020", 0},  // a price may look like a code
        {"새 Code"_cp949, "0001A0", 0},
        {"삼전자\n71200\n없는것\n005930 없는것\n"_cp949, "005930", 3},
        {" \n\n", "", 0},
    };
    for (const auto& c : cases) {
        const PastedStocks pasted = ReadPastedStocks(Stocks(), c.text);
        EXPECT_EQ(Join(pasted.codes, " "), c.codes) << ToUtf8(c.text);
        EXPECT_EQ(pasted.unknown.size(), c.unknown) << ToUtf8(c.text);
    }
}

}  // namespace
}  // namespace jogeon::terminal
