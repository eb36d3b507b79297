// The settings dialog as the screen asks for it: shows it, and stores what was chosen.
//
// Settings of the grid and of conditions go to the user's settings file, those of the interest-group save to
// the screen by message, the columns to the grid.
#pragma once

#include "screen/host/services.h"
#include "terminal/settings/settings_dialog.h"

namespace jogeon::terminal {

class SettingsDialogHost : public host::SettingsDialog {
public:
    // In the result of Run: a setting other than the columns is another one now.
    static constexpr int kSettingsChanged = 0x01;

    // Both outlive this object.
    SettingsDialogHost(host::LinkStore& links, host::Questions& questions)
        : links_(links), questions_(questions) {}

    int Run(host::WindowHandle view, host::GridColumns& grid, int page) override;

private:
    SettingsChoice Start(host::WindowHandle view, const host::GridColumns& grid) const;
    SettingsChoice Defaults(const std::vector<host::GridColumnChoice>& offered) const;
    int Store(host::WindowHandle view, host::GridColumns& grid, const SettingsChoice& before,
              const SettingsChoice& after) const;

    host::LinkStore& links_;
    host::Questions& questions_;
};

}  // namespace jogeon::terminal
