// Drives the program itself: what it prints, what it complains about, and how it ends.

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "tests/server/market/scratch_folder.h"
#include "tests/tools/jogeond/run_jogeond.h"

namespace jogeon {
namespace {

using test::Outcome;

// A folder with a market of three stocks, which the test goes about in.
class SearchCommandTest : public testing::Test {
protected:
    void SetUp() override {
        folder_.Write("bars.csv",
                      "date,code,open,high,low,close,volume\n"
                      "2026-03-05,000010,1000,1000,1000,1000,7\n"
                      "2026-03-05,000020,2000,2000,2000,2000,7\n"
                      "2026-03-06,000010,3000,3000,3000,3000,1234567\n"
                      "2026-03-06,000020,2100,2100,2100,2100,7\n"
                      "2026-03-06,100010,500,500,500,500,7\n");
        folder_.Write("symbols.csv",
                      "code,name,market,division,industry,settlement_month,listing_date,shares\n"
                      "000010,가나전자,KOSPI,,전자부품 제조업,12,2000-01-01,1000000\n"
                      "000020,\"다\"\"라,\"\"\",KOSPI,,은행,12,2000-01-01,1000000\n"
                      "100010,A&B,KOSDAQ,,,12,2000-01-01,\n");
        ASSERT_EQ(test::RunJogeond("import --out " + Path("market.jgm") + " --symbols " +
                                   Path("symbols.csv") + " " + Path("bars.csv"))
                      .code,
                  0);
        WriteSet("set.dat", "A", "00=0401020008;A;1;1;30^0|60^1000|61^5000;\n");
    }

    std::string Path(const std::string& name) const { return (folder_ / name).string(); }

    void WriteSet(const std::string& name, const std::string& expression, const std::string& lines,
                  const std::string& more = "") {
        folder_.Write(name, "[01]\nName=" + ToCp949("시험") + "\n" + more + "Exp=" + expression +
                                "\nCount=1\n" + lines);
    }

    Outcome Search(const std::string& words) {
        return test::RunJogeond("search --market " + Path("market.jgm") + " " + words);
    }

    // The first field of every line but the first, joined by blanks.
    static std::string CodesIn(const std::string& csv) {
        std::istringstream lines(csv);
        std::string line, codes;
        std::getline(lines, line);
        while (std::getline(lines, line))
            codes += (codes.empty() ? "" : " ") + line.substr(0, line.find(','));
        return codes;
    }

