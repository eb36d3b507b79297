#include "screen/panes/progress_label_widget.h"

#include <QPainter>
#include <algorithm>

#include "screen/text/cp949_qt.h"

namespace jogeon {

ProgressLabel::ProgressLabel(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);  // every pixel is painted here, so nothing is erased before
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ProgressLabel::SetRange(int minimum, int maximum) {
    state_.minimum = minimum;
    state_.maximum = maximum;
}

int ProgressLabel::SetPos(int value) {
    if (!HasWindow()) return -1;
    const int old = state_.position;
    state_.position = value;
    const int barWidth = state_.BarWidth(width());
    if (barWidth != lastBarWidth_) {
        lastBarWidth_ = barWidth;
        repaint();
    }
    return old;
}

void ProgressLabel::SetShowText(bool show) {
    if (show == state_.showText) return;
    state_.showText = show;
    update();
}

void ProgressLabel::SetText(std::string_view text) {
    if (text == state_.text) return;
    state_.text = text;
    update();
}

std::size_t ProgressLabel::GetText(char* out, std::size_t bytes) const {
    const std::string_view copied = CutToBytes(state_.text, bytes);
    if (copied.empty()) return 0;
    const std::size_t count = std::min(bytes, state_.text.size());
    std::fill(std::copy(copied.begin(), copied.end(), out), out + count, '\0');
    return count;
}

QSize ProgressLabel::sizeHint() const {
    return QSize(120, fontMetrics().height() + 4);
}

void ProgressLabel::paintEvent(QPaintEvent*) {
    const QRect all = rect();
    QRect bar = all;
    bar.setWidth(std::clamp(state_.BarWidth(all.width()), 0, all.width()));
    const QRect rest = all.adjusted(bar.width(), 0, 0, 0);
    const QColor barColor = palette().color(QPalette::Highlight);
    const QColor restColor = palette().color(QPalette::Base);

    QPainter painter(this);
    painter.fillRect(bar, barColor);
    painter.fillRect(rest, restColor);
    const QString text = ToQString(state_.ShownText());
    if (text.isEmpty()) return;
    const auto drawIn = [&](const QRect& part, const QColor& color) {
        painter.setClipRect(part);
        painter.setPen(color);
        painter.drawText(all, Qt::AlignCenter | Qt::TextSingleLine, text);
    };
    drawIn(bar, restColor);
    drawIn(rest, barColor);
}

void ProgressLabel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    lastBarWidth_ = -1;
}

bool ProgressLabel::HasWindow() const {
    return parentWidget() || testAttribute(Qt::WA_WState_Created);
}

}  // namespace jogeon
