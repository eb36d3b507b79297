// The settings page of saving results to an interest group.
#pragma once

#include <QCheckBox>

#include "terminal/settings/settings_page.h"

namespace jogeon::terminal {

class InterestPage : public SettingsPage {
    Q_OBJECT

public:
    explicit InterestPage(QWidget* parent = nullptr);

    void Show(const ScreenSettings& settings) override;
    void Take(ScreenSettings& settings) const override;

private:
    QCheckBox regLink_;
    QCheckBox confirmOverwrite_;
};

}  // namespace jogeon::terminal
