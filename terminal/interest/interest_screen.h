// Screen 0130 "관심그룹": the user's interest groups on one page, his accounts and their holdings on another.
//
// Reads everything anew whenever it is opened or activated, since other windows and other terminals change
// the same groups. A stock that the user chooses is shared with the other screens.
#pragma once

#include <QLabel>
#include <QTabWidget>

#include "terminal/interest/group_page.h"
#include "terminal/interest/holdings_page.h"
#include "terminal/interest/portfolio_book.h"
#include "terminal/screens/own_screen.h"

namespace jogeon::terminal {

class InterestScreen : public OwnScreen {
    Q_OBJECT

public:
    static constexpr const char* kNumber = "0130";

    explicit InterestScreen(const Workplace& workplace, QWidget* parent = nullptr);

    QString Number() const override { return kNumber; }
    QString Title() const override { return tr("관심그룹"); }
    void OnOpened(bool linked) override;
    void OnTagChanged(const std::string&, const std::string&) override {}
    void OnServiceRenewed() override;
    void OnThemeChanged() override;
    void SaveState(QSettings& settings) const override;
    void RestoreState(const QSettings& settings) override;

    // Shows the groups' page with this group chosen.
    void ShowGroup(const std::string& code);

    // Something else has changed the groups.
    void Refresh() { book_.Refresh(); }

    // Whether the service has answered all that was asked.
    bool Idle() const { return book_.Idle(); }

protected:
    bool event(QEvent* event) override;

private:
    void ShareStock(const std::string& code);
    void OpenChart(const std::string& code);
    void OnFocusChanged(const QWidget* old, const QWidget* now);
    void OnBookChanged();
    void TellTrouble(const QString& why);

    Links& links_;
    host::Questions& questions_;
    PortfolioBook book_;
    // Children of the screen.
    QTabWidget* pages_;
    GroupPage* groups_;
    HoldingsPage* holdings_;
    QLabel* trouble_;
};

}  // namespace jogeon::terminal
