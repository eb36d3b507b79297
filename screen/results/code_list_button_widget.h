// The button with the list of stocks that the screen has published: it shows them, and says which was chosen.
#pragma once

#include <QPushButton>
#include <string>
#include <vector>

#include "screen/host/services.h"
#include "screen/results/stock_names_qt.h"

namespace jogeon {

class CodeListButton : public QPushButton {
    Q_OBJECT

public:
    // As many stocks as a list to pick from may have; of a longer one the first are offered.
    static constexpr std::size_t kMostShown = 300;

    // `lists` gives the names of stocks and outlives the button.
    explicit CodeListButton(host::CodeLists& lists, QWidget* parent = nullptr);

    // Title and codes are CP949.
    void SetCodes(const std::string& title, const std::vector<std::string>& codes);

    // Opens the list at the button; it goes when a stock is chosen, with Escape, or by a click elsewhere.
    void ShowCodes();

signals:
    void CodeChosen(const std::string& code);

private:
    StockNames names_;
    std::vector<std::string> codes_;
};

}  // namespace jogeon
