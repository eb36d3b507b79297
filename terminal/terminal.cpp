#include "terminal/terminal.h"

#include <QFile>
#include <cstdio>
#include <filesystem>

#include "screen/host/message_boxes_qt.h"
#include "server/market/generated_market.h"
#include "server/market/market_file.h"
#include "server/remote/remote_service.h"
#include "server/service/local_service.h"
#include "terminal/trace.h"

namespace jogeon::terminal {
namespace {

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
    return std::make_unique<remote::RemoteService>(
        options.server.toStdString(),
        [&troubles](const remote::Trouble& trouble) { troubles.Tell(trouble); });
}

ServiceCommunication::Tracer TracerOf(const Options& options) {
    if (!options.trace) return {};
    return [](const TracedPacket& packet) { std::fputs(Describe(packet).c_str(), stderr); };
}

}  // namespace

Terminal::Terminal(const Options& options)
    : home_(PrepareHome(options.home)),
      service_(ChooseService(options, home_, troubles_)),
      communication_(*service_, options.user.toStdString(), TracerOf(options)),
      links_(options.user.toStdString(), home_, service_->Accounts(options.user.toStdString())),
      codeLists_(*service_, options.user.toStdString()),
      module_(ScreenModule::DefaultPath()),
      window_(options.user, service_->Market()) {
    QObject::connect(&troubles_, &RemoteTroubles::Told, &window_, &MainWindow::ShowTrouble);
    for (const QString& file : home_.kept) {
        PrintLine(file.toStdString() + ": differs from the one that comes with jogeon, and is used as it is");
    }
    if (options.demonstrate.isEmpty()) {
        questions_ = std::make_unique<host::MessageBoxes>(window_);
    } else {
        questions_ = std::make_unique<PrintedQuestions>();
    }
    host::Install({&communication_, &links_, &codeLists_, &colors_, questions_.get(), &clock_});
    if (!window_.Frame().Open(module_)) throw ModuleError("screen 0150 could not be created");
}

// The screen's last messages still find every service.
Terminal::~Terminal() {
    window_.Frame().Close();
}

}  // namespace jogeon::terminal
