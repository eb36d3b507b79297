// Lets a watch go on beside the user interface: four times a second it asks for what has happened by then.
//
// Relies on the workplace's threads. One question is under way at most; when the service is slow, the clock
// of the watch is, too. News of a watch that has been given up meanwhile are dropped.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <memory>
#include <string>

#include "terminal/screens/workplace.h"
#include "terminal/watch/open_watch.h"

namespace jogeon::terminal {

class WatchRun : public QObject {
    Q_OBJECT

public:
    // Over: the day has no trade left. Failed: the service refused, or couldn't be asked.
    enum class State { Idle, Opening, Running, Paused, Over, Failed };

    WatchRun(const Workplace& workplace, QObject* parent);

    // Gives up the watch that there was and begins one of this set, from the start of the day.
    void Begin(const std::string& conditionSet);

    // Goes on or stands still. Nothing when no watch is running or paused.
    void SetRunning(bool running);

    // How many milliseconds of the market pass in one of ours.
    void SetSpeed(int times) { speed_ = times; }

    State GetState() const { return state_; }

    // Whether the watch will still bring news.
    bool Alive() const;

signals:
    void Opened(const service::WatchStart& start);
    void NewsCame(const service::WatchNews& news);
    void Refused(const QString& why);  // the state is Failed
    void StateChanged();

private:
    struct Opening;
    struct Answer;

    void SetState(State state);
    void Fail(const std::string& why);
    void OnOpened(int begun, const Opening& opening);
    void OnTick();
    void Ask(int milliseconds);
    void OnAnswer(const std::shared_ptr<OpenWatch>& asked, const Answer& answer);

    const Workplace workplace_;
    State state_ = State::Idle;
    int begun_ = 0;  // how often; tells the opening that counts
    int speed_ = 1;
    bool asking_ = false;
    std::shared_ptr<OpenWatch> watch_;
    QTimer timer_;
    QElapsedTimer sinceAsked_;
};

}  // namespace jogeon::terminal
