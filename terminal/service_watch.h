// Keeps the line at the foot true about the server: whether it answers, and which market it has now.
//
// After a failure it asks the server again and again until it answers; whenever it answers anew, its market
// may be another.
#pragma once

#include <QObject>
#include <optional>

#include "terminal/screens/workplace.h"
#include "terminal/window/status_line.h"

namespace jogeon::terminal {

class ServiceWatch : public QObject, public host::TimerSink {
    Q_OBJECT

public:
    // All outlive this object.
    ServiceWatch(const Workplace& workplace, host::Clock& clock, StatusLine& line);
    ~ServiceWatch() override;

    void OnLost();
    void OnRecovered();

    void OnTimer(int id) override;

private:
    void Ask();
    void Take(const std::optional<service::MarketSummary>& market);

    const Workplace& workplace_;
    host::Clock& clock_;
    StatusLine& line_;
    bool asking_ = false;
};

}  // namespace jogeon::terminal
