#include "tests/server/indicators/plain_formulas.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace jogeon::indicators::plain {

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
using Values = std::vector<double>;
using enum Rule::Kind;

double Number(const Roles& roles, int role) {
    return std::atof(roles.at(role).c_str());
}
int Whole(const Roles& roles, int role) {
    return static_cast<int>(Number(roles, role));
}
Run Before(Run run, int bars = 1) {
    return std::ssize(run) > bars ? run.first(run.size() - static_cast<std::size_t>(bars)) : Run();
}
double Divide(double part, double whole) {
    return whole == 0 ? kUnknown : part / whole;
}
Line Constant(double value) {
    return [=](Run) { return value; };
}

double Sma(const Values& values, int n) {
    if (std::ssize(values) < n) return kUnknown;
    double sum = 0;
    for (auto value = values.end() - n; value != values.end(); ++value) sum += *value;
    return sum / n;
}

// All values of a recursive average, from the first known one.
Values Recursive(const Values& values, int n, double alpha) {
    Values averages;
    for (auto next = values.begin(); next != values.end(); ++next)
        if (!averages.empty())
            averages.push_back(averages.back() + alpha * (*next - averages.back()));
        else if (next - values.begin() == n - 1)
            averages.push_back(Sma(Values(values.begin(), next + 1), n));
    return averages;
}
Values Ema(const Values& values, int n) {
    return Recursive(values, n, 2.0 / (n + 1));
}
Values Wilder(const Values& values, int n) {
    return Recursive(values, n, 1.0 / n);
}
double Last(const Values& values) {
    return values.empty() ? kUnknown : values.back();
}

// value(bar) of every bar; value(bar, bar before) of every bar but the first.
template <typename Value>
Values Each(Run run, Value value) {
    Values values;
    for (const Bar& bar : run) values.push_back(value(bar));
    return values;
}
template <typename Value>
Values EachMove(Run run, Value value) {
    Values values;
    for (std::size_t i = 1; i < run.size(); ++i) values.push_back(value(run[i], run[i - 1]));
    return values;
}
Values Closes(Run run) {
    return Each(run, [](const Bar& bar) { return bar.close; });
}
double Close(Run run) {
    return run.empty() ? kUnknown : run.back().close;
}

Line Average(const Roles& roles, int role) {
    const int n = Whole(roles, role);
    if (roles.contains(50) && roles.at(50) == "1") return [=](Run run) { return Last(Ema(Closes(run), n)); };
    return [=](Run run) { return Sma(Closes(run), n); };
}

template <typename Price>
double Extreme(Run run, int n, Price price, double sign) {
    if (std::ssize(run) < n) return kUnknown;
    double best = -1e300;
    for (const Bar& bar : run.last(static_cast<std::size_t>(n))) best = std::max(best, sign * price(bar));
    return sign * best;
}
double High(Run run, int n) {
    return Extreme(
        run, n, [](const Bar& bar) { return bar.high; }, 1);
}
double Low(Run run, int n) {
    return Extreme(
        run, n, [](const Bar& bar) { return bar.low; }, -1);
}
double Middle(Run run, int n) {
    return (High(run, n) + Low(run, n)) / 2;
}
double Disparity(Run run, int n) {
    return Divide(100 * Close(run), Sma(Closes(run), n));
}
double FastK(Run run, int n) {
    return Divide(100 * (Close(run) - Low(run, n)), High(run, n) - Low(run, n));
}
double Williams(Run run, int n) {
    return Divide(100 * (Close(run) - High(run, n)), High(run, n) - Low(run, n));
}
double ChangeOver(Run run, int n) {
    const double then = Close(Before(run, n));
    return Divide(100 * (Close(run) - then), then);
}
double FromHigh(Run run, int n) {
    return Divide(100 * (High(run, n) - Close(run)), High(run, n));
}
double FromLow(Run run, int n) {
    return Divide(100 * (Close(run) - Low(run, n)), Low(run, n));
}
double CloseOf(Run run, int) {
    return Close(run);
}

double Rsi(Run run, int n) {
    const auto up = [](const Bar& now, const Bar& then) { return std::max(now.close - then.close, 0.0); };
    const auto down = [](const Bar& now, const Bar& then) { return std::max(then.close - now.close, 0.0); };
    const double gain = Last(Wilder(EachMove(run, up), n)), loss = Last(Wilder(EachMove(run, down), n));
    return Divide(100 * gain, gain + loss);
}

