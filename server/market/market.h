// A market: its stocks in order of code, and their bars by day, week and month.
//
// Bars are bar-major: for each field one row of doubles per bar, across all instruments, so that a condition
// on the last bar touches only the rows it needs and one instruction works on many stocks. (Doubles, because
// a day's volume outgrows the 24 bits of a float.) A missing bar is kMissing in all five fields. A halted day
// is a flat bar: open, high and low equal the close, volume 0.
//
// A Market never changes; it is shared by const pointer between threads.
#pragma once

#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "server/market/instrument.h"

namespace jogeon::market {

enum class PriceField { Open, High, Low, Close, Volume };
inline constexpr int kPriceFields = 5;

enum class Timeframe { Day, Week, Month };
inline constexpr int kTimeframes = 3;

// The bars of one timeframe. Bar 0 is the oldest.
class Bars {
public:
    virtual ~Bars() = default;

    virtual int Count() const = 0;
    virtual int Instruments() const = 0;

    // One value for each instrument, in won or shares. `bar` is from 0 to Count() - 1.
    virtual std::span<const double> Row(PriceField field, int bar) const = 0;

    // The date of a bar, yyyymmdd: of a week or month its last trading day in the market.
    virtual int Date(int bar) const = 0;
};

// What is wrong with a market file or its sources, in one line for the user.
class MarketError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class Market : public std::enable_shared_from_this<Market> {
public:
    virtual ~Market() = default;

    virtual const std::vector<Instrument>& Instruments() const = 0;
    virtual const Bars& BarsOf(Timeframe timeframe) const = 0;
    virtual bool Generated() const = 0;             // true for the market of a first start
    virtual const std::string& Source() const = 0;  // where it comes from, UTF-8, for the user's eyes

    // The same market as it stood at the end of `date` (yyyymmdd): later bars are gone, the week and month of
    // that day are partial. Null when no bar is as old as that.
    virtual std::shared_ptr<const Market> AsOf(int date) const = 0;

    // Date of the last bar, 0 for a market without bars.
    int LastDate() const {
        const Bars& days = BarsOf(Timeframe::Day);
        return days.Count() ? days.Date(days.Count() - 1) : 0;
    }

    // Index of the instrument with this code, -1 if there is none.
    int Find(std::string_view code) const;
};

}  // namespace jogeon::market
