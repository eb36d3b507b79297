#include "tools/jogeond/search_command.h"

#include <exception>
#include <iostream>
#include <map>
#include <memory>

#include "screen/condition/catalogue.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "server/engine/columns.h"
#include "server/market/generated_market.h"
#include "server/market/market_file.h"
#include "tools/jogeond/condition_source.h"
#include "tools/jogeond/result_printer.h"
#include "tools/jogeond/search_arguments.h"
#include "tools/jogeond/search_session.h"

namespace jogeon {
namespace {

constexpr int kFound = 0;
constexpr int kNoneMatches = 1;
constexpr int kFailed = 2;

constexpr char kAllSectors[] = "0504";
constexpr std::string_view kCodeColumnFid = "9002";  // its place in the output is the first

std::shared_ptr<const market::Market> LoadMarket(const SearchArguments& arguments) {
    std::shared_ptr<const market::Market> market =
        arguments.market.empty() ? market::GenerateMarket() : market::OpenMarket(arguments.market);
    if (arguments.date == 0) return market;
    std::shared_ptr<const market::Market> asOf = market->AsOf(arguments.date);
    if (!asOf) throw SearchFailed("the market has no day as early as --date");
    return asOf;
}

void LoadCatalogue(const SearchArguments& arguments, service::Service& service, Catalogue& catalogue) {
    std::map<std::string, std::vector<std::string>> lists{{kAllSectors, {}}};
    service.FillCodeLists(arguments.user, lists);
    catalogue.Load(arguments.home / "System", lists[kAllSectors]);
    if (catalogue.Indexes().empty())
        throw NoConditions("no catalogue in " + (arguments.home / "System").string() +
                           "; --home DIR names the folder that has System in it");
}

// The columns behind code and name that are printed; the code has its place already.
std::vector<std::size_t> ColumnsToPrint(const ResultSet& result) {
    std::vector<std::size_t> columns;
    for (std::size_t i = 1; i < result.columns.size(); ++i)
        if (result.columns[i]->fid != kCodeColumnFid) columns.push_back(i);
    return columns;
}

bool IsNumber(const ResultColumn& column) {
    const engine::ReplyColumn* known = engine::FindColumn(column.fid);
    return !known || known->number;  // what isn't among the fixed ones is a condition's value
}

PrintedTable TableOf(const ResultSet& result, service::Service& service) {
    const std::vector<std::size_t> columns = ColumnsToPrint(result);
    PrintedTable table;
    table.columns = {{"종목코드", false}, {ToUtf8(result.columns.front()->name), false}};
    for (std::size_t column : columns)
        table.columns.push_back({ToUtf8(result.columns[column]->name), IsNumber(*result.columns[column])});
    for (std::size_t row = 0; row < result.rows.Rows(); ++row) {
        const std::string code(result.rows.Cell(row, 0).substr(1));
        std::vector<std::string> cells{code, ToUtf8(service.StockName(code))};
        for (std::size_t column : columns) cells.push_back(ToUtf8(result.rows.Cell(row, column)));
        table.rows.push_back(std::move(cells));
    }
    return table;
}

int SearchAndPrint(const SearchArguments& arguments) {
    SearchSession session(LoadMarket(arguments), arguments.user, arguments.home);
    Catalogue catalogue;
    LoadCatalogue(arguments, session.Service(), catalogue);
    const std::shared_ptr<CSavedIndexInfo> set =
        arguments.conditions.empty() ? FindSet(arguments.home, arguments.user, arguments.set, catalogue)
                                     : ReadConditionsFile(arguments.conditions, catalogue);
    if (arguments.market.empty())
        std::cerr << "jogeond search: no --market given; searching the generated market\n";
    const ResultSet result = session.Search(*set);
    if (result.rows.Rows() == 0) {
        std::cerr << "no stock matches\n";
        if (arguments.format == OutputFormat::Json) std::cout << "[]\n";
        return kNoneMatches;
    }
    Print(std::cout, TableOf(result, session.Service()), arguments.format);
    if (!std::cout.flush()) throw SearchFailed("the result can't be written");
    return kFound;
}

// A message of several lines becomes one: what follows the command's name is one line.
std::string OneLine(std::string_view text) {
    return ReplaceAll(ReplaceAll(text, "\r", ""), "\n", " ");
}

}  // namespace

int RunSearch(const std::vector<std::string>& args) {
    try {
        const SearchArguments arguments = ParseSearchArguments(args);
        if (!arguments.help) return SearchAndPrint(arguments);
        std::cout << kSearchHelp;
        return kFound;
    } catch (const std::exception& error) {
        std::cerr << "jogeond search: " << OneLine(error.what()) << '\n';
        return kFailed;
    }
}

}  // namespace jogeon
