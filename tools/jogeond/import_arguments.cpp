#include "tools/jogeond/import_arguments.h"

#include <charconv>
#include <cstddef>

namespace jogeon {
namespace {

std::size_t ParseCount(const std::string& option, const std::string& text) {
    std::size_t count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    if (error != std::errc() || end != text.data() + text.size())
        throw BadOptions(option + " needs a number from 0 up, not \"" + text + "\"");
    return count;
}

// An import that fails after reading must not have cost the user one of its inputs, nor one that succeeds.
void CheckOutIsNoInput(const ImportArguments& arguments) {
    for (const auto* const files : {&arguments.options.symbols, &arguments.options.inputs})
        for (const std::filesystem::path& input : *files) {
            std::error_code error;
            if (std::filesystem::equivalent(input, arguments.out, error) && !error)
                throw BadOptions("--out names " + input.string() + ", which is one of the files to read");
        }
}

}  // namespace

const char kImportHelp[] =
    R"(Usage: jogeond import --out FILE [--symbols FILE]... [--max-rejects N] INPUT...

Reads tables of prices and writes a market file. All or nothing: when it fails, FILE is as it was.

  --out FILE         the market file to write
  --symbols FILE     a symbols file; may be given more than once
  --max-rejects N    fail when more than N lines can't be used (1000)

Each INPUT is comma-separated text, UTF-8 or CP949, gzipped or not. Its header says what it is; columns may
stand in any order, under their English or Korean names, and others are left alone:

  bars of many stocks  date,code,open,high,low,close,volume
  bars of one stock    the same without the code, which is the file's name: 005930.csv
  one market day       종목코드,종목명,시장구분,소속부,종가,시가,고가,저가,거래량,상장주식수
                       the file's name holds the date: market_20260320.csv
  symbols              code,name,market,division,industry,settlement_month,listing_date,shares
                       and, as far as known: eps,bps (won), sales_growth,operating_margin,roe,debt_ratio,
                       dividend_yield (percent), no_collateral,full_margin (1 or 0)

Volume 0 with no prices but the close is a halted day. Of two bars for one stock and day the last one counts.
What a symbols file says of a stock counts before what a market day says.
)";

ImportArguments ParseImportArguments(const std::vector<std::string>& args) {
    ImportArguments parsed;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (optionsEnded || !args[i].starts_with('-')) {
            parsed.options.inputs.emplace_back(args[i]);
            continue;
        }
        const std::size_t equals = args[i].find('=');
        const std::string name = args[i].substr(0, equals);
        const auto value = [&]() -> std::string {
            if (equals != std::string::npos) return args[i].substr(equals + 1);
            if (i + 1 == args.size()) throw BadOptions(name + " needs a value behind it");
            return args[++i];
        };
        if (name == "--help" || name == "-h")
            parsed.help = true;
        else if (name == "--out")
            parsed.out = value();
        else if (name == "--symbols")
            parsed.options.symbols.emplace_back(value());
        else if (name == "--max-rejects")
            parsed.options.maxRejects = ParseCount(name, value());
        else if (name == "--")
            optionsEnded = true;
        else
            throw BadOptions("unknown option " + name + "; \"jogeond import --help\" lists them");
    }
    if (parsed.help) return parsed;
    if (parsed.out.empty()) throw BadOptions("--out FILE is missing: it names the market file to write");
    if (parsed.options.inputs.empty()) throw BadOptions("no input: name at least one table of prices");
    CheckOutIsNoInput(parsed);
    return parsed;
}

}  // namespace jogeon
