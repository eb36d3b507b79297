// The grid under the user's hands: what each press, key and turn of the wheel does, and what the parent is
// told.
#include "screen/fbgrid/fb_grid_widget.h"

#include <QPaintEvent>
#include <QPushButton>
#include <QShortcut>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "tests/screen/support/condition_files.h"
#include "tests/screen/support/fb_grid_parent.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

using test::GridParent;

class FBGridTest : public testing::Test {
protected:
    void SetUp() override { parent.ShowActive(); }

    void Focus(int row, int col) {
        grid.SetFocusedCellID({row, col});
        grid.setFocus();
    }
    void Keys(const std::vector<Qt::Key>& keys) {
        for (const Qt::Key key : keys) QTest::keyClick(&grid, key);
    }
    std::string Focused() const {
        const CCellID cell = grid.GetFocusedCellID();
        return std::to_string(cell.row) + "," + std::to_string(cell.col);
    }
    int Top() const { return grid.GetScrollPos32(Qt::Vertical); }
    void Turn(int delta) {
        const QPoint at(5, 5);
        QWheelEvent event(at, grid.mapToGlobal(at), {}, {0, delta}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(grid.viewport(), &event);
    }

    GridParent parent;
    CFBGrid& grid = *parent.grid;
};

TEST_F(FBGridTest, PointerTellsTheParent) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"down 1,4; up 1,4", "8:1,4", "1,4"},
        {"down 1,1; up 1,1", "8:1,1", "1,1"},
        {"down 1,0; up 1,0", "8:1,0", "1,0"},                                 // a click toggles nothing
        {"down 1,0; up 1,0; double 1,0; up 1,0", "8:1,0 3 10:10,27", "1,0"},  // a double click does
        {"down 2,0; up 2,0; double 2,0; up 2,0", "8:2,0 10:10,45", "2,0"},    // but not a disabled box
        {"down 0,1; up 0,1", "6:0,1", "5,4"},                                 // headers leave the focus
        {"double 0,1; right 0,1; down -1,-1; up -1,-1", "", "5,4"},           // nobody's
        {"right 1,0", "9:1,0", "5,4"},
        {"down 1,3; up 1,3", "8:1,3 5:1,3", "-1,-1"},  // a button takes the focus away
        {"down 1,3; move 2,3; up 2,3", "8:1,3", "-1,-1"},
        {"down 1,3; move 2,3; move 1,3; up 1,3", "8:1,3 5:1,3", "-1,-1"},
        {"down 1,3; up 1,3; double 1,3; up 1,3", "8:1,3 5:1,3", "-1,-1"},
        {"down 1,4; move 3,0; up 3,0", "8:1,4 11:3,1", "1,4"},  // column 4 drags its row
        {"down 1,4; move 1,0; up 1,0", "8:1,4", "1,4"},
        {"down 1,4; move -1,-1; up -1,-1; up 3,0", "8:1,4", "1,4"},
        {"down 1,4; move 0,0; up 0,0; up 3,0", "8:1,4", "1,4"},
        {"down 1,1; move 3,1; up 3,1", "8:1,1", "1,1"},  // other columns don't
    };
    grid.SetDragAndDropColumn(4);
    for (const auto& [steps, told, focused] : cases) {
        SCOPED_TRACE(steps);
        grid.SetFocusedCellID({5, 4});
        grid[1][0].check = CCell::kOff;
        grid[2][0].check = CCell::kDisabled;
        parent.Do(steps);
        EXPECT_EQ(parent.Told(), told);
        EXPECT_EQ(Focused(), focused);
        EXPECT_EQ(grid.viewport()->cursor().shape(), Qt::ArrowCursor);
        const bool toggled = std::string(told).find(" 3 ") != std::string::npos;
        EXPECT_EQ(grid[1][0].check, toggled ? CCell::kOn : CCell::kOff);
        EXPECT_EQ(grid[2][0].check, CCell::kDisabled);
    }
}

