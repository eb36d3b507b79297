#include "terminal/watch/event_model.h"

#include <QColor>
#include <algorithm>

#include "screen/palette/colors_qt.h"
#include "screen/text/cp949_qt.h"
#include "terminal/texts/value_texts.h"
#include "terminal/watch/watch_table.h"
#include "terminal/watch/watch_texts.h"

namespace jogeon::terminal {

void EventModel::Clear() {
    beginResetModel();
    lines_.clear();
    endResetModel();
}

void EventModel::Take(const std::vector<service::WatchEvent>& events) {
    const std::size_t count = std::min(events.size(), kMostLines);
    if (count == 0) return;
    if (lines_.size() + count > kMostLines) DropOldest(lines_.size() + count - kMostLines);
    beginInsertRows({}, 0, static_cast<int>(count) - 1);
    for (auto event = events.end() - static_cast<std::ptrdiff_t>(count); event != events.end(); ++event)
        lines_.push_front({*event, ToQString(event->stock.name)});
    endInsertRows();
}

void EventModel::DropOldest(std::size_t count) {
    beginRemoveRows({}, static_cast<int>(lines_.size() - count), rowCount() - 1);
    lines_.erase(lines_.end() - static_cast<std::ptrdiff_t>(count), lines_.end());
    endRemoveRows();
}

int EventModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

int EventModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant EventModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Line& line = lines_[static_cast<std::size_t>(index.row())];
    const bool number = index.column() == kPrice || index.column() == kChange;
    const bool text = index.column() == kName || index.column() == kFlips;
    switch (role) {
        case Qt::DisplayRole:
            return Text(line, index.column());
        case Qt::ToolTipRole:
            return text ? Text(line, index.column()) : QVariant();
        case Qt::TextAlignmentRole:
            return AlignmentOf(number ? Placing::Number : text ? Placing::Text : Placing::Mark);
        case Qt::ForegroundRole:
            if (index.column() == kMove) return ToQColor(line.event.entered ? Color::Accent : Color::TabText);
            return number ? MoveColor(line.event.stock.change) : QVariant();
        default:
            return {};
    }
}

QString EventModel::Text(const Line& line, int column) const {
    switch (column) {
        case kTime:
            return watch_texts::Time(line.event.time);
        case kMove:
            return line.event.entered ? tr("편입") : tr("이탈");
        case kName:
            return line.name;
        case kPrice:
            return WonText(line.event.stock.price);
        case kChange:
            return PercentText(line.event.stock.change);
        default:
            return watch_texts::Flips(line.event);
    }
}

QVariant EventModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    const QString titles[] = {tr("시각"),   tr("구분"),   tr("종목명"),
                              tr("현재가"), tr("등락률"), tr("조건 변화")};
    return titles[section];
}

}  // namespace jogeon::terminal
