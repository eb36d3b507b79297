#include <algorithm>
#include <vector>

#include "server/market/file_sections.h"
#include "server/market/market_file.h"
#include "server/market/platform_files.h"

namespace jogeon::market {
namespace {

constexpr Timeframe kAllTimeframes[] = {Timeframe::Day, Timeframe::Week, Timeframe::Month};
constexpr PriceField kAllFields[] = {PriceField::Open, PriceField::High, PriceField::Low, PriceField::Close,
                                     PriceField::Volume};

// All texts of the file in one string; each is told by offset and size.
class Texts {
public:
    struct Place {
        std::uint32_t at;
        std::uint32_t size;
    };

    Place Add(const std::string& text) {
        const Place place{static_cast<std::uint32_t>(all_.size()), static_cast<std::uint32_t>(text.size())};
        all_ += text;
        return place;
    }
    const std::string& All() const { return all_; }

private:
    std::string all_;
};

// Calls `visit(timeframe, field, bar)` for each row in the order of the file.
template <typename Visit>
void ForEachRow(const Market& market, Visit visit) {
    for (const Timeframe timeframe : kAllTimeframes)
        for (const PriceField field : kAllFields)
            for (int bar = 0; bar < market.BarsOf(timeframe).Count(); ++bar) visit(timeframe, field, bar);
}

void PutInstrument(std::byte* record, const Instrument& instrument, Texts& texts) {
    namespace slot = layout::instrument;
    std::memcpy(record + slot::kCode.offset, instrument.code.data(), slot::kCode.width);
    Put(record, slot::kExchange, static_cast<std::uint8_t>(instrument.exchange));
    Put(record, slot::kSettlementMonth, static_cast<std::uint8_t>(instrument.settlementMonth));
    Put(record, slot::kListingDate, instrument.listingDate);
    std::uint32_t status = 0;
    for (std::size_t bit = 0; bit < instrument.status.size(); ++bit)
        if (instrument.status[bit]) status |= std::uint32_t{1} << bit;
    Put(record, slot::kStatus, status);
    Put(record, slot::kShares, instrument.shares);
    static_assert(sizeof instrument.fundamentals == slot::kFundamentals.width);
    std::memcpy(record + slot::kFundamentals.offset, instrument.fundamentals.data(),
                slot::kFundamentals.width);
    const auto putText = [&](layout::Slot at, layout::Slot size, const std::string& text) {
        const Texts::Place place = texts.Add(text);
        Put(record, at, place.at);
        Put(record, size, place.size);
    };
    putText(slot::kNameAt, slot::kNameSize, instrument.name);
    putText(slot::kDivisionAt, slot::kDivisionSize, instrument.division);
    putText(slot::kIndustryAt, slot::kIndustrySize, instrument.industry);
}

FileCounts CountParts(const Market& market) {
    FileCounts counts;
    counts.instruments = market.Instruments().size();
    for (const Timeframe timeframe : kAllTimeframes)
        counts.bars[static_cast<std::size_t>(timeframe)] =
            static_cast<std::uint64_t>(market.BarsOf(timeframe).Count());
    if (counts.instruments > layout::kMostInstruments ||
        *std::max_element(counts.bars.begin(), counts.bars.end()) > layout::kMostBars)
        throw MarketError("a market file holds a million stocks and a million days at most");
    return counts;
}

// The header and the directory: everything before the rows.
class FrontWriter {
public:
    explicit FrontWriter(const Market& market) : market_(market), counts_(CountParts(market)) {
        instruments_.resize(counts_.instruments * layout::instrument::kSize);
        for (std::size_t i = 0; i < market.Instruments().size(); ++i)
            PutInstrument(instruments_.data() + i * layout::instrument::kSize, market.Instruments()[i],
                          texts_);
        source_ = texts_.Add(market.Source());
        counts_.textBytes = texts_.All().size();
        at_ = Arrange(counts_);
    }

    std::uint64_t RowStride() const { return at_.rowStride; }

    std::vector<std::byte> Make() const {
        std::vector<std::byte> front(at_.rows);
        std::copy(instruments_.begin(), instruments_.end(), front.data() + at_.instruments);
        std::memcpy(front.data() + at_.texts, texts_.All().data(), texts_.All().size());
        PutDates(front.data() + at_.dates);
        PutChecksums(front.data() + at_.checksums);
        PutHeader(front);
        return front;
    }

private:
    void PutDates(std::byte* to) const {
        for (const Timeframe timeframe : kAllTimeframes) {
            const Bars& bars = market_.BarsOf(timeframe);
            for (int bar = 0; bar < bars.Count(); ++bar, to += layout::kDateSize)
                Put(to, {0, layout::kDateSize}, bars.Date(bar));
        }
    }

    void PutChecksums(std::byte* to) const {
        ForEachRow(market_, [&](Timeframe timeframe, PriceField field, int bar) {
            const std::uint32_t sum = Checksum(std::as_bytes(market_.BarsOf(timeframe).Row(field, bar)));
            Put(to, {0, layout::kChecksumSize}, sum);
            to += layout::kChecksumSize;
        });
    }

    void PutHeader(std::vector<std::byte>& front) const {
        namespace slot = layout::header;
        std::byte* const header = front.data();
        std::memcpy(header + slot::kMagic.offset, layout::kMagic.data(), slot::kMagic.width);
        Put(header, slot::kVersion, layout::kVersion);
        Put(header, slot::kGenerated, std::uint32_t{market_.Generated()});
        Put(header, slot::kFileSize, at_.end);
        Put(header, slot::kInstruments, counts_.instruments);
        Put(header, slot::kDays, counts_.bars[0]);
        Put(header, slot::kWeeks, counts_.bars[1]);
        Put(header, slot::kMonths, counts_.bars[2]);
        Put(header, slot::kInstrumentsAt, at_.instruments);
        Put(header, slot::kTextsAt, at_.texts);
        Put(header, slot::kTextsSize, counts_.textBytes);
        Put(header, slot::kDatesAt, at_.dates);
        Put(header, slot::kChecksumsAt, at_.checksums);
        Put(header, slot::kRowsAt, at_.rows);
        Put(header, slot::kSourceAt, source_.at);
        Put(header, slot::kSourceSize, source_.size);
        const std::span<const std::byte> all(front);
        Put(header, slot::kDirectoryChecksum, Checksum(all.subspan(slot::kSize)));
        Put(header, slot::kHeaderChecksum, Checksum(all.first(slot::kHeaderChecksum.offset)));
    }

    const Market& market_;
    FileCounts counts_;
    FileSections at_{};
    std::vector<std::byte> instruments_;
    Texts texts_;
    Texts::Place source_{};
};

}  // namespace

void WriteMarket(const Market& market, const std::filesystem::path& path) {
    const FrontWriter front(market);
    ReplacingFile file(path);
    file.Append(front.Make());
    std::vector<std::byte> padded(front.RowStride());
    ForEachRow(market, [&](Timeframe timeframe, PriceField field, int bar) {
        const std::span<const std::byte> row = std::as_bytes(market.BarsOf(timeframe).Row(field, bar));
        std::copy(row.begin(), row.end(), padded.begin());
        file.Append(padded);
    });
    file.Commit();
}

}  // namespace jogeon::market
