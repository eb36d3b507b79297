// jogeond: the commands of jogeon that need no display.

#include <cstdio>
#include <string>
#include <vector>

#include "tools/jogeond/import_command.h"
#include "tools/jogeond/search_command.h"
#include "tools/jogeond/serve_command.h"
#include "tools/jogeond/sets_command.h"
#include "tools/jogeond/verify_command.h"

namespace {

constexpr int kDone = 0;
constexpr int kWrongUse = 2;

constexpr char kHelp[] = R"(Usage: jogeond COMMAND [option]...

  import   makes a market file from tables of prices
  search   searches a market with a set of conditions
  serve    serves a market and the users' condition sets to the terminals of this machine
  sets     lists, exports and imports a user's condition sets
  verify   reads a market file to its end and says whether it is whole

"jogeond COMMAND --help" tells the options of a command. "jogeond --version" tells the version.
)";

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + (argc > 0 ? 1 : 0), argv + argc);
    const std::string command = args.empty() ? std::string() : args.front();
    const std::vector<std::string> rest(args.begin() + (args.empty() ? 0 : 1), args.end());
    if (command == "import") return jogeon::RunImport(rest);
    if (command == "search") return jogeon::RunSearch(rest);
    if (command == "serve") return jogeon::RunServe(rest);
    if (command == "sets") return jogeon::RunSets(rest);
    if (command == "verify") return jogeon::RunVerify(rest);
    if (command == "--help" || command == "-h") {
        std::fputs(kHelp, stdout);
        return kDone;
    }
    if (command == "--version") {
        std::puts("jogeond " JOGEON_VERSION);
        return kDone;
    }
    if (command.empty())
        std::fputs(kHelp, stderr);
    else
        std::fprintf(stderr, "jogeond: there is no command \"%s\"; \"jogeond --help\" lists them\n",
                     command.c_str());
    return kWrongUse;
}
