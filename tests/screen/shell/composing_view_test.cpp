// A search composed from nothing by mouse and keys: every event is one that a trader makes.
#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QShortcut>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>
#include <map>

#include <gtest/gtest.h>

#include "screen/fbgrid/fb_grid_geometry.h"
#include "screen/fbgrid/fb_grid_widget.h"
#include "tests/screen/support/test_host.h"

namespace jogeon::test {
namespace {

class ComposingTest : public testing::Test {
protected:
    ComposingTest() {
        host.Open();
        host.Reply("VE");
    }

    // Opens the groups above the indicator with this name, and clicks it.
    void Pick(const char* name) {
        auto& tree = host.Control<QTreeWidget>(21001);
        const auto found = tree.findItems(QString::fromUtf8(name), Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(1, found.size());
        for (QTreeWidgetItem* group = found[0]->parent(); group; group = group->parent())
            group->setExpanded(true);
        tree.scrollToItem(found[0]);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(found[0]).center());
    }

    void Click(int button) { QTest::mouseClick(&host.Control<QAbstractButton>(button), Qt::LeftButton); }

    void ClickCell(int row, int col) {
        auto& grid = host.Control<CFBGrid>(16129);
        const auto rect = grid.Geometry().GetCellRect(row, col);
        ASSERT_TRUE(rect);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                          {rect->left + rect->width / 2, rect->top + rect->height / 2});
    }

    ExpressionEdit& Box() { return host.Control<ExpressionEdit>(21089); }

    QPoint PointBefore(int character) {
        QTextCursor cursor(Box().document());
        cursor.setPosition(character);
        return Box().cursorRect(cursor).center();
    }

    // Selects characters of the expression with the mouse.
    void Drag(int from, int to) {
        QTest::mouseClick(Box().viewport(), Qt::LeftButton, {},
                          PointBefore(0));  // or the selection is dragged
        QTest::mousePress(Box().viewport(), Qt::LeftButton, {}, PointBefore(from));
        QTest::mouseMove(Box().viewport(), PointBefore(to));
        QTest::mouseRelease(Box().viewport(), Qt::LeftButton, {}, PointBefore(to));
    }

