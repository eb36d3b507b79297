#include "tools/jogeond/search_arguments.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "server/market/calendar.h"

namespace jogeon {
namespace {

constexpr std::string_view kHomeVariable = "JOGEON_HOME_DATA";
constexpr std::string_view kDefaultUser = "guest";
constexpr std::size_t kMaxUserId = 8;

constexpr OptionSpec kOptions[] = {{"--market"}, {"--set"},  {"--conditions"}, {"--user"},
                                   {"--home"},   {"--date"}, {"--format"},     {"--help", false}};

// The id is part of a file name.
bool IsUserId(std::string_view id) {
    return !id.empty() && id.size() <= kMaxUserId && std::all_of(id.begin(), id.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
    });
}

// Where the catalogue lies unless the user says so: by the environment, else where it was built or installed.
std::string DefaultHome() {
    if (const char* home = std::getenv(std::string(kHomeVariable).c_str())) return home;
#ifdef JOGEON_HOME_DATA
    return JOGEON_HOME_DATA;
#else
    return {};
#endif
}

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
    parsed.user = options.Get("--user", kDefaultUser);
    if (!IsUserId(parsed.user)) throw BadOptions("--user needs 1 to 8 letters, digits or _");
    parsed.home = options.Get("--home", DefaultHome());
    if (parsed.home.empty()) throw BadOptions("where is the catalogue? --home DIR says it");
    if (options.Has("--date")) parsed.date = ParseDay(options.Get("--date"));
    parsed.format = ParseFormat(options.Get("--format", "table"));
    return parsed;
}

}  // namespace jogeon
