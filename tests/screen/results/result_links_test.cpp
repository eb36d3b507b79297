#include "screen/results/result_links.h"

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "tests/screen/support/bytes.h"
#include "tests/screen/support/columns.h"
#include "tests/screen/support/link_journal.h"
#include "tests/screen/support/recording_result_view.h"

namespace jogeon {
namespace {

using test::Journal;
using Codes = std::vector<std::string>;

constexpr host::WindowHandle kMain = 0x10;
constexpr host::WindowHandle kScreen = 0x20;
constexpr host::WindowHandle kGrid = 0x21;

// A grid with the name in its second column and three stocks in rows 2 to 4.
class ResultLinksTest : public testing::Test {
protected:
    ResultLinksTest() {
        services.links = &linkStore;
        services.interests = &interests;
        mainWindow.Attach(kMain);
        view.columns = {{"3001"}, {"9001"}};
        flow.ApplyLayout();
        flow.OnSearchSent({"the set", {}, ""});
        flow.OnSearchReply(test::Fields("T1        04|0005|0003|0003|0001|3001"
                                        "A005930     |  71000|A000660     | 128000|Q035720     |  55500"),
                           false);
        journal.clear();
    }

    // What was told the host since the last question.
    Journal Told() {
        Journal told;
        std::swap(told, journal);
        return told;
    }
    std::string Code() { return linkStore.tags[{"ReturnMainKey", "JCODE"}]; }

