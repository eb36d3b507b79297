#include "terminal/terminal.h"

#include <QFile>
#include <cstdio>
#include <filesystem>

#include "screen/host/message_boxes_qt.h"
#include "screen/text/cp949_qt.h"
#include "server/market/generated_market.h"
#include "server/market/market_file.h"
#include "server/remote/remote_service.h"
#include "server/service/local_service.h"
#include "terminal/host/parting.h"
#include "terminal/interest/interest_screen.h"
#include "terminal/kept_bytes.h"
#include "terminal/trace.h"
#include "terminal/window/help_window.h"
#include "terminal/window/key_table.h"

namespace jogeon::terminal {
namespace {

// Keys of what the user's state file keeps.
constexpr char kLanguage[] = "terminal/language";
constexpr char kTheme[] = "terminal/theme";
constexpr char kGeometry[] = "window/geometry";

std::shared_ptr<const market::Market> LoadMarket(const QString& file) {
    return file.isEmpty() ? market::GenerateMarket() : market::OpenMarket(file.toStdString());
}

void PrintLine(const std::string& line) {
    std::fprintf(stderr, "jogeon: %s\n", line.c_str());
}

std::filesystem::path NativePath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

// The service of this process, on its own market and store.
std::unique_ptr<service::Service> StartService(const Options& options, const HomeFolder& home) {
    const std::filesystem::path file =
        options.store.isEmpty() ? store::StorePath(NativePath(home.path)) : NativePath(options.store);
    auto store = std::make_unique<service::StoreService>(file, PrintLine);
    return std::make_unique<service::LocalService>(LoadMarket(options.market), std::move(store), PrintLine);
}

std::unique_ptr<service::Service> ChooseService(const Options& options, const HomeFolder& home,
                                                RemoteTroubles& troubles) {
    if (options.server.isEmpty()) return StartService(options, home);
    remote::RemoteSettings settings;
    settings.lost = [&troubles] { troubles.TellLoss(); };
    settings.recovered = [&troubles] { troubles.TellRecovery(); };
    return std::make_unique<remote::RemoteService>(
        options.server.toStdString(), [&troubles](const remote::Trouble& trouble) { troubles.Tell(trouble); },
        settings);
}

std::unique_ptr<host::Questions> ChooseQuestions(const Options& options, QWidget& window) {
    if (!options.demonstrate.isEmpty()) return std::make_unique<PrintedQuestions>();
    return std::make_unique<host::MessageBoxes>(window);
}

// A demonstration looks the same for everyone, and leaves nothing behind.
QString StateFile(const Options& options, const HomeFolder& home) {
    return options.demonstrate.isEmpty() ? UserStatePath(home.configuration, options.user) : QString();
}

Language ChooseLanguage(const Options& options, const UserState& state) {
    const QString name = options.lang.isEmpty() ? state.Choice(kLanguage) : options.lang;
    return LanguageOf(name).value_or(Language::Korean);
}

ThemeChoice ChooseTheme(const Options& options, const UserState& state) {
    const QString name = options.theme.isEmpty() ? state.Choice(kTheme) : options.theme;
    const ThemeChoice usual = options.demonstrate.isEmpty() ? ThemeChoice::Auto : ThemeChoice::Light;
    return ThemeChoiceOf(name).value_or(usual);
}

ServiceCommunication::Tracer TracerOf(const Options& options) {
    if (!options.trace) return {};
    return [](const TracedPacket& packet) { std::fputs(Describe(packet).c_str(), stderr); };
}

}  // namespace

Terminal::Terminal(const Options& options, std::vector<ScreenKind> screens, host::Questions* questions)
    : home_(PrepareHome(options.home)),
      state_(StateFile(options, home_), clock_),
      language_(ChooseLanguage(options, state_)),
      theme_(ChooseTheme(options, state_)),
      service_(ChooseService(options, home_, troubles_)),
      communication_(*service_, options.user.toStdString(), TracerOf(options)),
      links_(options.user.toStdString(), home_, service_->Accounts(options.user.toStdString())),
      codeLists_(*service_, options.user.toStdString()),
      module_(ScreenModule::DefaultPath()),
      window_(options.user, options.server, service_->Market()),
      ownQuestions_(questions ? nullptr : ChooseQuestions(options, window_)),
      questions_(questions ? *questions : *ownQuestions_),
      workplace_{options.user.toStdString(), *service_, links_, questions_, workers_},
      settings_(links_, questions_),
      interests_(workplace_, [this](const std::string& group, bool show) { OnInterestSaved(group, show); }),
      sheets_(questions_, [this] { return OriginOfSheets(); }),
      desk_(std::make_unique<ScreenDesk>(window_, workplace_, state_, std::move(screens))),
      menu_(window_, desk_->Known(), [this] { return desk_->OpenOnes(); }),
      watch_(workplace_, clock_, window_.Foot()) {
    for (const QString& file : home_.kept) {
        PrintLine(file.toStdString() + ": differs from the one that comes with jogeon, and is used as it is");
    }
    WireTroubles();
    WireMenu();
    InstallServices();
    window_.ResetSize();
    if (!window_.Frame().Open(module_)) throw ModuleError("screen 0150 could not be created");
    RestoreWindow();
    WireState();
    if (!options.server.isEmpty()) watch_.Begin();
}

// The screens' last messages still find every service.
Terminal::~Terminal() {
    state_.Save();
    desk_.reset();
    window_.Frame().Close();
    EndWork(workers_, *service_);
}

void Terminal::InstallServices() {
    host::Install({&communication_, &links_, &codeLists_, &colors_, &questions_, &clock_, &settings_,
                   &interests_, &sheets_});
}

SheetOrigin Terminal::OriginOfSheets() {
    const service::MarketSummary& market = window_.Foot().Market();
    return {FromQString(MarketLine(market)), FromQString(MarketDate(market)), workplace_.user};
}

void Terminal::OnInterestSaved(const std::string& group, bool show) {
    if (show) desk_->Open(InterestScreen::kNumber, false);
    auto* screen = qobject_cast<InterestScreen*>(desk_->Screen(InterestScreen::kNumber));
    if (!screen) return;
    if (show) {
        screen->ShowGroup(group);
    } else {
        screen->Refresh();
    }
}

void Terminal::WireTroubles() {
    StatusLine& foot = window_.Foot();
    QObject::connect(&troubles_, &RemoteTroubles::Told, &foot, &StatusLine::ShowRemark);
    QObject::connect(&troubles_, &RemoteTroubles::Lost, &watch_, &ServiceWatch::OnLost);
    QObject::connect(&troubles_, &RemoteTroubles::Recovered, &watch_, &ServiceWatch::OnRecovered);
    QObject::connect(&watch_, &ServiceWatch::Renewed, desk_.get(), &ScreenDesk::OnServiceRenewed);
    QObject::connect(desk_.get(), &ScreenDesk::Remark, &foot, &StatusLine::ShowRemark);
}

void Terminal::WireMenu() {
    menu_.Show(theme_.Choice(), language_.Current());
    QObject::connect(&menu_, &MainMenu::ScreenChosen, desk_.get(), &ScreenDesk::GoTo);
    QObject::connect(&menu_, &MainMenu::CloseAllChosen, desk_.get(), &ScreenDesk::CloseAll);
    QObject::connect(&menu_, &MainMenu::ResetChosen, desk_.get(), &ScreenDesk::ResetPlaces);
    QObject::connect(&menu_, &MainMenu::FullScreenChosen, &window_, [this](bool full) {
        window_.setWindowState(window_.windowState().setFlag(Qt::WindowFullScreen, full));
    });
    QObject::connect(&menu_, &MainMenu::ThemeChosen, &theme_, [this](ThemeChoice choice) {
        theme_.Choose(choice);
        state_.Choose(kTheme, NameOf(choice));
    });
    QObject::connect(&menu_, &MainMenu::LanguageChosen, &state_, [this](Language language) {
        state_.Choose(kLanguage, NameOf(language));
        window_.Foot().ShowRemark(MainWindow::tr("언어는 다음에 시작할 때 바뀝니다."));
    });
    QObject::connect(&menu_, &MainMenu::KeysChosen, &window_,
                     [this] { ShowHelp(window_, "keys", MainWindow::tr("조작 방법"), KeyPage()); });
    QObject::connect(&menu_, &MainMenu::AboutChosen, &window_,
                     [this] { ShowHelp(window_, "about", MainWindow::tr("jogeon 정보"), AboutPage()); });
    QObject::connect(&window_, &MainWindow::DesktopColorsChanged, &theme_, &ThemeSwitch::OnDesktopChanged);
    QObject::connect(&theme_, &ThemeSwitch::Changed, desk_.get(), &ScreenDesk::OnThemeChanged);
}

void Terminal::RestoreWindow() {
    if (!state_.Kept()) return;
    window_.restoreGeometry(KeptBytes(*state_.Kept(), kGeometry));
    desk_->Restore();
}

void Terminal::WireState() {
    QObject::connect(&window_, &MainWindow::Moved, &state_, &UserState::SaveSoon);
    QObject::connect(&window_, &MainWindow::Closing, &state_, &UserState::Save);
    QObject::connect(&state_, &UserState::Saving, &window_, [this](QSettings& file) {
        KeepBytes(file, kGeometry, window_.saveGeometry());
        desk_->Save(file);
    });
}

}  // namespace jogeon::terminal
