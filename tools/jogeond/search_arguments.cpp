#include "tools/jogeond/search_arguments.h"

#include <optional>

#include "server/market/calendar.h"
#include "tools/jogeond/shared_options.h"

namespace jogeon {
namespace {

constexpr std::string_view kDefaultUser = "guest";

constexpr OptionSpec kOptions[] = {{"--market"}, {"--set"},  {"--conditions"}, {"--user"},
                                   {"--home"},   {"--date"}, {"--format"},     {"--help", false}};

OutputFormat ParseFormat(const std::string& text) {
    if (text == "table") return OutputFormat::Table;
    if (text == "csv") return OutputFormat::Csv;
    if (text == "json") return OutputFormat::Json;
    throw BadOptions("--format is table, csv or json, not \"" + text + "\"");
}

int ParseDay(const std::string& text) {
    const std::optional<int> date = market::ParseDate(text);
    if (!date) throw BadOptions("--date needs a day like 2026-03-20, not \"" + text + "\"");
    return *date;
}

}  // namespace

const char kSearchHelp[] =
    R"(Usage: jogeond search (--set NAME | --conditions FILE) [option]...

Searches a market with a set of conditions and prints the stocks that match. A set that names no target is
searched in all sectors.

  --set NAME         a saved set of the user's or of the catalogue, by its name; a user's own also by its number
  --conditions FILE  a file with one set, in the form of the saved-condition file (CP949)
  --market FILE      the market file to search; without it, a generated market
  --date YYYY-MM-DD  search the market as it stood at the end of that day
  --user ID          whose saved sets, groups and accounts count (guest)
  --home DIR         the folder that has System and User in it; JOGEON_HOME_DATA says it too
  --format FORM      table, csv or json (table)

The exit code is 0 when stocks were found, 1 when none matches, 2 when the search failed.
)";

SearchArguments ParseSearchArguments(const std::vector<std::string>& args) {
    const Options options(args, kOptions, "jogeond search");
    SearchArguments parsed;
    parsed.help = options.Has("--help");
    if (parsed.help) return parsed;
    if (options.Has("--set") == options.Has("--conditions"))
        throw BadOptions("say what to search for: either --set NAME or --conditions FILE");
    parsed.market = options.Get("--market");
    parsed.set = options.Get("--set");
    parsed.conditions = options.Get("--conditions");
    parsed.user = UserOption(options, kDefaultUser);
    parsed.home = HomeOption(options);
    if (options.Has("--date")) parsed.date = ParseDay(options.Get("--date"));
    parsed.format = ParseFormat(options.Get("--format", "table"));
    return parsed;
}

}  // namespace jogeon