    market::ScratchFolder folder_;
};

TEST_F(SearchCommandTest, TableStandsInLineWithKoreanText) {
    const Outcome found = Search("--conditions " + Path("set.dat"));
    EXPECT_EQ(found.code, 0) << found.err;
    EXPECT_EQ(found.err, "");
    EXPECT_EQ(found.out,
              "종목코드  종목명    현재가  전일대비  등락률(%)   거래량  거래대금(백만)  시가  고가  저가  "
              "시가총액(억)"
              "  PER  PBR  업종       시장     A값\n"
              "000010    가나전자    3000      2000     200.00  1234567            3704  3000  3000  3000    "
              "        30"
              "            전기·전자  거래소  3000\n"
              "000020    다\"라,\"     2100       100       5.00        7               0  2100  2100  2100  "
              "          21"
              "            은행       거래소  2100\n");
}

TEST_F(SearchCommandTest, CsvAndJsonQuoteWhatTheyMust) {
    EXPECT_EQ(Search("--format csv --conditions " + Path("set.dat")).out,
              "종목코드,종목명,현재가,전일대비,등락률(%),거래량,거래대금(백만),시가,고가,저가,시가총액(억),"
              "PER,PBR,업종,시장,A값\n"
              "000010,가나전자,3000,2000,200.00,1234567,3704,3000,3000,3000,30,,,전기·전자,거래소,3000\n"
              "000020,\"다\"\"라,\"\"\",2100,100,5.00,7,0,2100,2100,2100,21,,,은행,거래소,2100\n");
    const std::string json = Search("--format=json --conditions " + Path("set.dat")).out;
    EXPECT_NE(json.find("[\n {\"종목코드\": \"000010\", \"종목명\": \"가나전자\", \"현재가\": 3000,"),
              std::string::npos)
        << json;
    EXPECT_NE(json.find("\"종목명\": \"다\\\"라,\\\"\""), std::string::npos) << json;
    EXPECT_NE(json.find("\"PER\": null, \"PBR\": null, \"업종\": \"은행\""), std::string::npos) << json;
}

TEST_F(SearchCommandTest, DateOfTheCommandCounts) {
    const Outcome found = Search("--format csv --date 2026-03-05 --conditions " + Path("set.dat"));
    EXPECT_NE(found.out.find("\n000010,가나전자,1000,,,7,0,1000,1000,1000,10,,,전기·전자,거래소,1000\n"),
              std::string::npos)
        << found.out << found.err;
}

TEST_F(SearchCommandTest, TargetOfTheFileCounts) {
    WriteSet("bank.dat", "A", "00=0401020008;A;1;0;30^0|60^0|61^5000;\n", "Upjong=1\nGroup=017|\n");
    EXPECT_EQ(CodesIn(Search("--format csv --conditions " + Path("bank.dat")).out), "000020");
    // The same behind a version, as the terminal's own files have it.
    folder_.Write("versioned.dat", "[Version]\nver=000.001\n" + folder_.Read("bank.dat"));
    EXPECT_EQ(CodesIn(Search("--format csv --conditions " + Path("versioned.dat")).out), "000020");
}

TEST_F(SearchCommandTest, SavedSetsAreFoundByNameAndNumber) {
    const std::filesystem::path home = folder_ / "home";
    std::filesystem::copy(std::getenv("JOGEON_HOME_DATA"), home, std::filesystem::copy_options::recursive);
    std::filesystem::create_directories(home / "User");
    folder_.Write("home/User/kim01_SaveIndex.dat", "[Version]\nver=000.001\n" + folder_.Read("set.dat"));
    const std::string where = " --user kim01 --home " + home.string() + " --format csv";
    EXPECT_EQ(CodesIn(Search("--set 시험" + where).out), "000010 000020");
    EXPECT_EQ(CodesIn(Search("--set 01" + where).out), "000010 000020");
    EXPECT_EQ(Search("--set 시험 --user lee02").code, 2) << "another user's set";
}

TEST_F(SearchCommandTest, NothingFoundIsNoFailure) {
    WriteSet("none.dat", "A", "00=0401020008;A;1;0;30^0|60^7|61^8;\n");
    for (const char* format : {"table", "csv", "json"}) {
        const Outcome none = Search(std::string("--format ") + format + " --conditions " + Path("none.dat"));
        EXPECT_EQ(none.code, 1);
        EXPECT_EQ(none.err, "no stock matches\n");
        EXPECT_EQ(none.out, std::string(format) == "json" ? "[]\n" : "");
    }
}

TEST_F(SearchCommandTest, WrongUseAndFailuresGetOneLine) {
    WriteSet("unknown.dat", "A", "00=0499990008;A;1;0;30^0;\n");
    WriteSet("letters.dat", "A&B", "00=0401020008;A;1;0;30^0|60^7|61^8;\n");
    WriteSet("grammar.dat", "A&", "00=0401020008;A;1;0;30^0|60^7|61^8;\n");
    WriteSet("range.dat", "A", "00=0401020008;A;1;0;30^0|60^8|61^7;\n");
    WriteSet("unchecked.dat", "A", "00=0401020008;A;0;0;30^0|60^7|61^8;\n");
    WriteSet("group.dat", "A", "00=0401020008;A;1;0;30^0|60^7|61^8;\n", "Upjong=1\nGroup=001|\n");
    const std::string market = "search --market " + Path("market.jgm") + " ";
    const std::string conditions = market + "--conditions " + Path("");
    const std::pair<std::string, const char*> cases[] = {
        {"search", "say what to search for"},
        {"search --set a --conditions b", "say what to search for"},
        {"search --set", "--set needs a value"},
        {"search --bad", "unknown option --bad"},
        {"search word --set a", "\"word\" belongs to no option"},
        {"search --set a --set b", "--set is given twice"},
        {"search --set a --format xml", "table, csv or json"},
        {"search --set a --date 2026-02-30", "--date needs a day"},
        {"search --set a --user ../x", "--user needs"},
        {"search --set a --market " + Path("none"), "none"},
        {"search --set a --market " + Path("bars.csv"), "no market file"},
        {market + "--set a --home " + Path(""), "XcsFid.dat"},
        {market + "--date 2026-03-04 --set a", "no day as early"},
        {market + "--set 골든크로스", "close to it: 골든크로스와 거래량 증가"},
        {market + "--set zzz", "no set \"zzz\" in "},
        {conditions + "none", "no file with a set"},
        {conditions + "unknown.dat", "1 of 1 conditions"},
        {conditions + "letters.dat", "there is no condition B"},
        {conditions + "grammar.dat", "the expression is wrong"},
        {conditions + "range.dat", "can't be evaluated: 조건 A"},
        {conditions + "unchecked.dat", "is checked"},
        {conditions + "group.dat", "no group \"001\""},
        {"nothing", "no command \"nothing\""},
    };
    for (const auto& [words, expected] : cases) {
        const Outcome failed = test::RunJogeond(words);
        EXPECT_EQ(failed.code, 2) << words;
        EXPECT_EQ(failed.out, "") << words;
        EXPECT_NE(failed.err.find(expected), std::string::npos) << words << ": " << failed.err;
        EXPECT_EQ(failed.err.find('\n'), failed.err.size() - 1) << words << ": " << failed.err;
    }
    EXPECT_EQ(test::RunJogeond("").code, 2);
    EXPECT_EQ(test::RunJogeond("search --help").code, 0);
    EXPECT_EQ(test::RunJogeond("--version").code, 0);
}

TEST_F(SearchCommandTest, PagesToTheEndOfTheGeneratedMarket) {
    WriteSet("all.dat", "A", "00=0401020008;A;1;0;30^0|60^0|61^99999999;\n");
    const Outcome found = test::RunJogeond("search --format csv --conditions " + Path("all.dat"));
    EXPECT_EQ(found.code, 0);
    EXPECT_NE(found.err.find("generated market"), std::string::npos);
    std::istringstream codes(CodesIn(found.out));
    std::string code, before;
    int count = 0;
    for (; codes >> code; before = code, ++count) ASSERT_LT(before, code);
    EXPECT_EQ(count, 2600);
}

}  // namespace
}  // namespace jogeon
