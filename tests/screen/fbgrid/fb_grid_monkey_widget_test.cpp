// Any order of events leaves the grid whole: a monkey at the mouse and the keys, and a parent that deletes
// and adds rows, or opens boxes, whenever it is told something.
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QTimer>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "tests/screen/support/fb_grid_parent.h"

namespace jogeon {
namespace {

using test::GridParent;

class Monkey {
public:
    explicit Monkey(unsigned seed) : random_(seed) {
        parent_.ShowActive();
        other_ = new QLineEdit(&parent_);
        other_->show();
        parent_.onNotify = [this](const FBGridNotify& notify) {
            seen.insert("code " + std::to_string(notify.code));
            Meddle();
        };
        Refill();
    }

    void Act() {
        const int what = Any(40);
        if (what < 18) return Point();
        if (what < 34) return PressKey();
        CFBGrid& grid = *parent_.grid;
        if (what == 34) grid.resize(Any(320), Any(220));
        if (what == 35) grid.verticalScrollBar()->triggerAction(QAbstractSlider::SliderAction(1 + Any(6)));
        if (what == 36) Meddle();
        if (what == 37) grid.BeginMoveRow(Any(8) - 2, Any(12));
        if (what == 38) grid.resize(300, 200);
        if (what == 39 && grid.GetRowCnt() < 4) Refill();
    }

    void Check() {
        CFBGrid& grid = *parent_.grid;
        const auto controls = grid.viewport()->findChildren<QWidget*>(QRegularExpression("^600[01]$"));
        ASSERT_LE(controls.size(), 1);
        for (const QWidget* control : controls) seen.insert("control " + control->objectName().toStdString());
        int marked = 0;
        for (int row = 0; row < grid.GetRowCnt(); ++row) {
            if (grid[row][0].backColour != fbcolour::kWindow) ++marked;
        }
        ASSERT_LE(marked, 1);
        if (marked == 1) seen.insert("row move");
        ASSERT_EQ(grid.verticalScrollBar()->maximum(), grid.Geometry().VerticalRange().maximum);
        grid.grab();
    }

    std::set<std::string> seen;

private:
    int Any(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

    void Refill() {
        static constexpr std::uint32_t kStates[] = {0,
                                                    CCell::kEdit,
                                                    CCell::kEdit | CCell::kNumeric,
                                                    CCell::kList,
                                                    CCell::kFreeList,
                                                    CCell::kCheck,
                                                    CCell::kButton,
                                                    CCell::kList | CCell::kFreeList};
        CFBGrid& grid = *parent_.grid;
        grid.SetFixedRowCnt(1);
        grid.SetRowCnt(5 + Any(30));
        for (int row = 1; row < grid.GetRowCnt(); ++row) {
            for (int col = 0; col < grid.GetColCnt(); ++col) {
                grid[row][col].state = kStates[Any(8)];
                grid[row][col].listIndex = Any(3) == 0 ? -1 : 0;
            }
        }
        if (!grid.DropDownItems(0))
            grid.AddDropDownItem(std::make_unique<CStringArray>(CStringArray{"one", "two"}));
        grid.SetDragAndDropColumn(Any(5));
    }

    // What a parent may do at any moment.
    void Meddle() {
        CFBGrid& grid = *parent_.grid;
        switch (Any(30)) {
            case 0:
                return grid.DeleteAll();
            case 1:
                return Refill();
            case 2:
            case 3:
                if (grid.GetRowCnt() > 1) grid.DeleteRow(1 + Any(grid.GetRowCnt() - 1));
                return;
            case 4:
                return grid.SetCellFocus(Any(20) - 1, Any(7) - 1, true, false);
            case 5:
                return other_->setFocus();
            case 6:
                return grid.EndMoveRow();
            case 7:
                grid.SetColWidth(Any(5), Any(3) * 40);
                return;
            case 8:
                return grid.SetFocusRow(Any(20), 1);
            case 9:
                return OpenBox();
            case 10:
                return grid.ClearComboList();
            default:
                return;
        }
    }

    void OpenBox() {
        if (boxes_ > 1) return;
        ++boxes_;
        QDialog box(&parent_);
        QTimer::singleShot(0, &box, &QDialog::reject);
        box.exec();
        --boxes_;
    }

    // A press, a release, a double click or a move; half of them where the last one was.
    void Point() {
        QWidget* viewport = parent_.grid->viewport();
        if (Any(2) == 0) at_ = QPoint(Any(260), Any(200));
        QWidget* on = viewport->childAt(at_) ? viewport->childAt(at_) : viewport;
        const QPoint local = on->mapFrom(viewport, at_);
        static constexpr QEvent::Type kTypes[] = {QEvent::MouseButtonPress, QEvent::MouseButtonPress,
                                                  QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                                                  QEvent::MouseMove};
        const QEvent::Type type = kTypes[Any(5)];
        const Qt::MouseButton button = Any(8) == 0 ? Qt::RightButton : Qt::LeftButton;
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        QMouseEvent event(type, local, on->mapToGlobal(local), button, held, Qt::NoModifier);
        QApplication::sendEvent(on, &event);
    }

    void PressKey() {
        static constexpr Qt::Key kKeys[] = {Qt::Key_Up,     Qt::Key_Down,  Qt::Key_Down,   Qt::Key_Left,
                                            Qt::Key_Right,  Qt::Key_Enter, Qt::Key_PageUp, Qt::Key_PageDown,
                                            Qt::Key_Delete, Qt::Key_Tab,   Qt::Key_Escape, Qt::Key_X};
        if (Any(4) == 0) parent_.grid->setFocus();
        QWidget* focus = QApplication::focusWidget();
        const Qt::Key key = kKeys[Any(12)];
        QTest::keyClick(focus ? focus : parent_.grid.data(), key);
    }

    std::mt19937 random_;
    GridParent parent_;
    QLineEdit* other_ = nullptr;
    QPoint at_;
    int boxes_ = 0;
};

TEST(FBGridMonkeyTest, AnyOrderOfEventsLeavesTheGridWhole) {
    std::set<std::string> seen;
    for (unsigned seed = 1; seed <= 4; ++seed) {
        Monkey monkey(seed);
        for (int step = 0; step < 3000; ++step) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step);
            monkey.Act();
            if (step % 5 == 0) {
                QTest::qWait(0);
                monkey.Check();
            }
            if (testing::Test::HasFailure()) return;
        }
        seen.merge(monkey.seen);
    }
    // It has been everywhere.
    EXPECT_EQ(seen, (std::set<std::string>{"code 0", "code 1", "code 10", "code 11", "code 2", "code 3",
                                           "code 5", "code 6", "code 8", "code 9", "control 6000",
                                           "control 6001", "row move"}));
}

}  // namespace
}  // namespace jogeon
