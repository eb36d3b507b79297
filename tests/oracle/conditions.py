"""Conditions of a saved set, judged stock by stock: True, False, or None where it can't be known."""

import formulas as f


def crosses(line, other, run, up):
    values = line(run[:-1]), line(run), other(run[:-1]), other(run)
    if None in values:
        return None
    before, now, other_before, other_now = values
    if up:
        return before <= other_before and now > other_now
    return before >= other_before and now < other_now


def constant(level):
    return lambda run: level


def compare(value, test):
    return None if value is None else test(value)


def level(line, run, role, variant):
    value, base = line(run), float(role[60])
    if variant == 0:
        return compare(value, lambda v: v >= base)
    if variant == 1:
        return compare(value, lambda v: v <= base)
    if variant == 2:
        return compare(value, lambda v: base <= v <= float(role[61]))
    return crosses(line, constant(base), run, variant == 3)


def within(value, role):
    return compare(value, lambda v: float(role[60]) <= v <= float(role[61]))


# ---- conditions on the run of one stock: judge(run, role, variant)

def price_and_average(run, role, variant):
    line = f.average(int(role[40]), role[50])
    if variant < 2:
        return crosses(f.close, line, run, variant == 0)
    return compare(line(run), lambda v: f.close(run) > v if variant == 2 else f.close(run) < v)


def average_crossing(run, role, variant):
    return crosses(f.average(int(role[40]), role[50]), f.average(int(role[41]), role[50]), run, variant == 0)


def average_order(run, role, variant):
    values = [f.average(int(role[k]), role[50])(run) for k in (40, 41, 42)]
    if None in values:
        return None
    a, b, c = values
    return a > b > c if variant == 0 else a < b < c


def average_trend(run, role, variant):
    line, steps = f.average(int(role[40]), role[50]), int(role[41])
    values = [line(run[:len(run) - k]) if len(run) > k else None for k in range(steps, -1, -1)]
    if None in values:
        return None
    return all(b > a if variant == 0 else b < a for a, b in zip(values, values[1:]))


def level_of(make):
    return lambda run, role, variant: level(make(int(role[40])), run, role, variant)


def macd(run, role, variant):
    a, b = int(role[40]), int(role[41])
    other = f.macd_signal(a, b, int(role[42])) if variant < 2 else constant(0)
    return crosses(f.macd(a, b), other, run, variant % 2 == 0)


def stochastic(run, role, variant):
    k = f.slow_k(int(role[40]), int(role[41]))
    if variant < 2:
        return crosses(k, f.slow_d(int(role[40]), int(role[41]), int(role[42])), run, variant == 0)
    return level(k, run, role, 1 if variant == 2 else 0)


def bollinger(run, role, variant):
    n, factor = int(role[40]), float(role[60])
    if variant == 4:
        return compare(f.band_width(n, factor)(run), lambda v: v <= float(role[61]))
    return crosses(f.close, f.band(n, factor if variant < 2 else -factor), run, variant in (0, 3))


def directional(run, role, variant):
    n = int(role[40])
    return crosses(f.plus_di(n), f.minus_di(n), run, variant == 0)


def equilibrium(run, role, variant):
    a, b = int(role[40]), int(role[41])
    if variant < 2:
        return crosses(f.middle(a), f.middle(b), run, variant == 0)
    c = int(role[42])
    then = run[:-b]
    if len(then) < max(a, b, c):
        return None
    spans = (f.middle(a)(then) + f.middle(b)(then)) / 2, f.middle(c)(then)
    return f.close(run) > max(spans) if variant == 2 else f.close(run) < min(spans)


def on_balance(run, role, variant):
    return crosses(f.obv, f.obv_mean(int(role[40])), run, variant == 0)


def new_extreme(run, role, variant):
    n = int(role[40])
    if len(run) <= n:
        return None
    name = "close" if role[50] == "2" else "high" if variant == 0 else "low"
    prices = [getattr(bar, name) for bar in run[-n - 1:]]
    return prices[-1] > max(prices[:-1]) if variant == 0 else prices[-1] < min(prices[:-1])


def price_range(run, role, variant):
    return within(f.close(run), role)


def change(run, role, variant):
    return within(f.roc(int(role.get(40, 1)))(run), role)


def gap(run, role, variant):
    if len(run) < 2:
        return None
    name = "close" if role[50] == "1" else "high" if variant == 0 else "low"
    percent = f.percent_change(run[-1].open, getattr(run[-2], name))
    least = float(role[60])
    return percent >= least if variant == 0 else percent <= -least


def streak(run, role, variant):
    n = int(role[40])
    if len(run) <= n:
        return None
    moves = [now.close - before.close for before, now in f.changes(run[-n - 1:])]
    return all(move > 0 if variant == 0 else move < 0 for move in moves)


def distance(run, role, variant):
    n = int(role[40])
    if len(run) < n:
        return None
    base = f.highest(run, n) if variant == 0 else f.lowest(run, n)
    part = base - f.close(run) if variant == 0 else f.close(run) - base
    return within(f.quotient(100 * part, base), role)


