// The dialog over the settings of screen 0150: a page each for the result grid, its columns, the conditions
// and the interest groups.
//
// It changes nothing itself: whoever runs it takes what was chosen when it was closed by its OK.
#pragma once

#include <QDialog>
#include <QTabWidget>
#include <vector>

#include "screen/host/services.h"
#include "screen/settings/screen_settings.h"
#include "terminal/settings/columns_page.h"
#include "terminal/settings/conditions_page.h"
#include "terminal/settings/grid_page.h"
#include "terminal/settings/interest_page.h"

namespace jogeon::terminal {

struct SettingsChoice {
    ScreenSettings settings;
    std::vector<host::GridColumnChoice> columns;
};

class SettingsDialog : public QDialog {
    Q_OBJECT

public:
    // Shows `start`; "기본값" takes the shown page from `defaults`. `questions` outlives the dialog.
    SettingsDialog(const SettingsChoice& start, SettingsChoice defaults, host::Questions& questions,
                   QWidget* parent = nullptr);

    // A page of host::SettingsDialog; the first for any other number.
    void ShowPage(int page);

    // What stands in the dialog now. Settings that it doesn't show are as they were at the start.
    SettingsChoice Choice() const;

private:
    void AddButtons(QLayout& layout);
    void ShowDefaults();

    const ScreenSettings start_;
    const SettingsChoice defaults_;
    QTabWidget tabs_;
    GridPage grid_;
    ColumnsPage columns_;
    ConditionsPage conditions_;
    InterestPage interest_;
    const std::vector<SettingsPage*> pages_{&grid_, &conditions_, &interest_};
};

}  // namespace jogeon::terminal
