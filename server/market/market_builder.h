// Builds a market from instruments and daily bars that come in any order.
//
// Relies on nothing but the bars it is given; weeks and months are derived. The builder can go on collecting
// after a Build, whose market no longer changes.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "server/market/bar.h"
#include "server/market/market.h"

namespace jogeon::market {

class MarketBuilder {
public:
    // Adds a stock and returns its number for AddBar. The finished market has its stocks in order of code,
    // so that the number there may be another. Throws MarketError when the code isn't six letters or digits
    // or was added before.
    int AddInstrument(Instrument instrument);

    // Adds one day of one stock. A halted day (only the close is not 0) becomes a flat bar; a day that is
    // never added is missing. Of two bars for the same stock and day the later addition counts. Throws
    // MarketError when the date isn't one or the prices can't be (see FitBar).
    void AddBar(int instrument, int date, double open, double high, double low, double close, double volume);

    // The same for a bar that FitBar has passed.
    void AddFittedBar(int instrument, int date, const Bar& bar);

    // The number of the stock with that code; none if it wasn't added.
    std::optional<int> NumberOf(std::string_view code) const;

    // The instrument with that number, to be completed before Build. Its code must stay.
    Instrument& At(int instrument) { return instruments_[static_cast<std::size_t>(instrument)]; }
    int Instruments() const { return static_cast<int>(instruments_.size()); }
    std::size_t Bars() const { return bars_.size(); }

    // What Market::Source and Market::Generated will answer.
    void SetSource(std::string source) { source_ = std::move(source); }
    void SetGenerated(bool generated) { generated_ = generated; }

    // A market in memory. A day of the market is a day that has a bar of some stock.
    std::shared_ptr<const Market> Build() const;

    // Builds and writes a market file, all or nothing; throws MarketError when it can't be written.
    void Write(const std::filesystem::path& path) const;

    // How many instruments have no bar at all.
    int InstrumentsWithoutBars() const;

    // A stock and day that was added more than once; one entry for each addition that lost.
    struct Duplicate {
        std::string code;
        int date;
    };
    std::vector<Duplicate> FindDuplicates() const;

private:
    struct DatedBar {
        int instrument;
        int date;
        Bar bar;
    };

    // Hashes a std::string_view, so that a code can be looked up where it stands.
    struct CodeHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view code) const { return std::hash<std::string_view>()(code); }
    };

    std::vector<int> MarketDates() const;

    std::vector<Instrument> instruments_;
    std::unordered_map<std::string, int, CodeHash, std::equal_to<>> numbers_;
    std::vector<DatedBar> bars_;
    std::string source_;
    bool generated_ = false;
};

}  // namespace jogeon::market
