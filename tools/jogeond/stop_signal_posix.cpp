#include <csignal>

#include "tools/jogeond/stop_signal.h"

namespace jogeon {
namespace {

sigset_t StopSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    return signals;
}

}  // namespace

StopSignal::StopSignal() {
    const sigset_t signals = StopSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void StopSignal::Wait() const {
    const sigset_t signals = StopSignals();
    int signal = 0;
    while (sigwait(&signals, &signal) != 0) continue;
}

}  // namespace jogeon