Values MacdValues(Run run, int a, int b) {
    const Values fast = Ema(Closes(run), a), slow = Ema(Closes(run), b);
    Values line;
    for (std::size_t i = 0; i < slow.size(); ++i)
        line.push_back(fast[fast.size() - slow.size() + i] - slow[i]);
    return line;
}

// The mean of a line over the last n bars of a run.
Line MeanOver(const Line& line, int n) {
    return [=](Run run) {
        double sum = 0;
        for (int k = n - 1; k >= 0; --k) sum += line(Before(run, k));
        return sum / n;
    };
}

double Cci(Run run, int n) {
    const Values p = Each(run, [](const Bar& bar) { return bar.high + bar.low + bar.close; });
    const double mean = Sma(p, n);
    Values distances;
    for (double price : p) distances.push_back(std::abs(price - mean));
    return Divide(Last(p) - mean, 0.015 * Sma(distances, n));
}

double Deviation(Run run, int n) {
    const double mean = Sma(Closes(run), n);
    return std::sqrt(Sma(Each(run, [&](const Bar& bar) { return std::pow(bar.close - mean, 2); }), n));
}
Line Band(int n, double factor) {
    return [=](Run run) { return Sma(Closes(run), n) + factor * Deviation(run, n); };
}

// +DI or -DI of every bar that has it.
Values Directional(Run run, int n, bool plus) {
    const Values moved =
        Wilder(EachMove(run,
                        [=](const Bar& now, const Bar& then) {
                            const double up = now.high - then.high, down = then.low - now.low;
                            return plus ? (up > down && up > 0 ? up : 0) : (down > up && down > 0 ? down : 0);
                        }),
               n);
    const Values range =
        Wilder(EachMove(run,
                        [](const Bar& now, const Bar& then) {
                            return std::max({now.high - now.low, std::abs(now.high - then.close),
                                             std::abs(now.low - then.close)});
                        }),
               n);
    Values index;
    for (std::size_t i = 0; i < range.size(); ++i) index.push_back(Divide(100 * moved[i], range[i]));
    return index;
}

double Adx(Run run, int n) {
    const Values plus = Directional(run, n, true), minus = Directional(run, n, false);
    Values values;
    for (std::size_t i = 0; i < plus.size(); ++i) {
        const double index = Divide(100 * std::abs(plus[i] - minus[i]), plus[i] + minus[i]);
        std::isnan(index) ? values.clear() : values.push_back(index);
    }
    return Last(Wilder(values, n));
}

double VolumeRatio(Run run, int n) {
    const auto volume = [&](double sign) {
        return Sma(EachMove(run,
                            [=](const Bar& now, const Bar& then) {
                                const double move = sign * (now.close - then.close);
                                return move > 0 ? now.volume : move < 0 ? 0 : now.volume / 2;
                            }),
                   n);
    };
    return Divide(100 * volume(1), volume(-1));
}

Values Balance(Run run) {
    Values values(run.empty() ? 0 : 1, 0.0);
    for (double move : EachMove(run, [](const Bar&now, const Bar&then) {
             return now.close > then.close ? now.volume : now.close < then.close ? -now.volume : 0;
         }))
        values.push_back(values.back() + move);
    return values;
}

// How many closes on end went the way of `sign`.
double Streak(Run run, int n, double sign) {
    if (std::ssize(run) <= n) return kUnknown;
    double length = 0;
    for (double move : EachMove(run, [](const Bar&now, const Bar&then) { return now.close - then.close; }))
        length = sign * move > 0 ? length + 1 : 0;
    return length;
}

double VolumePercent(Run run, int n) {
    const auto volume = [](const Bar& bar) { return bar.volume; };
    return run.empty() ? kUnknown : Divide(100 * run.back().volume, Sma(Each(Before(run), volume), n));
}
double TradingValue(Run run, int n) {
    return Sma(Each(run, [](const Bar& bar) { return bar.close * bar.volume; }), n) / 1e8;
}

// ---- variants

template <double (*formula)(Run, int)>
Line OfWindow(const Roles& roles) {
    const int n = roles.contains(40) ? Whole(roles, 40) : 1;
    return [n](Run run) { return formula(run, n); };
}

template <double (*formula)(Run, int)>
std::vector<Rule> Level(const Roles& roles) {
    const Line line = OfWindow<formula>(roles), level = Constant(Number(roles, 60));
    return {{AtLeast, line, {level}},
            {AtMost, line, {level}},
            {Within, line, {level, Constant(Number(roles, 61))}},
            {Up, line, {level}},
            {Down, line, {level}}};
}

