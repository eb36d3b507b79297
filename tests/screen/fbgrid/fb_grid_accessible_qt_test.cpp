// The grid as assistive tools see it.
#include "screen/fbgrid/fb_grid_accessible_qt.h"

#include <QAccessible>

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "tests/screen/support/fb_grid_parent.h"

namespace jogeon {
namespace {

using test::GridParent;

class FBGridAccessibleTest : public testing::Test {
protected:
    void SetUp() override { parent.ShowActive(); }
    QAccessibleInterface* Table() { return QAccessible::queryAccessibleInterface(&grid); }
    QAccessibleInterface* Cell(int row, int col) { return Table()->tableInterface()->cellAt(row, col); }

    GridParent parent;
    CFBGrid& grid = *parent.grid;
};

TEST_F(FBGridAccessibleTest, CellsAreReadAsATable) {
    grid[0][1].text = "내용"_cp949;
    grid[1][1].text = "가격"_cp949;
    grid[1][0].check = CCell::kOn;
    ASSERT_TRUE(Table() && Table()->tableInterface());
    EXPECT_EQ(Table()->role(), QAccessible::Table);
    EXPECT_EQ(Table()->tableInterface()->rowCount(), 6);
    EXPECT_EQ(Table()->childCount(), 30);
    QAccessibleInterface* cell = Cell(1, 1);
    EXPECT_EQ(cell->text(QAccessible::Name), "가격");
    EXPECT_EQ(cell->text(QAccessible::Description), "내용");
    EXPECT_EQ(cell->rect(), QRect(grid.viewport()->mapToGlobal(QPoint(20, 18)), QSize(60, 18)));
    EXPECT_EQ(Table()->childAt(cell->rect().x() + 1, cell->rect().y() + 1), cell);
    EXPECT_EQ(Table()->child(Table()->indexOfChild(cell)), cell);
    EXPECT_EQ(cell->tableCellInterface()->columnHeaderCells(), QList{Cell(0, 1)});
    EXPECT_EQ(Cell(0, 1)->role(), QAccessible::ColumnHeader);
    EXPECT_TRUE(Cell(1, 0)->state().checked);
    grid[1][0].check = CCell::kDisabled;
    EXPECT_FALSE(Cell(1, 0)->state().checked);
    EXPECT_TRUE(Cell(1, 0)->state().disabled);
    EXPECT_FALSE(Cell(6, 0));
    EXPECT_FALSE(Table()->child(30));
}

TEST_F(FBGridAccessibleTest, ActionsDoWhatTheUserCan) {
    Cell(1, 3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(parent.Told(), "8:1,3 5:1,3");
    Cell(0, 3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(parent.Told(), "6:0,3");
    Cell(2, 0)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(parent.Told(), "3");
    EXPECT_EQ(grid[2][0].check, CCell::kOn);
    EXPECT_TRUE(Cell(2, 0)->state().checked);
    EXPECT_EQ(Table()->focusChild(), Cell(2, 0));
    EXPECT_TRUE(Cell(2, 4)->state().selected);
    EXPECT_FALSE(
        Cell(1, 4)->actionInterface()->actionNames().contains(QAccessibleActionInterface::toggleAction()));

    parent.onNotify = [&](const FBGridNotify&) { delete parent.grid; };
    Cell(1, 3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(parent.grid);
}

TEST_F(FBGridAccessibleTest, CellsOfALargeGridDontPileUp) {
    grid.SetRowCnt(100'000);
    std::vector<QAccessible::Id> ids;
    ids.reserve(100'000);
    for (int row = 0; row < 100'000; ++row) ids.push_back(QAccessible::uniqueId(Cell(row, 0)));
    const auto alive = std::count_if(ids.begin(), ids.end(), [](QAccessible::Id id) {
        return QAccessible::accessibleInterface(id) != nullptr;
    });
    EXPECT_LE(alive, 5000);
    EXPECT_TRUE(QAccessible::accessibleInterface(ids.back()));
    grid.SetRowCnt(2);
    const QAccessibleInterface* gone = QAccessible::accessibleInterface(ids.back());
    EXPECT_TRUE(!gone || !gone->isValid()) << "its row has gone";
    const QAccessible::Id last = QAccessible::uniqueId(Cell(1, 0));
    delete parent.grid;
    EXPECT_FALSE(QAccessible::accessibleInterface(last));
}

}  // namespace
}  // namespace jogeon
