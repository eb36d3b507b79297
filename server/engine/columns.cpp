#include "server/engine/columns.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "server/engine/last_day.h"
#include "server/engine/sectors.h"
#include "server/engine/year_range.h"

namespace jogeon::engine {
namespace {

using indicators::MarketDay;
using market::Exchange;
using market::Fundamental;
using market::Instrument;
using market::PriceField;

constexpr double kMillion = 1e6;
constexpr double kHundredMillion = 1e8;  // 억
constexpr int kFirstValueFid = 9501;

const Instrument& Of(MarketDay& day, std::size_t stock) {
    return day.GetMarket().Instruments()[stock];
}

double Today(MarketDay& day, PriceField field, std::size_t stock) {
    return DayValue(day.GetMarket(), field, stock);
}

template <PriceField field>
std::string DayText(MarketDay& day, std::size_t stock) {
    return NumberText(Today(day, field, stock), 0);
}

double Change(MarketDay& day, std::size_t stock) {
    return Today(day, PriceField::Close, stock) - DayValue(day.GetMarket(), PriceField::Close, stock, 1);
}

std::string ChangeText(MarketDay& day, std::size_t stock) {
    return NumberText(Change(day, stock), 0);
}

std::string ChangeRateText(MarketDay& day, std::size_t stock) {
    return NumberText(Change(day, stock) / DayValue(day.GetMarket(), PriceField::Close, stock, 1) * 100, 2);
}

// Sources give no turnover; the close stands for the day's mean price.
std::string TurnoverText(MarketDay& day, std::size_t stock) {
    const double won = Today(day, PriceField::Close, stock) * Today(day, PriceField::Volume, stock);
    return NumberText(won / kMillion, 0);
}

std::string MarketValueText(MarketDay& day, std::size_t stock) {
    return NumberText(MarketValue(day.GetMarket(), stock) / kHundredMillion, 0);
}

// Price over a figure per share. A loss has no price-earnings ratio, nor has a debt a price-book ratio.
template <Fundamental figure>
std::string RatioText(MarketDay& day, std::size_t stock) {
    const double perShare = Of(day, stock).Get(figure);
    return perShare > 0 ? NumberText(Today(day, PriceField::Close, stock) / perShare, 2) : std::string();
}

std::string YearHighText(MarketDay& day, std::size_t stock) {
    return NumberText((*YearRange(day))[kYearHigh].now[stock], 0);
}

std::string YearLowText(MarketDay& day, std::size_t stock) {
    return NumberText((*YearRange(day))[kYearLow].now[stock], 0);
}

constexpr int kVolumeDays = 20;

std::string MeanVolumeText(MarketDay& day, std::size_t stock) {
    return NumberText(MeanOfDays(day.GetMarket(), PriceField::Volume, stock, kVolumeDays), 0);
}

std::string CodeText(MarketDay& day, std::size_t stock) {
    return Of(day, stock).code;
}

// The sector that the stock is sorted into, under the name it has where targets are chosen.
std::string SectorText(MarketDay& day, std::size_t stock) {
    const std::string& industry = Of(day, stock).industry;
    return industry.empty() ? std::string()
                            : ToCp949(AllSectors()[static_cast<std::size_t>(SectorOf(industry))].name);
}

std::string ExchangeText(MarketDay& day, std::size_t stock) {
    return Of(day, stock).exchange == Exchange::Kospi ? "거래소"_cp949 : "코스닥"_cp949;
}

constexpr ReplyColumn kColumns[] = {
    {"9002", "종목코드", 6, false, CodeText},
    {"9003", "현재가", 9, true, DayText<PriceField::Close>},
    {"9004", "전일대비", 9, true, ChangeText},
    {"9005", "등락률(%)", 8, true, ChangeRateText},
    {"9006", "거래량", 12, true, DayText<PriceField::Volume>},
    {"9007", "거래대금(백만)", 10, true, TurnoverText},
    {"9008", "시가", 9, true, DayText<PriceField::Open>},
    {"9009", "고가", 9, true, DayText<PriceField::High>},
    {"9010", "저가", 9, true, DayText<PriceField::Low>},
    {"9011", "시가총액(억)", 10, true, MarketValueText},
    {"9012", "PER", 9, true, RatioText<Fundamental::EarningsPerShare>},
    {"9013", "PBR", 9, true, RatioText<Fundamental::BookValuePerShare>},
    {"9014", "52주 최고", 9, true, YearHighText},
    {"9015", "52주 최저", 9, true, YearLowText},
    {"9016", "20일 평균거래량", 12, true, MeanVolumeText},
    {"9017", "업종", 16, false, SectorText},
    {"9018", "시장", 6, false, ExchangeText},
};

}  // namespace

std::span<const ReplyColumn> AllColumns() {
    return kColumns;
}

const ReplyColumn* FindColumn(std::string_view fid) {
    const auto found = std::find_if(std::begin(kColumns), std::end(kColumns),
                                    [fid](const ReplyColumn& column) { return column.fid == fid; });
    return found == std::end(kColumns) ? nullptr : found;
}

std::string ValueColumnFid(char letter) {
    return Decimal(kFirstValueFid + (letter - 'A'));
}

std::string MarketAndCode(const Instrument& stock) {
    return (stock.exchange == Exchange::Kospi ? 'K' : 'Q') + stock.code;
}

std::string NumberText(double value, int decimals) {
    if (!std::isfinite(value)) return {};
    std::array<char, 400> digits;  // the largest double has 309 before the point
    const std::to_chars_result end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                                   std::chars_format::fixed, decimals);
    std::string text(digits.data(), end.ptr);
    const bool isZero = text.find_first_not_of("-0.") == std::string::npos;
    return isZero && text.starts_with('-') ? text.substr(1) : text;
}

std::string NumberField(const std::string& text, int width) {
    const std::size_t room = static_cast<std::size_t>(width);
    return text.size() > room ? std::string(room, '*') : LeftIn(text, room);
}

std::string TextField(const std::string& text, int width) {
    const std::size_t room = static_cast<std::size_t>(width);
    return LeftIn(CutToBytes(text, room), room);
}

std::string CellField(const ReplyColumn& column, MarketDay& day, std::size_t stock) {
    const std::string text = column.text(day, stock);
    return column.number ? NumberField(text, column.width) : TextField(text, column.width);
}

}  // namespace jogeon::engine
