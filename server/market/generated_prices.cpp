#include "server/market/generated_prices.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "server/market/tick_size.h"

namespace jogeon::market {
namespace {

constexpr double kLowestPrice = 150;  // won; a stock that falls further would be delisted

// A trend of the stock's own that lasts some weeks.
class OwnTrend {
public:
    explicit OwnTrend(double volatility) : volatility_(volatility) {}

    double Next(RandomNumbers& random) {
        if (daysLeft_-- <= 0) {
            daysLeft_ = 10 + random.Below(50);
            drift_ = random.Chance(0.4) ? 0 : 0.12 * volatility_ * random.Normal();
        }
        return drift_;
    }

private:
    double volatility_;
    double drift_ = 0;
    int daysLeft_ = 0;
};

// Shares traded: busy times last, large moves and news bring many.
class VolumeModel {
public:
    explicit VolumeModel(double typical) : typical_(typical) {}

    // `size`: the day's move in deviations; `news`: whether something sudden happened.
    double Next(double size, bool news, RandomNumbers& random) {
        business_ = 0.88 * business_ + 0.28 * random.Normal();
        excitement_ = 0.60 * excitement_ + (news ? random.Between(1.5, 2.8) : 0.0);
        const double level = business_ + excitement_ + 0.45 * (std::min(size, 5.0) - 0.8);
        return std::max(1.0, std::floor(typical_ * RoughExp(level)));
    }

private:
    double typical_;
    double business_ = 0;    // logarithm of how busy it has been lately
    double excitement_ = 0;  // of what news have left
};

class StockPath {
public:
    StockPath(const StockModel& model, RandomNumbers random)
        : model_(model),
          random_(random),
          volatility_(model.volatility),
          trend_(model.volatility),
          volume_(model.dailyVolume),
          value_(model.startPrice),
          close_(RoundToTick(model.startPrice)) {}

    Bar HaltedDay() const {
        const double price = close_;
        return {price, price, price, price, 0};
    }

    Bar TradedDay(double common) {
        const double deviation = volatility_.Deviation();
        const bool news = random_.Chance(model_.shock);
        const double surprise = deviation * random_.Normal();
        double move = common + trend_.Next(random_) + surprise + Pull();
        if (news) {
            const bool good = random_.Chance(0.6);
            move += random_.Between(0.04, 0.34) * (good ? 1 : -0.8);
        }
        volatility_.Learn(news ? surprise * 3 : surprise);

        upper_ = UpperLimit(close_);
        lower_ = LowerLimit(close_);
        const int before = close_;
        value_ = std::max(value_ * (1 + std::clamp(move, -0.35, 0.35)), kLowestPrice);
        close_ = Permit(value_);
        if (close_ == upper_ || close_ == lower_) value_ = close_;
        return MakeBar(before, deviation, news);
    }

private:
    double Pull() const { return model_.pull * (model_.startPrice - value_) / (model_.startPrice + value_); }

    int Permit(double price) const { return std::clamp(RoundToTick(price), lower_, upper_); }

    Bar MakeBar(int before, double deviation, bool news) {
        const double move = static_cast<double>(close_) / before - 1;
        // News come before the opening as often as not.
        const double known = news ? random_.Uniform() : 0.35;
        const double overnight = move * known + 0.35 * deviation * random_.Normal();
        const int open = Permit(before * (1 + overnight));
        const double reach = 0.55 * deviation;
        const double above = reach * std::abs(random_.Normal());
        const double below = reach * std::abs(random_.Normal());
        const int high = std::max({Permit(std::max(open, close_) * (1 + above)), open, close_});
        const int low = std::min({Permit(std::min(open, close_) * (1 - below)), open, close_});
        const double volume = volume_.Next(std::abs(move) / deviation, news, random_);
        return {static_cast<double>(open), static_cast<double>(high), static_cast<double>(low),
                static_cast<double>(close_), volume};
    }

    const StockModel& model_;
    RandomNumbers random_;
    Volatility volatility_;
    OwnTrend trend_;
    VolumeModel volume_;
    double value_;  // what the stock is worth, between the ticks
    int close_;     // of the last day
    int upper_ = 0;
    int lower_ = 0;
};

bool AnyHolds(const std::vector<DaySpan>& spans, int day) {
    return std::any_of(spans.begin(), spans.end(), [day](const DaySpan& span) { return span.Holds(day); });
}

}  // namespace

std::vector<GeneratedDay> MakePrices(const StockModel& model, std::span<const double> common,
                                     RandomNumbers random) {
    std::vector<GeneratedDay> days(common.size());
    StockPath path(model, random);
    for (int day = model.firstDay; day < static_cast<int>(days.size()); ++day) {
        GeneratedDay& made = days[static_cast<std::size_t>(day)];
        if (AnyHolds(model.gaps, day)) continue;
        made.kind = AnyHolds(model.halts, day) ? DayKind::Halted : DayKind::Traded;
        made.bar = made.kind == DayKind::Halted ? path.HaltedDay()
                                                : path.TradedDay(common[static_cast<std::size_t>(day)]);
    }
    return days;
}

}  // namespace jogeon::market
