// CFBGrid at 100,000 rows of 20 columns, beside Qt's item table with the same content.
//
// Scrolls, repaints and keys hold what the user waits for: the event and the painting it leads to. A figure
// with a row count behind it shows how it grows with the rows.
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTableWidget>
#include <array>
#include <memory>
#include <string>
#include <utility>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "screen/fbgrid/fb_grid_geometry.h"
#include "screen/fbgrid/fb_grid_widget.h"
#include "screen/palette/colors_qt.h"
#include "screen/text/cp949.h"

namespace {

using namespace jogeon;

constexpr int kRows = 100'000;
constexpr int kColumns = 20;
constexpr int kTextColumns = 2;
constexpr int kChangeColumn = 3;  // its numbers are coloured by their sign
constexpr int kColumnWidth = 60;
constexpr int kRowHeight = 20;
constexpr int kNames = 1000;

double ValueOf(int row, int col) {
    const long long mixed = (row * 7919LL + col * 104'729LL) % 1'000'003;
    return static_cast<double>(col == kChangeColumn ? mixed % 2001 - 1000 : mixed);
}

Color ColourOf(double value) {
    return value < 0 ? Color::GridFall : Color::GridRise;
}

// A grid of the shape that both get.
void Shape(QWidget& view) {
    view.resize(1220, 800);
    view.show();
    QApplication::processEvents();
}

class Grid {
public:
    explicit Grid(int rows) {
        view.SetDefRowHeight(kRowHeight);
        for (int col = 0; col < kColumns; ++col) view.AddColumn("column", kColumnWidth);
        Shape(view);
        Fill(rows);
    }
    void Fill(int rows) {
        view.SetRowCnt_NoRedraw(1 + rows);
        for (int row = 1; row <= rows; ++row) {
            for (int col = 0; col < kColumns; ++col) FillCell(row, col);
        }
        view.UpdateGrid(true);
        QApplication::processEvents();
    }
    void Empty() { view.SetRowCnt(1); }
    void Focus(int row) { view.SetFocusRow(1 + row, 4); }
    // The cell at a point, and its rectangle.
    _tagGridHitTestInfo CellAt(QPoint point) const {
        _tagGridHitTestInfo hit;
        view.Geometry().HitTest({point.x(), point.y()}, hit);
        return hit;
    }

    CFBGrid view;

private:
    void FillCell(int row, int col) {
        if (col < kTextColumns) {
            view[row][col].text = names_[static_cast<std::size_t>(row % kNames)];
            return;
        }
        const double value = ValueOf(row, col);
        view.SetCellValue(row, col, value);
        if (col == kChangeColumn) view[row][col].textColour = ColorOf(ColourOf(value));
    }

    const std::array<std::string, kNames> names_ = [] {
        std::array<std::string, kNames> names;
        for (int i = 0; i < kNames; ++i)
            names[static_cast<std::size_t>(i)] = "종목"_cp949 + std::to_string(100'000 + i);
        return names;
    }();
};

class Items {
public:
    explicit Items(int rows) : view(0, kColumns) {
        view.verticalHeader()->setVisible(false);
        view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        view.verticalHeader()->setDefaultSectionSize(kRowHeight);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        for (int col = 0; col < kColumns; ++col) view.setColumnWidth(col, kColumnWidth);
        Shape(view);
        Fill(rows);
    }
    void Fill(int rows) {
        view.setUpdatesEnabled(false);
        view.setRowCount(rows);
        for (int row = 0; row < rows; ++row) {
            for (int col = 0; col < kColumns; ++col) view.setItem(row, col, MakeItem(1 + row, col));
        }
        view.setUpdatesEnabled(true);
        QApplication::processEvents();
    }
    void Empty() { view.setRowCount(0); }
    void Focus(int row) {
        view.setCurrentCell(row, 4);
        view.scrollToItem(view.currentItem(), QAbstractItemView::PositionAtTop);
    }
    std::pair<QModelIndex, QRect> CellAt(QPoint point) const {
        const QModelIndex index = view.indexAt(point);
        return {index, view.visualRect(index)};
    }

    QTableWidget view;

private:
    QTableWidgetItem* MakeItem(int row, int col) const {
        auto* item = new QTableWidgetItem;
        item->setTextAlignment(Qt::AlignVCenter | Qt::AlignRight);
        if (col < kTextColumns) {
            const QString& name = names_[static_cast<std::size_t>(row % kNames)];
            item->setText(QString(name.constData(), name.size()));  // a text of its own, as in the grid
            return item;
        }
        const double value = ValueOf(row, col);
        item->setData(Qt::DisplayRole, value);
        if (col == kChangeColumn) item->setForeground(ToQColor(ColourOf(value)));
        return item;
    }

    const std::array<QString, kNames> names_ = [] {
        std::array<QString, kNames> names;
        for (int i = 0; i < kNames; ++i)
            names[static_cast<std::size_t>(i)] = QStringLiteral("종목") + QString::number(100'000 + i);
        return names;
    }();
};

std::size_t Allocated() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// The one that the scrolls, repaints and keys share: it takes a while to make.
template <typename Table>
std::unique_ptr<Table> shared;

template <typename Table>
Table& Filled(int rows) {
    static int made = 0;
    if (made != rows) {
        shared<Table>.reset();
        shared<Table> = std::make_unique<Table>(rows);
        made = rows;
    }
    shared<Table>->Focus(rows / 2);
    QApplication::processEvents();
    return *shared<Table>;
}

template <typename Table>
void Fill(benchmark::State& state) {
    Table table(0);
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::size_t before = Allocated();
        table.Fill(kRows);
        state.PauseTiming();
        bytes = Allocated() - before;
        table.Empty();
        QApplication::processEvents();
        state.ResumeTiming();
    }
    state.counters["bytes/cell"] = static_cast<double>(bytes) / kRows / kColumns;
}

template <typename Table>
void Scroll(benchmark::State& state, QAbstractSlider::SliderAction forth,
            QAbstractSlider::SliderAction back) {
    Table& table = Filled<Table>(kRows);
    QScrollBar& bar = *table.view.verticalScrollBar();
    int step = 0;
    for (auto _ : state) {
        bar.triggerAction(step++ / 100 % 2 == 0 ? forth : back);
        QApplication::processEvents();
    }
}

template <typename Table>
void PageScroll(benchmark::State& state) {
    Scroll<Table>(state, QAbstractSlider::SliderPageStepAdd, QAbstractSlider::SliderPageStepSub);
}

template <typename Table>
void LineScroll(benchmark::State& state) {
    Scroll<Table>(state, QAbstractSlider::SliderSingleStepAdd, QAbstractSlider::SliderSingleStepSub);
}

template <typename Table>
void Repaint(benchmark::State& state) {
    Table& table = Filled<Table>(kRows);
    for (auto _ : state) table.view.viewport()->repaint();
}

template <typename Table>
void HitTest(benchmark::State& state) {
    Table& table = Filled<Table>(static_cast<int>(state.range(0)));
    int y = 0;
    for (auto _ : state) {
        y = (y + 37) % 700;
        benchmark::DoNotOptimize(table.CellAt(QPoint(500, y)));
    }
}

// Ten rows down, ten up, and so on: within the window, but for its first move.
template <typename Table>
void KeyMove(benchmark::State& state) {
    Table& table = Filled<Table>(static_cast<int>(state.range(0)));
    int step = 0;
    for (auto _ : state) {
        QKeyEvent key(QEvent::KeyPress, step++ / 10 % 2 == 0 ? Qt::Key_Down : Qt::Key_Up, Qt::NoModifier);
        QApplication::sendEvent(&table.view, &key);
        QApplication::processEvents();
    }
}

void OfRows(benchmark::internal::Benchmark* bench) {
    for (const int rows : {1'000, 10'000, kRows}) bench->Arg(rows);
}

BENCHMARK(Fill<Grid>)->Unit(benchmark::kMillisecond);
BENCHMARK(Fill<Items>)->Unit(benchmark::kMillisecond);
BENCHMARK(PageScroll<Grid>)->Unit(benchmark::kMicrosecond);
BENCHMARK(PageScroll<Items>)->Unit(benchmark::kMicrosecond);
BENCHMARK(LineScroll<Grid>)->Unit(benchmark::kMicrosecond);
BENCHMARK(LineScroll<Items>)->Unit(benchmark::kMicrosecond);
BENCHMARK(Repaint<Grid>)->Unit(benchmark::kMicrosecond);
BENCHMARK(Repaint<Items>)->Unit(benchmark::kMicrosecond);
BENCHMARK(HitTest<Grid>)->Unit(benchmark::kNanosecond)->Apply(OfRows);
BENCHMARK(HitTest<Items>)->Unit(benchmark::kNanosecond)->Apply(OfRows);
BENCHMARK(KeyMove<Grid>)->Unit(benchmark::kMicrosecond)->Apply(OfRows);
BENCHMARK(KeyMove<Items>)->Unit(benchmark::kMicrosecond)->Apply(OfRows);

}  // namespace
