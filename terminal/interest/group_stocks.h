// The stocks of one interest group, with what adds, removes and moves them.
//
// Relies on the book, which makes every change; the stocks are those that the group had at its last answer.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "terminal/interest/portfolio_book.h"
#include "terminal/interest/stock_table.h"
#include "terminal/stocks/stock_input.h"

namespace jogeon::terminal {

class GroupStocks : public QWidget {
    Q_OBJECT

public:
    // Both outlive this widget.
    GroupStocks(PortfolioBook& book, host::Questions& questions, QWidget* parent = nullptr);

    // Shows the group with this code as the book has it; empty for none. `anew` lets go of the chosen stocks.
    void Show(const std::string& group, bool anew);

    void RefreshColors();

signals:
    void StockChosen(const std::string& code);
    void StockOpened(const std::string& code);

private:
    void ConnectParts();
    QLayout* MakeFoot();
    void EnableButtons();

    void AddStocks(const std::vector<std::string>& codes);
    void AddChosen(const std::string& code);
    void RemoveStocks();
    void MoveStocks(int by);
    void Paste();
    void TellSkipped(const PastedStocks& pasted);

    PortfolioBook& book_;
    host::Questions& questions_;
    std::string group_;
    std::string adding_;  // the stock that the input was left with
    // Children of this widget.
    StockInput* input_;
    StockTable* stocks_;
    QLabel* count_;
    QPushButton* paste_;
    std::vector<QPushButton*> buttons_;  // that need a stock
};

}  // namespace jogeon::terminal