template <double (*... formulas)(Run, int)>
std::vector<Rule> Range(const Roles& roles) {
    return {
        {Within, OfWindow<formulas>(roles), {Constant(Number(roles, 60)), Constant(Number(roles, 61))}}...};
}

template <double (*formula)(Run, int)>
std::vector<Rule> Least(const Roles& roles) {
    return {{AtLeast, OfWindow<formula>(roles), {Constant(Number(roles, 60))}}};
}

std::vector<Rule> BothWays(const Line& line, const Line& other) {
    return {{Up, line, {other}}, {Down, line, {other}}};
}

std::vector<Rule> PriceAndAverage(const Roles& roles) {
    const Line average = Average(roles, 40);
    return {{Up, Close, {average}},
            {Down, Close, {average}},
            {Above, Close, {average}},
            {Below, Close, {average}}};
}

std::vector<Rule> AverageCrossing(const Roles& roles) {
    return BothWays(Average(roles, 40), Average(roles, 41));
}

// Whether values[0] > values[1] > ..., with `sign` -1 the other way round; NaN where one is unknown.
double Descend(const Values& values, double sign) {
    double descends = 1;
    for (std::size_t i = 1; i < values.size(); ++i) {
        const double step = sign * (values[i - 1] - values[i]);
        descends = std::isnan(step + descends) ? kUnknown : step > 0 ? descends : 0;
    }
    return descends;
}

std::vector<Rule> AverageOrder(const Roles& roles) {
    const Line a = Average(roles, 40), b = Average(roles, 41), c = Average(roles, 42);
    return {{Says, a, {[=](Run run) {
                 return Descend({a(run), b(run), c(run)}, 1);
             }}},
            {Says, a, {[=](Run run) {
                 return Descend({a(run), b(run), c(run)}, -1);
             }}}};
}

std::vector<Rule> AverageTrend(const Roles& roles) {
    const Line average = Average(roles, 40);
    const int steps = Whole(roles, 41);
    const auto history = [=](Run run) {
        Values values;
        for (int k = 0; k <= steps; ++k) values.push_back(average(Before(run, k)));
        return values;
    };
    return {{Says, average, {[=](Run run) { return Descend(history(run), 1); }}},
            {Says, average, {[=](Run run) { return Descend(history(run), -1); }}}};
}

std::vector<Rule> Macd(const Roles& roles) {
    const int a = Whole(roles, 40), b = Whole(roles, 41), s = Whole(roles, 42);
    const Line line = [=](Run run) { return Last(MacdValues(run, a, b)); };
    const Line signal = [=](Run run) { return Last(Ema(MacdValues(run, a, b), s)); };
    return {
        {Up, line, {signal}}, {Down, line, {signal}}, {Up, line, {Constant(0)}}, {Down, line, {Constant(0)}}};
}

std::vector<Rule> Stochastic(const Roles& roles) {
    const Line k = MeanOver(OfWindow<FastK>(roles), Whole(roles, 41)), d = MeanOver(k, Whole(roles, 42));
    const Line level = Constant(Number(roles, 60));
    return {{Up, k, {d}}, {Down, k, {d}}, {AtMost, k, {level}}, {AtLeast, k, {level}}};
}

std::vector<Rule> Bollinger(const Roles& roles) {
    const int n = Whole(roles, 40);
    const double factor = Number(roles, 60);
    const Line upper = Band(n, factor), lower = Band(n, -factor);
    const Line width = [=](Run run) {
        return Divide(100 * (2 * factor * Deviation(run, n)), Sma(Closes(run), n));
    };
    return {{Up, Close, {upper}},
            {Down, Close, {upper}},
            {Down, Close, {lower}},
            {Up, Close, {lower}},
            {AtMost, width, {Constant(Number(roles, 61))}}};
}

std::vector<Rule> DirectionalCrossing(const Roles& roles) {
    const int n = Whole(roles, 40);
    return BothWays([=](Run run) { return Last(Directional(run, n, true)); },
                    [=](Run run) { return Last(Directional(run, n, false)); });
}

std::vector<Rule> Equilibrium(const Roles& roles) {
    const int a = Whole(roles, 40), b = Whole(roles, 41), c = Whole(roles, 42);
    std::vector<Rule> rules =
        BothWays([=](Run run) { return Middle(run, a); }, [=](Run run) { return Middle(run, b); });
    const Line first = [=](Run run) { return (Middle(Before(run, b), a) + Middle(Before(run, b), b)) / 2; };
    const Line second = [=](Run run) { return Middle(Before(run, b), c); };
    rules.push_back({Above, Close, {first, second}});
    rules.push_back({Below, Close, {first, second}});
    return rules;
}

