// The page of accounts: the holdings of the chosen one, and their import from a file.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>

#include "terminal/interest/portfolio_book.h"
#include "terminal/interest/portfolio_texts.h"
#include "terminal/interest/stock_table.h"

namespace jogeon::terminal {

class HoldingsPage : public QWidget {
    Q_OBJECT

public:
    // The references outlive the page.
    HoldingsPage(PortfolioBook& book, host::Questions& questions, FormatAccount format,
                 QWidget* parent = nullptr);

    void RefreshColors();

signals:
    void StockChosen(const std::string& code);
    void StockOpened(const std::string& code);

private:
    std::string Chosen() const;
    void Choose(const std::string& number);
    void ShowAccounts();
    bool ListsAccounts() const;
    void ShowHoldings();
    void Import();
    std::optional<std::filesystem::path> AskFile();
    void RemoveAccount();

    PortfolioBook& book_;
    host::Questions& questions_;
    const FormatAccount format_;
    // Children of the page.
    QComboBox* accounts_;
    QPushButton* import_;
    QPushButton* remove_;
    StockTable* holdings_;
    QLabel* total_;
};

}  // namespace jogeon::terminal
