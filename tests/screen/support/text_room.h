// Whether the texts of controls have the room that they need, in the font they are drawn in.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>

#include <gtest/gtest.h>

namespace jogeon::test {

inline QRect ButtonContents(const QAbstractButton& button, QStyle::SubElement element) {
    QStyleOptionButton option;
    option.initFrom(&button);
    return button.style()->subElementRect(element, &option, &button);
}

// Where a control of this kind draws its text.
inline QRect TextRoom(const QWidget& widget) {
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        return combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField,
                                              combo);
    }
    if (const auto* radio = qobject_cast<const QRadioButton*>(&widget))
        return ButtonContents(*radio, QStyle::SE_RadioButtonContents);
    if (const auto* check = qobject_cast<const QCheckBox*>(&widget))
        return ButtonContents(*check, QStyle::SE_CheckBoxContents);
    if (const auto* button = qobject_cast<const QPushButton*>(&widget))
        return ButtonContents(*button, QStyle::SE_PushButtonContents);
    constexpr int kEntryMargins = 3;
    const auto* edit = qobject_cast<const QLineEdit*>(&widget);
    if (!edit) edit = widget.findChild<QLineEdit*>();
    return edit ? edit->rect().adjusted(kEntryMargins, 0, -kEntryMargins, 0) : widget.contentsRect();
}

// A style sheet makes some buttons bold by their state alone.
inline QFontMetrics MetricsOf(const QWidget& widget) {
    QFont font = widget.font();
    const auto* button = qobject_cast<const QPushButton*>(&widget);
    if (button && (button->isDefault() || button->property("usual").toBool())) font.setBold(true);
    return QFontMetrics(font);
}

inline QStringList TextsOf(const QWidget& widget) {
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        QStringList texts;
        for (int i = 0; i < combo->count(); ++i) texts << combo->itemText(i);
        return texts;
    }
    return widget.property("text").toString().split('\n');
}

// `texts`: what the widget may come to show.
inline void ExpectRoomFor(const QWidget& widget, const QStringList& texts) {
    const QFontMetrics metrics = MetricsOf(widget);
    const QSize room = TextRoom(widget).size();
    const int lines = qobject_cast<const QLabel*>(&widget) ? static_cast<int>(texts.size()) : 1;
    EXPECT_LE(lines * metrics.ascent(), room.height()) << texts[0].toStdString();
    for (const QString& text : texts)
        EXPECT_LE(metrics.horizontalAdvance(text), room.width()) << text.toStdString();
}

}  // namespace jogeon::test
