#include "server/market/market_file.h"

#include <utility>

#include "server/market/calendar.h"
#include "server/market/instrument_code.h"
#include "server/market/mapped_bars.h"
#include "server/market/stored_market.h"

namespace jogeon::market {
namespace {

// Finds the first fault of a file's header and directory and reads what they say.
class FileReader {
public:
    explicit FileReader(const std::filesystem::path& path)
        : file_(std::make_shared<OpenedFile>(path)), bytes_(file_->map.Bytes()) {}

    StoredMarket::Parts Read() {
        CheckHeader();
        ReadCounts();
        CheckSections();
        StoredMarket::Parts parts;
        parts.generated = Header<std::uint32_t>(layout::header::kGenerated) != 0;
        parts.source = Text(Header<std::uint32_t>(layout::header::kSourceAt),
                            Header<std::uint32_t>(layout::header::kSourceSize));
        parts.instruments = ReadInstruments();
        std::size_t firstDate = 0;
        for (const Timeframe timeframe : {Timeframe::Day, Timeframe::Week, Timeframe::Month}) {
            const auto which = static_cast<std::size_t>(timeframe);
            std::vector<int> dates = ReadDates(firstDate, file_->counts.bars[which]);
            firstDate += dates.size();
            parts.bars[which] = std::make_unique<MappedBars>(file_, timeframe, std::move(dates));
        }
        return parts;
    }

private:
    [[noreturn]] void Fail(const std::string& what) const { throw MarketError(file_->name + ": " + what); }
    [[noreturn]] void FailDamaged(const char* part) const {
        Fail(std::string("the market file is damaged in its ") + part + "; import the market again");
    }

    template <typename Number>
    Number Header(layout::Slot slot) const {
        return market::Read<Number>(bytes_.data(), slot);
    }

    void CheckHeader() const {
        namespace slot = layout::header;
        const std::size_t magic = std::min(bytes_.size(), layout::kMagic.size());
        if (magic == 0 || std::memcmp(bytes_.data(), layout::kMagic.data(), magic) != 0)
            Fail("is no market file; \"jogeond import\" makes one");
        if (bytes_.size() < slot::kSize) Fail("the market file is cut short; import the market again");
        const auto version = Header<std::uint32_t>(slot::kVersion);
        if (version != layout::kVersion)
            Fail("is a market file of version " + std::to_string(version) +
                 ", and this program reads version " + std::to_string(layout::kVersion) +
                 "; import the market again");
        if (Checksum(bytes_.first(slot::kHeaderChecksum.offset)) !=
            Header<std::uint32_t>(slot::kHeaderChecksum))
            FailDamaged("header");
    }

    void ReadCounts() {
        namespace slot = layout::header;
        FileCounts& counts = file_->counts;
        counts.instruments = Header<std::uint32_t>(slot::kInstruments);
        counts.bars = {Header<std::uint32_t>(slot::kDays), Header<std::uint32_t>(slot::kWeeks),
                       Header<std::uint32_t>(slot::kMonths)};
        counts.textBytes = Header<std::uint64_t>(slot::kTextsSize);
        if (counts.instruments > layout::kMostInstruments || counts.textBytes > bytes_.size())
            FailDamaged("header");
        for (const std::uint64_t bars : counts.bars)
            if (bars > layout::kMostBars) FailDamaged("header");
        file_->at = Arrange(counts);
    }

    void CheckSections() const {
        namespace slot = layout::header;
        const FileSections& at = file_->at;
        if (Header<std::uint64_t>(slot::kInstrumentsAt) != at.instruments ||
            Header<std::uint64_t>(slot::kTextsAt) != at.texts ||
            Header<std::uint64_t>(slot::kDatesAt) != at.dates ||
            Header<std::uint64_t>(slot::kChecksumsAt) != at.checksums ||
            Header<std::uint64_t>(slot::kRowsAt) != at.rows ||
            Header<std::uint64_t>(slot::kFileSize) != at.end)
            FailDamaged("header");
        if (bytes_.size() < at.end)
            Fail("the market file is cut short, " + std::to_string(bytes_.size()) + " of " +
                 std::to_string(at.end) + " bytes; import the market again");
        if (bytes_.size() > at.end) Fail("the market file has bytes behind its end; import the market again");
        const std::span<const std::byte> directory = bytes_.subspan(slot::kSize, at.rows - slot::kSize);
        if (Checksum(directory) != Header<std::uint32_t>(slot::kDirectoryChecksum)) FailDamaged("directory");
    }

