// Shows what was read of a holdings file and what was refused, and asks for which account to take it.
//
// A file with refused lines is taken without them only if the user says so.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <functional>
#include <string>

#include "terminal/interest/holdings_csv.h"
#include "terminal/interest/portfolio_book.h"
#include "terminal/interest/portfolio_texts.h"

namespace jogeon::terminal {

class HoldingsDialog : public QDialog {
    Q_OBJECT

public:
    // Opens on the account `chosen`, if the book has it. The references outlive the dialog.
    HoldingsDialog(const HoldingsFile& file, const PortfolioBook& book, const FormatAccount& format,
                   const std::string& chosen, QWidget* parent = nullptr);

    // The eleven digits of the account that the user chose or wrote.
    std::string Account() const;

private:
    QWidget* MakeRead();
    QWidget* MakeRefused();
    QLayout* MakeFoot();
    void Judge();

    const HoldingsFile& file_;
    const PortfolioBook& book_;
    // Children of the dialog.
    QComboBox* accounts_;
    QCheckBox* without_;
    QLabel* advice_;
    QPushButton* ok_;
};

}  // namespace jogeon::terminal
