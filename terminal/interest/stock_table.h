// A list of stocks with a few columns: what both pages of the interest window show.
//
// A click and the arrow keys choose a stock, a double click and Enter open it. The rows are whoever fills
// the table's; it keeps the chosen one over a refill.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QTableView>
#include <string>
#include <vector>

namespace jogeon::terminal {

struct StockRow {
    std::string code;
    QStringList cells;  // one for each column
    int trend = 0;      // 1 rise, -1 fall: the colour of the columns that have one

    friend bool operator==(const StockRow&, const StockRow&) = default;
};

// 1 above 0, -1 below it, 0 for what isn't known.
inline int TrendOf(double value) {
    return value > 0 ? 1 : value < 0 ? -1 : 0;
}

struct StockColumn {
    QString title;
    int width = 0;          // in digits of the font
    bool isNumber = false;  // stands right
    bool hasTrend = false;
};

class StockTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit StockTableModel(std::vector<StockColumn> columns, QObject* parent = nullptr);

    void SetRows(std::vector<StockRow> rows);
    const std::vector<StockRow>& Rows() const { return rows_; }
    const std::vector<StockColumn>& Columns() const { return columns_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<StockColumn> columns_;
    std::vector<StockRow> rows_;
};

class StockTable : public QTableView {
    Q_OBJECT

public:
    explicit StockTable(std::vector<StockColumn> columns, QWidget* parent = nullptr);

    // The row with the chosen stock stays chosen if it is still there, else the row in its place. Rows as
    // they are leave the table alone: a button of the mouse may be down on one.
    void SetRows(std::vector<StockRow> rows);

    // Codes of the selected rows, from top to bottom.
    std::vector<std::string> SelectedCodes() const;

    // Selects the rows with these codes, and shows the first of them.
    void Select(const std::vector<std::string>& codes);

    void RefreshColors();

    // As wide as the columns were meant to be.
    QSize sizeHint() const override;

signals:
    void StockChosen(const std::string& code);
    void StockOpened(const std::string& code);
    void PasteAsked();
    void RemovalAsked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    const std::string& CodeAt(const QModelIndex& index) const;
    void CopySelected() const;

    StockTableModel* model_;  // a child
};

}  // namespace jogeon::terminal
