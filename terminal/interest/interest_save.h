// The interest save behind the button of screen 0150: asks where to, and saves the codes of the result.
//
// Relies on the screen for its two settings, which it asks for with the settings block: whether to ask before
// a group's stocks are replaced, and whether to show the group when it has been saved. Runs on the
// user-interface thread and asks the service there, for as long as a call may take.
#pragma once

#include <QCoreApplication>
#include <functional>
#include <string>
#include <vector>

#include "screen/host/services.h"
#include "terminal/interest/interest_dialog.h"
#include "terminal/screens/workplace.h"

namespace jogeon::terminal {

class InterestSave : public host::InterestGroups {
    Q_DECLARE_TR_FUNCTIONS(InterestSave)

public:
    // Called when a group has been saved: the interest window, if there is one, reads anew. With `show` it is
    // to be opened on that group (InterestScreen::ShowGroup).
    using Saved = std::function<void(const std::string& code, bool show)>;

    // The owner of the windows gives `saved`, which may be empty.
    InterestSave(const Workplace& workplace, Saved saved);

    // 1 if the codes were saved, else 0.
    int SaveInterest(host::WindowHandle window, const std::vector<std::string>& codes,
                     host::WindowHandle mainWindow, int) override;

private:
    static QString Caption();
    bool Save(const std::vector<std::string>& codes, host::WindowHandle window);
    bool MayReplace(const std::string& code, const std::vector<service::InterestGroup>& groups) const;
    service::Addition Carry(const InterestDialog::Choice& choice, const std::vector<std::string>& codes);

    const Workplace workplace_;
    const Saved saved_;
    std::string last_;  // the group saved last, which the next dialog opens on
};

}  // namespace jogeon::terminal
