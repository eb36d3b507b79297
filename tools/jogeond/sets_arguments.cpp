#include "tools/jogeond/sets_arguments.h"

#include "tools/jogeond/shared_options.h"

namespace jogeon {
namespace {

constexpr OptionSpec kOptions[] = {{"--user"},          {"--store"},          {"--home"},
                                   {"--update", false}, {"--replace", false}, {"--help", false}};
constexpr char kCommand[] = "jogeond sets";
constexpr std::size_t kMostWords = 2;  // what to do, and a file

SetsAction ParseAction(const std::string& word) {
    if (word == "list") return SetsAction::List;
    if (word == "export") return SetsAction::Export;
    if (word == "import") return SetsAction::Import;
    throw BadOptions("\"" + word + "\" is none of list, export and import");
}

MergeMode ParseMode(const Options& options, SetsAction action) {
    const bool update = options.Has("--update");
    const bool replace = options.Has("--replace");
    if (update && replace) throw BadOptions("either --update or --replace");
    if ((update || replace) && action != SetsAction::Import)
        throw BadOptions("--update and --replace belong to import");
    return update ? MergeMode::Update : replace ? MergeMode::Replace : MergeMode::Add;
}

}  // namespace

const char kSetsHelp[] =
    R"(Usage: jogeond sets list   --user ID [option]...
       jogeond sets export --user ID [option]... [FILE]
       jogeond sets import --user ID [option]... [FILE]

Lists the condition sets that the service stores for a user, writes them to a text file, and reads them back.
Without FILE, or with -, the text goes to standard output and comes from standard input.

  --user ID     whose sets
  --store FILE  the store's file; without it, that of the home, or of the terminal's own home
  --home DIR    the folder that has System, the catalogue, in it; JOGEON_HOME_DATA says it too

An import is all or nothing. Sets get the lowest free numbers; one whose name the user has is a conflict, unless

  --update      it takes the place of the user's set of that name
  --replace     the user's sets are to be those of the file and no other, under the numbers of the file

The file is UTF-8. "form = 1" comes first, then the sets, each behind its number in brackets:

  [00]
  name = "정배열 눌림목"         \" and \\ stand for " and \
  position = buy               or sell
  universe = sectors           or of: interest groups, holdings, themes, news
  account = "12345678901"      for holdings
  groups = 005 012             codes; ALL for all sectors, 0AL for all groups or all themes
  exclude = 관리종목, 우선주     also 투자경고/위험, 투자유의종목, 담보대출불가능, 증거금 100%, 거래정지, and
                               선택종목 for everything but the chosen portfolio
  month = 12                   settlement month
  expression = A and !B
  A = 이동평균 교차 [골든크로스]: 주기=일, 봉전=0, 단기 기간=5, 장기 기간=20, 이동평균=단순
  B off value = RSI [기준값 이상]: ...

A condition stands behind its letter; "off" means that it isn't in use, "value" that its value is shown.
Indicators, variants, parameters and choices have their names of the catalogue. Lines that begin with # are
left alone. A line of the target that is left out means none of it.

The exit code is 0, or 2 when the command failed and nothing was changed.
)";

SetsArguments ParseSetsArguments(const std::vector<std::string>& args) {
    const Options options(args, kOptions, kCommand, kMostWords);
    SetsArguments parsed;
    parsed.help = options.Has("--help");
    if (parsed.help) return parsed;
    const std::vector<std::string>& words = options.Words();
    if (words.empty()) throw BadOptions("say what to do: list, export or import");
    parsed.action = ParseAction(words[0]);
    if (words.size() > 1 && parsed.action == SetsAction::List) throw BadOptions("list takes no file");
    if (words.size() > 1 && words[1] != "-") parsed.file = words[1];
    if (!options.Has("--user")) throw BadOptions("--user ID is missing: it says whose sets");
    parsed.user = UserOption(options, "");
    parsed.mode = ParseMode(options, parsed.action);
    parsed.store = StoreOption(options);
    parsed.home = HomeOption(options);
    return parsed;
}

}  // namespace jogeon
