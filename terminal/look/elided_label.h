// One line of text that ends in dots where there is no room for it; the whole stands in its tooltip.
#pragma once

#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace jogeon::terminal {

class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr) : QLabel(parent) {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }

    void ShowText(const QString& text) {
        setText(text.simplified());
        // Rich text breaks its lines. Qt guesses what is rich: a tag leaves it no choice.
        setToolTip(text.isEmpty() ? QString() : "<p>" + this->text().toHtmlEscaped() + "</p>");
    }

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
        style()->drawItemText(&painter, contentsRect(), Qt::AlignVCenter, palette(), isEnabled(), shown,
                              foregroundRole());
    }
};

}  // namespace jogeon::terminal
