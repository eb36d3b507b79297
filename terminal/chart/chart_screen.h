// Screen 0615: the chart of one stock, which follows the stock that other screens choose.
//
// Relies on the shared tags for that stock and on the published result for its steps and marks, and hears of
// changes to both.
#pragma once

#include <optional>
#include <string>

#include "terminal/chart/chart_bar.h"
#include "terminal/chart/chart_data.h"
#include "terminal/chart/chart_view.h"
#include "terminal/chart/published_result.h"
#include "terminal/screens/own_screen.h"
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
    void OnServiceRenewed() override;
    void OnThemeChanged() override;
    void SaveState(QSettings& settings) const override;
    void RestoreState(const QSettings& settings) override;

    // The six bytes of the stock that is shown or on its way; empty for none.
    const std::string& Code() const { return code_; }
    const chart::ChartView& View() const { return *view_; }

    // Whether no answer is awaited that would change what is shown.
    bool Settled() const { return !data_.BarsAwaited() && !data_.DaysAwaited(); }

private:
    void SetUp();
    void Wire();

    void FollowLink();
    void ShowStock(const std::string& code);
    void Step(int by);
    void TakeResult();
    void ShowPlace();
    void AskMarks();
    void Choose(const chart::Choice& choice);

    void OnBars(const std::optional<service::StockBars>& stock);
    void OnBarsFailed();
    void Name(const QString& name);
    void PlaceMarks();

    Links& links_;
    chart::ChartData data_;
    chart::ChartView* const view_;  // made first: the Tab key reaches the screen by it, then goes to the bar
    chart::ChartBar* const bar_;
    StockIndex stocks_;  // that the trader can name
    chart::PublishedResult result_;
    chart::Choice choice_;
    std::string code_;
    QString name_;  // empty until it is known
};

}  // namespace jogeon::terminal
