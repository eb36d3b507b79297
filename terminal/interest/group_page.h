// The page of interest groups: the groups at the left, the stocks of the chosen one at the right.
#pragma once

#include <QSplitter>

#include "terminal/interest/group_list.h"
#include "terminal/interest/group_stocks.h"

namespace jogeon::terminal {

class GroupPage : public QWidget {
    Q_OBJECT

public:
    // Both outlive the page.
    GroupPage(PortfolioBook& book, host::Questions& questions, QWidget* parent = nullptr);

    // The group that is shown, as GroupList has it.
    const std::string& Chosen() const { return groups_->Chosen(); }
    void Choose(const std::string& code) { groups_->Choose(code); }

    void RefreshColors();

    QByteArray SplitterState() const { return splitter_->saveState(); }
    void RestoreSplitter(const QByteArray& state) { splitter_->restoreState(state); }

signals:
    void StockChosen(const std::string& code);
    void StockOpened(const std::string& code);

private:
    // Children of the page.
    QSplitter* splitter_;
    GroupList* groups_;
    GroupStocks* stocks_;
};

}  // namespace jogeon::terminal
