// The spin box of a panel field: a right-aligned number with two buttons.
//
// Typing is free: what was typed is checked when the panel commits. Buttons, wheel and arrow keys step by
// the rules of SpinSteps.
#pragma once

#include <QAbstractSpinBox>

#include "screen/condition/spin_steps.h"

namespace jogeon {

class SpinBox : public QAbstractSpinBox, public SpinSteps {
    Q_OBJECT
    // For screen readers.
    Q_PROPERTY(double minimum READ Minimum)
    Q_PROPERTY(double maximum READ Maximum)
    Q_PROPERTY(double value READ Value)
    Q_PROPERTY(int position READ Position)

public:
    explicit SpinBox(QWidget* parent);

    double Minimum() const { return m_dMin; }
    double Maximum() const { return m_dMax; }
    double Value() const;
    int Position() const { return SpinSteps::Position(Value()).value_or(0); }

    void SetText(const QString& text);

    void stepBy(int steps) override;

protected:
    StepEnabled stepEnabled() const override;
};

}  // namespace jogeon
