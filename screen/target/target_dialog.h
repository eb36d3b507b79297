// The dialog "대상변경": which stocks a search runs over.
//
// Three trees, one at a time, say where to search; check boxes what to leave out; radio buttons the
// settlement month. Only what is checked in the tree that is shown counts. Controls are named by number.
#pragma once

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QStackedWidget>

#include "screen/host/services.h"
#include "screen/target/target_choice.h"

namespace jogeon {

class TargetDialog : public QDialog {
    Q_OBJECT

public:
    // Opens on `target`. The services are asked for lists and accounts now, for a box when nothing is
    // checked.
    TargetDialog(const host::Services& services, const TargetFields& target, QWidget* parent = nullptr);

    // What was agreed on by OK.
    const SearchTarget& Target() const { return agreed_; }

    void accept() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* MakeUniverse();
    QWidget* MakeExclusions();
    QWidget* MakeMonths();
    QBoxLayout* MakeButtons();
    QLayout* MakeTabs();
    void ShowTarget(const TargetFields& target);
    void ShowTab();
    void ShowMonth(int month);
    TargetTab Tab() const;
    int Month() const;
    TargetFields Options() const;

    host::Questions& questions_;
    TargetChoice choice_;
    SearchTarget agreed_;
    // Children of the dialog.
    QButtonGroup* tabs_;    // ids are those of TargetTab
    QButtonGroup* months_;  // ids are months, and one for the others
    QStackedWidget* trees_;
    QComboBox* otherMonth_;
    QCheckBox* turnedOver_ = nullptr;  // everything but the chosen portfolio
    std::vector<QCheckBox*> exclusions_;
};

// Lets the user change a target in the dialog, over `screen`. None if he cancels.
std::optional<SearchTarget> AskForTarget(const host::Services& services, const TargetFields& target,
                                         QWidget& screen);

}  // namespace jogeon
