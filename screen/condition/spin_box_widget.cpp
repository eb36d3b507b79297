#include "screen/condition/spin_box_widget.h"

#include <QLineEdit>

#include "screen/text/bytes.h"

namespace jogeon {

SpinBox::SpinBox(QWidget* parent) : QAbstractSpinBox(parent) {
    setAlignment(Qt::AlignRight);
}

double SpinBox::Value() const {
    return Atof(text().toStdString());
}

void SpinBox::SetText(const QString& text) {
    lineEdit()->setText(text);
}

void SpinBox::stepBy(int steps) {
    SetText(QString::fromStdString(Click(text().toStdString(), steps)));
    selectAll();
}

// A value that was typed outside the bounds can be stepped back towards them.
SpinBox::StepEnabled SpinBox::stepEnabled() const {
    StepEnabled enabled = StepNone;
    if (Value() < m_dMax) enabled |= StepUpEnabled;
    if (Value() > m_dMin) enabled |= StepDownEnabled;
    return enabled;
}

}  // namespace jogeon
