// The result grid behind its operations: what it shows, what it tells its view, and what the user can do.
#include "screen/results/result_grid_view.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <array>

#include <gtest/gtest.h>

#include "screen/palette/colors_qt.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/named_stocks.h"

namespace jogeon {
namespace {

constexpr std::array<int, 4> kAllColumns{1, 2, 3, 4};

class ResultGridTest : public testing::Test {
protected:
    void SetUp() override {
        lists.names["005930"] = "삼성전자"_cp949;
        grid.ApplyLayout({{1, "9001", "종목명"_cp949, 120, false, CellFormat::Text},
                          {2, "9003", "현재가"_cp949, 80, false, CellFormat::Price},
                          {3, "9004", "대비"_cp949, 80, false, CellFormat::Change},
                          {4, "9006", "거래량"_cp949, 200, false, CellFormat::Integer},
                          {5, "", "", 80, true, CellFormat::Decimal}});
        grid.resize(600, 300);
        grid.show();
        QApplication::processEvents();
    }

    // Rows of a table of `count` rows; row r has the code A00000r, the price r and the change given.
    static RowTable Rows(std::size_t count, const std::string& change = "0") {
        RowTable table(4);
        for (std::size_t r = 0; r < count; ++r) {
            std::string code = std::to_string(r);
            code.insert(0, 6 - code.size(), '0');
            const std::string name = "A" + code;
            const std::string price = std::to_string(1000 + r);
            const std::array<std::string_view, 4> fields{name, price, change, "12345"};
            table.AppendRow(fields);
        }
        return table;
    }

    void WritePage(const RowTable& table, std::size_t begin, std::span<const int> columns = kAllColumns) {
        grid.SetRowCount(static_cast<int>(table.Rows()) + 1);
        grid.LockUpdate(true);
        grid.SetRowCount(static_cast<int>(table.Rows()) + 1);
        grid.SetRows(table, begin, table.Rows(), columns);
        grid.RefreshRows(static_cast<int>(begin) + 2);
        grid.LockUpdate(false);
        grid.Redraw();
    }

    QString Shown(int row, int column) const {
        return grid.model()->index(row - 2, column - 1).data().toString();
    }

    QPoint At(int row, int column) const {
        return {grid.columnViewportPosition(column - 1) + 3, grid.rowViewportPosition(row - 2) + 3};
    }

    QColor Pixel(const QPoint& at) { return grid.viewport()->grab().toImage().pixelColor(at); }

    // Whether a cell's text is painted in a colour: some pixel of the cell is near to it.
    bool HasInk(int row, int column, Color color) {
        const QRect cell = grid.visualRect(grid.model()->index(row - 2, column - 1));
        const QImage image = grid.viewport()->grab(cell).toImage();
        const QColor ink = ToQColor(color);
        for (int y = 0; y < image.height() - 1; ++y) {
            for (int x = 0; x < image.width() - 1; ++x) {
                const QColor at = image.pixelColor(x, y);
                if (std::abs(at.red() - ink.red()) + std::abs(at.green() - ink.green()) +
                        std::abs(at.blue() - ink.blue()) <
                    60)
                    return true;
            }
        }
        return false;
    }

