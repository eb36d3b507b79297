#include "screen/results/result_model_qt.h"

#include <QBrush>
#include <algorithm>

#include "screen/palette/colors_qt.h"
#include "screen/results/name_cell.h"
#include "screen/text/cp949_qt.h"
#include "screen/transactions/result_columns.h"

namespace jogeon {
namespace {

Qt::Alignment ToAlignment(Placing placing) {
    switch (placing) {
        case Placing::Left:
            return Qt::AlignLeft | Qt::AlignVCenter;
        case Placing::Centre:
            return Qt::AlignHCenter | Qt::AlignVCenter;
        case Placing::Right:
            return Qt::AlignRight | Qt::AlignVCenter;
    }
    return Qt::AlignLeft;
}

Color ColorOfSign(Sign sign) {
    if (sign == Sign::None) return Color::GridText;
    return sign == Sign::Rise ? Color::GridRise : Color::GridFall;
}

}  // namespace

ResultModel::ResultModel(host::CodeLists& lists, QObject* parent)
    : QAbstractTableModel(parent), names_(lists) {}

// --- columns

void ResultModel::SetLayout(GridLayout layout) {
    beginResetModel();
    layout_ = std::move(layout);
    rows_ = 0;
    cells_.clear();
    lastChanged_ = firstChanged_ - 1;
    FindSpecialColumns();
    endResetModel();
}

void ResultModel::SetHeader(int column, const std::string& text) {
    layout_[static_cast<std::size_t>(column)].header = text;
    emit headerDataChanged(Qt::Horizontal, column, column);
}

void ResultModel::SetFid(int column, const std::string& fid) {
    layout_[static_cast<std::size_t>(column)].fid = fid;
    FindSpecialColumns();
}

void ResultModel::SetWidth(int column, int width) {
    layout_[static_cast<std::size_t>(column)].width = std::clamp(width, kMinColumnWidth, kMaxColumnWidth);
}

void ResultModel::SetHidden(int column, bool hidden) {
    layout_[static_cast<std::size_t>(column)].hidden = hidden;
}

int ResultModel::FindFid(std::string_view fid) const {
    const auto found = std::find_if(layout_.begin(), layout_.end(),
                                    [&](const GridColumn& column) { return column.fid == fid; });
    return found == layout_.end() ? -1 : static_cast<int>(found - layout_.begin());
}

void ResultModel::FindSpecialColumns() {
    const auto first = [&](CellFormat format) {
        const auto found = std::find_if(layout_.begin(), layout_.end(),
                                        [&](const GridColumn& column) { return column.format == format; });
        return found == layout_.end() ? -1 : static_cast<int>(found - layout_.begin());
    };
    nameColumn_ = FindFid(kNameColumnFid);
    priceColumn_ = first(CellFormat::Price);
    changeColumn_ = first(CellFormat::Change);
}

// --- rows and cells

void ResultModel::SetRows(int rows) {
    rows = std::max(rows, 0);
    if (rows == rows_) return;
    const bool grows = rows > rows_;
    if (grows) {
        beginInsertRows({}, rows_, rows - 1);
    } else {
        beginRemoveRows({}, rows, rows_ - 1);
        lastChanged_ = std::min(lastChanged_, rows - 1);
    }
    rows_ = rows;
    cells_.resize(static_cast<std::size_t>(rows) * Columns());
    grows ? endInsertRows() : endRemoveRows();
}

bool ResultModel::Has(int row, int column) const {
    return row >= 0 && row < rows_ && column >= 0 && column < static_cast<int>(Columns());
}

void ResultModel::Put(std::size_t row, std::size_t column, std::string_view text) {
    cells_[row * Columns() + column] = text;
}

void ResultModel::SetCell(int row, int column, std::string_view text) {
    if (!Has(row, column)) return;
    Put(static_cast<std::size_t>(row), static_cast<std::size_t>(column), text);
    const bool none = lastChanged_ < firstChanged_;
    firstChanged_ = none ? row : std::min(firstChanged_, row);
    lastChanged_ = none ? row : std::max(lastChanged_, row);
}

const std::string& ResultModel::Cell(int row, int column) const {
    static const std::string empty;
    if (!Has(row, column)) return empty;
    return cells_[static_cast<std::size_t>(row) * Columns() + static_cast<std::size_t>(column)];
}

void ResultModel::SetTable(const RowTable& table, std::size_t begin, std::size_t end,
                           std::span<const int> gridColumns) {
    end = std::min({end, table.Rows(), static_cast<std::size_t>(rows_)});
    if (begin >= end) return;
    names_.ForgetUnknown();
    if (begin > 0) {
        CopyTable(table, begin, end, gridColumns);
        emit dataChanged(index(static_cast<int>(begin), 0),
                         index(static_cast<int>(end) - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    for (std::string& cell : cells_) cell.clear();
    CopyTable(table, begin, end, gridColumns);
    lastChanged_ = firstChanged_ - 1;
    endResetModel();
}

void ResultModel::CopyTable(const RowTable& table, std::size_t begin, std::size_t end,
                            std::span<const int> gridColumns) {
    for (std::size_t row = begin; row < end; ++row) {
        for (std::size_t c = 0; c < gridColumns.size(); ++c) {
            const int column = gridColumns[c] - 1;
            if (Has(static_cast<int>(row), column)) {
                Put(row, static_cast<std::size_t>(column), table.Cell(row, c));
            }
        }
    }
}

void ResultModel::FlushChanges() {
    if (lastChanged_ < firstChanged_) return;
    const int last = lastChanged_;
    lastChanged_ = firstChanged_ - 1;
    emit dataChanged(index(firstChanged_, 0), index(last, columnCount() - 1));
}

// --- what is shown

QString ResultModel::Shown(int row, int column) const {
    const std::string& raw = Cell(row, column);
    if (column == nameColumn_) return raw.empty() ? QString() : names_.Of(CodeInNameCell(raw));
    return ToQString(ShownText(layout_[static_cast<std::size_t>(column)].format, raw));
}

QString ResultModel::Copied(int row, int column) const {
    if (column == nameColumn_) return Shown(row, column);
    return ToQString(CopiedText(layout_[static_cast<std::size_t>(column)].format, Cell(row, column)));
}

// Each price has the colour of its distance from the day before.
Sign ResultModel::SignOfPriceCell(int row, int column) const {
    if (priceColumn_ < 0 || changeColumn_ < 0) return Sign::None;
    return SignOfPrice(Cell(row, column), Cell(row, priceColumn_), Cell(row, changeColumn_));
}

Color ResultModel::TextColor(int row, int column) const {
    const CellFormat format = layout_[static_cast<std::size_t>(column)].format;
    if (format == CellFormat::Price) return ColorOfSign(SignOfPriceCell(row, column));
    return IsSigned(format) ? ColorOfSign(SignOf(Cell(row, column))) : Color::GridText;
}

Placing ResultModel::PlacingOfColumn(int column) const {
    return PlacingOf(layout_[static_cast<std::size_t>(column)].format);
}

// --- Qt's side

int ResultModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int ResultModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(Columns());
}

QVariant ResultModel::data(const QModelIndex& index, int role) const {
    if (!Has(index.row(), index.column())) return {};
    switch (role) {
        case Qt::DisplayRole:
            return Shown(index.row(), index.column());
        case Qt::ForegroundRole:
            return QBrush(ToQColor(TextColor(index.row(), index.column())));
        case Qt::TextAlignmentRole:
            return int(ToAlignment(PlacingOfColumn(index.column())));
        default:
            return {};
    }
}

QVariant ResultModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    if (section < 0 || section >= static_cast<int>(Columns())) return {};
    return ToQString(layout_[static_cast<std::size_t>(section)].header);
}

}  // namespace jogeon
