#include "screen/fbgrid/fb_inplace_edit.h"

#include <QFocusEvent>
#include <QKeyEvent>

#include "screen/fbgrid/fb_inplace_keys_qt.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

constexpr int kControlId = 6000;

// As printf's "%f", without the zeros and the point at its end.
QString Digits(double value) {
    QString digits = QString::number(value, 'f', 6);
    while (digits.endsWith('0')) digits.chop(1);
    while (digits.endsWith('.')) digits.chop(1);
    return digits;
}

QString OpeningText(const CCell& cell) {
    return (cell.state & CCell::kNumeric) != 0 ? Digits(cell.value) : ToQString(cell.text);
}

Qt::Alignment AlignmentOf(std::uint32_t format) {
    switch (format) {
        case CCell::kRight:
            return Qt::AlignRight | Qt::AlignVCenter;
        case CCell::kCentre:
            return Qt::AlignHCenter | Qt::AlignVCenter;
        default:
            return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

}  // namespace

FBInPlaceEdit::FBInPlaceEdit(QWidget* parent, const CCell& cell)
    : QLineEdit(parent), opened_(OpeningText(cell)) {
    setObjectName(QString::number(kControlId));
    setAlignment(AlignmentOf(cell.format));
    setText(opened_);
    selectAll();
}

void FBInPlaceEdit::StoreInto(CCell& cell) const {
    if (text() == opened_) return;
    const std::string typed = FromQString(text());
    if ((cell.state & CCell::kNumeric) != 0)
        cell.value = Atof(typed);
    else
        cell.text = typed;
}

// No key goes on to the grid, not even one that the editor has no use for.
bool FBInPlaceEdit::event(QEvent* event) {
    const bool press = event->type() == QEvent::KeyPress;
    if ((press || event->type() == QEvent::ShortcutOverride) &&
        EndsInPlaceControl(static_cast<QKeyEvent*>(event)->key())) {
        event->accept();
        if (press) emit Ended();
        return true;
    }
    const bool handled = QLineEdit::event(event);
    if (press) event->accept();
    return handled;
}

void FBInPlaceEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) emit Ended();  // its own menu is no loss
}

}  // namespace jogeon
