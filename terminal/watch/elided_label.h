// One line of text that ends in dots where there is no room for it; the whole stands in its tooltip.
#pragma once

#include <QFontMetrics>
#include <QLabel>
#include <QResizeEvent>

namespace jogeon::terminal {

class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr) : QLabel(parent) {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }

    void SetWhole(const QString& text) {
        whole_ = text.simplified();
        // Rich text breaks its lines. Qt guesses what is rich: a tag leaves it no choice.
        setToolTip(whole_.isEmpty() ? QString() : "<p>" + whole_.toHtmlEscaped() + "</p>");
        Fit();
    }
    const QString& Whole() const { return whole_; }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QLabel::resizeEvent(event);
        Fit();
    }
    void changeEvent(QEvent* event) override {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::FontChange) Fit();
    }

private:
    void Fit() { setText(fontMetrics().elidedText(whole_, Qt::ElideRight, contentsRect().width())); }

    QString whole_;
};

}  // namespace jogeon::terminal
