// The settings page of conditions: what is asked before they are lost, and what happens when a set is opened.
#pragma once

#include <QCheckBox>
#include <QComboBox>

#include "terminal/settings/settings_page.h"

namespace jogeon::terminal {

class ConditionsPage : public SettingsPage {
    Q_OBJECT

public:
    explicit ConditionsPage(QWidget* parent = nullptr);

    void Show(const ScreenSettings& settings) override;
    void Take(ScreenSettings& settings) const override;

private:
    QCheckBox confirm_;
    QCheckBox nameConfirm_;
    QComboBox delConfirm_;  // by the setting's value
    QCheckBox initResult_;
    QCheckBox showSequence_;
};

}  // namespace jogeon::terminal
