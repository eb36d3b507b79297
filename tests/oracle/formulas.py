"""The formulas of docs/catalogue.md, one stock at a time.

A line is a function from a run of bars (oldest first, the evaluated one last) to its value, or to None
where it isn't known; its value one bar before is the line of the run without its last bar.
"""

import math


def closes(run):
    return [bar.close for bar in run]


def close(run):
    return run[-1].close if run else None


def total(values):
    """The sum from the first value to the last, each step rounded; newer Pythons' sum() is more exact."""
    result = 0.0
    for value in values:
        result += value
    return result


def mean(values):
    return total(values) / len(values)


def quotient(part, whole):
    return part / whole if whole != 0 else None


def sma(values, n):
    return mean(values[-n:]) if len(values) >= n else None


def recursive(values, n, alpha):
    """All values of a recursive average, from the first one that is known."""
    if len(values) < n:
        return []
    averages = [mean(values[:n])]
    for value in values[n:]:
        averages.append(averages[-1] + alpha * (value - averages[-1]))
    return averages


def ema_all(values, n):
    return recursive(values, n, 2 / (n + 1))


def wilder_all(values, n):
    return recursive(values, n, 1 / n)


def last(values):
    return values[-1] if values else None


def average(n, kind):
    def line(run):
        return sma(closes(run), n) if kind == "0" else last(ema_all(closes(run), n))
    return line


def changes(run):
    return [(before, now) for before, now in zip(run, run[1:])]


def disparity(n):
    def line(run):
        base = sma(closes(run), n)
        return None if base is None else quotient(100 * close(run), base)
    return line


def rsi(n):
    def line(run):
        moves = [now.close - before.close for before, now in changes(run)]
        up = last(wilder_all([max(move, 0) for move in moves], n))
        down = last(wilder_all([max(-move, 0) for move in moves], n))
        return None if up is None else quotient(100 * up, up + down)
    return line


def macd_all(run, a, b):
    fast, slow = ema_all(closes(run), a), ema_all(closes(run), b)
    return [x - y for x, y in zip(fast[b - a:], slow)] if slow else []


def macd(a, b):
    return lambda run: last(macd_all(run, a, b))


def macd_signal(a, b, s):
    return lambda run: last(ema_all(macd_all(run, a, b), s))


def highest(run, n):
    return max(bar.high for bar in run[-n:]) if len(run) >= n else None


def lowest(run, n):
    return min(bar.low for bar in run[-n:]) if len(run) >= n else None


def fast_k(run, n):
    if len(run) < n:
        return None
    low = lowest(run, n)
    return quotient(100 * (close(run) - low), highest(run, n) - low)


def mean_of_last(line, run, n):
    """SMA of a line over the last n bars of the run."""
    values = [line(run[:len(run) - k]) for k in range(n - 1, -1, -1) if len(run) > k]
    return mean(values) if len(values) == n and None not in values else None


def slow_k(n, k):
    return lambda run: mean_of_last(lambda part: fast_k(part, n), run, k)


def slow_d(n, k, d):
    return lambda run: mean_of_last(slow_k(n, k), run, d)


def cci(n):
    def line(run):
        if len(run) < n:
            return None
        prices = [bar.high + bar.low + bar.close for bar in run[-n:]]
        middle = mean(prices)
        return quotient(prices[-1] - middle, 0.015 * mean([abs(price - middle) for price in prices]))
    return line


def williams(n):
    def line(run):
        high = highest(run, n)
        return None if high is None else quotient(100 * (close(run) - high), high - lowest(run, n))
    return line


def percent_change(now, then):
    return quotient(100 * (now - then), then)


def roc(n):
    return lambda run: percent_change(close(run), run[-1 - n].close) if len(run) > n else None


def deviation(run, n):
    middle = sma(closes(run), n)
    if middle is None:
        return None
    return math.sqrt(total((price - middle) * (price - middle) for price in closes(run)[-n:]) / n)


def band(n, factor):
    def line(run):
        spread = deviation(run, n)
        return None if spread is None else sma(closes(run), n) + factor * spread
    return line


def band_width(n, factor):
    def line(run):
        spread = deviation(run, n)
        return None if spread is None else quotient(100 * (2 * factor * spread), sma(closes(run), n))
    return line


