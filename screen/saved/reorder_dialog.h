// Lets the user put his saved sets in a new order, by buttons, keys or dragging.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "screen/saved/reorder_list.h"
#include "screen/saved/reorder_list_widget.h"
#include "screen/saved/saved_condition_file.h"

namespace jogeon {

class ReorderDialog : public QDialog {
    Q_OBJECT

public:
    explicit ReorderDialog(const std::vector<SavedSetName>& sets, QWidget* parent = nullptr);

    // Whether any set was moved; and the sets' places in their new order.
    bool Changed() const { return order_.Changed(); }
    const std::vector<std::size_t>& Order() const { return order_.Order(); }

private:
    using Move = std::size_t (ReorderList::*)(std::size_t row);

    void AddMove(int id, const char* caption, const char* tooltip, int key, Move how);
    void MoveSelected(Move how);
    void ShowMove(int from, std::size_t to);
    void EnableMoves();

    ReorderList order_;
    ReorderListWidget list_;
    std::vector<QPushButton*> moves_;  // children of this dialog
};

}  // namespace jogeon