std::vector<Rule> OnBalance(const Roles& roles) {
    const int n = Whole(roles, 40);
    return BothWays([](Run run) { return Last(Balance(run)); },
                    [=](Run run) { return Sma(Balance(run), n); });
}

std::vector<Rule> NewExtreme(const Roles& roles) {
    const int n = Whole(roles, 40);
    const bool byClose = roles.at(50) == "2";
    const auto high = [=](const Bar& bar) { return byClose ? bar.close : bar.high; };
    const auto low = [=](const Bar& bar) { return byClose ? bar.close : bar.low; };
    return {{Above, [=](Run run) { return Extreme(run, 1, high, 1); }, {[=](Run run) {
                 return Extreme(Before(run), n, high, 1);
             }}},
            {Below, [=](Run run) { return Extreme(run, 1, low, -1); }, {[=](Run run) {
                 return Extreme(Before(run), n, low, -1);
             }}}};
}

std::vector<Rule> Gap(const Roles& roles) {
    const auto gap = [](double Bar::*base) {
        return [=](Run run) {
            if (run.size() < 2) return kUnknown;
            const double from = run[run.size() - 2].*base;
            return 100 * (run.back().open - from) / from;
        };
    };
    const bool fromClose = roles.at(50) == "1";
    return {{AtLeast, gap(fromClose ? &Bar::close : &Bar::high), {Constant(Number(roles, 60))}},
            {AtMost, gap(fromClose ? &Bar::close : &Bar::low), {Constant(-Number(roles, 60))}}};
}

std::vector<Rule> Streaks(const Roles& roles) {
    const int n = Whole(roles, 40);
    return {{AtLeast, [=](Run run) { return Streak(run, n, 1); }, {Constant(n)}},
            {AtLeast, [=](Run run) { return Streak(run, n, -1); }, {Constant(n)}}};
}

struct Pair {
    double before, now, otherBefore, other;
};

// `end`: which of the two ends of Within.
bool Compare(Rule::Kind kind, std::size_t end, const Pair& pair) {
    switch (kind) {
        case AtLeast:
            return pair.now >= pair.other;
        case AtMost:
            return pair.now <= pair.other;
        case Within:
            return end == 0 ? pair.now >= pair.other : pair.now <= pair.other;
        case Above:
            return pair.now > pair.other;
        case Below:
            return pair.now < pair.other;
        case Up:
            return pair.before <= pair.otherBefore && pair.now > pair.other;
        case Down:
            return pair.before >= pair.otherBefore && pair.now < pair.other;
        default:
            return pair.other == 1;
    }
}

}  // namespace

Answer Judge(const Rule& rule, Run run) {
    const double value = rule.line(run), before = rule.line(Before(run));
    const bool crossing = rule.kind == Up || rule.kind == Down;
    bool holds = true, known = !std::isnan(value) && !(crossing && std::isnan(before));
    for (std::size_t i = 0; i < rule.others.size(); ++i) {
        const double other = rule.others[i](run), then = rule.others[i](Before(run));
        known = known && !std::isnan(other) && !(crossing && std::isnan(then));
        holds = holds && Compare(rule.kind, i, {before, value, then, other});
    }
    return !known ? Answer::Unknown : holds ? Answer::True : Answer::False;
}

const std::map<std::string_view, Rules>& Formulas() {
    static const std::map<std::string_view, Rules> formulas = {
        {"010101", PriceAndAverage},
        {"010102", AverageCrossing},
        {"010103", AverageOrder},
        {"010104", AverageTrend},
        {"010105", Level<Disparity>},
        {"010201", Level<Rsi>},
        {"010202", Macd},
        {"010203", Stochastic},
        {"010204", Level<Cci>},
        {"010205", Level<Williams>},
        {"010206", Level<ChangeOver>},
        {"010301", Bollinger},
        {"010302", DirectionalCrossing},
        {"010303", Level<Adx>},
        {"010304", Equilibrium},
        {"010401", Level<VolumeRatio>},
        {"010402", OnBalance},
        {"040101", NewExtreme},
        {"040102", Range<CloseOf>},
        {"040103", Range<ChangeOver>},
        {"040104", Range<ChangeOver>},
        {"040105", Gap},
        {"040106", Streaks},
        {"040107", Range<FromHigh, FromLow>},
        {"040201", Least<VolumePercent>},
        {"040202", Range<VolumePercent>},
        {"040203", Least<TradingValue>},
    };
    return formulas;
}

}  // namespace jogeon::indicators::plain
