#include "terminal/watch/match_model.h"

#include <QColor>
#include <algorithm>
#include <chrono>

#include "screen/palette/colors_qt.h"
#include "screen/text/cp949_qt.h"
#include "terminal/texts/value_texts.h"
#include "terminal/watch/watch_table.h"
#include "terminal/watch/watch_texts.h"

namespace jogeon::terminal {
namespace {

constexpr std::chrono::seconds kMarkedFor(3);

}  // namespace

void MatchModel::Clear() {
    beginResetModel();
    rows_.clear();
    endResetModel();
}

void MatchModel::Take(const std::vector<service::WatchMatch>& matches) {
    Places wanted;
    for (std::size_t i = 0; i < matches.size(); ++i) wanted.emplace(matches[i].stock.code, i);
    RemoveMissing(wanted);
    for (Row& row : rows_) {
        const auto place = wanted.find(row.match.stock.code);
        row.match = matches[place->second];
        wanted.erase(place);
    }
    if (!rows_.empty()) Change(0, rows_.size() - 1);
    if (wanted.empty()) return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(wanted.size()) - 1);
    for (const service::WatchMatch& match : matches)
        if (wanted.count(match.stock.code))
            rows_.push_back({match, ToQString(match.stock.name), QDeadlineTimer(kMarkedFor)});
    endInsertRows();
}

// From the end, runs of neighbours at once.
void MatchModel::RemoveMissing(const Places& wanted) {
    const auto stays = [&](std::size_t row) { return wanted.count(rows_[row].match.stock.code) != 0; };
    std::size_t end = rows_.size();
    while (end > 0) {
        std::size_t first = end;
        while (first > 0 && !stays(first - 1)) --first;
        if (first < end) {
            beginRemoveRows({}, static_cast<int>(first), static_cast<int>(end) - 1);
            rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(first),
                        rows_.begin() + static_cast<std::ptrdiff_t>(end));
            endRemoveRows();
        }
        end = first > 0 ? first - 1 : 0;
    }
}

void MatchModel::Fade() {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (!rows_[i].isMarked || !rows_[i].marked.hasExpired()) continue;
        rows_[i].isMarked = false;
        Change(i, i);
    }
}

void MatchModel::Change(std::size_t first, std::size_t last) {
    emit dataChanged(index(static_cast<int>(first), 0), index(static_cast<int>(last), kColumns - 1));
}

int MatchModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int MatchModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant MatchModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DisplayRole:
            return Text(row, index.column());
        case Qt::ToolTipRole:
            return index.column() == kName ? row.name : QVariant();
        case kSortRole:
            return SortKey(row, index.column());
        case Qt::TextAlignmentRole:
            return AlignmentOf(index.column() == kPrice || index.column() == kChange ? Placing::Number
                               : index.column() == kName                             ? Placing::Text
                                                                                     : Placing::Mark);
        case Qt::ForegroundRole:
            return index.column() == kPrice || index.column() == kChange ? MoveColor(row.match.stock.change)
                                                                         : QVariant();
        case Qt::BackgroundRole:
            return row.isMarked ? QVariant(ToQColor(Color::WatchNew)) : QVariant();
        default:
            return {};
    }
}

QString MatchModel::Text(const Row& row, int column) const {
    switch (column) {
        case kName:
            return row.name;
        case kCode:
            return QString::fromStdString(row.match.stock.code);
        case kPrice:
            return WonText(row.match.stock.price);
        case kChange:
            return PercentText(row.match.stock.change);
        case kSince:
            return watch_texts::Time(row.match.since);
        default:
            return watch_texts::Letters(row.match.holding);
    }
}

QVariant MatchModel::SortKey(const Row& row, int column) const {
    switch (column) {
        case kPrice:
            return row.match.stock.price;
        case kChange:
            return row.match.stock.change;
        case kSince:
            return row.match.since;
        default:
            return Text(row, column);
    }
}

QVariant MatchModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    const QString titles[] = {tr("종목명"), tr("코드"),     tr("현재가"),
                              tr("등락률"), tr("편입시각"), tr("충족 조건")};
    return titles[section];
}

}  // namespace jogeon::terminal
