// The log of a watch: who came and went, the newest on top, 10,000 lines at most.
#pragma once

#include <QAbstractTableModel>
#include <deque>
#include <string>
#include <vector>

#include "server/service/watches.h"

namespace jogeon::terminal {

class EventModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { kTime, kMove, kName, kPrice, kChange, kFlips, kColumns };
    static constexpr std::size_t kMostLines = 10'000;

    using QAbstractTableModel::QAbstractTableModel;

    void Clear();

    // Puts the events, which are in order of time, on top. Old lines fall off at the end.
    void Take(const std::vector<service::WatchEvent>& events);

    // The six-byte code of a line's stock.
    const std::string& CodeAt(int row) const {
        return lines_[static_cast<std::size_t>(row)].event.stock.code;
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Line {
        service::WatchEvent event;
        QString name;
    };

    void DropOldest(std::size_t count);
    QString Text(const Line& line, int column) const;

    std::deque<Line> lines_;  // the newest first
};

}  // namespace jogeon::terminal
