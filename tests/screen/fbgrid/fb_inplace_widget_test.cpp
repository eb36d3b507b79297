// The editor and the list that open over a cell: how they open, how they end, and what each end stores.
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "tests/screen/support/fb_grid_parent.h"

namespace jogeon {
namespace {

using test::GridParent;

class FBGridInPlaceTest : public testing::Test {
protected:
    void SetUp() override { parent.ShowActive(); }
    void TearDown() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    QLineEdit* OpenEdit(int row = 1) {
        parent.Click(row, 1);
        parent.Click(row, 1);
        return grid.findChild<QLineEdit*>("6000");
    }
    QComboBox* OpenList(std::uint32_t state = CCell::kList, int row = 1) {
        parent.ListCell(row, state);
        parent.Click(row, 2);
        return List();
    }
    QLineEdit* Edit() { return grid.findChild<QLineEdit*>("6000"); }
    QComboBox* List() { return grid.findChild<QComboBox*>("6001"); }

    GridParent parent;
    CFBGrid& grid = *parent.grid;
    CCell& edited = grid[1][1];
    CCell& listed = grid[1][2];
};

TEST_F(FBGridInPlaceTest, TheSecondClickEdits) {
    edited.text = "조건"_cp949;
    edited.format = CCell::kCentre;
    parent.Click(1, 1);
    EXPECT_FALSE(Edit());
    parent.Click(1, 1);
    ASSERT_TRUE(Edit());
    EXPECT_EQ(parent.Told(), "8:1,1 8:1,1");
    EXPECT_TRUE(Edit()->hasFocus());
    EXPECT_EQ(Edit()->geometry(), QRect(20, 18, 60, 18));
    EXPECT_EQ(Edit()->selectedText(), "조건");
    EXPECT_EQ(Edit()->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
    parent.Do("down 2,1; up 2,1; double 2,1");
    ASSERT_TRUE(Edit());
    EXPECT_EQ(Edit()->text(), "21") << "another cell's takes its place";
}

TEST_F(FBGridInPlaceTest, EveryEndStores) {
    QCheckBox other(&parent);
    other.show();
    const std::vector<std::function<void()>> ends = {
        [&] { QTest::keyClick(Edit(), Qt::Key_Escape); },
        [&] { QTest::keyClick(Edit(), Qt::Key_Return); },
        [&] { QTest::keyClick(Edit(), Qt::Key_Tab); },
        [&] { parent.Click(3, 4); },
        [&] { grid.verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd); },
        [&] { grid.resize(290, 190); },
        [&] { other.setFocus(); },
    };
    int turn = 0;
    for (const auto& end : ends) {
        SCOPED_TRACE(turn++);
        edited.text = "old";
        ASSERT_TRUE(OpenEdit());
        QTest::keyClicks(Edit(), "new");
        parent.Told();
        end();
        EXPECT_FALSE(Edit());
        EXPECT_EQ(edited.text, "new");
        EXPECT_TRUE(&other == QApplication::focusWidget() || grid.hasFocus());
        EXPECT_EQ(parent.Told().substr(0, 1).find_first_of("01"), std::string::npos)
            << "keys stay in the editor";
        grid.SetFocusedCellID({});
    }
}

TEST_F(FBGridInPlaceTest, KeysOfTheEditorAreNotTheGrids) {
    ASSERT_TRUE(OpenEdit());
    parent.Told();
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Delete})
        QTest::keyClick(Edit(), key);
    EXPECT_EQ(grid.GetFocusedCellID(), (CCellID{1, 1}));
    EXPECT_EQ(parent.Told(), "");
    ASSERT_TRUE(Edit());
    EXPECT_EQ(Edit()->text(), "");
}

TEST_F(FBGridInPlaceTest, NumbersAreEditedPlainly) {
    const std::tuple<double, const char*, const char*, double> cases[] = {
        {1234567, "1234567", "2,5", 2},
        {12.5, "12.5", "-7.25원", -7.25},
        {100, "100", "abc", 0},
        {0, "0", " 1e3", 1000},
        {0.1234567, "0.123457", nullptr, 0.1234567},
    };
    for (const auto& [value, shown, typed, stored] : cases) {
        SCOPED_TRACE(shown);
        edited.state = CCell::kEdit | CCell::kNumeric;
        edited.value = value;
        edited.text = "unit";
        ASSERT_TRUE(OpenEdit());
        EXPECT_EQ(Edit()->text(), shown);
        if (typed) Edit()->setText(typed);
        QTest::keyClick(Edit(), Qt::Key_Return);
        EXPECT_EQ(edited.value, stored);
        EXPECT_EQ(edited.text, "unit");
        grid.SetFocusedCellID({});
    }
}

TEST_F(FBGridInPlaceTest, AnEditorWhoseRowHasGoneStoresNothing) {
    ASSERT_TRUE(OpenEdit(2));
    QTest::keyClicks(Edit(), "new");
    grid.DeleteRow(5);
    EXPECT_TRUE(Edit()) << "a row below is no concern of it";
    grid.DeleteRow(1);
    EXPECT_FALSE(Edit());
    EXPECT_EQ(grid[1][1].text, "21");
    EXPECT_EQ(grid[2][1].text, "31");
    ASSERT_TRUE(OpenEdit(2));
    QTest::keyClicks(Edit(), "new");
    grid.DeleteAll();
    EXPECT_FALSE(Edit());
    QTest::qWait(1);
}

