// The terminal's main window: the screen, a menu, and a line that says who works on which market.
#pragma once

#include <QLabel>
#include <QMainWindow>

#include "server/service/service.h"
#include "terminal/host_frame.h"

namespace jogeon::terminal {

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow(const QString& user, const service::MarketSummary& market);

    HostFrame& Frame() { return frame_; }

    // Shows the text at the foot for a while, over the market's line.
    void ShowTrouble(const QString& text);

private:
    void BuildMenu();
    void BuildStatusLine(const QString& user, const service::MarketSummary& market);
    void GrantSize(QSize frameSize);

    HostFrame frame_;
};

// The line that names the market: where it comes from, how many stocks, its last day.
QString MarketLine(const service::MarketSummary& market);

}  // namespace jogeon::terminal
