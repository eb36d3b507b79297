// The cells of the result grid, as text in the form they came in; what they show is made when it is asked
// for.
//
// Rows and columns count from 0 here, the header aside. Writing tells the view nothing until FlushChanges,
// so that a page of cells is one signal.
#pragma once

#include <QAbstractTableModel>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "screen/palette/colors.h"
#include "screen/results/grid_layout.h"
#include "screen/results/row_table.h"
#include "screen/results/stock_names_qt.h"

namespace jogeon {

class ResultModel : public QAbstractTableModel {
    Q_OBJECT

public:
    ResultModel(host::CodeLists& lists, QObject* parent);

    // Takes new columns and drops all rows.
    void SetLayout(GridLayout layout);
    const GridLayout& Layout() const { return layout_; }

    void SetHeader(int column, const std::string& text);
    void SetFid(int column, const std::string& fid);
    void SetWidth(int column, int width);
    void SetHidden(int column, bool hidden);

    // The column with this FID; -1 if there is none.
    int FindFid(std::string_view fid) const;

    // Rows that stay keep their cells, new ones are empty.
    void SetRows(int rows);
    int Rows() const { return rows_; }

    // A cell outside the grid is neither written nor read.
    void SetCell(int row, int column, std::string_view text);
    const std::string& Cell(int row, int column) const;

    // Rows `begin` to `end`, behind the last, of a table: its column c goes to the grid column
    // gridColumns[c], counted from 1, and nowhere where that is 0. From the first row on, all cells are new:
    // one reset.
    void SetTable(const RowTable& table, std::size_t begin, std::size_t end,
                  std::span<const int> gridColumns);

    // Tells the view of all cells written since the last time.
    void FlushChanges();

    QString Shown(int row, int column) const;
    QString Copied(int row, int column) const;
    Color TextColor(int row, int column) const;
    Placing PlacingOfColumn(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::size_t Columns() const { return layout_.size(); }
    bool Has(int row, int column) const;
    void Put(std::size_t row, std::size_t column, std::string_view text);
    void CopyTable(const RowTable& table, std::size_t begin, std::size_t end,
                   std::span<const int> gridColumns);
    void FindSpecialColumns();
    Sign SignOfPriceCell(int row, int column) const;

    mutable StockNames names_;
    GridLayout layout_;
    int rows_ = 0;
    std::vector<std::string> cells_;  // row by row
    int firstChanged_ = 0;
    int lastChanged_ = -1;  // below firstChanged_: nothing has changed
    int nameColumn_ = -1;
    int priceColumn_ = -1;  // the first price, which is the current one
    int changeColumn_ = -1;
};

}  // namespace jogeon