    test::NamedStocks lists;
    ResultGrid grid{lists};
};

TEST_F(ResultGridTest, RowsAndColumnsCountFromOneWithTheHeaderAsRowOne) {
    grid.SetRowCount(3);
    grid.SetValue(2, 1, "A005930");
    grid.SetValue(3, 2, "71000");
    grid.SetValue(1, 5, "A값"_cp949);
    grid.SetColumnTag(5, "9501");
    for (const auto& [row, column] : {std::pair{0, 1}, {4, 1}, {2, 0}, {2, 6}, {-5, -5}}) {
        grid.SetValue(row, column, "lost");
        EXPECT_EQ(grid.GetValue(row, column), "") << row << "," << column;
    }
    EXPECT_EQ(grid.GetValue(2, 1), "A005930");  // the cell keeps what came
    EXPECT_EQ(Shown(2, 1), QStringLiteral("삼성전자"));
    EXPECT_EQ(Shown(3, 2), "71,000");
    EXPECT_EQ(grid.GetValue(1, 5), "A값"_cp949);
    EXPECT_EQ(grid.FindColumnByTag("9501"), 5);
    EXPECT_EQ(grid.FindColumnByTag("9999"), 0);
    EXPECT_EQ(grid.GetRowCount(), 3);
    grid.EmptyGrid();
    EXPECT_EQ(grid.GetRowCount(), 1);
    EXPECT_EQ(grid.GetColCount(), 5);
}

TEST_F(ResultGridTest, APageTellsOfItsOwnRowsAlone) {
    WritePage(Rows(200), 0);
    QSignalSpy inserted(grid.model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(grid.model(), &QAbstractItemModel::dataChanged);
    QSignalSpy reset(grid.model(), &QAbstractItemModel::modelReset);
    WritePage(Rows(300), 200);
    ASSERT_EQ(inserted.count(), 1);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 200);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 299);
    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(Shown(301, 2), "1,299");
    EXPECT_EQ(Shown(2, 2), "1,000");
}

TEST_F(ResultGridTest, AnotherResultReplacesEveryCellInOneStep) {
    WritePage(Rows(200), 0);
    grid.SelectRange(100, 100);
    QSignalSpy reset(grid.model(), &QAbstractItemModel::modelReset);
    // A result without the change, and with a column that found no place in the grid.
    WritePage(Rows(120, "555"), 0, std::array{1, 2, 0, 4});
    EXPECT_EQ(reset.count(), 1);
    EXPECT_EQ(grid.GetRowCount(), 121);
    EXPECT_EQ(grid.GetValue(2, 3), "");  // nothing is left of the earlier result
    EXPECT_EQ(Shown(2, 4), "12,345");
    EXPECT_TRUE(grid.GetSelectedRows().empty());
}

TEST_F(ResultGridTest, CellsWrittenWhileLockedAreOneSignal) {
    grid.SetRowCount(10);
    QSignalSpy changed(grid.model(), &QAbstractItemModel::dataChanged);
    grid.LockUpdate(true);
    grid.LockUpdate(true);
    for (int row = 4; row <= 7; ++row) grid.SetValue(row, 2, "1");
    grid.LockUpdate(false);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_FALSE(grid.updatesEnabled());
    grid.LockUpdate(false);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 2);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 5);
    EXPECT_TRUE(grid.updatesEnabled());
    grid.LockUpdate(true);
    grid.SetValue(8, 2, "1");
    grid.SetRowCount(3);  // the row just written goes before it was told of
    grid.LockUpdate(false);
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(ResultGridTest, TheHostIsAskedOnceForANameAndAgainOnlyIfItHadNone) {
    grid.SetRowCount(3);
    grid.SetValue(2, 1, "A005930");
    grid.SetValue(3, 1, "J999999 ");
    for (int i = 0; i < 3; ++i) EXPECT_EQ(Shown(2, 1), QStringLiteral("삼성전자"));
    for (int i = 0; i < 3; ++i) EXPECT_EQ(Shown(3, 1), "999999");
    EXPECT_EQ(std::count(lists.asked.begin(), lists.asked.end(), "005930"), 1);
    EXPECT_EQ(std::count(lists.asked.begin(), lists.asked.end(), "999999"), 1);

    lists.names["000000"] = "새종목"_cp949;
    lists.asked.clear();
    WritePage(Rows(1), 0);
    EXPECT_EQ(Shown(2, 1), QStringLiteral("새종목"));
    WritePage(Rows(2), 1);
    EXPECT_EQ(Shown(3, 1), "000001");
    lists.names["000001"] = "늦게 온 이름"_cp949;
    WritePage(Rows(3), 2);
    EXPECT_EQ(Shown(3, 1), QStringLiteral("늦게 온 이름"));
}

