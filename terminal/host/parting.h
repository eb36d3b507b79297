// The end of work in the background: short, whatever the service does.
#pragma once

#include <QThreadPool>

#include "server/service/service.h"

namespace jogeon::terminal {

// Waits a moment for the pool's work. What hasn't begun by then is dropped, and the service gives up its
// calls, so that what has begun ends soon.
void EndWork(QThreadPool& pool, service::Service& service);

}  // namespace jogeon::terminal