TEST_F(FBGridTest, LeftPressTakesTheKeyboardFocusAndTheRightOneDoesNot) {
    QPushButton other(&parent);
    other.show();
    other.setFocus();
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, parent.Centre(1, 4));
    EXPECT_TRUE(other.hasFocus());
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, parent.Centre(1, 4));
    EXPECT_TRUE(grid.hasFocus());
}

TEST_F(FBGridTest, KeysMoveTheFocus) {
    grid.SetColWidth(2, 0);
    grid.SetColWidth(3, 1);
    const std::tuple<CCellID, Qt::Key, const char*, const char*> cases[] = {
        {{2, 1}, Qt::Key_Up, "1,1", ""},          {{1, 1}, Qt::Key_Up, "1,1", ""},  // headers are not reached
        {{4, 1}, Qt::Key_Down, "5,1", ""},        {{5, 1}, Qt::Key_Down, "5,1", ""},
        {{2, 1}, Qt::Key_Left, "2,0", ""},        {{2, 0}, Qt::Key_Left, "2,0", ""},
        {{2, 1}, Qt::Key_Right, "2,4", ""},  // hidden columns are stepped over
        {{2, 4}, Qt::Key_Left, "2,1", ""},        {{2, 4}, Qt::Key_Right, "2,4", ""},
        {{3, 0}, Qt::Key_PageUp, "1,0", ""},      {{3, 0}, Qt::Key_PageDown, "5,0", ""},
        {{2, 0}, Qt::Key_Return, "2,0", "3 1"},   {{2, 4}, Qt::Key_Enter, "2,4", "1"},
        {{-1, -1}, Qt::Key_Return, "-1,-1", "1"}, {{-1, -1}, Qt::Key_Down, "-1,-1", ""},
        {{9, 9}, Qt::Key_Up, "9,9", ""},  // a row that has gone
        {{2, 4}, Qt::Key_Delete, "2,4", "0"},     {{2, 4}, Qt::Key_F5, "2,4", ""},
        {{2, 4}, Qt::Key_Escape, "2,4", ""},
    };
    for (const auto& [from, key, focused, told] : cases) {
        SCOPED_TRACE(key);
        Focus(from.row, from.col);
        Keys({key});
        EXPECT_EQ(Focused(), focused);
        EXPECT_EQ(parent.Told(), told);
    }
    grid.SetColWidth(0, 0);
    Focus(1, 1);
    Keys({Qt::Key_Left});
    EXPECT_EQ(Focused(), "1,1") << "only a hidden column lies to the left";
}

TEST_F(FBGridTest, TabGoesToTheNeighboursOfTheParent) {
    QPushButton before(&parent);
    QPushButton after(&parent);
    QWidget::setTabOrder(&before, &grid);
    QWidget::setTabOrder(&grid, &after);
    before.show();
    after.show();
    grid.setFocus();
    Keys({Qt::Key_Tab});
    EXPECT_TRUE(after.hasFocus());
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(before.hasFocus());
}

TEST_F(FBGridTest, DeleteIsToldThoughAShortcutTakesIt) {
    QShortcut shortcut(Qt::Key_Delete, &parent);
    int taken = 0;
    QObject::connect(&shortcut, &QShortcut::activated, [&] { ++taken; });
    Focus(1, 1);
    Keys({Qt::Key_Delete});
    EXPECT_EQ(parent.Told(), "0");
    EXPECT_EQ(taken, 1);
}

