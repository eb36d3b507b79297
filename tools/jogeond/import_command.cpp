#include "tools/jogeond/import_command.h"

#include <algorithm>
#include <cstdio>
#include <exception>

#include "server/market/market_file.h"
#include "tools/jogeond/import_arguments.h"
#include "tools/jogeond/import_progress.h"

namespace jogeon {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 2;
constexpr std::size_t kShownDuplicates = 5;

void PrintDuplicates(const std::vector<market::MarketBuilder::Duplicate>& duplicates) {
    if (duplicates.empty()) return;
    std::printf("  %zu bars were given more than once, the last one counts:", duplicates.size());
    for (std::size_t i = 0; i < std::min(duplicates.size(), kShownDuplicates); ++i)
        std::printf(" %s on %d%s", duplicates[i].code.c_str(), duplicates[i].date,
                    i + 1 < duplicates.size() ? "," : "");
    std::printf("%s\n", duplicates.size() > kShownDuplicates ? " ..." : "");
}

// One line for each thing that happened at all.
void PrintCount(std::size_t count, const char* what) {
    if (count > 0) std::printf("  %zu %s\n", count, what);
}

void PrintSummary(const market::Market& market, const market::ImportSummary& summary,
                  const std::filesystem::path& out) {
    const market::Bars& days = market.BarsOf(market::Timeframe::Day);
    std::printf("%s: %zu bars of %zu stocks on %d trading days, %d to %d\n", out.string().c_str(),
                summary.bars - summary.duplicates.size(), market.Instruments().size(), days.Count(),
                days.Date(0), market.LastDate());
    PrintCount(summary.rejects, "lines rejected");
    PrintCount(summary.halted, "halted days");
    PrintCount(summary.widened,
               "bars with the open or close just outside of high and low, which now hold them");
    PrintCount(summary.otherMarkets, "lines of other markets left out");
    PrintCount(static_cast<std::size_t>(summary.unnamed), "stocks without a name in any file");
    PrintCount(static_cast<std::size_t>(summary.withoutBars), "stocks without a bar");
    PrintDuplicates(summary.duplicates);
}

void ImportTo(const ImportArguments& arguments) {
    ImportProgressLine progress;
    try {
        market::Import import(arguments.options, progress);
        const market::ImportSummary summary = import.Read();
        progress.Say("writing");
        const std::shared_ptr<const market::Market> market = import.Builder().Build();
        market::WriteMarket(*market, arguments.out);
        progress.Clear();
        PrintSummary(*market, summary, arguments.out);
    } catch (...) {
        progress.Clear();
        throw;
    }
}

}  // namespace

int RunImport(const std::vector<std::string>& args) {
    try {
        const ImportArguments arguments = ParseImportArguments(args);
        if (arguments.help)
            std::fputs(kImportHelp, stdout);
        else
            ImportTo(arguments);
        return kDone;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "jogeond import: %s\n", error.what());
        return kFailed;
    }
}

}  // namespace jogeon
