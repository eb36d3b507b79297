#include "server/market/import_table.h"

#include <optional>

#include "server/market/market.h"

namespace jogeon::market {

ImportTable::ImportTable(const std::filesystem::path& path)
    : name_(path.string()), lines_(path), header_(ReadHeader()) {
    ReadFileName(path.filename().string());
}

void ImportTable::Fail(const char* what) const {
    throw MarketError(name_ + ": " + what);
}

TableHeader ImportTable::ReadHeader() {
    const std::optional<std::string_view> line = lines_.Next();
    if (!line) Fail("is empty");
    std::optional<TableHeader> header;
    if (line_.Split(*line)) header = TableHeader::Read(line_, text_);
    if (!header)
        Fail("has an unknown header; a table of bars has, for one, date,code,open,high,low,close,volume");
    return *header;
}

void ImportTable::ReadFileName(const std::string& fileName) {
    if (header_.Kind() == Form::OneStock) {
        const std::optional<std::string> code = CodeInFileName(fileName);
        if (!code) Fail("has the bars of one stock, so that its name must be the code, as in 005930.csv");
        code_ = *code;
    }
    if (header_.Kind() == Form::MarketDay) {
        const std::optional<int> date = DateInFileName(fileName);
        if (!date) Fail("has one day of the market, so that its name must hold the date, as in 20260320.csv");
        date_ = *date;
    }
}

bool ImportTable::Next() {
    std::optional<std::string_view> line;
    do line = lines_.Next();
    while (line && line->empty());
    if (!line) return false;
    lineFault_.clear();
    if (!line_.Split(*line))
        lineFault_ = "a quoted field isn't closed, or has text beside it";
    else if (line_.Count() != header_.Fields())
        lineFault_ = "has " + std::to_string(line_.Count()) + " fields, the header has " +
                     std::to_string(header_.Fields());
    return true;
}

}  // namespace jogeon::market