TEST_F(ResultGridTest, AFreshPageIsScrolledIntoViewAndSelected) {
    const auto inView = [&](int row) {
        return grid.viewport()->rect().contains(grid.visualRect(grid.model()->index(row - 2, 0)));
    };
    WritePage(Rows(500), 0);
    grid.ScrollCellInView(402, 2);
    EXPECT_TRUE(inView(402));
    grid.HideCols(2, 2, true);  // the column that a page is scrolled to may be hidden
    WritePage(Rows(700), 500);
    grid.ScrollCellInView(700, 2);
    EXPECT_TRUE(inView(700));
    grid.ScrollCellInView(9000, 2);
    EXPECT_TRUE(inView(700));
    grid.SelectRange(402, 402);
    EXPECT_EQ(grid.GetSelectedRows(), std::vector<int>{402});
    grid.SelectRange(3, 5);
    EXPECT_EQ(grid.GetSelectedRows(), (std::vector<int>{3, 4, 5}));
    grid.SelectRange(699, 9000);
    EXPECT_EQ(grid.GetSelectedRows(), (std::vector<int>{699, 700, 701}));
    grid.SelectRange(1, 1);  // the header is no row that can be selected
    EXPECT_EQ(grid.GetSelectedRows().size(), 3u);
    grid.ClearSelection();
    EXPECT_TRUE(grid.GetSelectedRows().empty());
}

TEST_F(ResultGridTest, ACopyTakesTheSelectedRowsAsPlainNumbers) {
    WritePage(Rows(4, "-250"), 0);
    grid.HideCols(4, 4, true);
    grid.SelectRange(3, 4);
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "000001\t1001\t-250\n000002\t1002\t-250\n");
    grid.ClearSelection();
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "000001\t1001\t-250\n000002\t1002\t-250\n");
}

TEST_F(ResultGridTest, TellsOfClicksAndOfKeysAfterTheSelectionHasMoved) {
    WritePage(Rows(5), 0);
    QSignalSpy clicked(&grid, &ResultGrid::RowClicked);
    QSignalSpy doubleClicked(&grid, &ResultGrid::RowDoubleClicked);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, At(3, 2));
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, At(3, 2));
    ASSERT_GE(clicked.count(), 1);
    EXPECT_EQ(clicked[0], (QList<QVariant>{3, 2}));
    ASSERT_EQ(doubleClicked.count(), 1);
    EXPECT_EQ(doubleClicked[0], (QList<QVariant>{3, 2}));

    std::vector<int> selected;
    QObject::connect(&grid, &ResultGrid::KeyPressed, [&](int key) {
        EXPECT_EQ(key, Qt::Key_Down);
        selected = grid.GetSelectedRows();
    });
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(selected, std::vector<int>{4});
}

TEST_F(ResultGridTest, TheLayoutIsWhatTheUserMadeOfIt) {
    grid.SetColumnSizing(true);
    EXPECT_EQ(grid.horizontalHeader()->sectionResizeMode(0), QHeaderView::Interactive);
    grid.horizontalHeader()->resizeSection(1, 95);
    grid.horizontalHeader()->resizeSection(0, 5);  // a name is never squeezed away
    grid.HideCols(4, 5, false);
    grid.HideCols(3, 3, true);
    grid.HideCols(-3, 99, false);
    grid.HideCols(3, 3, true);
    const GridLayout layout = grid.Layout();
    EXPECT_EQ(layout[1].width, 95);
    EXPECT_GE(layout[0].width, 60);
    EXPECT_EQ(layout[2].width, 80);  // hidden, not narrowed
    EXPECT_TRUE(layout[2].hidden);
    EXPECT_FALSE(layout[4].hidden);
    EXPECT_TRUE(grid.IsColHidden(3));
    EXPECT_TRUE(grid.IsColHidden(6));

    ResultGrid other(lists);
    other.ApplyLayout(layout);
    EXPECT_EQ(other.columnWidth(1), 95);
    EXPECT_TRUE(other.IsColHidden(3));
    other.HideCols(3, 3, false);
    EXPECT_EQ(other.columnWidth(2), 80);
}