TEST_F(FBGridTest, AHundredThousandHiddenColumnsAreSteppedOver) {
    grid.SetColCnt(100'000);
    for (int col = 1; col < 99'999; ++col) grid.SetColWidth(col, 0);
    Focus(1, 0);
    Keys({Qt::Key_Right});
    EXPECT_EQ(Focused(), "1,99999");
    Keys({Qt::Key_Left});
    EXPECT_EQ(Focused(), "1,0");
}

TEST_F(FBGridTest, KeysScroll) {
    grid.SetRowCnt(1 + 100);  // ten rows are shown at a time, and a bit
    Focus(10, 0);
    Keys({Qt::Key_Down});
    EXPECT_EQ(Top(), 0) << "row 11 was on the window in part";
    Keys({Qt::Key_Down});
    EXPECT_EQ(Top(), 18);
    EXPECT_EQ(Focused(), "12,0");
    Focus(2, 0);
    Keys({Qt::Key_Up});
    EXPECT_EQ(Top(), 0);
    Keys({Qt::Key_PageDown});
    EXPECT_EQ(Top(), 200 - 18);
    EXPECT_EQ(Focused(), "22,0");
    Keys({Qt::Key_PageUp});
    EXPECT_EQ(Focused(), std::to_string(grid.Geometry().GetVisibleRange().minRow) + ",0");
    Turn(-120);
    Turn(-40);
    Turn(-80);
    Turn(120);
    EXPECT_EQ(Focused(), std::to_string(grid.Geometry().GetVisibleRange().minRow + 1) + ",0");
}

TEST(FBGridExtendedTest, WheelAndListPassTheirKeysToTheGrid) {
    class KeyedGrid : public CFBGrid {
    public:
        std::vector<int> keys;

    protected:
        void keyPressEvent(QKeyEvent* event) override {
            keys.push_back(event->key());
            CFBGrid::keyPressEvent(event);
        }
    };
    QWidget window;
    KeyedGrid grid;
    grid.Create(QRect(0, 0, 200, 200), &window, 1);
    grid.AddColumn("a", 80);
    grid.AddColumn("b", 80);
    grid.SetRowCnt(3);
    grid.AddDropDownItem(std::make_unique<CStringArray>(CStringArray{"one"}));
    grid[2][1].state = CCell::kList;
    grid[2][1].listIndex = 0;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    grid.SetCellFocus(1, 1, true, true);
    const auto turn = [](QWidget* on, int delta) {
        QWheelEvent event(QPoint(5, 5), on->mapToGlobal(QPoint(5, 5)), {}, {0, delta}, {}, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(on, &event);
    };
    turn(grid.viewport(), -120);
    ASSERT_TRUE(grid.findChild<QWidget*>("6001"));
    QTest::keyClick(grid.findChild<QWidget*>("6001"), Qt::Key_Left);
    turn(grid.verticalScrollBar(), 120);
    EXPECT_EQ(grid.keys, (std::vector<int>{Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}));
    EXPECT_EQ(grid.GetFocusedCellID(), (CCellID{1, 0}));
}

TEST_F(FBGridTest, ScrollBarsStepByRowsAndTakeTheFocusFirst) {
    grid.SetRowCnt(1 + 100);
    for (int row = 1; row <= 100; ++row) grid.SetRowHeight(row, 20 + row % 2);  // 21, 20, 21, ...
    QPushButton other(&parent);
    other.show();
    QScrollBar& bar = *grid.verticalScrollBar();
    const int maximum = 50 * 41 - 182;
    const std::pair<QAbstractSlider::SliderAction, int> steps[] = {
        {QAbstractSlider::SliderSingleStepAdd, 21},  {QAbstractSlider::SliderSingleStepAdd, 41},
        {QAbstractSlider::SliderSingleStepSub, 21},  {QAbstractSlider::SliderPageStepAdd, 21 + 182},
        {QAbstractSlider::SliderToMaximum, maximum}, {QAbstractSlider::SliderSingleStepAdd, maximum},
        {QAbstractSlider::SliderToMinimum, 0},       {QAbstractSlider::SliderSingleStepSub, 0},
    };
    for (const auto& [action, position] : steps) {
        other.setFocus();
        bar.triggerAction(action);
        EXPECT_EQ(Top(), position);
        EXPECT_TRUE(grid.hasFocus());
    }
    bar.setSliderPosition(50);  // a dragged thumb
    EXPECT_EQ(Top(), 50);
    EXPECT_EQ(grid.Geometry().GetTopleftNonFixedCell().row, 4) << "the first row that starts behind it";
}

TEST_F(FBGridTest, BarsFollowTheSizes) {
    QScrollBar& vertical = *grid.verticalScrollBar();
    QScrollBar& horizontal = *grid.horizontalScrollBar();
    EXPECT_FALSE(vertical.isVisible() || horizontal.isVisible());
    grid.FixScrollBar(false, true);
    EXPECT_TRUE(vertical.isVisible());
    EXPECT_FALSE(vertical.isEnabled());
    EXPECT_EQ(grid.viewport()->width(), 300 - vertical.width());

    grid.FixScrollBar(false, false);
    grid.SetRowCnt(1 + 10);  // 198 of 200 pixels
    EXPECT_FALSE(vertical.isVisible());
    grid.SetColWidth(4, 121);  // one pixel too wide: the bar leaves no room for the last row
    EXPECT_TRUE(vertical.isVisible() && horizontal.isVisible());
    EXPECT_EQ(horizontal.maximum(), 301 - grid.viewport()->width());
    grid.SetColWidth(4, 80);
    EXPECT_FALSE(vertical.isVisible() || horizontal.isVisible());
    grid.resize(300, 100);
    EXPECT_TRUE(vertical.isVisible() && vertical.isEnabled());
    EXPECT_EQ(vertical.maximum(), 198 - 100);
    EXPECT_TRUE(grid.hasFocus()) << "a change of size takes the focus";
}

TEST_F(FBGridTest, FocusRowComesToTheTopUnlessItIsOnTheFirstPage) {
    grid.SetRowCnt(1 + 100);
    grid.SetFocusRow(50, 4);
    EXPECT_EQ(Focused(), "50,4");
    EXPECT_EQ(grid.Geometry().GetTopleftNonFixedCell().row, 50);
    grid.SetFocusRow(5, 4);
    EXPECT_EQ(Top(), 0);
    grid.SetScrollPos32(Qt::Vertical, 1'000'000, true);
    EXPECT_EQ(Top(), 100 * 18 - 182);
    EXPECT_FALSE(grid.KillCellFocus(true)) << "row 5 is scrolled out";
    EXPECT_FALSE(grid.InvalidateCell(5, 4));
    EXPECT_TRUE(grid.InvalidateCell(95, 4));
    grid.UpdateGrid(true);
    EXPECT_EQ(Top(), 0);
    EXPECT_TRUE(grid.KillCellFocus(true));
    EXPECT_EQ(Focused(), "-1,-1");
}

// --- a row that is moved

TEST_F(FBGridTest, KeysCarryARowBetweenItsBounds) {
    const auto texts = [&] {
        std::string all;
        for (int row = 1; row <= 5; ++row) all += grid[row][4].text[0];
        return all;
    };
    Focus(3, 4);
    grid.BeginMoveRow(2, 4);
    EXPECT_EQ(Focused(), "-1,-1");
    EXPECT_EQ(grid[3][0].backColour, 0xD6FFF1u);
    const std::pair<Qt::Key, const char*> steps[] = {
        {Qt::Key_Up, "13245"},   {Qt::Key_Up, "13245"},   {Qt::Key_Left, "13245"},
        {Qt::Key_Down, "12345"}, {Qt::Key_Down, "12435"}, {Qt::Key_Down, "12435"},
    };
    for (const auto& [key, rows] : steps) {
        Keys({key});
        EXPECT_EQ(texts(), rows);
    }
    EXPECT_EQ(grid[4][2].backColour, 0xD6FFF1u) << "the mark moves along";
    Keys({Qt::Key_Return});
    EXPECT_EQ(Focused(), "4,4");
    EXPECT_EQ(grid[4][2].backColour, fbcolour::kWindow);
    EXPECT_EQ(parent.Told(), "") << "Enter only ended the move";
}

TEST_F(FBGridTest, AMoveEndsWithAClickTheFocusOrItsRows) {
    QPushButton other(&parent);
    other.show();
    const auto anyMark = [&] {
        for (int row = 0; row < grid.GetRowCnt(); ++row) {
            if (grid[row][0].backColour != fbcolour::kWindow) return true;
        }
        return false;
    };
    const std::vector<std::function<void()>> ends = {[&] { parent.Click(1, 4); }, [&] { other.setFocus(); },
                                                     [&] { grid.DeleteRow(1); }, [&] { grid.SetRowCnt(2); }};
    for (const auto& end : ends) {
        Focus(3, 4);
        grid.BeginMoveRow(1, 5);
        EXPECT_TRUE(anyMark());
        end();
        EXPECT_FALSE(anyMark());
        grid.SetRowCnt(6);
        grid[1][4].text = "first";
        grid.setFocus();
        Keys({Qt::Key_Down});
        EXPECT_EQ(grid[1][4].text, "first") << "keys move the focus again";
    }
}

// --- what is repainted

TEST(FBGridPaintTest, OnlyWhatChangedIsRepainted) {
    class PaintedGrid : public CFBGrid {
    public:
        using CFBGrid::FocusColours;
        QRegion painted;

    protected:
        void paintEvent(QPaintEvent* event) override {
            painted += event->region();
            CFBGrid::paintEvent(event);
        }
    };
    QWidget window;
    PaintedGrid grid;
    grid.Create(QRect(0, 0, 200, 200), &window, 1);
    grid.AddColumn("a", 80);
    grid.AddColumn("b", 80);
    grid.SetRowCnt(30);
    window.resize(200, 230);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto painted = [&](const std::function<void()>& change) {
        QApplication::processEvents();
        grid.painted = {};
        change();
        QApplication::processEvents();
        return grid.painted;
    };
    grid.clearFocus();
    grid.SetCellFocus(2, 0, true, true);
    EXPECT_EQ(painted([&] { grid.SetCellFocus(5, 1, true, true); }),
              QRegion(0, 36, 160, 18) + QRegion(0, 90, 160, 18));
    EXPECT_EQ(painted([&] { grid.SetCellFocus(6, 1, false, true); }), QRegion());
    EXPECT_EQ(painted([&] { grid.setFocus(); }), QRegion(80, 108, 80, 18));
    EXPECT_EQ(grid.FocusColours(), (FBFocusColours{fbcolour::kHighlight, 0xFFFFFF, 0xFFFFFF}));
    EXPECT_EQ(painted([&] { grid.clearFocus(); }), QRegion(80, 108, 80, 18));
    EXPECT_EQ(grid.FocusColours(), (FBFocusColours{fbcolour::kInactiveBorder, 0, 0xFFFFFF}));
    EXPECT_EQ(painted([&] { grid.SetScrollPos32(Qt::Vertical, 1, true); }),
              QRegion(0, 182, grid.viewport()->width(), 18))
        << "what stays on the window is moved there";
    EXPECT_EQ(painted([&] { grid.SetScrollPos32(Qt::Vertical, 2, true); }), QRegion()) << "same row on top";
    EXPECT_EQ(painted([&] { grid.SetRowCnt_NoRedraw(29); }), QRegion());
}

// --- a parent that does as it likes

TEST(FBGridNotifyTest, ParentMayDeleteTheGridOrItsRowsWhileItIsTold) {
    const struct {
        int code;
        std::function<void(GridParent&)> act;
    } cases[] = {
        {FBGridNotify::kDeleteKey, [](GridParent& p) { QTest::keyClick(p.windowHandle(), Qt::Key_Delete); }},
        {FBGridNotify::kEnterKey, [](GridParent& p) { QTest::keyClick(p.windowHandle(), Qt::Key_Return); }},
        {FBGridNotify::kCheckToggled, [](GridParent& p) { p.Do("double 1,0"); }},
        {FBGridNotify::kButtonPressed, [](GridParent& p) { p.Click(1, 3); }},
        {FBGridNotify::kHeaderPressed, [](GridParent& p) { p.Click(0, 3); }},
        {FBGridNotify::kCellPressed, [](GridParent& p) { p.Click(1, 2); }},
        {FBGridNotify::kCellPressed, [](GridParent& p) { p.Click(1, 3); }},
        {FBGridNotify::kRightPressed, [](GridParent& p) { p.Do("right 1,3"); }},
        {FBGridNotify::kDoubleClicked, [](GridParent& p) { p.Do("double 1,1"); }},
        {FBGridNotify::kRowDropped, [](GridParent& p) { p.Do("down 1,4; up 2,4"); }},
        {FBGridNotify::kChildCommand,
         [](GridParent& p) {
             p.Click(1, 2);
             QTest::keyClick(p.windowHandle(), Qt::Key_Down);
         }},
    };
    for (const auto& one : cases) {
        for (const bool wholeGrid : {true, false}) {
            SCOPED_TRACE(one.code);
            GridParent parent;
            parent.ShowActive();
            parent.ListCell(1);
            parent.grid->SetDragAndDropColumn(4);
            parent.grid->setFocus();
            int told = 0;
            parent.onNotify = [&](const FBGridNotify& notify) {
                if (notify.code != one.code) return;
                ++told;
                if (wholeGrid)
                    delete parent.grid;
                else
                    parent.grid->DeleteAll();
            };
            one.act(parent);
            EXPECT_GE(told, 1);
            QTest::qWait(1);
        }
    }
}

TEST_F(FBGridTest, AButtonWhoseRowsHaveChangedIsNotPressed) {
    parent.onNotify = [&](const FBGridNotify& notify) {
        if (notify.code == FBGridNotify::kCellPressed) grid.DeleteRow(1);
    };
    parent.Click(1, 3);
    EXPECT_EQ(parent.Told(), "8:1,3") << "the button under the pointer is another row's now";
}

// --- worksheets

TEST_F(FBGridTest, AFailedSaveIsToldInABox) {
    test::ScriptedQuestions questions;
    const host::Services before = host::Installed();
    host::Install({.questions = &questions});
    const test::TempFolder folder;
    const auto missing = folder.Path() / "none" / "a.xls";
    grid.SaveToExcel(folder.Path() / "a.xls");
    grid.SaveToExcelPartially("A and B", 1, 2);  // cancelled
    EXPECT_TRUE(questions.boxes.empty());
    grid.SaveToExcel(missing);
    ASSERT_EQ(questions.boxes.size(), 1u);
    EXPECT_EQ(questions.boxes[0].text, "지정한 파일이 다른 프로그램에서 사용 중인지 확인 하세요."_cp949);
    EXPECT_EQ(questions.boxes[0].caption, "엑셀저장 에러"_cp949);
    questions.savePath = missing;
    grid.SaveToExcelPartially("A and B", 1, 2);
    ASSERT_EQ(questions.boxes.size(), 2u);
    EXPECT_EQ(questions.boxes[1].text, "파일을 열 수 없습니다."_cp949);
    questions.savePath = folder.Path() / "b.xls";
    grid.SaveToExcelPartially("A and B", 1, 2);
    EXPECT_EQ(questions.boxes.size(), 2u);
    EXPECT_EQ(questions.files.size(), 3u);
    EXPECT_EQ(questions.files[0].extension, "xls");
    EXPECT_NE(test::ReadBytes(*questions.savePath).find("A and B"), std::string::npos);
    host::Install(before);
}

TEST_F(FBGridTest, DragImagesHoldARowOrAText) {
    EXPECT_EQ(grid.CreateDragImage(1).size(), QSize(260, 18) * grid.devicePixelRatioF());
    EXPECT_TRUE(grid.CreateDragImage(99).isNull());
    const QImage text = grid.MakeDragImage2("조건"_cp949).toImage();
    int inked = 0;
    for (int y = 0; y < text.height(); ++y) {
        for (int x = 0; x < text.width(); ++x) inked += text.pixelColor(x, y).alpha() > 128;
    }
    EXPECT_GT(inked, 20);
    EXPECT_TRUE(grid.MakeDragImage2("").isNull());
}

}  // namespace
}  // namespace jogeon
