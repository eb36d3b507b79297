// The result grid at its largest, 9,999 rows of 40 columns, beside Qt's item table with the same content.
//
// Each figure holds the repaint that the user waits for.
#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>
#include <array>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "screen/palette/colors_qt.h"
#include "screen/results/result_grid_view.h"
#include "screen/text/cp949_qt.h"

namespace {

using namespace jogeon;

constexpr int kRows = 9999;
constexpr int kPage = 200;
constexpr int kColumns = 40;

class Names : public host::CodeLists {
public:
    bool Fill(std::map<std::string, std::vector<std::string>>&) override { return false; }
    std::string StockName(const std::string& code) override { return "종목"_cp949 + code; }
};

GridLayout Layout() {
    GridLayout layout{{1, "9001", "종목명"_cp949, 100, false, CellFormat::Text},
                      {2, "9002", "종목코드"_cp949, 64, false, CellFormat::Code},
                      {3, "9003", "현재가"_cp949, 72, false, CellFormat::Price},
                      {4, "9004", "전일대비"_cp949, 68, false, CellFormat::Change},
                      {5, "9005", "등락률"_cp949, 64, false, CellFormat::Percent},
                      {6, "9006", "거래량"_cp949, 88, false, CellFormat::Integer}};
    for (int column = 7; column <= kColumns; ++column) {
        layout.push_back({column, std::to_string(9000 + column), "값"_cp949, 72, false, CellFormat::Decimal});
    }
    return layout;
}

// A result like a server's; `seed` makes one differ from another.
RowTable Result(int seed) {
    RowTable table(kColumns);
    for (int row = 0; row < kRows; ++row) {
        const std::string code = std::to_string(100000 + row);
        const int change = (row * 7 + seed) % 201 - 100;
        std::vector<std::string> cells{"A" + code,
                                       code,
                                       std::to_string(50000 + row * 10),
                                       std::to_string(change * 10),
                                       std::to_string(change / 10) + ".25",
                                       std::to_string(1000000 + row * seed)};
        while (cells.size() < kColumns) cells.push_back(std::to_string(row + seed) + ".1250");
        const std::vector<std::string_view> views(cells.begin(), cells.end());
        table.AppendRow(views);
    }
    return table;
}

const RowTable& ResultOf(int which) {
    static const std::array<RowTable, 2> results{Result(3), Result(11)};
    return results[static_cast<std::size_t>(which)];
}

void Present(QAbstractItemView& view) {
    QApplication::processEvents();
    view.viewport()->repaint();
}

template <typename Table>
void SetUpTable(Table& table) {
    table.resize(1200, 800);
    table.show();
    Present(table);
}

// The grid, filled as the screen fills it.
class Grid {
public:
    Grid() : view(names_) {
        view.ApplyLayout(Layout());
        SetUpTable(view);
        for (int column = 1; column <= kColumns; ++column) places_.push_back(column);
    }
    void Write(const RowTable& result, int begin, int end) {
        view.LockUpdate(true);
        view.SetRowCount(end + 1);
        view.SetRows(result, static_cast<std::size_t>(begin), static_cast<std::size_t>(end), places_);
        view.RefreshRows(begin + 2);
        view.LockUpdate(false);
        view.Redraw();
    }
    void Cut(int rows) { view.SetRowCount(rows + 1); }

private:
    Names names_;
    std::vector<int> places_;

public:
    ResultGrid view;
};

// Qt's item table. Its items hold what the grid's cells show, made while they are written.
class Items {
public:
    Items() : view(0, kColumns), layout_(Layout()) {
        view.verticalHeader()->setVisible(false);
        view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + 5);
        view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        for (int column = 0; column < kColumns; ++column) view.setColumnWidth(column, Of(column).width);
        SetUpTable(view);
    }
    void Write(const RowTable& result, int begin, int end) {
        view.setUpdatesEnabled(false);
        view.setRowCount(end);
        for (int row = begin; row < end; ++row) {
            for (int column = 0; column < kColumns; ++column) SetItem(result, row, column);
        }
        view.setUpdatesEnabled(true);
    }
    void Cut(int rows) { view.setRowCount(rows); }

    QTableWidget view;

private:
    const GridColumn& Of(int column) const { return layout_[static_cast<std::size_t>(column)]; }

    QString TextOf(std::string_view raw, int column) {
        if (column == 0) return ToQString(names_.StockName(std::string(raw.substr(1))));
        return ToQString(ShownText(Of(column).format, raw));
    }

    void SetItem(const RowTable& result, int row, int column) {
        const std::string_view raw =
            result.Cell(static_cast<std::size_t>(row), static_cast<std::size_t>(column));
        auto* item = new QTableWidgetItem(TextOf(raw, column));
        const bool rises = IsSigned(Of(column).format) && SignOf(raw) == Sign::Rise;
        item->setForeground(ToQColor(rises ? Color::GridRise : Color::GridText));
        const bool right = PlacingOf(Of(column).format) == Placing::Right;
        item->setTextAlignment(Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft));
        view.setItem(row, column, item);
    }

    GridLayout layout_;
    Names names_;
};

// One reply of 200 rows, appended to all the rows before it.
template <typename Table>
void PageOf200(benchmark::State& state) {
    Table table;
    table.Write(ResultOf(0), 0, kRows - kPage);
    Present(table.view);
    for (auto _ : state) {
        table.Write(ResultOf(0), kRows - kPage, kRows);
        Present(table.view);
        state.PauseTiming();
        table.Cut(kRows - kPage);
        Present(table.view);
        state.ResumeTiming();
    }
}

template <typename Table>
void TabChange(benchmark::State& state) {
    Table table;
    int which = 0;
    for (auto _ : state) {
        which = 1 - which;
        table.Write(ResultOf(which), 0, kRows);
        Present(table.view);
    }
}

template <typename Table>
void PageScroll(benchmark::State& state) {
    Table table;
    table.Write(ResultOf(0), 0, kRows);
    Present(table.view);
    QScrollBar& bar = *table.view.verticalScrollBar();
    for (auto _ : state) {
        bar.setValue(bar.value() == bar.maximum() ? 0 : bar.value() + bar.pageStep());
        Present(table.view);
    }
}

// Away from the left edge the name column is painted a second time, over the others.
template <typename Table>
void SidewaysScroll(benchmark::State& state) {
    Table table;
    table.Write(ResultOf(0), 0, kRows);
    Present(table.view);
    QScrollBar& bar = *table.view.horizontalScrollBar();
    int step = 20;
    for (auto _ : state) {
        if (bar.value() + step > bar.maximum() || bar.value() + step < 0) step = -step;
        bar.setValue(bar.value() + step);
        Present(table.view);
    }
}

BENCHMARK(PageOf200<Grid>)->Unit(benchmark::kMillisecond);
BENCHMARK(PageOf200<Items>)->Unit(benchmark::kMillisecond);
BENCHMARK(TabChange<Grid>)->Unit(benchmark::kMillisecond);
BENCHMARK(TabChange<Items>)->Unit(benchmark::kMillisecond);
BENCHMARK(PageScroll<Grid>)->Unit(benchmark::kMillisecond);
BENCHMARK(PageScroll<Items>)->Unit(benchmark::kMillisecond);
BENCHMARK(SidewaysScroll<Grid>)->Unit(benchmark::kMillisecond);
BENCHMARK(SidewaysScroll<Items>)->Unit(benchmark::kMillisecond);

}  // namespace
