#include "screen/results/result_flow.h"

#include <random>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "tests/screen/support/bytes.h"
#include "tests/screen/support/columns.h"
#include "tests/screen/support/recorders.h"
#include "tests/screen/support/recording_result_view.h"

namespace jogeon {
namespace {

using test::Fields;
using Codes = std::vector<std::string>;

// Grid places: 1 volume, 2 name, 3 price, 4 change (hidden), 5 and 6 spare.
class ResultFlowTest : public testing::Test {
protected:
    ResultFlowTest() {
        view.columns = {{"2001"}, {"9001"}, {"3001"}, {"4001", true}, {"", true}, {"", true}};
        flow.ApplyLayout();
    }

    void FirstPage(const std::string& reply) { flow.OnSearchReply(reply, false); }
    void NextPage(const std::string& reply) { flow.OnSearchReply(reply, true); }
    const Codes& Published() const { return links.published.back().codes; }

    ColumnTables tables = test::SmallTables();
    test::RecordingResultView view;
    test::RecordingLinkStore links;
    test::ScriptedQuestions questions;
    ResultFlow flow{view, tables, links, questions};
};

// Three of five stocks, with price, volume and the first condition's value.
const std::string kFirstReply = Fields(
    "T1        04|0005|0003|0003|0003|3001|2001|5101"
    "A005930     |  71000|  1234567|   12.50"
    "A000660     | 128000|   456789|    3.25"
    "Q035720     |  55500|    98765|        ");

// The last two.
const std::string kNextReply = Fields(
    "N1        04|0005|0005|0002|0003|3001|2001|5101"
    "A035420     | 210000|    11111|    1.00"
    "A005380     | 190000|    22222|    2.00");

// One stock, with the second condition's value alone.
const std::string kOtherReply = Fields(
    "T1        05|0001|0001|0001|0002|3001|5102"
    "A051910     | 450000|    9.99");

const char kFailure[] = "T0";
const std::string kNoRows = Fields("T1        06|0000|0000|0000|0000");

TEST_F(ResultFlowTest, AFirstPageShowsItsColumnsAndRows) {
    view.log.clear();
    FirstPage(kFirstReply);
    EXPECT_EQ(view.tabs, Codes{"[1]전체검색"_cp949});
    EXPECT_EQ(view.At(6).tag, "5101");  // the rightmost spare column
    EXPECT_EQ(view.At(6).header, "value A");
    EXPECT_TRUE(view.IsColHidden(4));
    EXPECT_TRUE(view.IsColHidden(5));
    EXPECT_EQ(view.VisibleRow(0), "  1234567|A005930|  71000|   12.50");
    EXPECT_EQ(view.VisibleRow(2), "    98765|Q035720|  55500|");
    EXPECT_EQ(view.log, (Codes{"rows 1", "lock", "rows 4", "write 0-3", "refresh 2", "unlock", "redraw",
                               "unselect", "scroll 2,2", "select 2"}));
    EXPECT_EQ(view.total, 5);
    EXPECT_EQ(view.received, 3);
    EXPECT_TRUE(view.nextEnabled);
    EXPECT_EQ(Published(), (Codes{"005930", "000660", "035720"}));
    EXPECT_EQ(links.published.back().title, "조건검색"_cp949);
    EXPECT_EQ(view.codeListTitle, "조건검색"_cp949);

    ASSERT_TRUE(flow.ActiveResult());
    EXPECT_EQ(flow.ActiveResult()->resultHandle, 4);
    EXPECT_EQ(flow.ActiveResult()->columnCount, 4);
    EXPECT_EQ(flow.ActiveResult()->valueColumnCount, 1);
    EXPECT_EQ(flow.ActiveResult()->mode, '0');
}

TEST_F(ResultFlowTest, ANextPageIsAppendedAndOnlyItIsWritten) {
    FirstPage(kFirstReply);
    view.log.clear();
    NextPage(kNextReply);
    EXPECT_EQ(view.log, (Codes{"lock", "rows 6", "write 3-5", "refresh 5", "unlock", "redraw", "unselect",
                               "scroll 5,2", "select 5"}));
    EXPECT_EQ(view.VisibleRow(0), "  1234567|A005930|  71000|   12.50");
    EXPECT_EQ(view.VisibleRow(4), "    22222|A005380| 190000|    2.00");
    EXPECT_FALSE(view.nextEnabled);
    EXPECT_EQ(view.received, 5);
    EXPECT_EQ(Published().size(), 5u);
    EXPECT_EQ(flow.ActiveResult()->kind, 'N');
    EXPECT_EQ(view.tabs.size(), 1u);
}

TEST_F(ResultFlowTest, NextPagesWithoutAnActiveSearchAreIgnored) {
    NextPage(kNextReply);
    EXPECT_TRUE(flow.ResultSets().empty());
    FirstPage(kFirstReply);
    FirstPage(kFailure);
    NextPage(kNextReply);
    EXPECT_EQ(flow.ResultSets().at(0)->rows.Rows(), 3u);
    EXPECT_FALSE(flow.Pageable());
}

TEST_F(ResultFlowTest, ANextPageForATabOutOfSightWaitsThere) {
    FirstPage(kOtherReply);
    view.scope = 1;
    FirstPage(kFirstReply);
    view.selectedTab = 0;
    flow.OnTabSelected(0);
    NextPage(kNextReply);
    EXPECT_EQ(view.cells.size(), 1u);
    EXPECT_EQ(view.received, 1);
    view.selectedTab = 1;
    flow.OnTabSelected(1);
    EXPECT_EQ(view.cells.size(), 5u);
    EXPECT_EQ(view.received, 5);
}

TEST_F(ResultFlowTest, FailureForgetsTheActiveSearchAndKeepsTheRows) {
    FirstPage(kFirstReply);
    FirstPage(kFailure);
    EXPECT_FALSE(flow.ActiveResult());
    EXPECT_EQ(view.cells.size(), 3u);
    EXPECT_TRUE(Published().empty());
    ASSERT_EQ(questions.boxes.size(), 1u);
    EXPECT_EQ(questions.boxes[0].text, "조건 검색이 실패하였습니다.\n조건 대상을 다시 지정해 주세요."_cp949);
    EXPECT_EQ(questions.boxes[0].caption, "조건 검색"_cp949);
}

TEST_F(ResultFlowTest, NoRowsPopsTheNoticeAndKeepsEverythingElse) {
    FirstPage(kFirstReply);
    FirstPage(kNoRows);
    EXPECT_EQ(view.notices, 1);
    EXPECT_TRUE(Published().empty());
    EXPECT_EQ(view.cells.size(), 3u);
    EXPECT_EQ(view.total, 5);
    EXPECT_TRUE(flow.Pageable());
    NextPage(kNextReply);
    EXPECT_EQ(view.cells.size(), 5u);
}

TEST_F(ResultFlowTest, AWholeSearchReplacesTheFirstTabAndOthersAddOne) {
    FirstPage(kFirstReply);
    view.scope = 1;
    FirstPage(kFirstReply);
    view.scope = 2;
    FirstPage(kOtherReply);
    EXPECT_EQ(view.tabs, (Codes{"[1]전체검색"_cp949, "[2]결과내검색"_cp949, "[3]결과외검색"_cp949}));
    EXPECT_EQ(view.selectedTab, 2);
    EXPECT_EQ(flow.ResultSets().at(2)->mode, '2');

    view.scope = 3;  // a step of a sequential search counts as a whole one
    FirstPage(kOtherReply);
    EXPECT_EQ(view.tabs.size(), 3u);
    EXPECT_EQ(flow.ResultSets().size(), 3u);
    EXPECT_EQ(view.selectedTab, 0);
    EXPECT_EQ(flow.Selected(), flow.ActiveResult());
    EXPECT_EQ(flow.ActiveResult()->mode, '3');
    EXPECT_EQ(view.VisibleRow(0), "A051910| 450000|    9.99");
    EXPECT_EQ(view.At(6).header, "value B");
}

TEST_F(ResultFlowTest, ATabBringsItsColumnsRowsAndCountsBack) {
    FirstPage(kFirstReply);
    view.scope = 1;
    FirstPage(kOtherReply);
    view.log.clear();
    view.selectedTab = 0;
    flow.OnTabSelected(0);
    EXPECT_EQ(view.log, (Codes{"rows 4", "lock", "rows 4", "write 0-3", "refresh 2", "unlock", "redraw"}));
    EXPECT_EQ(view.VisibleRow(1), "   456789|A000660| 128000|    3.25");
    EXPECT_EQ(view.At(6).header, "value A");
    EXPECT_EQ(view.total, 5);
    EXPECT_FALSE(view.nextEnabled);  // another search has the server's ear
    EXPECT_FALSE(flow.Pageable());
    EXPECT_EQ(Published().size(), 3u);

    flow.OnTabSelected(7);
    EXPECT_EQ(view.cells.size(), 3u);
}

TEST_F(ResultFlowTest, SwitchingBackToThePagingTabEnablesNextAgain) {
    FirstPage(kOtherReply);
    view.scope = 1;
    FirstPage(kFirstReply);
    flow.OnTabSelected(0);
    EXPECT_FALSE(view.nextEnabled);
    flow.OnTabSelected(1);
    EXPECT_TRUE(view.nextEnabled);
    EXPECT_TRUE(flow.Pageable());
}

TEST_F(ResultFlowTest, ClearLeavesOneEmptyTab) {
    FirstPage(kFirstReply);
    view.scope = 2;
    FirstPage(kFirstReply);
    flow.Clear();
    EXPECT_EQ(view.tabs, Codes{"[1]전체검색"_cp949});
    EXPECT_EQ(view.scope, 0);
    EXPECT_TRUE(view.cells.empty());
    EXPECT_EQ(view.total, 0);
    EXPECT_EQ(view.received, 0);
    EXPECT_FALSE(view.nextEnabled);
    EXPECT_FALSE(flow.ActiveResult());
    EXPECT_FALSE(flow.Prior());
    EXPECT_EQ(tables.columns.size(), 4u);  // none of a result that is gone

    // The empty tab is used again, whatever the scope list has been turned to meanwhile.
    view.scope = 1;
    FirstPage(kFirstReply);
    EXPECT_EQ(view.tabs.size(), 1u);
    EXPECT_EQ(flow.Selected(), flow.ActiveResult());
}

TEST_F(ResultFlowTest, ReloadingTheLayoutDropsTheResults) {
    FirstPage(kFirstReply);
    view.scope = 1;
    FirstPage(kFirstReply);
    view.columns = {{"9001"}, {"4001"}, {"3001", true}};
    flow.ReloadLayout();
    EXPECT_EQ(view.tabs.size(), 1u);
    EXPECT_TRUE(flow.ResultSets().empty());
    EXPECT_EQ(view.total, 0);
    EXPECT_EQ(SelectedFids(tables), Codes{"4001"});
    EXPECT_EQ(tables.FindFixed("4001")->gridColumn, 2);
}

TEST_F(ResultFlowTest, ASearchWithinStartsFromTheSelectedTab) {
    FirstPage(kFirstReply);
    const auto prior = flow.Prior();
    ASSERT_TRUE(prior);
    EXPECT_EQ(prior->received, 3);
    EXPECT_EQ(prior->codes, (Codes{"A005930", "A000660", "Q035720"}));
}

TEST_F(ResultFlowTest, FixedColumnsMustComeInTheirOrder) {
    FirstPage(Fields("T1        04|0001|0001|0001|0002|2001|3001|A005930     |        9|      7"));
    EXPECT_TRUE(view.IsColHidden(1));  // volume came before price, so it counts as absent
    EXPECT_EQ(view.VisibleRow(0), "A005930|      7");
}

TEST_F(ResultFlowTest, AHiddenNameColumnStaysHidden) {
    view.At(2).hidden = true;
    flow.ApplyLayout();
    FirstPage(kFirstReply);
    EXPECT_EQ(view.VisibleRow(0), "  1234567|  71000|   12.50");
    EXPECT_EQ(Published().size(), 3u);
}

TEST_F(ResultFlowTest, AValueColumnWithoutASpareIsReadAndNotShown) {
    view.columns.pop_back();
    FirstPage(
        Fields("T1        04|0001|0001|0001|0003|3001|5101|5102|A005930     |      7|      1A|      1B"));
    EXPECT_EQ(view.At(5).tag, "5102");
    EXPECT_EQ(view.VisibleRow(0), "A005930|      7|      1B");
    EXPECT_EQ(flow.ActiveResult()->rows.Cell(0, 2), "      1A");
    EXPECT_EQ(flow.ActiveResult()->columns[2]->gridColumn, 0);
}

TEST_F(ResultFlowTest, ZeroesBeforeAnFidAreDroppedAndUnknownOnesMakeNoColumn) {
    test::AddFixed(tables, "15", "short", 3);
    FirstPage(Fields("T1        04|0001|0001|0001|0003|7777|3001|0015|A005930     |      7|abc"));
    EXPECT_EQ(flow.ActiveResult()->columnCount, 4);
    ASSERT_EQ(flow.ActiveResult()->columns.size(), 3u);
    EXPECT_EQ(flow.ActiveResult()->rows.Cell(0, 1), "      7");
    EXPECT_EQ(flow.ActiveResult()->rows.Cell(0, 2), "abc");
}

TEST_F(ResultFlowTest, WithoutAColumnTableTheCodesStandInASpareColumn) {
    ColumnTables none;
    ResultFlow bare(view, none, links, questions);
    view.columns = {{"2001"}, {""}};
    bare.OnSearchReply(Fields("T1        04|0001|0001|0001|0000|A005930     "), false);
    EXPECT_EQ(view.VisibleRow(0), "A005930");
}

// --- replies that lie

// What of the screen a reply that can't be read must not change.
std::string Snapshot(const test::RecordingResultView& view, const ResultFlow& flow) {
    std::string text;
    for (const auto& row : view.cells) {
        for (const std::string& cell : row) text += cell + "|";
    }
    for (const std::string& tab : view.tabs) text += tab + "/";
    for (const auto& column : view.columns) text += column.tag + (column.hidden ? "-" : "+") + column.header;
    text += std::to_string(view.total) + "," + std::to_string(view.received);
    return text + (flow.Pageable() ? " pageable" : "");
}

TEST_F(ResultFlowTest, AReplyCutAnywhereGivesWholeRowsOrNothing) {
    FirstPage(kFirstReply);
    const std::string before = Snapshot(view, flow);
    const std::size_t rowsAt = 28 + 3 * 4;
    for (std::size_t size = 0; size < rowsAt + 36; ++size) {
        // An exact copy on the heap, so that a byte read too far is seen.
        const std::vector<char> cut(kNextReply.begin(),
                                    kNextReply.begin() + static_cast<std::ptrdiff_t>(size));
        flow.OnSearchReply({cut.data(), cut.size()}, true);
        ASSERT_EQ(Snapshot(view, flow), before) << size;
    }
    for (std::size_t size = 0; size < kOtherReply.size(); ++size) {
        const std::vector<char> cut(kOtherReply.begin(),
                                    kOtherReply.begin() + static_cast<std::ptrdiff_t>(size));
        flow.OnSearchReply({cut.data(), cut.size()}, false);
        ASSERT_EQ(Snapshot(view, flow), before) << size;
    }
    EXPECT_TRUE(questions.boxes.empty());
    NextPage(kNextReply.substr(0, kNextReply.size() - 1));
    EXPECT_EQ(view.cells.size(), 4u);
    EXPECT_EQ(flow.ActiveResult()->rowCount, 1);
    EXPECT_EQ(Published().back(), "035420");
}

TEST_F(ResultFlowTest, CountsThatLieAreCutToTheBytes) {
    struct Case {
        std::size_t offset;
        const char* bytes;
        std::size_t rows;  // that the first page then has
    };
    const Case cases[] = {
        {20, "9999", 3}, {20, "0001", 1}, {24, "9999", 0}, {24, "-001", 3},
        {24, "0100", 0}, {12, "-999", 3}, {16, "9999", 3}, {10, "xx", 3},
    };
    for (const Case& c : cases) {
        flow.Clear();
        std::string reply = kFirstReply;
        reply.replace(c.offset, std::string_view(c.bytes).size(), c.bytes);
        FirstPage(reply);
        const std::size_t rows = flow.ResultSets().empty() ? 0 : flow.ActiveResult()->rows.Rows();
        EXPECT_EQ(rows, c.rows) << c.offset << " " << c.bytes;
        EXPECT_GE(view.total, 0);
    }
    std::string negative = kFirstReply;
    negative.replace(20, 4, "-003");
    FirstPage(negative);
    EXPECT_EQ(view.notices, 1);
}

TEST_F(ResultFlowTest, AResultGrowsToFourDigitsOfRowsAndNoFurther) {
    std::string page = Fields("N1        04|9999|9999|9999|0003|3001|2001|5101");
    for (int row = 0; row < 9000; ++row) page += Fields("A005930     |  71000|  1234567|   12.50");
    FirstPage(kFirstReply);
    for (int i = 0; i < 3; ++i) NextPage(page);
    EXPECT_EQ(flow.ActiveResult()->rows.Rows(), kMaxResultRows);
    EXPECT_EQ(view.cells.size(), kMaxResultRows);
}

TEST_F(ResultFlowTest, RandomBytesNeverBreakTheScreen) {
    std::mt19937 random(20240607);
    const std::string seeds[] = {kFirstReply, kNextReply, kOtherReply};
    FirstPage(kFirstReply);
    for (int round = 0; round < 4000; ++round) {
        std::string reply = seeds[random() % 3];
        const auto changes = 1 + random() % 8;
        for (unsigned i = 0; i < changes; ++i) {
            const char digits[] = "0123456789-T ";
            const char byte = random() % 2 ? digits[random() % 13] : static_cast<char>(random());
            reply[random() % reply.size()] = byte;
        }
        reply.resize(random() % 3 ? reply.size() : random() % reply.size());
        view.scope = static_cast<int>(random() % 6) - 1;
        flow.OnSearchReply(reply, random() % 2 == 0);
        if (random() % 4 == 0) flow.OnTabSelected(static_cast<int>(random() % 5) - 1);
        if (random() % 16 == 0) flow.Clear();

        ASSERT_TRUE(view.tabs.size() == flow.ResultSets().size() || flow.ResultSets().empty());
        for (const auto& result : flow.ResultSets()) {
            ASSERT_LE(result->rowCount, static_cast<int>(result->rows.Rows()));
            ASSERT_EQ(result->rows.Columns(), result->columns.size());
        }
        for (const std::string& code : Published()) ASSERT_LE(code.size(), 11u);
    }
}

}  // namespace
}  // namespace jogeon
