// The forms of table that import reads, told apart by their header.
//
//   bars of many stocks   date,code,open,high,low,close,volume
//   bars of one stock     날짜,시가,고가,저가,종가,거래량     the code is the file's name: 005930.csv
//   one market day        종목코드,종목명,시장구분,소속부,종가,시가,고가,저가,거래량,상장주식수
//                         the date is in the file's name, as eight digits
//   symbols               code,name,market,division,industry,settlement_month,listing_date,shares and, where
//                         the user has them, eps,bps,sales_growth,operating_margin,roe,debt_ratio,
//                         dividend_yield,no_collateral,full_margin
//
// Columns may stand in any order, under their English or Korean names; others are left alone.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "server/market/csv_fields.h"
#include "server/market/source_text.h"

namespace jogeon::market {

enum class Column {
    Date,
    Code,
    Open,
    High,
    Low,
    Close,
    Volume,
    Name,
    Market,
    Division,
    Industry,
    SettlementMonth,
    ListingDate,
    Shares,
    EarningsPerShare,
    BookValuePerShare,
    SalesGrowth,
    OperatingMargin,
    ReturnOnEquity,
    DebtRatio,
    DividendYield,
    NoCollateral,
    FullMargin,
    Count
};

enum class Form { ManyStocks, OneStock, MarketDay, Symbols };

class TableHeader {
public:
    // Reads a header line that has been split; none if it is of no known form.
    static std::optional<TableHeader> Read(const CsvFields& fields, SourceText& text);

    Form Kind() const { return form_; }

    // How many fields each line has.
    std::size_t Fields() const { return fields_; }

    // The field of `line` in that column; empty where the table has no such column.
    std::string_view Get(const CsvFields& line, Column column) const {
        const int at = at_[static_cast<std::size_t>(column)];
        return at < 0 ? std::string_view() : line[static_cast<std::size_t>(at)];
    }

private:
    bool Has(Column column) const { return at_[static_cast<std::size_t>(column)] >= 0; }
    std::optional<Form> Recognise() const;

    Form form_ = Form::Symbols;
    std::size_t fields_ = 0;
    std::array<int, static_cast<std::size_t>(Column::Count)> at_{};
};

// What the file's name tells. The code is the whole name before .csv or .csv.gz.
std::optional<std::string> CodeInFileName(std::string_view fileName);
std::optional<int> DateInFileName(std::string_view fileName);

}  // namespace jogeon::market
