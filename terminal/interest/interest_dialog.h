// Asks in which interest group to save the stocks of a result: one that exists, whose stocks they join or
// replace, or a new one.
//
// The dialog only asks. What can't be done, as a group of too many stocks, can't be chosen in it.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <string>
#include <vector>

#include "server/service/portfolios.h"

namespace jogeon::terminal {

class InterestDialog : public QDialog {
    Q_OBJECT

public:
    // Where to, as the user has chosen.
    struct Choice {
        std::string code;  // of an existing group, empty for a new one
        QString name;      // of a new one, as it is written
        bool replaces = false;
    };

    // `codes` are to be saved. The dialog opens with `first` chosen; on the first group where that is neither
    // a group that there is nor a name.
    InterestDialog(std::vector<service::InterestGroup> groups, std::vector<std::string> codes,
                   const Choice& first, QWidget* parent = nullptr);

    Choice Chosen() const;

private:
    void Preset(const Choice& first);
    QLayout* MakeChoices();
    const service::InterestGroup* Group() const;  // the chosen one that exists, or null
    std::size_t StocksAfter() const;
    QString Advice() const;
    void Judge();

    const std::vector<service::InterestGroup> groups_;
    const std::vector<std::string> codes_;
    // Children of the dialog.
    QRadioButton* existing_;
    QRadioButton* new_;
    QComboBox* list_;
    QLineEdit* name_;
    QRadioButton* adds_;
    QRadioButton* replaces_;
    QLabel* advice_;
    QPushButton* ok_;
};

// The stocks of `first`, then those of `second` that aren't among them.
std::vector<std::string> Joined(std::vector<std::string> first, const std::vector<std::string>& second);

}  // namespace jogeon::terminal
