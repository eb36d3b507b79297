// The terminal as a whole: home folder, service, host services, and the window with the screen.
//
// Building one makes everything ready and installs the host services; it throws one line for the user when
// something is missing.
#pragma once

#include <memory>

#include "terminal/host/clock.h"
#include "terminal/host/code_lists.h"
#include "terminal/host/communication.h"
#include "terminal/host/host_colors.h"
#include "terminal/host/links.h"
#include "terminal/host/questions.h"
#include "terminal/main_window.h"
#include "terminal/options.h"
#include "terminal/remote_troubles.h"

namespace jogeon::terminal {

class Terminal {
public:
    explicit Terminal(const Options& options);
    ~Terminal();

    MainWindow& Window() { return window_; }

    // Whether the service has answered all that the screen asked.
    bool Idle() const { return communication_.Idle(); }

    // Where the screen's published tags and codes are.
    const Links& SharedLinks() const { return links_; }

private:
    const HomeFolder home_;
    RemoteTroubles troubles_;
    const std::unique_ptr<service::Service> service_;
    ServiceCommunication communication_;
    Links links_;
    ServiceCodeLists codeLists_;
    HostColors colors_;
    QtClock clock_;
    const ScreenModule module_;
    MainWindow window_;
    std::unique_ptr<host::Questions> questions_;
};

}  // namespace jogeon::terminal
