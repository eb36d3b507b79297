#include "screen/results/result_cell_qt.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "screen/fbgrid/fb_device_pixels_qt.h"
#include "screen/palette/colors_qt.h"
#include "screen/palette/contrast.h"
#include "screen/results/result_model_qt.h"

namespace jogeon {
namespace {

constexpr int kMargin = 4;  // pixels between the cell's edge and its text

QRect TextRect(const QRect& cell) {
    return cell.adjusted(kMargin, 0, -kMargin - 1, -1);
}

int HorizontalFlag(Placing placing) {
    switch (placing) {
        case Placing::Left:
            return Qt::AlignLeft;
        case Placing::Centre:
            return Qt::AlignHCenter;
        case Placing::Right:
            return Qt::AlignRight;
    }
    return Qt::AlignLeft;
}

// Counted from 1, as a reader does.
bool IsOdd(int row) {
    return row % 2 == 0;
}

bool Fits(const QStyleOptionViewItem& option, const QString& text) {
    return option.fontMetrics.horizontalAdvance(text) <= TextRect(option.rect).width();
}

}  // namespace

ResultCellDelegate::ResultCellDelegate(const ResultModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model) {}

void ResultCellDelegate::SetRowColors(ColorNumber odd, ColorNumber even) {
    odd_ = odd;
    even_ = even;
}

void ResultCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    painter->fillRect(option.rect, BackOf(option, index.row()));
    if (lines_) PaintLines(*painter, option.rect);
    QString text = model_.Shown(index.row(), index.column());
    if (text.isEmpty()) return;
    const QRect rect = TextRect(option.rect);
    // A number that is cut without a sign of it would be read as another number.
    if (!Fits(option, text)) text = option.fontMetrics.elidedText(text, Qt::ElideRight, rect.width());
    painter->setFont(option.font);
    painter->setPen(InkOf(option, index));
    painter->drawText(rect, HorizontalFlag(model_.PlacingOfColumn(index.column())) | Qt::AlignVCenter, text);
}

bool ResultCellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                   const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid()) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const QString text = model_.Shown(index.row(), index.column());
    QToolTip::showText(event->globalPos(), Fits(option, text) ? QString() : text, view->viewport(),
                       option.rect);
    return true;
}

QColor ResultCellDelegate::BackOf(const QStyleOptionViewItem& option, int row) const {
    if (option.state & QStyle::State_Selected) return ToQColor(Color::GridSelectedRow);
    const ColorNumber chosen = ChosenBack(row);
    return chosen != 0 ? ToQColor(chosen) : ToQColor(IsOdd(row) ? Color::GridOddRow : Color::GridEvenRow);
}

ColorNumber ResultCellDelegate::ChosenBack(int row) const {
    return IsOdd(row) ? odd_ : even_;
}

// On a row colour of the user's choice the ink of the other theme may be the one to read.
QColor ResultCellDelegate::InkOf(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const Color ink = model_.TextColor(index.row(), index.column());
    const ColorNumber chosen = ChosenBack(index.row());
    if (chosen == 0 || option.state & QStyle::State_Selected) return ToQColor(ink);
    return ToQColor(ReadableOn(chosen, ink));
}

// As thick everywhere, whatever the scale of the display.
void ResultCellDelegate::PaintLines(QPainter& painter, const QRect& rect) const {
    FBDevicePixels(painter).RightBottomLines(rect, ToQColor(Color::GridLine));
}

}  // namespace jogeon
