// The terminal as a whole: home folder, service, host services, and the window with the screens.
//
// Building one makes everything ready and installs the host services; it throws one line for the user when
// something is missing. Unless it demonstrates, it starts as the user left it.
#pragma once

#include <QThreadPool>
#include <memory>
#include <vector>

#include "terminal/host/clock.h"
#include "terminal/host/code_lists.h"
#include "terminal/host/communication.h"
#include "terminal/host/host_colors.h"
#include "terminal/host/links.h"
#include "terminal/host/questions.h"
#include "terminal/interest/interest_save.h"
#include "terminal/language.h"
#include "terminal/main_window.h"
#include "terminal/options.h"
#include "terminal/remote_troubles.h"
#include "terminal/screens/screen_desk.h"
#include "terminal/service_watch.h"
#include "terminal/settings/settings_dialog_host.h"
#include "terminal/sheet/xlsx_export.h"
#include "terminal/theme/theme_switch.h"
#include "terminal/user_state.h"
#include "terminal/window/main_menu.h"

namespace jogeon::terminal {

class Terminal {
public:
    // `questions` answers in the user's place and outlives the terminal; without it he is asked by boxes.
    explicit Terminal(const Options& options, std::vector<ScreenKind> screens = OwnScreens(),
                      host::Questions* questions = nullptr);
    ~Terminal();

    MainWindow& Window() { return window_; }
    ScreenDesk& Desk() { return *desk_; }

    // Whether the service has answered all that the screen asked, and no save of its stocks is under way.
    bool Idle() const { return communication_.Idle() && interests_.Idle(); }

    // Where the screen's published tags and codes are.
    Links& SharedLinks() { return links_; }

private:
    void InstallServices();
    void WireTroubles();
    void WireMenu();
    void WireState();
    void RestoreWindow();
    SheetOrigin OriginOfSheets();
    void OnInterestSaved(const std::string& group, bool show);

    const HomeFolder home_;
    QtClock clock_;
    UserState state_;
    const LanguageInUse language_;
    ThemeSwitch theme_;
    RemoteTroubles troubles_;
    const std::unique_ptr<service::Service> service_;
    ServiceCommunication communication_;
    Links links_;
    ServiceCodeLists codeLists_;
    HostColors colors_;
    const ScreenModule module_;
    MainWindow window_;
    const std::unique_ptr<host::Questions> ownQuestions_;
    host::Questions& questions_;
    QThreadPool workers_;
    const Workplace workplace_;
    SettingsDialogHost settings_;
    InterestSave interests_;
    XlsxExport sheets_;
    std::unique_ptr<ScreenDesk> desk_;
    MainMenu menu_;
    ServiceWatch watch_;
};

}  // namespace jogeon::terminal
