// The line at the foot of the main window: market, its last day, user, and the service with its state.
//
// A market's name that is too long for the room is cut with dots and stands whole in the tooltip.
#pragma once

#include <QLabel>
#include <QStatusBar>

#include "server/service/service.h"
#include "terminal/look/elided_label.h"

namespace jogeon::terminal {

class StatusLine : public QStatusBar {
    Q_OBJECT

public:
    // `server` is the address of the service, empty for the one of this process.
    StatusLine(const QString& user, const QString& server, QWidget* parent = nullptr);

    void ShowMarket(const service::MarketSummary& market);
    const service::MarketSummary& Market() const { return summary_; }  // as it was shown last
    void ShowConnected(bool connected);

    // A line over the market for a while.
    void ShowRemark(const QString& text);

private:
    QLabel* AddLabel(const QString& name);

    const QString server_;
    service::MarketSummary summary_;
    ElidedLabel* const market_;
    QLabel* const date_;
    QLabel* const user_;
    QLabel* const service_;
};

// Where the market comes from and how many stocks it has.
QString MarketLine(const service::MarketSummary& market);

// The day of the market's last bars.
QString MarketDate(const service::MarketSummary& market);

}  // namespace jogeon::terminal
