#include "server/market/import.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "server/market/calendar.h"
#include "server/market/instrument_code.h"

namespace jogeon::market {
namespace {

constexpr long kLinesBetweenReports = 8192;
constexpr std::size_t kNamedSources = 3;

// 0 for a file that isn't there; opening it says so.
std::uint64_t SizeOf(const std::filesystem::path& path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    return error ? 0 : size;
}

// Reads the five numbers of a line; gives back what is wrong with the first that can't be read.
std::string ReadNumbers(ImportTable& table, Bar& bar) {
    struct Part {
        Column column;
        double Bar::*value;
        const char* name;
    };
    static constexpr Part kParts[] = {{Column::Open, &Bar::open, "open"},
                                      {Column::High, &Bar::high, "high"},
                                      {Column::Low, &Bar::low, "low"},
                                      {Column::Close, &Bar::close, "close"},
                                      {Column::Volume, &Bar::volume, "volume"}};
    for (const Part& part : kParts) {
        const std::string_view field = table.Get(part.column);
        const std::optional<double> value = ParseNumber(field);
        if (!value)
            return std::string("the ") + part.name + " " + table.Text().Quote(field) + " is no number";
        bar.*part.value = *value;
    }
    return {};
}

}  // namespace

Import::Import(const ImportOptions& options, ImportListener& listener)
    : options_(options), listener_(listener) {
    for (const auto* const files : {&options_.symbols, &options_.inputs})
        for (const std::filesystem::path& path : *files) bytesInAll_ += SizeOf(path);
}

ImportSummary Import::Read() {
    for (const std::filesystem::path& path : options_.symbols) ReadFile(path, true);
    for (const std::filesystem::path& path : options_.inputs) ReadFile(path, false);
    if (builder_.Bars() == 0) throw MarketError("no bar was found in these files; nothing was written");
    instruments_.Finish();
    builder_.SetSource(DescribeSources());
    summary_.unnamed = instruments_.Unnamed();
    summary_.withoutBars = builder_.InstrumentsWithoutBars();
    summary_.duplicates = builder_.FindDuplicates();
    return std::move(summary_);
}

void Import::ReadFile(const std::filesystem::path& path, bool mustBeSymbols) {
    ImportTable table(path);
    if (mustBeSymbols && table.Header().Kind() != Form::Symbols)
        throw MarketError(table.Name() +
                          ": is no symbols file, which has the columns code and name, and no prices");
    while (table.Next()) {
        std::string fault = table.LineFault();
        if (fault.empty()) fault = ReadLine(table);
        if (!fault.empty()) Reject(table, std::move(fault));
        if (table.LineNumber() % kLinesBetweenReports == 0) Report(table);
    }
    Report(table);
    bytesBefore_ += SizeOf(path);
}

std::string Import::ReadLine(ImportTable& table) {
    const Form form = table.Header().Kind();
    if (form == Form::ManyStocks || form == Form::OneStock) return ReadBar(table);
    if (IsForeignMarket(table.Get(Column::Market))) {
        ++summary_.otherMarkets;
        return {};
    }
    if (form == Form::Symbols) return instruments_.AddSymbol(table.Header(), table.Line(), table.Text());
    std::string fault = instruments_.AddMarketDay(table.Header(), table.Line(), table.Text(), table.Date());
    return fault.empty() ? ReadBar(table) : fault;
}

std::string Import::ReadBar(ImportTable& table) {
    int date = table.Date();
    if (date == 0) {
        const std::string_view field = table.Get(Column::Date);
        const std::optional<int> read = ParseDate(field);
        if (!read) return table.Text().Quote(field) + " is no date";
        date = *read;
    }
    const std::string_view code = table.Code().empty() ? table.Get(Column::Code) : table.Code();
    if (!IsInstrumentCode(code)) return table.Text().Quote(code) + " is no stock code";
    Bar bar;
    if (std::string fault = ReadNumbers(table, bar); !fault.empty()) return fault;
    const BarVerdict verdict = FitBar(bar);
    if (!verdict.fault.empty()) return std::string(verdict.fault);

    builder_.AddFittedBar(instruments_.NumberOf(code), date, bar);
    ++summary_.bars;
    if (verdict.change == BarChange::Halted) ++summary_.halted;
    if (verdict.change == BarChange::Widened) ++summary_.widened;
    return {};
}

void Import::Reject(const ImportTable& table, std::string reason) {
    listener_.OnReject({table.Name(), table.LineNumber(), std::move(reason)});
    if (++summary_.rejects > options_.maxRejects)
        throw MarketError("more than " + std::to_string(options_.maxRejects) +
                          " lines were rejected; nothing was written");
}

void Import::Report(const ImportTable& table) {
    listener_.OnProgress({bytesBefore_ + table.BytesRead(), bytesInAll_, summary_.bars});
}

// The names of the first files that were read, for the user's eyes.
std::string Import::DescribeSources() const {
    std::string names;
    for (std::size_t i = 0; i < std::min(options_.inputs.size(), kNamedSources); ++i) {
        if (i > 0) names += ", ";
        names += options_.inputs[i].filename().string();
    }
    if (options_.inputs.size() > kNamedSources)
        names += " and " + std::to_string(options_.inputs.size() - kNamedSources) + " more";
    return names;
}

}  // namespace jogeon::market
