#include "terminal/stocks/stock_index.h"

#include <algorithm>
#include <set>
#include <utility>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "server/market/instrument_code.h"

namespace jogeon::terminal {
namespace {

using market::kCodeLength;
using service::StockEntry;

// Small letters and blanks gone. Goes by characters: the second byte of one may look like a letter.
std::string Plain(std::string_view name) {
    std::string plain;
    for (std::size_t at = 0; at < name.size();) {
        const std::size_t length = CharacterLength(name, at);
        const std::string_view character = name.substr(at, length);
        if (length == 2)
            plain += character;
        else if (character != " ")
            plain += UpperCase(character);
        at += length;
    }
    return plain;
}

bool IsNumber(std::string_view text) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::vector<std::string_view> Cells(std::string_view line, std::string_view delimiters) {
    std::vector<std::string_view> cells;
    while (!line.empty()) {
        const std::size_t end = std::min(line.find_first_of(delimiters), line.size());
        if (const std::string_view cell = Trim(line.substr(0, end)); !cell.empty()) cells.push_back(cell);
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return cells;
}

// A code with all its characters, with or without the letter of a kind before it.
const StockEntry* ByWholeCode(const StockIndex& stocks, std::string_view cell) {
    const bool lettered = cell.size() == kCodeLength + 1 && (cell.front() == 'A' || cell.front() == 'a');
    return stocks.ByCode(UpperCase(lettered ? cell.substr(1) : cell));
}

const StockEntry* ByNameOrWholeCode(const StockIndex& stocks, std::string_view cell) {
    const StockEntry* named = stocks.ByName(cell);
    return named ? named : ByWholeCode(stocks, cell);
}

// The stocks of one line.
std::vector<const StockEntry*> StocksOfLine(const StockIndex& stocks, std::string_view line) {
    if (line.find('\t') != std::string_view::npos) {
        for (std::string_view cell : Cells(line, "\t"))
            if (const StockEntry* stock = ByNameOrWholeCode(stocks, cell)) return {stock};
        return {};
    }
    if (const StockEntry* stock = ByNameOrWholeCode(stocks, line)) return {stock};
    std::vector<const StockEntry*> found;
    for (std::string_view cell : Cells(line, " ,;")) {
        const StockEntry* stock = ByNameOrWholeCode(stocks, cell);
        if (!stock) return {};
        found.push_back(stock);
    }
    return found;
}

}  // namespace

StockIndex::StockIndex(std::vector<StockEntry> stocks) : stocks_(std::move(stocks)) {
    for (std::size_t i = 0; i < stocks_.size(); ++i) names_.emplace(Plain(stocks_[i].name), i);
}

const StockEntry* StockIndex::ByCode(std::string_view code) const {
    const auto found = std::lower_bound(
        stocks_.begin(), stocks_.end(), code,
        [](const StockEntry& stock, std::string_view wanted) { return stock.code < wanted; });
    return found != stocks_.end() && found->code == code ? &*found : nullptr;
}

const StockEntry* StockIndex::ByWrittenCode(std::string_view text) const {
    text = Trim(text);
    if (text.starts_with('\'')) text.remove_prefix(1);
    if (const StockEntry* stock = ByWholeCode(*this, text)) return stock;
    if (text.starts_with('A') || text.starts_with('a')) text.remove_prefix(1);
    if (text.size() >= kCodeLength || !IsNumber(text)) return nullptr;
    return ByCode(std::string(kCodeLength - text.size(), '0').append(text));
}

const StockEntry* StockIndex::ByName(std::string_view name) const {
    const auto found = names_.find(Plain(name));
    return found == names_.end() ? nullptr : &stocks_[found->second];
}

PastedStocks ReadPastedStocks(const StockIndex& stocks, std::string_view text) {
    PastedStocks pasted;
    std::set<std::string> seen;
    for (std::string_view line : Cells(text, "\r\n")) {
        const std::vector<const StockEntry*> found = StocksOfLine(stocks, line);
        if (found.empty()) pasted.unknown.emplace_back(line);
        for (const StockEntry* stock : found)
            if (seen.insert(stock->code).second) pasted.codes.push_back(stock->code);
    }
    return pasted;
}

}  // namespace jogeon::terminal
