#include "terminal/settings/color_choice.h"

#include <QColorDialog>
#include <QPainter>

#include "screen/palette/colors_qt.h"
#include "screen/palette/contrast.h"

namespace jogeon::terminal {
namespace {

constexpr ColorNumber kNearlyBlack = 0x010101;
constexpr int kWidth = 150;
constexpr int kPadding = 10;  // pixels above and below the text together

ColorNumber ToNumber(const QColor& color) {
    const auto number = static_cast<ColorNumber>(color.red() | color.green() << 8 | color.blue() << 16);
    return number == 0 ? kNearlyBlack : number;
}

}  // namespace

ColorChoice::ColorChoice(Color own, host::Questions& questions, QWidget* parent)
    : QPushButton(parent), own_(own), questions_(questions) {
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &ColorChoice::Ask);
}

ColorNumber ColorChoice::Shown() const {
    return chosen_ != 0 ? chosen_ : ColorOf(own_);
}

void ColorChoice::Choose(ColorNumber color) {
    chosen_ = color;
    update();
}

void ColorChoice::Ask() {
    QColorDialog dialog(ToQColor(Shown()), this);
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    dialog.setWindowTitle(accessibleName());
    if (questions_.Run("RowColorDialog", &dialog)) Choose(ToNumber(dialog.currentColor()));
}

QSize ColorChoice::sizeHint() const {
    return {kWidth, fontMetrics().height() + kPadding};
}

// A row of the grid as it will look.
void ColorChoice::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ToQColor(Shown()));
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRect text = rect().adjusted(8, 0, -8, 0);
    painter.setPen(ToQColor(ReadableOn(Shown(), Color::GridText)));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, tr("종목명"));
    painter.setPen(ToQColor(ReadableOn(Shown(), Color::GridRise)));
    painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("+1.25%"));
}

}  // namespace jogeon::terminal
