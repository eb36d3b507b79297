// The settings page of the result grid: its lines, its row colours, what mouse and keys do in it.
#pragma once

#include <QCheckBox>

#include "terminal/settings/color_choice.h"
#include "terminal/settings/settings_page.h"

class QGridLayout;

namespace jogeon::terminal {

class GridPage : public SettingsPage {
    Q_OBJECT

public:
    explicit GridPage(host::Questions& questions, QWidget* parent = nullptr);

    void Show(const ScreenSettings& settings) override;
    void Take(ScreenSettings& settings) const override;

private:
    void AddColor(QGridLayout& layout, int row, const QString& label, ColorChoice& choice);

    QCheckBox lines_;
    ColorChoice odd_;
    ColorChoice even_;
    QCheckBox sizing_;
    QCheckBox arrows_;
};

}  // namespace jogeon::terminal
