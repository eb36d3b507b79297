// The form of the condition screen: the host's controls at their places, by number.
//
// It makes the controls of the table that need nothing but Qt; the screen places its own windows over the
// areas of the others. Each widget's object name is its control's number.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QWidget>
#include <functional>
#include <map>
#include <set>

#include "screen/shell/control_table.h"

namespace jogeon {

class ScreenForm : public QWidget {
    Q_OBJECT

public:
    explicit ScreenForm(QWidget* parent);

    // The control with this number, which is of the kind asked for.
    QWidget& At(int id) const { return *controls_.at(id); }
    QAbstractButton& ButtonAt(int id) const { return *qobject_cast<QAbstractButton*>(controls_.at(id)); }
    QLabel& LabelAt(int id) const { return *qobject_cast<QLabel*>(controls_.at(id)); }
    int NumberAt(int id) const { return qobject_cast<QSpinBox*>(controls_.at(id))->value(); }
    QComboBox& ComboAt(int id) const { return *qobject_cast<QComboBox*>(controls_.at(id)); }

    // Puts a window of the screen's own on the place of control `placeId`, as control `id`.
    void Place(QWidget& window, int placeId, int id);

    // Lets the Tab key go through the controls and windows row by row, once all of them are placed.
    void OrderTabs();

    // Captions and tooltips of the table, in its order.
    void SetCaptions();

    // Runs `command` at each click on the button. A button without a command is disabled.
    void OnClick(int id, std::function<void()> command);

    // Enables or disables a button that has a command; one without stays disabled.
    void EnableCommand(int id, bool enabled);

private:
    QWidget* Make(const Control& control);

    std::map<int, QWidget*> controls_;  // children of this widget
    std::set<int> commands_;            // buttons that have one
};

}  // namespace jogeon
