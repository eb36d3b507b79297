#include "screen/fbgrid/fb_inplace_list_widget.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "screen/fbgrid/fb_inplace_keys_qt.h"
#include "screen/fbgrid/fb_window_class_qt.h"
#include "screen/palette/theme_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

constexpr int kControlId = 6001;
constexpr int kShades = 38;  // of the button area, from light to dark
constexpr int kArrowWidth = 7;
constexpr int kArrowHeight = 4;

QColor Between(const QColor& from, const QColor& to, int step) {
    const auto mix = [&](int a, int b) { return a + (b - a) * step / (kShades - 1); };
    return QColor(mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue()));
}

void ShadeButton(QPainter& painter, const QRect& rect, const QPalette& palette) {
    for (int step = 0; step < kShades; ++step) {
        const int top = rect.height() * step / kShades;
        const int bottom = rect.height() * (step + 1) / kShades;
        const QColor shade =
            Between(palette.color(QPalette::Light), palette.color(QPalette::Midlight).darker(115), step);
        painter.fillRect(rect.left(), rect.top() + top, rect.width(), bottom - top, shade);
    }
}

// Line by line, so that it is sharp at any size: each line is two pixels shorter than the one above.
void DrawArrow(QPainter& painter, const QRect& rect, const QColor& color) {
    const int left = rect.left() + (rect.width() - kArrowWidth) / 2;
    const int top = rect.top() + (rect.height() - kArrowHeight) / 2;
    for (int line = 0; line < kArrowHeight; ++line)
        painter.fillRect(left + line, top + line, kArrowWidth - 2 * line, 1, color);
}

}  // namespace

FBInPlaceList::FBInPlaceList(QWidget* parent, const CStringArray& items, const CCell& cell)
    : QComboBox(parent) {
    setObjectName(QString::number(kControlId));
    for (const std::string& item : items) addItem(ToQString(item));
    setMaxVisibleItems(std::max(count(), 1));  // the list is as long as its texts
    const bool exists = cell.check < items.size();
    setCurrentIndex(exists ? static_cast<int>(cell.check) : -1);
    if ((cell.state & CCell::kFreeList) == 0) return;
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setEditText(ToQString(cell.text));  // what was typed once stays, though no item says it
    lineEdit()->end(false);
    lineEdit()->home(true);  // all selected, with its beginning in view
}

void FBInPlaceList::StoreSelection(CCell& cell) const {
    const bool stores = (cell.state & CCell::kList) != 0 && currentIndex() >= 0;
    if (stores) cell.check = static_cast<std::uint32_t>(currentIndex());
}

void FBInPlaceList::showPopup() {
    view()->installEventFilter(this);
    // As wide as its longest text, however narrow the cell is.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, view());
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + bar);
    QComboBox::showPopup();
}

bool FBInPlaceList::TakesKey(QEvent& event) {
    const bool press = event.type() == QEvent::KeyPress;
    if (!press && event.type() != QEvent::ShortcutOverride) return false;
    const int key = static_cast<QKeyEvent&>(event).key();
    const bool passed = key == Qt::Key_Left || key == Qt::Key_Right;
    if (!passed && !EndsInPlaceControl(key)) return false;
    event.accept();
    if (press && passed) emit KeyPassed(key);
    if (press && !passed) emit Ended();
    return true;
}

// No key goes on to the grid, not even one that the box has no use for.
bool FBInPlaceList::event(QEvent* event) {
    if (TakesKey(*event)) return true;
    const bool press = event->type() == QEvent::KeyPress;
    const bool handled = QComboBox::event(event);
    if (press) event->accept();
    return handled;
}

// While the list is down its keys go to the list's window. Enter and Escape have their usual sense there.
bool FBInPlaceList::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right) {
            hidePopup();
            return TakesKey(*event);
        }
    }
    return QComboBox::eventFilter(object, event);
}

void FBInPlaceList::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    const QWidget* next = QApplication::focusWidget();
    const bool elsewhere = next && !isAncestorOf(next);  // not into its own list
    if (elsewhere && EndsInPlaceList(*next)) emit Ended();
}

void FBInPlaceList::paintEvent(QPaintEvent*) {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const auto part = [&](QStyle::SubControl control) {
        return style()->subControlRect(QStyle::CC_ComboBox, &option, control, this);
    };
    QRect button = part(QStyle::SC_ComboBoxArrow);
    button.setTop(1);
    button.setBottom(height() - 2);
    button.setRight(width() - 2);
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    ShadeButton(painter, button, palette());
    DrawArrow(painter, button,
              isEnabled() ? palette().color(QPalette::ButtonText)
                          : ToQColor(ColorOf(Color::FBDisabledArrow, ThemeOf(palette()))));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (isEditable()) return;
    painter.setPen(palette().color(QPalette::Text));
    const QRect text(3, 0, button.left() - 5, height());
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(currentText(), Qt::ElideRight, text.width()));
}

}  // namespace jogeon
