#include "screen/results/result_grid_view.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "screen/palette/colors_qt.h"
#include "screen/palette/header_style_qt.h"
#include "screen/results/result_cell_qt.h"
#include "screen/results/result_model_qt.h"
#include "screen/results/result_view_interface.h"

namespace jogeon {
namespace {

constexpr int kRowPadding = 5;  // pixels of a row beyond its text's height
constexpr int kHeaderPadding = 8;

}  // namespace

ResultGrid::ResultGrid(host::CodeLists& lists, QWidget* parent)
    : PinnedColumnView(parent),
      model_(new ResultModel(lists, this)),
      delegate_(new ResultCellDelegate(*model_, this)) {
    setModel(model_);
    setItemDelegate(delegate_);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // columns don't jump when a page fills the grid
    setShowGrid(false);                                 // the cells paint their own lines
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    SetUpHeaders();
    RefreshColors();
    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex& at) { emit RowClicked(at.row() + kFirstResultRow, at.column() + 1); });
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& at) {
        emit RowDoubleClicked(at.row() + kFirstResultRow, at.column() + 1);
    });
}

void ResultGrid::SetUpHeaders() {
    QHeaderView& rows = *verticalHeader();
    rows.setVisible(false);
    rows.setSectionResizeMode(QHeaderView::Fixed);  // thousands of rows, none of them measured
    QHeaderView& columns = *horizontalHeader();
    columns.setSectionsClickable(false);  // the order of rows is the server's
    columns.setHighlightSections(false);
    columns.setDefaultAlignment(Qt::AlignCenter);
    columns.setTextElideMode(Qt::ElideRight);
    columns.setMinimumSectionSize(kMinColumnWidth);
    columns.setMaximumSectionSize(kMaxColumnWidth);
    connect(&columns, &QHeaderView::sectionResized, this, &ResultGrid::OnColumnResized);
    auto* choose = new QAction(QStringLiteral("열 설정..."), this);
    connect(choose, &QAction::triggered, this, &ResultGrid::ColumnSettingsAsked);
    columns.addAction(choose);
    columns.setContextMenuPolicy(Qt::ActionsContextMenu);
    SetColumnSizing(false);
    SetRowHeight();
}

void ResultGrid::SetRowHeight() {
    const int text = fontMetrics().height();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(text + kRowPadding);
    horizontalHeader()->setFixedHeight(text + kHeaderPadding);
}

// --- rows

void ResultGrid::LockUpdate(bool on) {
    if (!on && locks_ == 0) return;
    locks_ += on ? 1 : -1;
    if (locks_ == 0) model_->FlushChanges();
    setUpdatesEnabled(locks_ == 0);
}

void ResultGrid::SetRowCount(int rows) {
    model_->SetRows(rows - 1);
}

int ResultGrid::GetRowCount() const {
    return model_->Rows() + 1;
}

void ResultGrid::SetValue(int row, int column, const std::string& text) {
    if (row == 1) {
        SetColHeader(column, text);
        return;
    }
    model_->SetCell(row - kFirstResultRow, column - 1, text);
    if (locks_ == 0) model_->FlushChanges();
}

std::string ResultGrid::GetValue(int row, int column) const {
    if (row != 1) return model_->Cell(row - kFirstResultRow, column - 1);
    return HasColumn(column) ? Layout()[static_cast<std::size_t>(column) - 1].header : std::string();
}

void ResultGrid::SetRows(const RowTable& rows, std::size_t begin, std::size_t end,
                         std::span<const int> gridColumns) {
    model_->SetTable(rows, begin, end, gridColumns);
}

void ResultGrid::RefreshRows(int) {
    model_->FlushChanges();
    viewport()->update();
}

void ResultGrid::Redraw() {
    viewport()->update();
}

void ResultGrid::EmptyGrid() {
    ClearSelection();
    SetRowCount(1);
}

// --- selection

std::vector<int> ResultGrid::GetSelectedRows() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row + kFirstResultRow);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void ResultGrid::SelectRange(int firstRow, int lastRow) {
    const int first = std::max(firstRow, kFirstResultRow);
    const int last = std::min(lastRow, GetRowCount());
    if (first > last) return;
    const QModelIndex top = model_->index(first - kFirstResultRow, VisibleColumnNear(1) - 1);
    const QModelIndex bottom = model_->index(last - kFirstResultRow, 0);
    selectionModel()->setCurrentIndex(top, QItemSelectionModel::NoUpdate);
    selectionModel()->select(QItemSelection(top.siblingAtColumn(0), bottom),
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void ResultGrid::ClearSelection() {
    selectionModel()->clear();
}

// A hidden column can't be scrolled to, so its nearest neighbour stands for it.
int ResultGrid::VisibleColumnNear(int column) const {
    for (int at = std::max(column, 1); at <= GetColCount(); ++at) {
        if (!IsColHidden(at)) return at;
    }
    for (int at = std::min(column, GetColCount()); at >= 1; --at) {
        if (!IsColHidden(at)) return at;
    }
    return 1;
}

void ResultGrid::ScrollCellInView(int row, int column) {
    if (row < kFirstResultRow || row > GetRowCount()) return;
    // Rows just inserted come into the scroll bar's range only now, else when the event loop runs again.
    updateGeometries();
    scrollTo(model_->index(row - kFirstResultRow, VisibleColumnNear(column) - 1));
}

// --- looks

void ResultGrid::SetColumnSizing(bool on) {
    horizontalHeader()->setSectionResizeMode(on ? QHeaderView::Interactive : QHeaderView::Fixed);
}

void ResultGrid::SetGridLines(int mode) {
    delegate_->SetLines(mode != 0);
    viewport()->update();
}

void ResultGrid::SetRowColors(ColorNumber odd, ColorNumber even) {
    delegate_->SetRowColors(odd, even);
    viewport()->update();
}

void ResultGrid::RefreshColors() {
    horizontalHeader()->setStyleSheet(HeaderStyle());
    QPalette colors;  // what isn't set here stays as it is
    colors.setColor(QPalette::Base, ToQColor(Color::GridOddRow));
    setPalette(colors);
    viewport()->setPalette(colors);  // which a style sheet has given one of its own
    viewport()->update();
}

void ResultGrid::changeEvent(QEvent* event) {
    PinnedColumnView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) SetRowHeight();
}

// --- keys and copying

void ResultGrid::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        CopySelection();
        event->accept();
        return;
    }
    PinnedColumnView::keyPressEvent(event);
    emit KeyPressed(event->key());
}

void ResultGrid::CopySelection() const {
    const QString text = SelectedText();
    if (!text.isEmpty()) QGuiApplication::clipboard()->setText(text);
}

QString ResultGrid::CopiedText(int row, int column) const {
    return model_->Copied(row - kFirstResultRow, column - 1);
}

QString ResultGrid::SelectedText() const {
    QString text;
    for (const int row : GetSelectedRows()) {
        QStringList cells;
        for (int column = 1; column <= GetColCount(); ++column) {
            if (!IsColHidden(column)) cells += CopiedText(row, column);
        }
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

}  // namespace jogeon
