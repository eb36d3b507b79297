// What a screen of the terminal's own works with, and how it works apart from the user interface.
//
// The references outlive the screens. A service of another process may take seconds to answer or throw: ask
// it through InBackground, whose answer comes back to the screen's thread.
#pragma once

#include <QFutureWatcher>
#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>
#include <string>
#include <type_traits>
#include <utility>

#include "screen/host/services.h"
#include "server/service/service.h"
#include "terminal/host/links.h"

namespace jogeon::terminal {

struct Workplace {
    std::string user;
    service::Service& service;
    Links& links;
    host::Questions& questions;
    QThreadPool& workers;
};

// Runs `work` on a thread of the workplace and gives the result to `done` on the thread of `receiver`, where
// this is called, if that lives by then. `work` must touch nothing of the screen; what it throws is lost, so
// that it catches what it can meet. Gives the work itself, for who has more to do behind it.
template <typename Work, typename Done>
QFuture<std::invoke_result_t<Work>> InBackground(const Workplace& workplace, QObject& receiver, Work work,
                                                 Done done) {
    using Result = std::invoke_result_t<Work>;
    auto* watcher = new QFutureWatcher<Result>(&receiver);
    QObject::connect(watcher, &QFutureWatcherBase::finished, &receiver,
                     [watcher, done = std::move(done)]() mutable {
                         watcher->deleteLater();
                         if (watcher->isCanceled()) return;
                         if constexpr (std::is_void_v<Result>)
                             done();
                         else
                             done(watcher->result());
                     });
    watcher->setFuture(QtConcurrent::run(&workplace.workers, std::move(work)));
    return watcher->future();
}

}  // namespace jogeon::terminal
