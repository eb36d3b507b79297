// Keeps the line at the foot true about the server: whether it answers, and which market it has now.
//
// It asks the server now and then, which may have been started anew between two questions of the screens;
// after a failure soon and again until it answers.
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

    // Asks from here on. Without it only what is told is minded.
    void Begin();

    void OnLost();
    void OnRecovered();

    void OnTimer(int id) override;

signals:
    // The server answers again, or has another market: what it said before may not be so any more.
    void Renewed();

private:
    void Ask();
    void Take(const std::optional<service::MarketSummary>& market);

    const Workplace& workplace_;
    host::Clock& clock_;
    StatusLine& line_;
    bool asking_ = false;
    bool lost_ = false;
};

}  // namespace jogeon::terminal
