#include "terminal/interest/holdings_csv.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "server/market/csv_fields.h"
#include "server/market/market.h"
#include "server/market/source_text.h"
#include "server/market/text_lines.h"

namespace jogeon::terminal {
namespace {

using market::CsvFields;
using market::SourceText;
using service::Holding;
using service::StockEntry;

constexpr char kSeparators[] = {',', ';', '\t'};
constexpr long kHeaderWithin = 30;     // lines
constexpr double kMostQuantity = 1e9;  // what the service takes of one stock
constexpr std::size_t kThousands = 3;  // digits behind a separator

// The names of a column, without blanks and units, the better ones first.
using Names = std::span<const std::string_view>;
constexpr std::string_view kCodeNames[] = {"종목코드", "종목번호", "단축코드", "코드",
                                           "code",     "symbol",   "ticker"};
constexpr std::string_view kNameNames[] = {"종목명", "상품명", "종목", "name"};
constexpr std::string_view kQuantityNames[] = {"잔고수량", "보유수량", "수량", "보유량",
                                               "잔고",     "quantity", "qty",  "shares"};
constexpr std::string_view kPriceNames[] = {"매입단가",   "평균단가", "평균매입단가", "매입평균가",
                                            "평균매입가", "평단가",   "매입가",       "averageprice",
                                            "avgprice",   "price"};

// "보유 수량(주)" is 보유수량.
std::string PlainTitle(std::string_view utf8) {
    std::string plain;
    for (char c : utf8.substr(0, utf8.find('('))) {
        if (c == ' ' || c == '_') continue;
        plain += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return plain;
}

// A field that a spreadsheet was told to keep as text, ="005930", is the text in quotes.
std::string WithoutEquals(std::string_view line, char separator) {
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool begins = i == 0 || line[i - 1] == separator;
        if (begins && line.substr(i).starts_with("=\"")) continue;
        text += line[i];
    }
    return text;
}

// Takes out the separators of thousands; none where they stand elsewhere.
std::optional<std::string> WithoutSeparators(std::string_view text) {
    std::string plain;
    const std::size_t whole = std::min(text.find('.'), text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != ',') {
            plain += text[i];
            continue;
        }
        const bool fits = i > 0 && i < whole && (whole - i - 1) % (kThousands + 1) == kThousands;
        if (!fits) return std::nullopt;
    }
    return plain;
}

std::optional<double> Number(std::string_view text) {
    const std::optional<std::string> plain = WithoutSeparators(text);
    return plain ? market::ParseNumber(*plain) : std::nullopt;
}

bool BeginsUtf16(std::string_view file) {
    return file.starts_with("\xff\xfe") || file.starts_with("\xfe\xff");
}

class HoldingsReader {
public:
    HoldingsReader(const std::filesystem::path& path, const StockIndex& stocks)
        : lines_(path), stocks_(stocks) {}

    HoldingsFile Read() {
        file_.fault = FindHeader();
        while (file_.fault == FileFault::None && NextLine())
            if (!IsEmpty()) ReadLine();
        return std::move(file_);
    }

private:
    // Also true for a line that can't be taken apart.
    bool NextLine() {
        const std::optional<std::string_view> line = lines_.Next();
        if (line) TakeApart(*line);
        return line.has_value();
    }

    void TakeApart(std::string_view line) {
        line_ = WithoutEquals(line, separator_);
        whole_ = fields_.Split(line_, separator_);
    }

    bool IsEmpty() const { return whole_ && IsEmptyFrom(0); }

    bool IsEmptyFrom(std::size_t first) const {
        for (std::size_t at = first; at < fields_.Count(); ++at)
            if (!fields_[at].empty()) return false;
        return true;
    }

