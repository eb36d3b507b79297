#include "server/market/import_instruments.h"

#include <cmath>
#include <optional>
#include <utility>

#include "server/market/calendar.h"
#include "server/market/instrument_code.h"

namespace jogeon::market {
namespace {

constexpr std::pair<Column, Fundamental> kFundamentalColumns[] = {
    {Column::EarningsPerShare, Fundamental::EarningsPerShare},
    {Column::BookValuePerShare, Fundamental::BookValuePerShare},
    {Column::SalesGrowth, Fundamental::SalesGrowth},
    {Column::OperatingMargin, Fundamental::OperatingMargin},
    {Column::ReturnOnEquity, Fundamental::ReturnOnEquity},
    {Column::DebtRatio, Fundamental::DebtRatio},
    {Column::DividendYield, Fundamental::DividendYield},
};

constexpr std::pair<Column, Status> kStatusColumns[] = {
    {Column::NoCollateral, Status::NoCollateral},
    {Column::FullMargin, Status::FullMargin},
};

// One line's fields, read into an instrument. An empty field leaves the instrument as it is; the first field
// that can't be read is kept as the line's fault.
class LineReader {
public:
    LineReader(const TableHeader& header, const CsvFields& line, SourceText& text)
        : header_(header), line_(line), text_(text) {}

    const std::string& Fault() const { return fault_; }

    void ReadText(Column column, std::string& to) {
        const std::string_view field = header_.Get(line_, column);
        if (!field.empty()) to = text_.Decode(field);
    }

    void ReadNumber(Column column, const char* what, double& to) {
        const std::string_view field = header_.Get(line_, column);
        if (field.empty()) return;
        if (const std::optional<double> value = ParseNumber(field))
            to = *value;
        else
            Complain(what, field, "is no number");
    }

    void ReadFlag(Column column, const char* what, bool& to) {
        const std::string_view field = header_.Get(line_, column);
        if (field.empty()) return;
        if (field == "1" || field == "Y" || field == "y")
            to = true;
        else if (field == "0" || field == "N" || field == "n")
            to = false;
        else
            Complain(what, field, "is neither 1 nor 0");
    }

    void ReadMonth(int& to) {
        double month = to;
        ReadNumber(Column::SettlementMonth, "settlement month", month);
        if (month < 0 || month > 12 || month != std::floor(month))
            Complain("settlement month", header_.Get(line_, Column::SettlementMonth), "is no month");
        else
            to = static_cast<int>(month);
    }

    void ReadListingDate(int& to) {
        const std::string_view field = header_.Get(line_, Column::ListingDate);
        if (field.empty()) return;
        if (const std::optional<int> date = ParseDate(field))
            to = *date;
        else
            Complain("listing date", field, "is no date");
    }

    void ReadExchange(Exchange& to) {
        const std::string_view field = header_.Get(line_, Column::Market);
        if (field.empty()) return;
        const std::string name = text_.Decode(field);
        if (name == "KOSPI" || name == "유가증권" || name == "거래소")
            to = Exchange::Kospi;
        else if (name == "KOSDAQ" || name == "KOSDAQ GLOBAL" || name == "코스닥")
            to = Exchange::Kosdaq;
        else
            Complain("market", field, "is neither KOSPI nor KOSDAQ");
    }

private:
    void Complain(const char* what, std::string_view field, const char* fault) {
        if (fault_.empty()) fault_ = std::string("the ") + what + " " + text_.Quote(field) + " " + fault;
    }

    const TableHeader& header_;
    const CsvFields& line_;
    SourceText& text_;
    std::string fault_;
};

// The division says why the exchange sets a stock apart.
void SetStatusByDivision(Instrument& instrument) {
    const std::string_view division = instrument.division;
    const auto set = [&](Status status, bool is) {
        instrument.status[static_cast<std::size_t>(status)] = is;
    };
    set(Status::Administrative, division.starts_with("관리종목"));
    set(Status::Alert, division.starts_with("투자주의환기종목") || division.starts_with("투자경고") ||
                           division.starts_with("투자위험"));
}

void ReadCommon(LineReader& reader, Instrument& instrument) {
    reader.ReadExchange(instrument.exchange);
    reader.ReadText(Column::Name, instrument.name);
    reader.ReadText(Column::Division, instrument.division);
    reader.ReadNumber(Column::Shares, "number of shares", instrument.shares);
}

std::string CodeFault(std::string_view code, SourceText& text) {
    if (IsInstrumentCode(code)) return {};
    return text.Quote(code) + " is no stock code";
}

}  // namespace

bool IsForeignMarket(std::string_view name) {
    return name == "KONEX" || name == "코넥스";
}

int ImportInstruments::NumberOf(std::string_view code) {
    if (const std::optional<int> known = builder_.NumberOf(code)) return *known;
    Instrument instrument;
    instrument.code = code;
    origins_.emplace_back();
    return builder_.AddInstrument(std::move(instrument));
}

std::string ImportInstruments::AddSymbol(const TableHeader& header, const CsvFields& line, SourceText& text) {
    const std::string_view code = header.Get(line, Column::Code);
    if (std::string fault = CodeFault(code, text); !fault.empty()) return fault;
    const std::optional<int> known = builder_.NumberOf(code);
    Instrument instrument = known ? builder_.At(*known) : Instrument();
    instrument.code = code;

    LineReader reader(header, line, text);
    ReadCommon(reader, instrument);
    reader.ReadText(Column::Industry, instrument.industry);
    reader.ReadMonth(instrument.settlementMonth);
    reader.ReadListingDate(instrument.listingDate);
    for (const auto& [column, figure] : kFundamentalColumns)
        reader.ReadNumber(column, "figure", instrument.fundamentals[static_cast<std::size_t>(figure)]);
    for (const auto& [column, status] : kStatusColumns)
        reader.ReadFlag(column, "flag", instrument.status[static_cast<std::size_t>(status)]);
    if (!reader.Fault().empty()) return reader.Fault();

    const int number = NumberOf(code);
    builder_.At(number) = std::move(instrument);
    origins_[static_cast<std::size_t>(number)].symbols = true;
    return {};
}

std::string ImportInstruments::AddMarketDay(const TableHeader& header, const CsvFields& line,
                                            SourceText& text, int date) {
    const std::string_view code = header.Get(line, Column::Code);
    if (std::string fault = CodeFault(code, text); !fault.empty()) return fault;
    Instrument told;
    LineReader reader(header, line, text);
    ReadCommon(reader, told);
    if (!reader.Fault().empty()) return reader.Fault();

    const int number = NumberOf(code);
    Origin& origin = origins_[static_cast<std::size_t>(number)];
    Instrument& kept = builder_.At(number);
    const bool counts = !origin.symbols && date >= origin.dayDate;
    if (counts && !header.Get(line, Column::Market).empty()) kept.exchange = told.exchange;
    if (!told.name.empty() && (counts || kept.name.empty())) kept.name = told.name;
    if (!told.division.empty() && (counts || kept.division.empty())) kept.division = told.division;
    if (!std::isnan(told.shares) && (counts || std::isnan(kept.shares))) kept.shares = told.shares;
    if (date > origin.dayDate) origin.dayDate = date;
    return {};
}

void ImportInstruments::Finish() {
    for (int number = 0; number < builder_.Instruments(); ++number) {
        Instrument& instrument = builder_.At(number);
        if (instrument.name.empty()) {
            instrument.name = instrument.code;
            ++unnamed_;
        }
        SetStatusByDivision(instrument);
        instrument.status[static_cast<std::size_t>(Status::Preferred)] = instrument.code.back() != '0';
    }
}

}  // namespace jogeon::market
