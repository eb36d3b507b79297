// A watch at the service for as long as somebody here holds it.
//
// Opening and advancing wait for the service: they are for threads apart from the user interface.
#pragma once

#include <QThreadPool>
#include <string>

#include "terminal/screens/workplace.h"

namespace jogeon::terminal {

class OpenWatch {
public:
    // Throws what service::Watches::Open throws. The workplace outlives this.
    OpenWatch(const Workplace& workplace, const std::string& conditionSet)
        : watches_(workplace.service.GetWatches()),
          workers_(workplace.workers),
          user_(workplace.user),
          start_(watches_.Open(user_, conditionSet)) {}

    // Closes it in the background. A service that can't be reached closes it by itself after a while.
    ~OpenWatch() {
        workers_.start([&watches = watches_, user = user_, id = start_.id] {
            try {
                watches.Close(user, id);
            } catch (const std::exception&) {
            }
        });
    }
    OpenWatch(const OpenWatch&) = delete;
    OpenWatch& operator=(const OpenWatch&) = delete;

    const service::WatchStart& Start() const { return start_; }

    // Throws what service::Watches::Advance throws.
    service::WatchNews Advance(int milliseconds) { return watches_.Advance(user_, start_.id, milliseconds); }

private:
    service::Watches& watches_;
    QThreadPool& workers_;
    const std::string user_;
    const service::WatchStart start_;
};

}  // namespace jogeon::terminal