    FileFault FindHeader() {
        while (lines_.Number() < kHeaderWithin) {
            const std::optional<std::string_view> line = lines_.Next();
            if (!line) break;
            if (lines_.Number() == 1 && BeginsUtf16(*line)) return FileFault::Utf16;
            for (char separator : kSeparators) {
                separator_ = separator;
                TakeApart(*line);
                if (whole_ && IsHeader()) return FileFault::None;
            }
        }
        return FileFault::NoHeader;
    }

    bool IsHeader() {
        titles_.clear();
        for (std::size_t at = 0; at < fields_.Count(); ++at)
            titles_.push_back(PlainTitle(text_.Decode(fields_[at])));
        code_ = ColumnOf(kCodeNames);
        name_ = ColumnOf(kNameNames);
        quantity_ = ColumnOf(kQuantityNames);
        price_ = ColumnOf(kPriceNames);
        return (code_ || name_) && quantity_;
    }

    std::optional<std::size_t> ColumnOf(Names names) const {
        for (std::string_view name : names) {
            const auto found = std::find(titles_.begin(), titles_.end(), name);
            if (found != titles_.end()) return static_cast<std::size_t>(found - titles_.begin());
        }
        return std::nullopt;
    }

    // More fields are a fault if there is something in them: an unquoted 1,234 makes two of one.
    bool HasHeadersFields() const {
        return whole_ && fields_.Count() >= titles_.size() && IsEmptyFrom(titles_.size());
    }

    std::string_view Get(const std::optional<std::size_t>& column) const {
        return column ? fields_[*column] : std::string_view();
    }

    void ReadLine() {
        if (!HasHeadersFields()) return Refuse(LineFault::Unreadable, line_);
        const std::string_view code = Get(code_), name = Get(name_);
        if (code.empty() && name.empty()) return Refuse(LineFault::NoStock, line_);
        const StockEntry* stock = code.empty() ? stocks_.ByName(ToCp949(text_.Decode(name)))
                                               : stocks_.ByWrittenCode(ToCp949(text_.Decode(code)));
        if (!stock) return Refuse(LineFault::UnknownStock, code.empty() ? name : code);
        const std::optional<double> quantity = Number(Get(quantity_));
        if (!quantity || *quantity < 1 || *quantity > kMostQuantity || *quantity != std::floor(*quantity))
            return Refuse(LineFault::BadQuantity, Get(quantity_));
        const std::string_view written = Get(price_);
        const std::optional<double> price = written.empty() ? 0 : Number(written);
        if (!price || *price < 0) return Refuse(LineFault::BadPrice, written);
        Take({stock->code, static_cast<std::int64_t>(*quantity), *price});
    }

    void Take(const Holding& held) {
        for (Holding& earlier : file_.holdings) {
            if (earlier.stock != held.stock) continue;
            const bool priced = earlier.averagePrice > 0 && held.averagePrice > 0;
            const auto before = static_cast<double>(earlier.quantity),
                       now = static_cast<double>(held.quantity);
            const double cost = earlier.averagePrice * before + held.averagePrice * now;
            earlier.averagePrice = priced ? cost / (before + now) : 0;
            earlier.quantity += held.quantity;
            return;
        }
        file_.holdings.push_back(held);
    }

    void Refuse(LineFault fault, std::string_view bytes) {
        file_.refused.push_back({lines_.Number(), fault, text_.Quote(bytes)});
    }

    market::TextLines lines_;
    const StockIndex& stocks_;
    SourceText text_;
    char separator_ = kSeparators[0];
    std::string line_;
    CsvFields fields_;
    bool whole_ = false;  // the line could be taken apart
    std::vector<std::string> titles_;
    std::optional<std::size_t> code_, name_, quantity_, price_;
    HoldingsFile file_;
};

}  // namespace

HoldingsFile ReadHoldings(const std::filesystem::path& path, const StockIndex& stocks) {
    try {
        return HoldingsReader(path, stocks).Read();
    } catch (const market::MarketError& error) {
        HoldingsFile file;
        file.fault = FileFault::Unreadable;
        file.detail = error.what();
        return file;
    }
}

}  // namespace jogeon::terminal
