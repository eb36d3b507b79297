// A table of the watch: rows that are read at a glance and never measured, however many they are.
#pragma once

#include <QTableView>
#include <QVariant>
#include <vector>

namespace jogeon::terminal {

// Where a cell's text stands.
enum class Placing { Text, Number, Mark };
QVariant AlignmentOf(Placing placing);

// The colour of a price that has changed by so many percent; none for one that hasn't.
QVariant MoveColor(double percent);

class WatchTable : public QTableView {
    Q_OBJECT

public:
    explicit WatchTable(QWidget* parent = nullptr);

    // `widths` in pixels, one for each column but the last, which takes the rest.
    void SetColumns(QAbstractItemModel& model, const std::vector<int>& widths);

    // What stands in the middle while there is no row.
    void SetEmptyText(const QString& text);

    // Takes the colours of screen/palette anew.
    void RefreshColors();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void SetHeights();
    void KeepPlace(int inserted);

    QString emptyText_;
};

}  // namespace jogeon::terminal
