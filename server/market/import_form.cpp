#include "server/market/import_form.h"

#include <algorithm>
#include <cctype>
#include <initializer_list>

#include "server/market/calendar.h"
#include "server/market/instrument_code.h"

namespace jogeon::market {
namespace {

struct ColumnName {
    std::string_view name;
    Column column;
};

constexpr ColumnName kColumnNames[] = {
    {"date", Column::Date},
    {"날짜", Column::Date},
    {"일자", Column::Date},
    {"code", Column::Code},
    {"종목코드", Column::Code},
    {"open", Column::Open},
    {"시가", Column::Open},
    {"high", Column::High},
    {"고가", Column::High},
    {"low", Column::Low},
    {"저가", Column::Low},
    {"close", Column::Close},
    {"종가", Column::Close},
    {"volume", Column::Volume},
    {"거래량", Column::Volume},
    {"name", Column::Name},
    {"종목명", Column::Name},
    {"market", Column::Market},
    {"시장구분", Column::Market},
    {"division", Column::Division},
    {"소속부", Column::Division},
    {"industry", Column::Industry},
    {"업종", Column::Industry},
    {"업종명", Column::Industry},
    {"settlement_month", Column::SettlementMonth},
    {"결산월", Column::SettlementMonth},
    {"listing_date", Column::ListingDate},
    {"상장일", Column::ListingDate},
    {"shares", Column::Shares},
    {"상장주식수", Column::Shares},
    {"eps", Column::EarningsPerShare},
    {"bps", Column::BookValuePerShare},
    {"sales_growth", Column::SalesGrowth},
    {"매출액증가율", Column::SalesGrowth},
    {"operating_margin", Column::OperatingMargin},
    {"영업이익률", Column::OperatingMargin},
    {"roe", Column::ReturnOnEquity},
    {"debt_ratio", Column::DebtRatio},
    {"부채비율", Column::DebtRatio},
    {"dividend_yield", Column::DividendYield},
    {"배당수익률", Column::DividendYield},
    {"no_collateral", Column::NoCollateral},
    {"담보대출불가", Column::NoCollateral},
    {"full_margin", Column::FullMargin},
    {"증거금100", Column::FullMargin},
};

std::string LowerCase(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return text;
}

// `fileName` without .csv, .gz and what else stands behind the first dot.
std::string_view Stem(std::string_view fileName) {
    return fileName.substr(0, fileName.find('.'));
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

std::optional<TableHeader> TableHeader::Read(const CsvFields& fields, SourceText& text) {
    TableHeader header;
    header.fields_ = fields.Count();
    header.at_.fill(-1);
    for (std::size_t i = 0; i < fields.Count(); ++i) {
        const std::string name = LowerCase(text.Decode(fields[i]));
        for (const ColumnName& known : kColumnNames) {
            int& at = header.at_[static_cast<std::size_t>(known.column)];
            if (known.name == name && at < 0) at = static_cast<int>(i);
        }
    }
    const std::optional<Form> form = header.Recognise();
    if (!form) return std::nullopt;
    header.form_ = *form;
    return header;
}

std::optional<Form> TableHeader::Recognise() const {
    const auto hasAll = [this](std::initializer_list<Column> columns) {
        return std::all_of(columns.begin(), columns.end(), [this](Column column) { return Has(column); });
    };
    if (hasAll({Column::Open, Column::High, Column::Low, Column::Close, Column::Volume})) {
        if (Has(Column::Date)) return Has(Column::Code) ? Form::ManyStocks : Form::OneStock;
        if (Has(Column::Code)) return Form::MarketDay;
    }
    if (hasAll({Column::Code, Column::Name})) return Form::Symbols;
    return std::nullopt;
}

std::optional<std::string> CodeInFileName(std::string_view fileName) {
    const std::string_view stem = Stem(fileName);
    return IsInstrumentCode(stem) ? std::optional<std::string>(stem) : std::nullopt;
}

std::optional<int> DateInFileName(std::string_view fileName) {
    for (std::size_t begin = 0; begin < fileName.size();) {
        std::size_t end = begin;
        while (end < fileName.size() && IsDigit(fileName[end])) ++end;
        if (end - begin == 8)
            if (const std::optional<int> date = ParseDate(fileName.substr(begin, 8))) return date;
        begin = end + 1;
    }
    return std::nullopt;
}

}  // namespace jogeon::market
