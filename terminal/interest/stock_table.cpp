#include "terminal/interest/stock_table.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelection>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <numeric>
#include <utility>

#include "screen/palette/colors_qt.h"
#include "terminal/look/list_look.h"

namespace jogeon::terminal {
namespace {

constexpr int kLeastNameWidth = 9;  // digits

}  // namespace

StockTableModel::StockTableModel(std::vector<StockColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(std::move(columns)) {}

void StockTableModel::SetRows(std::vector<StockRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int StockTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int StockTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant StockTableModel::data(const QModelIndex& index, int role) const {
    const StockRow& row = rows_[static_cast<std::size_t>(index.row())];
    const StockColumn& column = columns_[static_cast<std::size_t>(index.column())];
    if (role == Qt::DisplayRole) return row.cells.value(index.column());
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (column.isNumber ? Qt::AlignRight : Qt::AlignLeft));
    if (role == Qt::ForegroundRole && column.hasTrend && row.trend != 0)
        return ToQColor(row.trend > 0 ? Color::GridRise : Color::GridFall);
    return {};
}

QVariant StockTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    const StockColumn& column = columns_[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) return column.title;
    return {};
}

StockTable::StockTable(std::vector<StockColumn> columns, QWidget* parent)
    : QTableView(parent), model_(new StockTableModel(std::move(columns), this)) {
    setModel(model_);
    setSelectionMode(ExtendedSelection);
    LookLikeList(*this);
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const auto& all = model_->Columns();
    for (std::size_t i = 0; i < all.size(); ++i) setColumnWidth(static_cast<int>(i), all[i].width * digit);
    horizontalHeader()->setMinimumSectionSize(kLeastNameWidth * digit);
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex& at) { emit StockChosen(CodeAt(at)); });
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& at) { emit StockOpened(CodeAt(at)); });
}

QSize StockTable::sizeHint() const {
    const auto& all = model_->Columns();
    const int places = std::accumulate(all.begin(), all.end(), 0,
                                       [](int sum, const StockColumn& column) { return sum + column.width; });
    const int around = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    return {places * fontMetrics().horizontalAdvance(QLatin1Char('0')) + around,
            QTableView::sizeHint().height()};
}

// A header takes back nothing from a stretched column when there is no room left for it.
void StockTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    QHeaderView& header = *horizontalHeader();
    const int others = header.length() - header.sectionSize(0);
    if (others >= viewport()->width()) header.resizeSection(0, header.minimumSectionSize());
}

void StockTable::SetRows(std::vector<StockRow> rows) {
    if (rows == model_->Rows()) return;
    const std::vector<std::string> selected = SelectedCodes();
    const int place = currentIndex().row();
    model_->SetRows(std::move(rows));
    Select(selected);
    if (!selected.empty() && SelectedCodes().empty() && model_->rowCount() > 0)
        selectRow(std::clamp(place, 0, model_->rowCount() - 1));
}

std::vector<std::string> StockTable::SelectedCodes() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    std::vector<std::string> codes;
    for (int row : rows) codes.push_back(model_->Rows()[static_cast<std::size_t>(row)].code);
    return codes;
}

void StockTable::Select(const std::vector<std::string>& codes) {
    QItemSelection selection;
    QModelIndex first;
    for (int row = 0; row < model_->rowCount(); ++row) {
        const std::string& code = model_->Rows()[static_cast<std::size_t>(row)].code;
        if (std::find(codes.begin(), codes.end(), code) == codes.end()) continue;
        const QModelIndex index = model_->index(row, 0);
        if (!first.isValid()) first = index;
        selection.select(index, index);
    }
    if (!first.isValid()) return;
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(first);
}

void StockTable::RefreshColors() {
    TakeListColors(*this);
}

void StockTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return CopySelected();
    if (event->matches(QKeySequence::Paste)) return emit PasteAsked();
    if (event->key() == Qt::Key_Delete) return emit RemovalAsked();
    const QModelIndex before = currentIndex();
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && before.isValid())
        return emit StockOpened(CodeAt(before));
    QTableView::keyPressEvent(event);
    if (currentIndex().isValid() && currentIndex().row() != before.row())
        emit StockChosen(CodeAt(currentIndex()));
}

const std::string& StockTable::CodeAt(const QModelIndex& index) const {
    return model_->Rows()[static_cast<std::size_t>(index.row())].code;
}

// One line for each row, its cells with tabs between them: a spreadsheet takes it, and so does a group.
void StockTable::CopySelected() const {
    const std::vector<std::string> codes = SelectedCodes();
    QStringList lines;
    for (const StockRow& row : model_->Rows()) {
        if (std::find(codes.begin(), codes.end(), row.code) != codes.end())
            lines += row.cells.join(QLatin1Char('\t'));
    }
    if (!lines.isEmpty()) QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

}  // namespace jogeon::terminal
