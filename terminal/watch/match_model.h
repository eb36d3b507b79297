// The stocks that match now, one row each; those that came last are marked for a moment.
//
// A row keeps its place as long as its stock matches: new ones come behind. Sorting is the view's.
#pragma once

#include <QAbstractTableModel>
#include <QDeadlineTimer>
#include <string>
#include <unordered_map>
#include <vector>

#include "server/service/watches.h"

namespace jogeon::terminal {

class MatchModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { kName, kCode, kPrice, kChange, kSince, kHolding, kColumns };
    static constexpr int kSortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    void Clear();

    // Makes the rows those of `matches`, which are all that match now.
    void Take(const std::vector<service::WatchMatch>& matches);

    // Takes the marks off whose moment is over.
    void Fade();

    // The six-byte code of a row's stock.
    const std::string& CodeAt(int row) const { return rows_[static_cast<std::size_t>(row)].match.stock.code; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row {
        service::WatchMatch match;
        QString name;
        QDeadlineTimer marked;
        bool isMarked = true;
    };
    using Places = std::unordered_map<std::string, std::size_t>;  // by code

    void RemoveMissing(const Places& wanted);
    void Change(std::size_t first, std::size_t last);
    QString Text(const Row& row, int column) const;
    QVariant SortKey(const Row& row, int column) const;

    std::vector<Row> rows_;
};

}  // namespace jogeon::terminal
