// The controls of the panel as a field sees them: one FieldControl for each kind of widget.
//
// Each owns its widget, a child of the panel. Texts are CP949 on the field's side.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <memory>

#include "screen/condition/index_field.h"
#include "screen/fbgrid/fb_device_pixels_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {

// What a kind of widget doesn't have is empty.
class WidgetControl : public FieldControl {
public:
    explicit WidgetControl(QWidget* widget) : widget_(widget) {}

    std::string GetText() const override { return {}; }
    int GetCheck() const override { return 0; }
    void SetCheck(int) override {}
    std::string GetSelectedItemText() const override { return {}; }
    int GetSelectedIndex() const override { return -1; }
    void Focus() override { widget_->setFocus(); }

    QWidget& Widget() const { return *widget_; }

private:
    std::unique_ptr<QWidget> widget_;
};

template <typename WidgetType>
class ControlOf : public WidgetControl {
public:
    explicit ControlOf(WidgetType* widget) : WidgetControl(widget), at_(*widget) {}

protected:
    WidgetType& at_;
};

class LabelControl : public ControlOf<QLabel> {
public:
    using ControlOf::ControlOf;
    std::string GetText() const override { return FromQString(at_.text()); }
};

// An edit box, with or without spin buttons. Blanks around the text are no part of the value.
template <typename Entry>
class EntryControl : public ControlOf<Entry> {
public:
    using ControlOf<Entry>::ControlOf;
    std::string GetText() const override { return FromQString(this->at_.text().trimmed()); }
    void Focus() override {
        this->at_.setFocus();
        this->at_.selectAll();
    }
};

class ButtonControl : public ControlOf<QAbstractButton> {
public:
    using ControlOf::ControlOf;
    std::string GetText() const override { return FromQString(at_.text()); }
    int GetCheck() const override { return at_.isChecked() ? 1 : 0; }
    void SetCheck(int check) override { at_.setChecked(check != 0); }
};

// Text that was typed counts as the item that it equals, if there is one.
class ComboControl : public ControlOf<QComboBox> {
public:
    using ControlOf::ControlOf;
    std::string GetText() const override { return FromQString(at_.currentText().trimmed()); }
    std::string GetSelectedItemText() const override { return FromQString(at_.itemText(GetSelectedIndex())); }
    int GetSelectedIndex() const override {
        if (!at_.isEditable()) return at_.currentIndex();
        return at_.findText(at_.currentText().trimmed(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    }
};

// A picture, fainter while it is disabled: Qt's own way would put it on a grey box.
class PictureLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override {
        constexpr double kFaint = 0.35;
        const QPixmap picture = pixmap();
        const QSizeF spare = (QSizeF(size()) - picture.deviceIndependentSize()) / 2;
        QPainter painter(this);
        if (!isEnabled()) painter.setOpacity(kFaint);
        painter.drawPixmap(FBDevicePixels(painter).Whole(QPointF(spare.width(), spare.height())), picture);
    }
};

class PictureControl : public ControlOf<QLabel> {
public:
    using ControlOf::ControlOf;

    // Pixel by pixel on a dense display, since a smoothed enlargement would be blurred.
    void Show() {
        if (picture.isNull()) return at_.clear();
        const qreal ratio = at_.devicePixelRatioF();
        QPixmap shown = picture.scaled(picture.size() * ratio);
        shown.setDevicePixelRatio(ratio);
        at_.setPixmap(shown);
    }

    QPixmap picture;
};

}  // namespace jogeon
