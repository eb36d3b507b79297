// Timers of the terminal, by Qt's event loop.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <climits>
#include <map>
#include <memory>
#include <utility>

#include "screen/host/services.h"

namespace jogeon::terminal {

class QtClock : public QObject, public host::Clock {
public:
    QtClock() { elapsed_.start(); }

    void SetTimer(host::TimerSink& sink, int id, std::chrono::milliseconds interval) override {
        QTimer*& timer = timers_[{&sink, id}];
        if (!timer) {
            timer = new QTimer(this);
            connect(timer, &QTimer::timeout, this, [&sink, id] { sink.OnTimer(id); });
        }
        timer->start(interval);
    }

    void KillTimer(host::TimerSink& sink, int id) override {
        const auto found = timers_.find({&sink, id});
        if (found == timers_.end()) return;
        found->second->stop();
        found->second->deleteLater();  // it may be the one that ticks
        timers_.erase(found);
    }

    void Forget(host::TimerSink& sink) override {
        auto at = timers_.lower_bound({&sink, INT_MIN});
        while (at != timers_.end() && at->first.first == &sink) {
            const int id = (at++)->first.second;
            KillTimer(sink, id);
        }
    }

    std::uint32_t TickCount() override { return static_cast<std::uint32_t>(elapsed_.elapsed()); }

private:
    std::map<std::pair<host::TimerSink*, int>, QTimer*> timers_;
    QElapsedTimer elapsed_;
};

}  // namespace jogeon::terminal