def volume_percent(run, n):
    if len(run) <= n:
        return None
    return f.quotient(100 * run[-1].volume, f.mean([bar.volume for bar in run[-n - 1:-1]]))


def volume_of_mean(run, role, variant):
    return compare(volume_percent(run, int(role[40])), lambda v: v >= float(role[60]))


def volume_of_previous(run, role, variant):
    return within(volume_percent(run, 1), role)


def trading_value(run, role, variant):
    n = int(role[40])
    if len(run) < n:
        return None
    return f.total(bar.close * bar.volume for bar in run[-n:]) / (n * 1e8) >= float(role[60])


def pattern(shape, sign=1):
    return lambda run, role, variant: shape(run, -sign if variant == 1 else sign)


OF_RUN = {
    "010101": price_and_average, "010102": average_crossing, "010103": average_order,
    "010104": average_trend, "010105": level_of(f.disparity), "010201": level_of(f.rsi), "010202": macd,
    "010203": stochastic, "010204": level_of(f.cci), "010205": level_of(f.williams),
    "010206": level_of(f.roc), "010301": bollinger, "010302": directional, "010303": level_of(f.adx),
    "010304": equilibrium, "010401": level_of(f.volume_ratio), "010402": on_balance,
    "040101": new_extreme, "040102": price_range, "040103": change, "040104": change, "040105": gap,
    "040106": streak, "040107": distance, "040201": volume_of_mean, "040202": volume_of_previous,
    "040203": trading_value,
    "060101": pattern(f.soldiers), "060102": pattern(f.soldiers, -1), "060201": pattern(f.engulfing),
    "060202": pattern(f.hammer), "060203": pattern(f.star), "060204": pattern(f.doji),
}


# ---- figures of the last day: figure(market, stock)

def last_bar(market, stock, ago=0):
    bars = market.bars(stock, "D")
    return bars[-1 - ago] if len(bars) > ago else None


def capitalization(market, stock):
    bar = last_bar(market, stock)
    return bar.close * stock.shares / 1e8 if bar and stock.shares is not None else None


def multiple(name):
    def figure(market, stock):
        bar, per_share = last_bar(market, stock), stock.figures.get(name)
        return bar.close / per_share if bar and per_share is not None and per_share > 0 else None
    return figure


def plain(name):
    return lambda market, stock: stock.figures.get(name)


def two_days(measure):
    def figure(market, stock):
        before, now = last_bar(market, stock, 1), last_bar(market, stock)
        return measure(before, now) if before and now else None
    return figure


def one_day(measure):
    return lambda market, stock: (lambda bar: measure(bar) if bar else None)(last_bar(market, stock))


FIGURES = {
    "070101": capitalization, "070102": multiple("earnings"), "070103": multiple("book"),
    "070104": plain("dividend"), "070201": plain("roe"), "070202": plain("margin"),
    "070203": plain("growth"), "070204": plain("debt"),
}

MEASURES = {
    "080101": one_day(lambda bar: bar.volume),
    "080102": one_day(lambda bar: bar.close * bar.volume),
    "080103": two_days(lambda before, now: f.percent_change(now.close, before.close)),
    "080104": capitalization,
    "080105": two_days(lambda before, now: f.quotient(100 * now.volume, before.volume)),
}


def first_by_rank(market, figure, highest, count):
    """Verdicts on all stocks: the `count` first of those with a figure; of equal ones the lower code."""
    figures = [figure(market, stock) for stock in market.stocks]
    known = [i for i, value in enumerate(figures) if value is not None]
    known.sort(key=lambda i: (-figures[i] if highest else figures[i], market.stocks[i].code))
    first = set(known[:count])
    return [None if value is None else i in first for i, value in enumerate(figures)]


def judge_figure(market, figure, role, variant):
    if variant >= 2:
        return first_by_rank(market, figure, variant == 2, int(role[60 if variant == 2 else 61]))
    values = [figure(market, stock) for stock in market.stocks]
    if variant == 1:
        return [within(value, role) for value in values]
    base, at_least = float(role[60]), role[50] == "1"
    return [compare(value, lambda v: v >= base if at_least else v <= base) for value in values]


def listed_days(market, role):
    return [within((market.dates[-1] - stock.listed).days if stock.listed else None, role)
            for stock in market.stocks]


def judge(market, key, role):
    """Verdicts of one condition on market.stocks. `key`: six characters; `role`: role -> value text."""
    variant = int(role.get(10, 0))
    if key == "040301":
        return listed_days(market, role)
    if key in FIGURES:
        return judge_figure(market, FIGURES[key], role, variant)
    if key in MEASURES:
        return first_by_rank(market, MEASURES[key], role[50] == "1", int(role[60]))
    timeframe, ago = role.get(20, "D"), int(role.get(30, 0))
    return [OF_RUN[key](run, role, variant) if run else None
            for run in (market.run(stock, timeframe, ago) for stock in market.stocks)]
