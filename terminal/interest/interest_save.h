// The interest save behind the button of screen 0150: asks where to, and saves the codes of the result.
//
// Relies on the screen for its two settings, which it asks for with the settings block: whether to ask before
// a group's stocks are replaced, and whether to show the group when it has been saved. The service is asked
// on the workplace's threads, so that the user waits for it nowhere; what it refuses he may enter anew.
#pragma once

#include <QCoreApplication>
#include <QObject>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "screen/host/services.h"
#include "terminal/interest/interest_dialog.h"
#include "terminal/screens/workplace.h"

namespace jogeon::terminal {

class InterestSave : public QObject, public host::InterestGroups {
    Q_DECLARE_TR_FUNCTIONS(InterestSave)

public:
    // Called when a group has been saved: the interest window, if there is one, reads anew. With `show` it is
    // to be opened on that group (InterestScreen::ShowGroup).
    using Saved = std::function<void(const std::string& code, bool show)>;

    // The owner of the windows gives `saved`, which may be empty.
    InterestSave(const Workplace& workplace, Saved saved);
    ~InterestSave() override;

    // 1 if the save was taken on: the user will be asked. 0 if there is nothing to save, or while another
    // save is under way.
    int SaveInterest(host::WindowHandle window, const std::vector<std::string>& codes,
                     host::WindowHandle mainWindow, int) override;

    // Whether no save is under way.
    bool Idle() const { return !job_; }

private:
    struct Job {
        host::WindowHandle window = 0;
        std::vector<std::string> codes;
        bool asksBeforeReplacing = false;
        bool shows = false;
    };
    struct Answer {
        std::vector<service::InterestGroup> groups;
        service::Addition saved;
        std::string failure;  // empty for none
    };
    using Question = std::function<Answer(service::Portfolios& portfolios, const std::string& user)>;

    static QString Caption();
    void AskService(Question question, void (InterestSave::*then)(const Answer&));
    void AskGroups();
    void AskUser(const Answer& answer);
    bool MayReplace(const std::string& code, const std::vector<service::InterestGroup>& groups) const;
    void Finish(const Answer& answer);

    const Workplace workplace_;
    const Saved saved_;
    std::optional<Job> job_;  // the save under way
    bool waits_ = false;      // for the service, which the pointer shows
    // What the next dialog opens with: the group saved last, or what couldn't be saved.
    InterestDialog::Choice choice_;
};

}  // namespace jogeon::terminal
