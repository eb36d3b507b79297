// The user's interest groups, with what makes, names, moves and deletes them.
//
// Relies on the book, which makes every change and says when it was made; the list only shows and asks.
#pragma once

#include <QPushButton>
#include <QWidget>

#include "terminal/interest/group_tree.h"
#include "terminal/interest/portfolio_book.h"

namespace jogeon::terminal {

class GroupList : public QWidget {
    Q_OBJECT

public:
    // Both outlive the list.
    GroupList(PortfolioBook& book, host::Questions& questions, QWidget* parent = nullptr);

    // The group that is shown; empty if there is none. One that the book doesn't have yet is chosen as soon
    // as it has it, unless the user chooses another one before.
    const std::string& Chosen() const { return awaited_.empty() ? chosen_ : awaited_; }
    void Choose(const std::string& code);

    void RefreshColors();

signals:
    // A group was chosen, or the book has changed: the group's stocks are to be shown. Empty for no group.
    void Shown(const std::string& code, bool byUser);

private:
    void MakeList();
    void AddKey(Qt::Key key, void (GroupList::*command)());
    QLayout* MakeButtons();
    void ShowGroups();
    bool ListsGroups() const;
    void ListGroups();
    void OnSelected();
    void OnNameEdited(QTreeWidgetItem* item);

    void NewGroup();
    void RenameGroup();
    void DeleteGroup();
    void MoveGroup(int by);
    void DropGroup(int place);
    std::vector<std::string> Order() const;
    void Reorder(std::vector<std::string> order);

    PortfolioBook& book_;
    host::Questions& questions_;
    std::string chosen_;
    std::string awaited_;   // a group to be chosen
    bool showing_ = false;  // the list is being written, so that its changes aren't the user's
    // Children of this widget.
    GroupTree* groups_;
    std::vector<QPushButton*> buttons_;  // that need a group
};

}  // namespace jogeon::terminal
