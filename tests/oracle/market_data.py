"""Reads the market's plain tables and gives each stock its bars by day, week and month.

Nothing here is shared with the service: the tables are read again, from scratch.
"""

import csv
import datetime
import gzip
import pathlib
from collections import namedtuple

Bar = namedtuple("Bar", "open high low close volume")

TOLERANCE = 0.01  # how far out of high and low an open or close may lie before the line is no bar


class Stock:
    def __init__(self, code):
        self.code = code
        self.shares = None
        self.listed = None
        self.figures = {}  # earnings, book, dividend, roe, margin, growth, debt; absent where unknown
        self.days = {}  # date -> Bar


class Market:
    def __init__(self, stocks, dates):
        self.stocks = [stocks[code] for code in sorted(stocks)]
        self.dates = dates
        self._calendar = {timeframe: self._periods(timeframe) for timeframe in "DWM"}
        self._bars = {}

    def _periods(self, timeframe):
        """The market's dates, cut into periods, oldest first."""
        periods, last = [], None
        for date in self.dates:
            name = {"D": date, "W": date.isocalendar()[:2], "M": (date.year, date.month)}[timeframe]
            if name != last:
                periods.append([])
            periods[-1].append(date)
            last = name
        return periods

    def bars(self, stock, timeframe):
        """One Bar or None for each period of the market."""
        key = stock.code, timeframe
        if key not in self._bars:
            self._bars[key] = [join([stock.days[date] for date in period if date in stock.days])
                               for period in self._calendar[timeframe]]
        return self._bars[key]

    def run(self, stock, timeframe, ago):
        """The unbroken bars that end `ago` bars before the last one, oldest first."""
        bars = self.bars(stock, timeframe)
        end = len(bars) - ago
        start = max(end, 0)
        while start > 0 and bars[start - 1] is not None:
            start -= 1
        return bars[start:end] if end > 0 else []


def join(days):
    if not days:
        return None
    return Bar(days[0].open, max(day.high for day in days), min(day.low for day in days), days[-1].close,
               sum(day.volume for day in days))


def fit(bar):
    """The bar as the market keeps it; None if the line can't be used."""
    if bar.volume == 0 and bar.open == bar.high == bar.low == 0 and bar.close > 0:
        return Bar(bar.close, bar.close, bar.close, bar.close, 0.0)
    if min(bar.open, bar.high, bar.low, bar.close) <= 0 or bar.volume < 0 or bar.high < bar.low:
        return None
    high, low = max(bar.high, bar.open, bar.close), min(bar.low, bar.open, bar.close)
    if high > bar.high * (1 + TOLERANCE) or low < bar.low * (1 - TOLERANCE):
        return None
    return bar._replace(high=high, low=low)


def read_market(folder):
    folder = pathlib.Path(folder)
    stocks, dates = {}, set()
    with gzip.open(folder / "daily.csv.gz", "rt", encoding="utf-8") as file:
        for row in csv.DictReader(file):
            bar = fit(Bar(*(float(row[name]) for name in Bar._fields)))
            if bar is None:
                continue
            date = datetime.date.fromisoformat(row["date"])
            dates.add(date)
            stocks.setdefault(row["code"], Stock(row["code"])).days[date] = bar
    with open(folder / "symbols.csv", encoding="utf-8-sig", newline="") as file:
        for row in csv.DictReader(file):
            stock = stocks.setdefault(row["code"], Stock(row["code"]))
            stock.shares = float(row["shares"]) if row["shares"] else None
            if row["listing_date"]:
                stock.listed = datetime.date.fromisoformat(row["listing_date"])
    return Market(stocks, sorted(dates))