    TestHost host;
};

TEST_F(ComposingTest, FromAnEmptyScreenToAFilledGrid) {
    // The trader types over a number before he adds the condition.
    Pick("주가이평돌파");
    auto& panel = host.Control<QWidget>(21002);
    ASSERT_TRUE(panel.isVisible());
    auto* period = panel.findChild<QAbstractSpinBox*>();
    period->setFocus();
    period->selectAll();
    QTest::keyClicks(period, "60");
    Click(31050);
    EXPECT_EQ("A", Box().ExpressionText());

    Pick("적삼병");
    Click(31050);
    Pick("거래량");
    for (QRadioButton* choice : panel.findChildren<QRadioButton*>()) {
        if (choice->text() == "배수")
            QTest::mouseClick(choice, Qt::LeftButton, {}, {8, choice->height() / 2});
    }
    Click(31050);
    EXPECT_EQ("A and B and C", Box().ExpressionText());

    // The second "and" becomes "or", what it joins gets brackets, and C is negated.
    QTest::mouseMove(Box().viewport(), PointBefore(9));
    QTest::mouseDClick(Box().viewport(), Qt::LeftButton, {}, PointBefore(9));
    EXPECT_EQ("A and B or C", Box().ExpressionText());
    Drag(6, 12);
    Click(21034);
    EXPECT_EQ("A and (B or C)", Box().ExpressionText());
    Drag(12, 13);
    Click(21100);
    EXPECT_EQ("A and (B or !C)", Box().ExpressionText());

    ClickCell(1, 3);  // the value of A
    const std::size_t before = host.communication.sent.size();
    Click(21039);
    ASSERT_GT(host.communication.sent.size(), before);

    const std::string blanks600(600 - 3, ' ');
    const std::string header = "trader  99" + LeftIn("임시조건"_cp949, 80) + "2" + "    " + "1" + "0" +
                               std::string(11, ' ') + "0" + "0001" + "ALL" + blanks600 + "0000000" + "00" +
                               "0" + "0" + "  " + LeftIn("A&(B|!C)", 100) + "03";
    const std::string blockA = "T11A010101011" + std::string(" ") + " 0" + "  2" + std::string(25, ' ') +
                               "       60" + std::string(18, ' ');
    const std::string blockB = "P01B060101031" + std::string(58, ' ');
    const std::string blockC =
        "B01C040102021" + std::string(" ") + " 1" + std::string(25, ' ') + "        2" + std::string(21, ' ');
    const std::string payload = host.communication.LastPayload();
    ASSERT_EQ(10 + 828 + 3 * 71u + 8, payload.size());
    EXPECT_EQ("0", payload.substr(9, 1));
    EXPECT_EQ(header, payload.substr(10, 828));
    EXPECT_EQ(blockA, payload.substr(838, 71));
    EXPECT_EQ(blockB, payload.substr(838 + 71, 71));
    EXPECT_EQ(blockC, payload.substr(838 + 142, 71));
    EXPECT_EQ("00019003", payload.substr(838 + 213));

    host.Reply("T1        0100010001000100019003K000660     181000  ");
    EXPECT_EQ(2, host.Control<ResultGrid>(21104).GetRowCount());
    EXPECT_EQ("1", host.Control<QLabel>(21054).text());
}

TEST_F(ComposingTest, WithTheKeyboardAlone) {
    auto& tree = host.Control<QTreeWidget>(21001);
    auto& grid = host.Control<CFBGrid>(16129);
    for (const char* name : {"주가이평돌파", "적삼병"}) {
        tree.setCurrentItem(
            tree.findItems(QString::fromUtf8(name), Qt::MatchExactly | Qt::MatchRecursive)[0]);
        tree.setFocus();
        QTest::keyClick(&tree, Qt::Key_Return);
        QTest::keyClick(&host.Control<QAbstractButton>(31050), Qt::Key_Space);
    }
    EXPECT_EQ("A and B", Box().ExpressionText());

    // Up to A, out of the search and back, behind B, and away.
    grid.setFocus();
    grid.SetCellFocus(2, 2, true, true);
    QTest::keyClick(&grid, Qt::Key_Up);
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ("B", Box().ExpressionText());
    QTest::keyClick(&grid, Qt::Key_Space);
    QTest::keyClick(&grid, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ("B and A", Box().ExpressionText());
    EXPECT_EQ(2, grid.GetFocusedCellID().row);
    QTest::keyClick(&grid, Qt::Key_Delete);
    EXPECT_EQ("B", Box().ExpressionText());
    EXPECT_EQ(2, grid.GetRowCnt());
}

// From the buttons above the panel through its fields to the list, the expression and the results.
TEST_F(ComposingTest, TabGoesThroughTheScreenRowByRow) {
    Pick("주가이평돌파");
    std::vector<QPoint> places;
    QWidget& first = host.Control<QWidget>(21026);
    QWidget* stop = &first;
    do {
        const bool shown = stop->isVisibleTo(&host.frame) && stop->isEnabled();
        if (shown && stop->focusPolicy() & Qt::TabFocus && host.Screen().isAncestorOf(stop)) {
            places.push_back(stop->mapTo(&host.Screen(), QPoint()));
        }
        stop = stop->nextInFocusChain();
    } while (stop != &first && stop != &host.Control<QWidget>(21104));
    ASSERT_GT(places.size(), 12u);
    int backwards = 0;
    for (std::size_t i = 1; i < places.size(); ++i)
        backwards += places[i].y() < places[i - 1].y() - 4 ? 1 : 0;
    EXPECT_LE(backwards, 2) << "only the columns of the panel's fields and its buttons go up again";
    EXPECT_EQ(&host.Control<QWidget>(21104), stop);
    stop->setFocus();
    QTest::keyClick(stop, Qt::Key_Tab);
    EXPECT_NE(&host.Control<QWidget>(16129), host.Screen().window()->focusWidget()) << "not back to the list";
}

// No window is active here, so that the keys themselves don't arrive: what stands behind them is tried.
TEST_F(ComposingTest, KeysOfTheScreenDontCollideAndDoWhatTheyStandFor) {
    std::map<QKeySequence, QShortcut*> keys;
    for (QShortcut* shortcut : host.frame.findChildren<QShortcut*>()) {
        EXPECT_TRUE(keys.emplace(shortcut->key(), shortcut).second)
            << shortcut->key().toString().toStdString();
    }
    Pick("주가이평돌파");
    Click(31050);
    const std::size_t before = host.communication.sent.size();
    emit keys.at(QKeySequence("F5"))->activated();
    EXPECT_GT(host.communication.sent.size(), before);
    emit keys.at(QKeySequence("Shift+F5"))->activated();  // its button is disabled
    EXPECT_EQ('T', host.communication.LastPayload()[0]);
    host.questions.answers = {host::Answer::No};
    emit keys.at(QKeySequence("Ctrl+N"))->activated();
    EXPECT_EQ("", Box().ExpressionText());
}

TEST_F(ComposingTest, GridAndListStayTogetherUnderTheMouse) {
    for (const char* name : {"주가이평돌파", "적삼병", "거래량"}) {
        Pick(name);
        Click(31050);
    }
    auto& grid = host.Control<CFBGrid>(16129);
    const auto centre = [&](int row, int col) {
        const auto rect = grid.Geometry().GetCellRect(row, col);
        return QPoint(rect->left + rect->width / 2, rect->top + rect->height / 2);
    };
    // A double click on a check box turns it twice, in the list as in the grid.
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, centre(2, 0));
    EXPECT_EQ(0u, grid.GetCell(2, 0).check);
    EXPECT_EQ("A and C", Box().ExpressionText());
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, centre(2, 0));
    EXPECT_EQ(1u, grid.GetCell(2, 0).check);
    EXPECT_EQ("A and B and C", Box().ExpressionText());

