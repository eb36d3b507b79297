// Screen 0615: the chart of one stock, which follows the stock that other screens choose.
//
// Bars and marks are asked for apart from the user interface; an answer that comes after the trader has gone
// on to another stock is let go.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "terminal/chart/chart_bar.h"
#include "terminal/chart/chart_view.h"
#include "terminal/screens/own_screen.h"
#include "terminal/screens/workplace.h"
#include "terminal/stocks/stock_index.h"

namespace jogeon::terminal {

class ChartScreen : public OwnScreen {
    Q_OBJECT

public:
    explicit ChartScreen(const Workplace& workplace, QWidget* parent = nullptr);

    QString Number() const override { return QStringLiteral("0615"); }
    QString Title() const override;
    void OnOpened(bool linked) override;
    void OnTagChanged(const std::string& mainKey, const std::string& tag) override;
    void OnThemeChanged() override;
    void SaveState(QSettings& settings) const override;
    void RestoreState(const QSettings& settings) override;

    // The six bytes of the stock that is shown or on its way; empty for none.
    const std::string& Code() const { return code_; }
    const chart::ChartView& View() const { return *view_; }

    // Whether no answer is awaited that would change what is shown.
    bool Settled() const { return !loading_ && !marking_; }

protected:
    void enterEvent(QEnterEvent* event) override;

private:
    // What the service says of a stock; without bars and with a fault when it can't tell.
    struct Loaded {
        std::optional<service::StockBars> stock;
        bool failed = false;
    };

    void FollowLink();
    void Step(int by);
    void Announce();
    void Choose(const chart::Choice& choice);
    void ShowStock(const std::string& code);
    void Load();
    void OnLoaded(const Loaded& loaded);
    void AskStocks();
    void AskMarks();
    void PlaceMarks();
    void RefreshSteps();
    std::string TagOf(const char* mainKey, const char* tag) const;
    std::vector<std::string> Listed() const;

    const Workplace workplace_;
    chart::ChartBar* const bar_;
    chart::ChartView* const view_;
    chart::Choice choice_;

    std::string code_;
    QString name_;
    bool named_ = false;  // the stocks have been asked for
    StockIndex stocks_;   // that the trader can name
    std::optional<std::vector<int>> trueDays_;

    // Answers to older questions are let go.
    int loads_ = 0;
    int asks_ = 0;
    bool loading_ = false;
    bool marking_ = false;
};

}  // namespace jogeon::terminal
