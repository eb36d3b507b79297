#include "tools/jogeond/serve_arguments.h"

#include "server/remote/loopback_address.h"
#include "tools/jogeond/shared_options.h"

namespace jogeon {
namespace {

constexpr OptionSpec kOptions[] = {{"--market"}, {"--store"}, {"--home"}, {"--listen"}, {"--help", false}};

}  // namespace

const char kServeHelp[] =
    R"(Usage: jogeond serve [option]...

Serves a market and what the users keep, condition sets and interest groups and holdings, to the terminals of
this machine, which are started with "jogeon --server ADDRESS". It ends at Ctrl-C or SIGTERM.

  --market FILE    the market file to serve; without it, a generated market
  --store FILE     the file of what the users keep; without it, that of the home, or of the terminal's own home
  --home DIR       the terminal's home folder
  --listen ADDRESS where to listen (127.0.0.1:50150). Port 0 takes one that is free. Loopback only until
                   accounts exist: a terminal says who its user is, and nothing proves it.

When it is ready it prints one line, "listening on 127.0.0.1:PORT". The exit code is 0, or 2 when it couldn't
start.
)";

ServeArguments ParseServeArguments(const std::vector<std::string>& args) {
    const Options options(args, kOptions, "jogeond serve");
    ServeArguments parsed;
    parsed.help = options.Has("--help");
    if (parsed.help) return parsed;
    parsed.market = options.Get("--market");
    parsed.store = StoreOption(options);
    parsed.port =
        remote::ReadLoopbackAddress(options.Get("--listen", remote::LoopbackAddress(remote::kDefaultPort)));
    return parsed;
}

}  // namespace jogeon