TEST_F(ResultGridTest, PaintsTheMarketsColours) {
    RowTable table(4);
    for (const char* change : {"250", "-250", "0"}) {
        table.AppendRow(std::array<std::string_view, 4>{"A005930", "71000", change, "9"});
    }
    WritePage(table, 0);
    struct Case {
        int row;
        Color ink;
    };
    for (const Case& c : {Case{2, Color::GridRise}, Case{3, Color::GridFall}, Case{4, Color::GridText}}) {
        for (const int column : {2, 3}) EXPECT_TRUE(HasInk(c.row, column, c.ink)) << c.row << "," << column;
        EXPECT_TRUE(HasInk(c.row, 4, Color::GridText)) << c.row;
    }
    EXPECT_FALSE(HasInk(2, 3, Color::GridFall));

    EXPECT_EQ(Pixel(At(2, 2)), ToQColor(Color::GridOddRow));
    EXPECT_EQ(Pixel(At(3, 2)), ToQColor(Color::GridEvenRow));
    grid.SetRowColors(0x0000ff, 0);  // red in the low byte; 0 is the grid's own
    EXPECT_EQ(Pixel(At(2, 2)), QColor(255, 0, 0));
    EXPECT_EQ(Pixel(At(3, 2)), ToQColor(Color::GridEvenRow));
    grid.SelectRange(2, 2);
    EXPECT_EQ(Pixel(At(2, 2)), ToQColor(Color::GridSelectedRow));

    const QPoint corner = At(3, 3) - QPoint(4, 0);  // the last pixel of the column before
    EXPECT_EQ(Pixel(corner), ToQColor(Color::GridLine));
    grid.SetGridLines(0);
    EXPECT_EQ(Pixel(corner), ToQColor(Color::GridEvenRow));
    grid.SetGridLines(2);
    EXPECT_EQ(Pixel(corner), ToQColor(Color::GridLine));
}

TEST_F(ResultGridTest, TheNameStaysAtTheLeftWhenTheRestIsScrolled) {
    lists.names["000000"] = "맨앞종목"_cp949;
    WritePage(Rows(3), 0);
    grid.resize(300, 200);
    QApplication::processEvents();
    const QRect name(0, 0, 110, grid.rowHeight(0));
    const QImage before = grid.viewport()->grab(name).toImage();
    grid.horizontalScrollBar()->setValue(100);
    QApplication::processEvents();
    EXPECT_EQ(grid.viewport()->grab(name).toImage(), before);
    EXPECT_EQ(grid.indexAt({50, 5}).column(), 0);
    EXPECT_EQ(grid.indexAt({150, 5}).column(), 2);

    // A column that is scrolled to doesn't end up under the name.
    grid.ScrollCellInView(2, 2);
    EXPECT_GE(grid.columnViewportPosition(1), grid.PinnedWidth());
}

TEST_F(ResultGridTest, AGridWhoseLayoutCouldNotBeReadTakesEverything) {
    grid.ApplyLayout({});
    WritePage(Rows(5), 0);
    WritePage(Rows(9), 5);
    grid.SetValue(2, 1, "A005930");
    grid.ScrollCellInView(3, 2);
    grid.SelectRange(2, 4);
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    grid.viewport()->grab();
    EXPECT_EQ(grid.GetColCount(), 0);
    EXPECT_EQ(grid.GetValue(2, 1), "");
}

TEST_F(ResultGridTest, ManyRowsAreNotMeasuredOneByOne) {
    WritePage(Rows(9999), 0);
    EXPECT_EQ(grid.rowHeight(0), grid.rowHeight(9998));
    lists.asked.clear();
    grid.viewport()->grab();
    EXPECT_LT(lists.asked.size(), 40u);  // names are asked for what is painted
}

}  // namespace
}  // namespace jogeon
