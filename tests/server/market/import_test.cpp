#include "server/market/import.h"

#include "screen/text/cp949.h"
#include "tests/server/market/market_values.h"
#include "tests/server/market/scratch_folder.h"

namespace jogeon::market {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class Importing : public testing::Test, private ImportListener {
protected:
    // Imports `inputs` and gives back the market.
    std::shared_ptr<const Market> Run(std::vector<std::filesystem::path> inputs) {
        options_.inputs = std::move(inputs);
        rejects_.clear();
        Import import(options_, *this);
        summary_ = import.Read();
        return import.Builder().Build();
    }

    std::string RunError(std::vector<std::filesystem::path> inputs) {
        return ErrorOf([&] { Run(std::move(inputs)); });
    }

    ScratchFolder folder_;
    ImportOptions options_;
    ImportSummary summary_;
    std::vector<std::string> rejects_;

private:
    void OnReject(const ImportReject& reject) override {
        rejects_.push_back(std::filesystem::path(reject.file).filename().string() + ":" +
                           std::to_string(reject.line) + ": " + reject.reason);
    }
    void OnProgress(const ImportProgress& progress) override {
        EXPECT_LE(progress.bytesRead, progress.bytesInAll);
    }
};

constexpr std::string_view kBars =
    "date,code,open,high,low,close,volume\n"
    "2024-03-04,000020,9350,9550,9330,9550,78661\n"
    "2024-03-05,000020,0,0,0,9550,0\n"
    "2024-03-05,00088K,1480.0,1518,1452,1485,99064\n";

TEST_F(Importing, ReadsBarsOfManyStocksPlainAndGzipped) {
    for (const auto& path : {folder_.Write("a.csv", kBars), folder_.WriteGzipped("a.csv.gz", kBars),
                             folder_.WriteGzipped("named_wrongly.txt", kBars)}) {
        const auto market = Run({path});
        EXPECT_THAT(BarTexts(*market, Timeframe::Day, "000020"),
                    ElementsAre("20240304: 9350 9550 9330 9550 78661", "20240305: 9550 9550 9550 9550 0"));
        EXPECT_THAT(BarTexts(*market, Timeframe::Day, "00088K"),
                    ElementsAre("20240304: -", "20240305: 1480 1518 1452 1485 99064"));
        EXPECT_EQ(market->Instruments()[0].name, "000020") << "a stock without symbols is named by its code";
        EXPECT_FALSE(market->Instruments()[0].Is(Status::Preferred));
        EXPECT_TRUE(market->Instruments()[1].Is(Status::Preferred));
        EXPECT_EQ(market->Source(), path.filename().string());
        EXPECT_EQ(summary_.bars, 3u);
        EXPECT_EQ(summary_.halted, 1u);
        EXPECT_EQ(summary_.unnamed, 2);
        EXPECT_THAT(rejects_, IsEmpty());
    }
}

TEST_F(Importing, ReadsColumnsByNameInAnyOrder) {
    const auto market = Run({folder_.Write("a.csv",
                                           "\xEF\xBB\xBF"
                                           "Volume,CLOSE,low,high,open,change,code,date\r\n"
                                           "\r\n"
                                           "78661,9550,9330,9550,9350,x,000020,20240304")});
    EXPECT_THAT(BarTexts(*market, Timeframe::Day, "000020"),
                ElementsAre("20240304: 9350 9550 9330 9550 78661"));
}

TEST_F(Importing, ReadsBarsOfOneStockNamedByTheFile) {
    const char* const bars =
        "날짜,시가,고가,저가,종가,거래량,등락률\n2023-12-05,72300,72400,71200,71200,12129682,-1.92\n";
    const auto market = Run({folder_.Write("005930.csv", bars), folder_.WriteGzipped("00104K.csv.gz", bars)});
    EXPECT_THAT(BarTexts(*market, Timeframe::Day, "005930"),
                ElementsAre("20231205: 72300 72400 71200 71200 12129682"));
    EXPECT_EQ(market->Find("00104K"), 0);
    EXPECT_THAT(RunError({folder_.Write("samsung.csv", bars)}),
                AllOf(HasSubstr("samsung.csv"), HasSubstr("005930.csv")));
}

constexpr std::string_view kMarketDay =
    "\"종목코드\",\"종목명\",\"시장구분\",\"소속부\",\"종가\",\"대비\",\"등락률\",\"시가\",\"고가\",\"저가\","
    "\"거래량\",\"상장주식수\"\r\n"
    "\"005930\",\"가전자\",\"KOSPI\",\"\",\"199400\",\"-1100\",\"-0.55\",\"202000\",\"202500\",\"199000\","
    "\"35279762\",\"5919637922\"\r\n"
    "\"035890\",\"나건설\",\"KOSDAQ\",\"관리종목(소속부없음)\",\"1623\",\"0\",\"0.0\",\"0\",\"0\",\"0\","
    "\"0\",\"229808457\"\r\n"
    "\"263750\",\"다게임\",\"KOSDAQ "
    "GLOBAL\",\"투자주의환기종목(소속부없음)\",\"10\",\"0\",\"0\",\"10\",\"10\",\"10\",\"7\",\"1\"\r\n"
    "\"496320\",\"라시스템\",\"KONEX\",\"일반기업부\",\"774000\",\"20000\",\"2.65\",\"0\",\"0\",\"0\",\"0\","
    "\"1015973\"\r\n";

TEST_F(Importing, ReadsAMarketDayInBothEncodings) {
    for (const auto& path : {folder_.Write("market_20260320_cp949.csv", ToCp949(kMarketDay)),
                             folder_.Write("20260320.csv", kMarketDay)}) {
        const auto market = Run({path});
        ASSERT_EQ(market->Instruments().size(), 3u) << "KONEX is left out";
        EXPECT_EQ(summary_.otherMarkets, 1u);
        EXPECT_EQ(summary_.unnamed, 0);
        const Instrument& first = market->Instruments()[0];
        EXPECT_EQ(first.name, "가전자");
        EXPECT_EQ(first.exchange, Exchange::Kospi);
        EXPECT_EQ(first.shares, 5919637922.0);
        const Instrument& second = market->Instruments()[1];
        EXPECT_EQ(second.division, "관리종목(소속부없음)");
        EXPECT_TRUE(second.Is(Status::Administrative));
        EXPECT_FALSE(second.Is(Status::Alert));
        EXPECT_EQ(market->Instruments()[2].exchange, Exchange::Kosdaq);
        EXPECT_TRUE(market->Instruments()[2].Is(Status::Alert));
        EXPECT_THAT(BarTexts(*market, Timeframe::Day, "005930"),
                    ElementsAre("20260320: 202000 202500 199000 199400 35279762"));
        EXPECT_THAT(BarTexts(*market, Timeframe::Day, "035890"),
                    ElementsAre("20260320: 1623 1623 1623 1623 0"));
    }
    EXPECT_THAT(RunError({folder_.Write("today_20261332.csv", kMarketDay)}), HasSubstr("must hold the date"));
}

TEST_F(Importing, ReadsSymbolsWithQuotedCommasAndFigures) {
    options_.symbols = {folder_.Write(
        "symbols.csv",
        "code,name,market,division,industry,settlement_month,listing_date,shares,eps,debt_ratio,no_"
        "collateral,full_margin\n"
        "000020,가약품,KOSPI,,\"영화, 비디오물, 방송프로그램 제작\",12,1976-03-24,27931470,-120.5,80,1,0\n"
        "111110,없음,KOSDAQ,,,,,,,,,Y\n")};
    const auto market = Run({folder_.Write("a.csv", kBars)});
    const Instrument& stock = market->Instruments()[0];
    EXPECT_EQ(stock.name, "가약품");
    EXPECT_EQ(stock.industry, "영화, 비디오물, 방송프로그램 제작");
    EXPECT_EQ(stock.settlementMonth, 12);
    EXPECT_EQ(stock.listingDate, 19760324);
    EXPECT_EQ(stock.Get(Fundamental::EarningsPerShare), -120.5);
    EXPECT_EQ(stock.Get(Fundamental::DebtRatio), 80);
    EXPECT_TRUE(std::isnan(stock.Get(Fundamental::ReturnOnEquity)));
    EXPECT_TRUE(stock.Is(Status::NoCollateral));
    EXPECT_FALSE(stock.Is(Status::FullMargin));
    const Instrument& empty = market->Instruments()[static_cast<std::size_t>(market->Find("111110"))];
    EXPECT_EQ(empty.settlementMonth, 0);
    EXPECT_TRUE(std::isnan(empty.shares));
    EXPECT_TRUE(empty.Is(Status::FullMargin));
    EXPECT_EQ(summary_.withoutBars, 1);
    EXPECT_EQ(summary_.unnamed, 1) << "00088K";
    options_.symbols = {folder_ / "a.csv"};
    EXPECT_THAT(RunError({folder_ / "a.csv"}), HasSubstr("no symbols file"));
}

TEST_F(Importing, SymbolsCountBeforeMarketDaysAndLaterDaysBeforeEarlier) {
    const std::string header = "종목코드,종목명,시장구분,소속부,종가,시가,고가,저가,거래량,상장주식수\n";
    const auto early = folder_.Write("20240304.csv", header +
                                                         "000020,옛이름,KOSDAQ,관리종목,5,5,5,5,1,10\n"
                                                         "000030,옛,KOSDAQ,관리종목,5,5,5,5,1,10\n");
    const auto late = folder_.Write("20240305.csv", header +
                                                        "000020,새이름,KOSDAQ,우량기업부,5,5,5,5,1,30\n"
                                                        "000030,새,KOSPI,우량기업부,5,5,5,5,1,30\n");
    const auto symbols = folder_.Write("s.csv", "code,name,market,division\n000020,바른이름,KOSPI,\n");
    for (const auto& order : {std::vector{symbols, early, late}, std::vector{late, early, symbols},
                              std::vector{late, symbols, early}}) {
        const auto market = Run(order);
        const Instrument& first = market->Instruments()[0];
        EXPECT_EQ(first.name, "바른이름");
        EXPECT_EQ(first.exchange, Exchange::Kospi);
        const Instrument& second = market->Instruments()[1];
        EXPECT_EQ(second.name, "새");
        EXPECT_EQ(second.exchange, Exchange::Kospi);
        EXPECT_EQ(second.shares, 30);
        EXPECT_FALSE(second.Is(Status::Administrative));
    }
}

TEST_F(Importing, RejectsLinesWithFileLineAndReason) {
    const auto bars = folder_.Write("bars.csv",
                                    "date,code,open,high,low,close,volume\n"
                                    "2024-02-30,000020,1,1,1,1,1\n"
                                    "2024-03-04,5930,1,1,1,1,1\n"
                                    "2024-03-04,000020,1,1,1,1\n"
                                    "2024-03-04,000020,1,1,1,1,1,1\n"
                                    "2024-03-04,000020,one,1,1,1,1\n"
                                    "2024-03-04,000020,5,4,6,5,1\n"
                                    "2024-03-04,000020,0,0,0,0,0\n"
                                    "2024-03-04,\"000020,1,1,1,1,1\n"
                                    "2024-03-04,000020,1,1,1,1,1\n");
    const auto symbols = folder_.Write("symbols.csv",
                                       "code,name,market,settlement_month,listing_date,full_margin\n"
                                       "20,가,KOSPI,12,,\n"
                                       "000030,가,NASDAQ,12,,\n"
                                       "000040,가,KOSPI,13,,\n"
                                       "000050,가,KOSPI,12,soon,\n"
                                       "000060,가,KOSPI,12,,maybe\n");
    const auto market = Run({bars, symbols});
    EXPECT_THAT(
        rejects_,
        ElementsAre("bars.csv:2: \"2024-02-30\" is no date", "bars.csv:3: \"5930\" is no stock code",
                    "bars.csv:4: has 6 fields, the header has 7",
                    "bars.csv:5: has 8 fields, the header has 7", "bars.csv:6: the open \"one\" is no number",
                    "bars.csv:7: the high is below the low", "bars.csv:8: a price is not positive",
                    "bars.csv:9: a quoted field isn't closed, or has text beside it",
                    "symbols.csv:2: \"20\" is no stock code",
                    "symbols.csv:3: the market \"NASDAQ\" is neither KOSPI nor KOSDAQ",
                    "symbols.csv:4: the settlement month \"13\" is no month",
                    "symbols.csv:5: the listing date \"soon\" is no date",
                    "symbols.csv:6: the flag \"maybe\" is neither 1 nor 0"));
    EXPECT_EQ(summary_.rejects, 13u);
    EXPECT_EQ(summary_.bars, 1u);
    EXPECT_EQ(market->Instruments().size(), 1u) << "a rejected line adds no stock";

    options_.maxRejects = 13;
    EXPECT_EQ(RunError({bars, symbols}), "");
    options_.maxRejects = 12;
    EXPECT_THAT(RunError({bars, symbols}), HasSubstr("more than 12 lines"));
}

TEST_F(Importing, AFileThatCannotBeUsedEndsItAll) {
    const auto good = folder_.Write("good.csv", kBars);
    EXPECT_THAT(RunError({good, folder_ / "absent.csv"}), HasSubstr("absent.csv: can't be opened"));
    EXPECT_THAT(RunError({good, folder_.Write("empty.csv", "")}), HasSubstr("empty.csv: is empty"));
    EXPECT_THAT(RunError({good, folder_.Write("other.csv", "a,b\n1,2\n")}), HasSubstr("unknown header"));
    EXPECT_THAT(RunError({good, folder_.Write("long.csv", std::string(200'000, 'x'))}), HasSubstr("65536"));
    EXPECT_THAT(RunError({folder_.Write("s.csv", "code,name\n000020,가\n")}), HasSubstr("no bar"));

    std::string many(kBars);
    for (int i = 0; i < 2000; ++i)
        many += "2024-03-04,000020,9350,9550,9330,9550," + std::to_string(i * 7919) + "\n";
    folder_.WriteGzipped("whole.gz", many);
    std::string bytes = folder_.Read("whole.gz");
    for (const std::size_t size : {bytes.size() - 1, bytes.size() - 8, bytes.size() / 2, std::size_t{40}})
        EXPECT_THAT(RunError({folder_.Write("cut.gz", bytes.substr(0, size))}), HasSubstr("cut.gz: "))
            << size;
    bytes[bytes.size() / 2] ^= 0x10;
    EXPECT_THAT(RunError({folder_.Write("bad.gz", bytes)}), HasSubstr("damaged"));
}

// Lines longer than the piece that is read at a time, and ends that fall on its bounds.
TEST_F(Importing, LinesAreWholeWhereverTheBufferEnds) {
    std::string text = "date,code,open,high,low,close,volume,note\n";
    int lines = 0;
    for (std::size_t length = 0; text.size() < 3'000'000; length = (length * 7 + 977) % 60'000, ++lines)
        text += "2024-03-0" + std::to_string(1 + lines % 5) + ",000020,1,1,1,1,1," +
                std::string(length, 'n') + "\n";
    Run({folder_.Write("a.csv", text)});
    EXPECT_EQ(summary_.bars, static_cast<std::size_t>(lines));
    EXPECT_EQ(summary_.duplicates.size(), static_cast<std::size_t>(lines - 5));
    EXPECT_THAT(rejects_, IsEmpty());
}

TEST_F(Importing, TheLastFileWinsWhereTwoHaveTheSameDay) {
    const auto market = Run({folder_.Write("a.csv", kBars), folder_.Write("000020.csv",
                                                                          "date,open,high,low,close,volume\n"
                                                                          "2024-03-04,10,10,10,10,5\n")});
    EXPECT_EQ(BarText(*market, Timeframe::Day, "000020", 0), "10 10 10 10 5");
    ASSERT_EQ(summary_.duplicates.size(), 1u);
    EXPECT_EQ(summary_.duplicates[0].date, 20240304);
    EXPECT_EQ(market->Source(), "a.csv, 000020.csv");
}

}  // namespace
}  // namespace jogeon::market
