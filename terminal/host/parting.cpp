#include "terminal/host/parting.h"

namespace jogeon::terminal {
namespace {

constexpr int kMoment = 1'000;  // milliseconds

}  // namespace

void EndWork(QThreadPool& pool, service::Service& service) {
    if (pool.waitForDone(kMoment)) return;
    pool.clear();
    service.GiveUpCalls();
    pool.waitForDone();
}

}  // namespace jogeon::terminal
