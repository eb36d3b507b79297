// The tabs, the counts and the notice, as the result flow drives them.
#include "screen/results/result_controls_widget.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "screen/panes/progress_label_widget.h"
#include "screen/results/code_list_button_widget.h"
#include "screen/results/result_flow.h"
#include "screen/results/result_grid_view.h"
#include "screen/results/result_tabs_widget.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/columns.h"
#include "tests/screen/support/named_stocks.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

using std::chrono::milliseconds;

class ResultControlsTest : public testing::Test {
protected:
    ResultControlsTest() {
        screen.resize(580, 400);
        screen.move(100, 50);
        scope.addItems({"a", "b", "c", "d"});
        tabs.setGeometry(0, 0, 580, 22);
        screen.show();
    }

    test::NamedStocks lists;
    test::ScriptedQuestions questions;
    test::ManualClock clock;
    QWidget screen;
    ResultGrid grid{lists, &screen};
    CNVTab tabs{&screen};
    QComboBox scope{&screen};
    QPushButton next{&screen};
    CodeListButton codeList{lists, &screen};
    QLabel total{&screen};
    QLabel received{&screen};
    ProgressLabel progress{&screen};
    ResultControlsView view{
        {screen, grid, tabs, scope, next, codeList, total, received, progress}, questions, clock};
};

TEST_F(ResultControlsTest, OnlyTheUserChangesTabsAndScopes) {
    QSignalSpy chosen(&tabs, &QTabBar::currentChanged);
    QSignalSpy scopes(&scope, &QComboBox::currentIndexChanged);
    EXPECT_EQ(view.SelectedTab(), -1);
    view.AddTab("[1]전체검색"_cp949);
    view.AddTab("[2]결과내검색"_cp949);
    view.AddTab("[3]결과외검색"_cp949);
    view.SelectTab(2);
    view.SelectScope(3);
    view.RemoveTab(2);
    EXPECT_EQ(view.TabCount(), 2);
    EXPECT_EQ(view.SelectedScope(), 3);
    EXPECT_EQ(tabs.TabLabel(1), "[2]결과내검색"_cp949);
    EXPECT_EQ(chosen.count() + scopes.count(), 0);

    view.SelectTab(1);
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(0).center());
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toInt(), 0);
}

TEST_F(ResultControlsTest, CountsReachTheLabelsAndTheBar) {
    view.ShowCounts(1234, 200);
    EXPECT_EQ(total.text(), "1234");
    EXPECT_EQ(received.text(), "200");
    EXPECT_EQ(progress.State().maximum, 1234);
    EXPECT_EQ(progress.State().position, 200);
    view.ShowCounts(0, 0);
    EXPECT_EQ(progress.State().ShownText(), "");
}

TEST_F(ResultControlsTest, TheNoticeStandsOverTheMiddleAndGoesAfterASecond) {
    QRect place;
    QString text;
    QColor back;
    int result = -1;
    std::vector<bool> visible;
    questions.onRun = [&](const std::string&, void* object) {
        auto& dialog = static_cast<QDialog&>(*static_cast<QWidget*>(object));
        dialog.open();
        place = dialog.geometry();
        text = dialog.findChild<QLabel*>()->text();
        back = dialog.grab().toImage().pixelColor(5, 5);
        clock.Advance(milliseconds(999));
        visible.push_back(dialog.isVisible());
        clock.Advance(milliseconds(1));
        visible.push_back(dialog.isVisible());
        result = dialog.result();
        return true;
    };
    view.ShowNoResultNotice();

    EXPECT_EQ(questions.dialogs, std::vector<std::string>{"ResultNoticePopup"});
    EXPECT_EQ(text, QStringLiteral("검색된 종목이 없습니다."));
    EXPECT_EQ(place.center().x(), screen.geometry().center().x());
    EXPECT_EQ(place.bottom() + 1, screen.geometry().top() + 400 / 2);
    EXPECT_EQ(back, QColor(0xe9, 0xf1, 0xf9));  // 0xf9f1e9 with red in the low byte
    EXPECT_EQ(visible, (std::vector<bool>{true, false}));
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(clock.Running(), 0u);
}

TEST_F(ResultControlsTest, ANoticeClosedEarlyLeavesNoTimer) {
    questions.onRun = [&](const std::string&, void* object) {
        auto& dialog = static_cast<QDialog&>(*static_cast<QWidget*>(object));
        dialog.open();
        dialog.reject();
        return false;
    };
    view.ShowNoResultNotice();
    EXPECT_EQ(clock.Running(), 0u);
}

// Two of three stocks with their price, then the third.
const char kFirstPage[] =
    "T1        0400030002000200013001"
    "A005930       71000"
    "A000660      128000";
const char kSecondPage[] =
    "N1        0400030003000100013001"
    "A035420      210000";
// A search within them: one stock with its price and the first condition's value.
const char kWithin[] =
    "T1        05000100010001000230015101"
    "A000660      128000    3.25";

TEST_F(ResultControlsTest, SearchesFillTheGridAndATabBringsTheEarlierOneBack) {
    grid.ApplyLayout({{1, "9001", "", 100, false, CellFormat::Text},
                      {2, "3001", "", 80, false, CellFormat::Price},
                      {3, "", "", 80, true, CellFormat::Decimal}});
    ColumnTables tables = test::SmallTables();
    test::RecordingLinkStore links;
    ResultFlow flow(view, tables, links, questions);
    flow.ApplyLayout();
    QObject::connect(&tabs, &QTabBar::currentChanged, [&](int tab) { flow.OnTabSelected(tab); });
    const auto cell = [&](int row, int column) {
        return grid.model()->index(row - 2, column - 1).data().toString();
    };

    flow.OnSearchReply(kFirstPage, false);
    EXPECT_TRUE(next.isEnabled());
    flow.OnSearchReply(kSecondPage, true);
    EXPECT_EQ(grid.GetRowCount(), 4);
    EXPECT_EQ(cell(2, 2), "71,000");
    EXPECT_EQ(cell(4, 2), "210,000");
    EXPECT_EQ(grid.GetSelectedRows(), std::vector<int>{4});  // the first row of the page
    EXPECT_FALSE(next.isEnabled());

    scope.setCurrentIndex(1);
    flow.OnSearchReply(kWithin, false);
    EXPECT_EQ(tabs.TabLabel(1), "[2]결과내검색"_cp949);
    EXPECT_EQ(grid.GetRowCount(), 2);
    EXPECT_FALSE(grid.IsColHidden(3));
    EXPECT_EQ(grid.GetValue(1, 3), "value A");
    EXPECT_EQ(cell(2, 3), "3.25");

    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(0).center());
    EXPECT_EQ(grid.GetRowCount(), 4);
    EXPECT_EQ(grid.GetValue(2, 1), "A005930");
    EXPECT_TRUE(grid.IsColHidden(3));
    EXPECT_EQ(received.text(), "3");
    flow.Clear();
    EXPECT_EQ(tabs.TabCount(), 1);
    EXPECT_EQ(grid.GetRowCount(), 1);
}

}  // namespace
}  // namespace jogeon