    // C is dragged onto A.
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, centre(3, 2));
    QTest::mouseMove(grid.viewport(), centre(1, 2));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, centre(1, 2));
    EXPECT_EQ("C and A and B", Box().ExpressionText());
    EXPECT_EQ("C", grid.GetCell(1, 1).text);

    ClickCell(1, 6);  // down
    EXPECT_EQ("A and C and B", Box().ExpressionText());
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, centre(2, 2));
    EXPECT_EQ("A and B", Box().ExpressionText());
    ClickCell(1, 4);  // X
    EXPECT_EQ("B", Box().ExpressionText());
    host.questions.answers = {host::Answer::Yes, host::Answer::Yes};
    ClickCell(0, 1);  // letters anew
    EXPECT_EQ("A", Box().ExpressionText());
    ClickCell(0, 4);
    EXPECT_EQ("", Box().ExpressionText());
    EXPECT_EQ(1, grid.GetRowCnt());
}

// However the focus came to a row, and where it is gone: what is modified is what the panel shows.
TEST_F(ComposingTest, ModifyingChangesTheConditionThatThePanelShows) {
    for (int i = 0; i < 2; ++i) {
        Pick("주가이평돌파");
        Click(31050);
    }
    auto& grid = host.Control<CFBGrid>(16129);
    const auto modifyTo = [&](const char* days) {
        auto* period = host.Control<QWidget>(21002).findChild<QAbstractSpinBox*>();
        period->setFocus();
        period->selectAll();
        QTest::keyClicks(period, days);
        Click(31051);
    };
    const auto text = [&](int row) { return ToUtf8(grid.GetCell(row, 2).text); };
    ClickCell(1, 2);
    modifyTo("11");
    QWheelEvent down({5, 25}, grid.mapToGlobal(QPointF(5, 25)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(grid.viewport(), &down);
    modifyTo("22");
    EXPECT_EQ("[지수] 11일 이평 0", text(1));
    EXPECT_EQ("[지수] 22일 이평 0", text(2));
    ClickCell(1, 5);  // A can't go further up, but its button has the focus
    modifyTo("33");
    EXPECT_EQ("[지수] 11일 이평 0", text(1));
    EXPECT_EQ("[지수] 33일 이평 0", text(2));
}

}  // namespace
}  // namespace jogeon::test
