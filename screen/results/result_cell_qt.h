// Paints one cell of the result grid straight from its model, which is quicker than by the style's generic
// item.
#pragma once

#include <QStyledItemDelegate>

#include "screen/palette/colors.h"

namespace jogeon {

class ResultModel;

class ResultCellDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    ResultCellDelegate(const ResultModel& model, QObject* parent);

    // The backs of the first, third ... and of the second, fourth ... result row; 0 for the table's own.
    void SetRowColors(ColorNumber odd, ColorNumber even);
    void SetLines(bool on) { lines_ = on; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    // Shows the whole text of a cell that is too narrow for it.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    QColor BackOf(const QStyleOptionViewItem& option, int row) const;
    QColor InkOf(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    ColorNumber ChosenBack(int row) const;  // 0 where the user has chosen none
    void PaintLines(QPainter& painter, const QRect& rect) const;

    const ResultModel& model_;
    ColorNumber odd_ = 0;
    ColorNumber even_ = 0;
    bool lines_ = true;
};

}  // namespace jogeon
