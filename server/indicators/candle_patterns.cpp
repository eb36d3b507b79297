// Family P: candle patterns after S. Nison, Japanese Candlestick Charting Techniques, 1991.
//
// The book gives shapes in words; the numbers that make a body "small" or a shadow "long" are ours and
// stand here as constants. A reversal needs a move to reverse: the close before the pattern lies on the
// other side of its mean of five bars.

#include <algorithm>
#include <cmath>

#include "server/indicators/families.h"
#include "server/indicators/moving_average.h"
#include "server/indicators/verdicts.h"

namespace jogeon::indicators {

namespace {

constexpr double kShortShadow = 0.3;  // of the range: a soldier closes near its extreme
constexpr double kHammerShadow = 2;   // of the body: the long side
constexpr double kHammerOther = 0.1;  // of the range: the short side
constexpr double kLeastBody = 0.05;   // of the range: less is a doji, no hammer
constexpr double kLongBody = 0.5;     // of the range
constexpr double kStarBody = 0.3;     // of the body before
constexpr double kDojiBody = 0.1;     // of the range
constexpr int kMoveBars = 5;

// One candle, seen upside down for a bearish pattern: then high and low change places and every price its
// sign, so that one formula serves both directions.
struct Candle {
    double open, high, low, close;

    double Body() const { return std::abs(close - open); }
    double Size() const { return high - low; }
    bool White() const { return close > open; }
    double Top() const { return std::max(open, close); }
    double Bottom() const { return std::min(open, close); }
};

// The candles of a pattern, oldest first, and whether the market fell before it.
struct Candles {
    std::array<Candle, 3> last;
    bool fell;
};

using Shape = bool (*)(const Candles& candles);

bool IsSoldiers(const Candles& candles) {
    for (std::size_t i = 0; i < 3; ++i) {
        const Candle& candle = candles.last[i];
        if (!candle.White() || candle.high - candle.close > kShortShadow * candle.Size()) return false;
        if (i == 0) continue;
        const Candle& before = candles.last[i - 1];
        if (candle.close <= before.close || candle.open < before.open || candle.open > before.close)
            return false;
    }
    return true;
}

bool IsEngulfing(const Candles& candles) {
    const auto& [unused, before, now] = candles.last;
    return candles.fell && before.close < before.open && now.White() && now.open <= before.close &&
           now.close >= before.open && now.Body() > before.Body();
}

bool IsHammer(const Candles& candles) {
    const Candle& now = candles.last[2];
    return candles.fell && now.Size() > 0 && now.Body() >= kLeastBody * now.Size() &&
           now.Bottom() - now.low >= kHammerShadow * now.Body() &&
           now.high - now.Top() <= kHammerOther * now.Size();
}

bool IsStar(const Candles& candles) {
    const auto& [first, star, now] = candles.last;
    return candles.fell && first.close < first.open && first.Body() >= kLongBody * first.Size() &&
           star.Body() <= kStarBody * first.Body() && star.Top() <= first.close && now.White() &&
           now.close > (first.open + first.close) / 2;
}

bool IsDoji(const Candles& candles) {
    const Candle& now = candles.last[2];
    return now.Size() > 0 && now.Body() <= kDojiBody * now.Size();
}

// The last three rows of each price, and the close with its mean before the pattern.
class CandleRows {
public:
    // `length`: candles of the pattern. A pattern of fewer than three sees only as many as it has.
    CandleRows(const Bars& bars, int bar, int length, bool reversal)
        : known_(ColumnAt(bars, PriceField::Close, bar)) {
        for (int k = 0; k < 3; ++k) {
            const int b = bar - 2 + k >= bar - length + 1 ? bar - 2 + k : bar;
            for (int field = 0; field < 4; ++field)
                price_[static_cast<std::size_t>(k)][static_cast<std::size_t>(field)] =
                    ColumnAt(bars, static_cast<PriceField>(field), b);
            known_ = Combine(known_, price_[static_cast<std::size_t>(k)][3], Spoil);
        }
        before_ = known_;
        mean_ = known_;
        if (!reversal) return;
        before_ = ColumnAt(bars, PriceField::Close, bar - length);
        mean_ = Mean(bars, PriceField::Close, bar - length, kMoveBars);
        known_ = Combine(known_, mean_, Spoil);
    }

    // The close of the last bar, where everything that the pattern needs is known.
    const Column& Known() const { return known_; }

    Candles At(std::size_t i, bool upsideDown) const {
        Candles candles{};
        for (std::size_t k = 0; k < 3; ++k) {
            const auto& [open, high, low, close] = price_[k];
            candles.last[k] = upsideDown ? Candle{-open[i], -low[i], -high[i], -close[i]}
                                         : Candle{open[i], high[i], low[i], close[i]};
        }
        candles.fell = upsideDown ? before_[i] > mean_[i] : before_[i] < mean_[i];
        return candles;
    }

private:
    static double Spoil(double value, double other) { return other == other ? value : kMissing; }

    std::array<std::array<Column, 4>, 3> price_;
    Column known_, before_, mean_;
};

// Variant 0 is the pattern as `shape` tells it unless `bearish`, which with variant 1 turns it upside down.
template <Shape shape, int length, bool reversal, bool bearish = false>
Verdict EvaluatePattern(MarketDay& day, const DecodedBlock& condition) {
    const Parameters parameters(condition);
    const Place place = PlaceOf(day, parameters);
    const CandleRows rows(day.GetMarket().BarsOf(place.timeframe), place.bar, length, reversal);
    const bool upsideDown = bearish || parameters.Variant() == 1;
    return Judge(rows.Known(), {}, [&](std::size_t i) { return shape(rows.At(i, upsideDown)); });
}

constexpr int kRoles[] = {20, 30};
constexpr int kVariantRoles[] = {10, 20, 30};

constexpr Indicator kIndicators[] = {
    {"060101", 'P', 610, 1, 0, kRoles, "Three white soldiers. Nison, 1991.",
     EvaluatePattern<IsSoldiers, 3, false>},
    {"060102", 'P', 620, 1, 0, kRoles, "Three black crows. Nison, 1991.",
     EvaluatePattern<IsSoldiers, 3, false, true>},
    {"060201", 'P', 630, 2, 0, kVariantRoles, "Bullish and bearish engulfing. Nison, 1991.",
     EvaluatePattern<IsEngulfing, 2, true>},
    {"060202", 'P', 640, 2, 0, kVariantRoles, "Hammer and shooting star. Nison, 1991.",
     EvaluatePattern<IsHammer, 1, true>},
    {"060203", 'P', 650, 2, 0, kVariantRoles, "Morning and evening star. Nison, 1991.",
     EvaluatePattern<IsStar, 3, true>},
    {"060204", 'P', 660, 1, 0, kRoles, "Doji: hardly any body. Nison, 1991.",
     EvaluatePattern<IsDoji, 1, false>},
};

}  // namespace

std::span<const Indicator> CandleIndicators() {
    return kIndicators;
}

}  // namespace jogeon::indicators
