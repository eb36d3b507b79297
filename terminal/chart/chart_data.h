// What a chart asks of the service: the bars of a stock, the days on which a condition set was true of it,
// and the stocks that there are.
//
// All is asked apart from the user interface, and what is known or on its way isn't asked again. Of each kind
// one question is under way at most; the answer to another than the newest is let go.
#pragma once

#include <QObject>
#include <optional>
#include <string>
#include <vector>

#include "terminal/screens/latest_only.h"

namespace jogeon::terminal::chart {

class ChartData : public QObject {
    Q_OBJECT

public:
    explicit ChartData(const Workplace& workplace);

    void AskBars(const std::string& code, market::Timeframe timeframe) { bars_.Ask({code, timeframe}); }
    bool BarsAwaited() const { return bars_.Waiting(); }

    // Instead of all that was asked before, whose days are forgotten at once.
    void AskDays(const std::string& conditionSet, const std::string& code);
    void ForgetDays();
    bool DaysAwaited() const { return days_.Waiting(); }

    // The dates (ascending, yyyymmdd) that were asked for; none while they are unknown.
    const std::optional<std::vector<int>>& Days() const { return known_; }

    void AskStocks() { stocks_.Ask({}); }

    // What is asked from here on is asked though it is known.
    void Outdate();

signals:
    void BarsCame(const std::optional<service::StockBars>& stock);  // none: the market doesn't have it
    void BarsFailed();
    void DaysChanged();
    void StocksCame(const std::vector<service::StockEntry>& stocks);  // empty if the service couldn't tell

private:
    struct BarsQuestion {
        std::string code;
        market::Timeframe timeframe;
        friend bool operator==(const BarsQuestion&, const BarsQuestion&) = default;
    };
    struct DaysQuestion {
        std::string conditionSet;
        std::string code;
        friend bool operator==(const DaysQuestion&, const DaysQuestion&) = default;
    };
    struct StocksQuestion {
        friend bool operator==(const StocksQuestion&, const StocksQuestion&) = default;
    };

    void SetDays(const std::optional<std::vector<int>>& days);

    LatestOnly<BarsQuestion, std::optional<service::StockBars>> bars_;
    LatestOnly<DaysQuestion, std::vector<int>> days_;
    LatestOnly<StocksQuestion, std::vector<service::StockEntry>> stocks_;
    std::optional<std::vector<int>> known_;
};

}  // namespace jogeon::terminal::chart