def directional_all(run, n):
    """(+DI, -DI) of every bar that has them."""
    plus, minus, ranges = [], [], []
    for before, now in changes(run):
        up, down = now.high - before.high, before.low - now.low
        plus.append(up if up > down and up > 0 else 0)
        minus.append(down if down > up and down > 0 else 0)
        ranges.append(max(now.high - now.low, abs(now.high - before.close), abs(now.low - before.close)))
    smooth = zip(wilder_all(plus, n), wilder_all(minus, n), wilder_all(ranges, n))
    return [(quotient(100 * up, size), quotient(100 * down, size)) for up, down, size in smooth]


def plus_di(n):
    return lambda run: (directional_all(run, n) or [(None, None)])[-1][0]


def minus_di(n):
    return lambda run: (directional_all(run, n) or [(None, None)])[-1][1]


def adx(n):
    def line(run):
        values = []
        for up, down in directional_all(run, n):
            index = None if up is None else quotient(100 * abs(up - down), up + down)
            values = [] if index is None else values + [index]
        return last(wilder_all(values, n))
    return line


def middle(n):
    return lambda run: (highest(run, n) + lowest(run, n)) / 2 if len(run) >= n else None


def volume_ratio(n):
    def line(run):
        if len(run) <= n:
            return None
        up = down = 0.0
        for before, now in changes(run[-n - 1:]):
            share = 1 if now.close > before.close else 0 if now.close < before.close else 0.5
            up, down = up + now.volume * share, down + now.volume * (1 - share)
        return quotient(100 * up, down)
    return line


def obv_all(run):
    values = [0.0] if run else []
    for before, now in changes(run):
        sign = (now.close > before.close) - (now.close < before.close)
        values.append(values[-1] + sign * now.volume)
    return values


def obv(run):
    return last(obv_all(run))


def obv_mean(n):
    return lambda run: sma(obv_all(run), n)


# ---- candle patterns; `sign` -1 turns a pattern upside down

class Candle:
    def __init__(self, bar, sign):
        self.open, self.close = sign * bar.open, sign * bar.close
        self.high, self.low = (bar.high, bar.low) if sign > 0 else (-bar.low, -bar.high)
        self.body, self.size = abs(self.close - self.open), self.high - self.low
        self.top, self.bottom = max(self.open, self.close), min(self.open, self.close)
        self.white, self.black = self.close > self.open, self.close < self.open


def fell_before(run, length, sign):
    """Whether the pattern of `length` candles follows a fall; None if it can't be told."""
    earlier = run[:-length]
    base = sma(closes(earlier), 5)
    return None if base is None else sign * close(earlier) < sign * base


def soldiers(run, sign):
    if len(run) < 3:
        return None
    candles = [Candle(bar, sign) for bar in run[-3:]]
    return (all(c.white and c.high - c.close <= 0.3 * c.size for c in candles) and
            all(b.close > a.close and a.open <= b.open <= a.close for a, b in zip(candles, candles[1:])))


def engulfing(run, sign):
    fell = fell_before(run, 2, sign)
    if fell is None:
        return None
    one, two = (Candle(bar, sign) for bar in run[-2:])
    return (fell and one.black and two.white and two.open <= one.close and two.close >= one.open and
            two.body > one.body)


def hammer(run, sign):
    fell = fell_before(run, 1, sign)
    if fell is None:
        return None
    c = Candle(run[-1], sign)
    return (fell and c.size > 0 and c.body >= 0.05 * c.size and c.bottom - c.low >= 2 * c.body and
            c.high - c.top <= 0.1 * c.size)


def star(run, sign):
    fell = fell_before(run, 3, sign)
    if fell is None:
        return None
    one, two, three = (Candle(bar, sign) for bar in run[-3:])
    return (fell and one.black and one.body >= 0.5 * one.size and two.body <= 0.3 * one.body and
            two.top <= one.close and three.white and three.close > (one.open + one.close) / 2)


def doji(run, sign):
    if not run:
        return None
    c = Candle(run[-1], sign)
    return c.size > 0 and c.body <= 0.1 * c.size