TEST_F(FBGridInPlaceTest, AnEditorFollowsItsCell) {
    grid.SetRowCnt(50);
    ASSERT_TRUE(OpenEdit(3));
    QTest::keyClicks(Edit(), "new");
    grid.SetScrollPos32(Qt::Vertical, 18, true);
    ASSERT_TRUE(Edit());
    EXPECT_EQ(Edit()->y(), 36);
    grid.SetColWidth(0, 50);
    EXPECT_EQ(Edit()->x(), 50);
    grid.SetScrollPos32(Qt::Vertical, 500, true);
    EXPECT_FALSE(Edit());
    EXPECT_EQ(grid[3][1].text, "new") << "out of sight it ends as it always does";
}

// --- lists

TEST_F(FBGridInPlaceTest, AListOpensAtOnceAndTellsItsSelection) {
    parent.Click(2, 2);
    EXPECT_FALSE(List()) << "the cell names no list";
    listed.check = 1;
    ASSERT_TRUE(OpenList());
    parent.Told();
    EXPECT_TRUE(List()->hasFocus());
    EXPECT_EQ(List()->currentText(), "two");
    EXPECT_EQ(List()->geometry(), QRect(80, 18, 60, 18));
    std::string textWhenTold;
    parent.onNotify = [&](const FBGridNotify&) { textWhenTold = listed.text; };
    QTest::keyClick(List(), Qt::Key_Down);
    EXPECT_EQ(parent.Told(), "2");
    EXPECT_EQ(textWhenTold, "three");
    EXPECT_EQ(listed.check, 2u);

    List()->showPopup();
    QTest::keyClick(List()->view(), Qt::Key_Home);
    QTest::keyClick(List()->view(), Qt::Key_Return);
    EXPECT_EQ(parent.Told(), "2");
    EXPECT_EQ(listed.text, "one");
    EXPECT_TRUE(List());
    QTest::keyClick(List(), Qt::Key_Escape);
    EXPECT_FALSE(List());
    EXPECT_TRUE(grid.hasFocus());
}

TEST_F(FBGridInPlaceTest, LeftAndRightGoToTheGrid) {
    for (const std::uint32_t state : {CCell::kList, CCell::kFreeList}) {
        ASSERT_TRUE(OpenList(state));
        QTest::keyClick(List(), Qt::Key_Left);
        EXPECT_FALSE(List());
        EXPECT_EQ(grid.GetFocusedCellID(), (CCellID{1, 1}));
        QTest::keyClick(&grid, Qt::Key_Right);
        ASSERT_TRUE(List());
        List()->showPopup();
        QTest::keyClick(List()->view(), Qt::Key_Right);
        EXPECT_FALSE(List());
        EXPECT_EQ(grid.GetFocusedCellID(), (CCellID{1, 3}));
        EXPECT_TRUE(grid.hasFocus());
    }
}

TEST_F(FBGridInPlaceTest, TypedTextGoesIntoTheCell) {
    listed.text = "own";
    ASSERT_TRUE(OpenList(CCell::kFreeList));
    EXPECT_EQ(List()->currentText(), "own");
    List()->lineEdit()->selectAll();
    QTest::keyClicks(List(), "abc");
    EXPECT_EQ(listed.text, "abc");
    EXPECT_EQ(listed.check, 0u);
    grid.SetColWidth(0, 30);
    EXPECT_TRUE(List()) << "what was typed doesn't make it another cell";
    QTest::keyClick(List(), Qt::Key_Down);
    EXPECT_EQ(listed.text, "two");
    EXPECT_EQ(List()->count(), 3);
}

TEST_F(FBGridInPlaceTest, OnlyCertainWindowsCloseAList) {
    const auto named = [](QWidget* widget, const char* name) {
        widget->setProperty("windowClass", name);
        return widget;
    };
    const std::pair<QWidget*, bool> cases[] = {
        {new QLineEdit(&parent), true},
        {new QComboBox(&parent), true},
        {new QCheckBox(&parent), true},
        {new QTreeWidget(&parent), true},
        {new CFBGrid(&parent), true},
        {named(new QPlainTextEdit(&parent), "S4CExpEditorClass"), true},
        {named(new QTableWidget(&parent), "SysTreeView32"), true},
        {new QTableWidget(&parent), false},
        {named(new QLineEdit(&parent), "Editor"), false},  // only the exact name counts
    };
    for (const std::uint32_t state : {CCell::kList, CCell::kFreeList}) {
        for (const auto& [window, closes] : cases) {
            SCOPED_TRACE(window->metaObject()->className());
            ASSERT_TRUE(OpenList(state));
            List()->setCurrentIndex(2);
            listed.check = 7;  // so that the loss of the focus shows what it stores
            window->show();
            window->setFocus();
            EXPECT_EQ(List() == nullptr, closes);
            EXPECT_EQ(listed.check, closes && state == CCell::kList ? 2u : 7u);
            grid.setFocus();
            EXPECT_FALSE(List());
        }
    }
}

TEST_F(FBGridInPlaceTest, AListStaysWhenTheProgramIsLeft) {
    ASSERT_TRUE(OpenList());
    QWidget other;  // a window without a control in it
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_TRUE(List());
}

TEST_F(FBGridInPlaceTest, ABoxInTheMiddleOfASelectionIsSurvived) {
    // The box's button closes the list while the list is still in the midst of its key.
    parent.onNotify = [&](const FBGridNotify& notify) {
        if (notify.code != FBGridNotify::kChildCommand) return;
        QDialog box(&parent);
        QPushButton button(&box);
        QTimer::singleShot(20, &box, &QDialog::reject);
        box.exec();
        if (parent.grid) delete parent.grid;
        QTest::qWait(1);
    };
    ASSERT_TRUE(OpenList());
    QTest::keyClick(List(), Qt::Key_Down);
    EXPECT_FALSE(parent.grid);
}

}  // namespace
}  // namespace jogeon