    Journal journal;
    test::JournalLinks linkStore{journal};
    test::RecordingInterests interests;
    test::ScriptedQuestions questions;
    host::Services services;
    HostMainWindow mainWindow{[this](host::WindowHandle window, auto number, auto wParam, auto lParam) {
        EXPECT_EQ(window, kMain);
        if (number == host::kResultDoubleClicked) {
            EXPECT_EQ(wParam, kGrid);
        }
        journal.push_back(test::DescribeMessage(number, wParam, lParam));
        return std::intptr_t(0);
    }};
    ScreenSettings settings;
    ColumnTables tables = test::SmallTables();
    test::RecordingResultView view;
    ResultFlow flow{view, tables, linkStore, questions};
    ResultLinks links{{view, flow, services, mainWindow, settings, kScreen}};
};

const Journal kLink{"set ReturnMainKey/JCODE", "set ReturnMainKey/J_ECODE", "notify 0 0|ReturnMainKey|JCODE"};
const Journal kPlainChart{"open 4 0615"};

TEST_F(ResultLinksTest, ClicksLetTheOtherScreensFollowTheRow) {
    links.OnRowClicked(3);
    EXPECT_EQ(Told(), kLink) << "tags first, then the word of them";
    EXPECT_EQ(Code(), "000660");
    EXPECT_EQ((linkStore.tags[{"ReturnMainKey", "J_ECODE"}]), "000660");

    links.OnRowDoubleClicked(4, kGrid);
    EXPECT_EQ(Told(), (Journal{kLink[0], kLink[1], kLink[2], "double click"}));
    EXPECT_EQ(Code(), "035720");
    links.OnRowDoubleClicked(1, kGrid);
    EXPECT_EQ(Told(), Journal()) << "the header";

    links.SendCodeLink("K123456789  ");
    EXPECT_EQ(Code(), "123456789");
    links.SetCodeTags("Other", "A005930 ");
    EXPECT_EQ((linkStore.tags[{"Other", "J_ECODE"}]), "005930");
}

TEST_F(ResultLinksTest, ArrowKeysSendTheRowThatTheyReach) {
    view.selectedRows = {4};
    EXPECT_EQ(links.HandleGridKey(kKeyUp), 1);
    EXPECT_EQ(Told(), kLink);
    EXPECT_EQ(Code(), "035720");
    EXPECT_EQ(links.HandleGridKey(kKeyDown), 1);
    EXPECT_EQ(Told(), kLink);

    for (const int key : {0x2e, 0x0d}) EXPECT_EQ(links.HandleGridKey(key), 1);
    EXPECT_EQ(view.cells.size(), 3u) << "no key takes a row away";
    settings.keyArrow = false;
    EXPECT_EQ(links.HandleGridKey(kKeyDown), 1);
    settings.keyArrow = true;
    for (const std::vector<int>& rows : {std::vector<int>{}, {2, 3}}) {
        view.selectedRows = rows;
        EXPECT_EQ(links.HandleGridKey(kKeyDown), 0);
    }
    EXPECT_EQ(Told(), Journal());
}

TEST_F(ResultLinksTest, TheChartOpensOnTheFirstSelectedStockIfThereIsOne) {
    view.selectedRows = {3, 4};
    links.OpenChart();
    EXPECT_EQ(Told(), (Journal{kLink[0], kLink[1], "open 0|ReturnMainKey|JCODE 0615"}));
    EXPECT_EQ(Code(), "000660");
    view.selectedRows.clear();
    links.OpenChart();
    EXPECT_EQ(Told(), kPlainChart);
    view.selectedRows = {2};
    flow.Clear();
    links.OpenChart();
    EXPECT_EQ(Told(), kPlainChart) << "no result";
}

TEST_F(ResultLinksTest, AnInterestGroupTakesAllRowsOrThoseSelected) {
    view.selectedRows = {2, 4};
    links.SaveInterest();
    ASSERT_EQ(interests.saved.size(), 1u);
    EXPECT_EQ(interests.saved[0].codes, (Codes{"005930", "000660", "035720"}));
    EXPECT_EQ(interests.saved[0].window, kScreen);
    EXPECT_EQ(interests.saved[0].mainWindow, kMain);
    EXPECT_EQ(interests.saved[0].number, 1);
    links.SaveSelectedInterest();
    EXPECT_EQ(interests.saved[1].codes, (Codes{"005930", "035720"}));
    view.selectedRows = {2};
    links.SaveSelectedInterest();
    EXPECT_EQ(interests.saved[2].codes.size(), 3u) << "one row is where the cursor stands";
    flow.Clear();
    links.SaveInterest();
    EXPECT_EQ(interests.saved.size(), 3u) << "no result";
}

TEST_F(ResultLinksTest, ABlockOfRowsIsPublishedWithTheSetThatFoundIt) {
    flow.OnSearchReply(test::Fields("T1        06|0000|0000|0000|0000"), false);
    EXPECT_EQ((linkStore.tags[{"CS_RESULT", "CONDSET"}]), "");
    Told();
    EXPECT_EQ(links.PublishRowCodes(3, 4), 1);
    EXPECT_EQ(Told(), (Journal{"set CS_RESULT/CONDSET", "publish 조건검색 000660,035720"}));
    EXPECT_EQ((linkStore.tags[{"CS_RESULT", "CONDSET"}]), "the set");
    EXPECT_EQ(view.codeList, (Codes{"000660", "035720"}));
}

TEST_F(ResultLinksTest, AChosenCodeIsSentAndSelectedWhereTheGridHasIt) {
    view.log.clear();
    links.ChooseCode("000660");
    EXPECT_EQ(Told(), kLink);
    EXPECT_EQ(Code(), "000660");
    EXPECT_EQ(view.log, (Codes{"scroll 3,2", "select 3"}));
    links.ChooseCode("999999");
    EXPECT_EQ(Told(), kLink);
    EXPECT_EQ(view.selectedRows, std::vector<int>{3});
}

TEST_F(ResultLinksTest, WithoutAMainWindowNothingLeavesTheScreen) {
    mainWindow.Attach(0);
    view.selectedRows = {2};
    links.OnRowClicked(2);
    links.OnRowDoubleClicked(2, kGrid);
    links.HandleGridKey(kKeyDown);
    links.OpenChart();
    links.SaveInterest();
    links.ChooseCode("000660");
    EXPECT_EQ(Told(), Journal());
    EXPECT_TRUE(interests.saved.empty());
    EXPECT_EQ(Code(), "");
}

}  // namespace
}  // namespace jogeon