    std::string Text(std::uint64_t at, std::uint64_t size) const {
        if (at + size > file_->counts.textBytes) FailDamaged("directory");
        return {reinterpret_cast<const char*>(bytes_.data() + file_->at.texts + at), size};
    }

    Instrument ReadInstrument(const std::byte* record) const {
        namespace slot = layout::instrument;
        const auto text = [&](layout::Slot at, layout::Slot size) {
            return Text(market::Read<std::uint32_t>(record, at), market::Read<std::uint32_t>(record, size));
        };
        Instrument instrument;
        instrument.code.assign(reinterpret_cast<const char*>(record + slot::kCode.offset), slot::kCode.width);
        instrument.exchange =
            market::Read<std::uint8_t>(record, slot::kExchange) == 0 ? Exchange::Kospi : Exchange::Kosdaq;
        instrument.settlementMonth = market::Read<std::uint8_t>(record, slot::kSettlementMonth);
        instrument.listingDate = market::Read<std::int32_t>(record, slot::kListingDate);
        const auto status = market::Read<std::uint32_t>(record, slot::kStatus);
        for (std::size_t bit = 0; bit < instrument.status.size(); ++bit)
            instrument.status[bit] = (status >> bit & 1) != 0;
        instrument.shares = market::Read<double>(record, slot::kShares);
        std::memcpy(instrument.fundamentals.data(), record + slot::kFundamentals.offset,
                    slot::kFundamentals.width);
        instrument.name = text(slot::kNameAt, slot::kNameSize);
        instrument.division = text(slot::kDivisionAt, slot::kDivisionSize);
        instrument.industry = text(slot::kIndustryAt, slot::kIndustrySize);
        return instrument;
    }

    std::vector<Instrument> ReadInstruments() const {
        std::vector<Instrument> instruments;
        instruments.reserve(file_->counts.instruments);
        for (std::size_t i = 0; i < file_->counts.instruments; ++i) {
            const std::size_t at = file_->at.instruments + i * layout::instrument::kSize;
            instruments.push_back(ReadInstrument(bytes_.data() + at));
            // Stocks are found by bisection, which needs them in order.
            const std::string& code = instruments.back().code;
            if (!IsInstrumentCode(code) || (i > 0 && instruments[i - 1].code >= code))
                FailDamaged("directory");
        }
        return instruments;
    }

    std::vector<int> ReadDates(std::size_t first, std::size_t count) const {
        std::vector<int> dates(count);
        const std::byte* const table = bytes_.data() + file_->at.dates + first * layout::kDateSize;
        for (std::size_t i = 0; i < count; ++i) {
            dates[i] = market::Read<std::int32_t>(table + i * layout::kDateSize, {0, layout::kDateSize});
            if (!IsDate(dates[i]) || (i > 0 && dates[i - 1] >= dates[i])) FailDamaged("directory");
        }
        return dates;
    }

    std::shared_ptr<OpenedFile> file_;
    std::span<const std::byte> bytes_;
};

}  // namespace

std::shared_ptr<const Market> OpenMarket(const std::filesystem::path& path) {
    return std::make_shared<const StoredMarket>(FileReader(path).Read());
}

void VerifyMarket(const std::filesystem::path& path) {
    const std::shared_ptr<const Market> market = OpenMarket(path);
    for (const Timeframe timeframe : {Timeframe::Day, Timeframe::Week, Timeframe::Month}) {
        const Bars& bars = market->BarsOf(timeframe);
        for (int field = 0; field < kPriceFields; ++field)
            for (int bar = 0; bar < bars.Count(); ++bar) bars.Row(static_cast<PriceField>(field), bar);
    }
}

}  // namespace jogeon::market
