#include "tools/jogeond/serve_command.h"

#include <cstdio>
#include <exception>
#include <memory>

#include "server/market/generated_market.h"
#include "server/market/market_file.h"
#include "server/remote/loopback_address.h"
#include "server/remote/service_server.h"
#include "server/service/local_service.h"
#include "tools/jogeond/serve_arguments.h"
#include "tools/jogeond/stop_signal.h"

namespace jogeon {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 2;

void PrintLine(const std::string& line) {
    std::fprintf(stderr, "jogeond serve: %s\n", line.c_str());
}

std::shared_ptr<const market::Market> LoadMarket(const std::filesystem::path& file) {
    if (!file.empty()) return market::OpenMarket(file);
    PrintLine("no --market given; serving the generated market");
    return market::GenerateMarket();
}

void Serve(const ServeArguments& arguments) {
    auto store = std::make_unique<service::StoreService>(arguments.store, PrintLine);
    service::LocalService service(LoadMarket(arguments.market), std::move(store), PrintLine);
    const StopSignal stop;
    const remote::ServiceServer server(service, arguments.port, PrintLine);
    std::printf("listening on %s\n", remote::LoopbackAddress(server.Port()).c_str());
    std::fflush(stdout);
    stop.Wait();
}

}  // namespace

int RunServe(const std::vector<std::string>& args) {
    try {
        const ServeArguments arguments = ParseServeArguments(args);
        if (arguments.help)
            std::fputs(kServeHelp, stdout);
        else
            Serve(arguments);
        return kDone;
    } catch (const std::exception& error) {
        PrintLine(error.what());
        return kFailed;
    }
}

}  // namespace jogeon
