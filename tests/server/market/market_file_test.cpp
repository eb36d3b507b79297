#include "server/market/market_file.h"

#include <algorithm>
#include <cstring>

#include <fcntl.h>
#include <sys/wait.h>
#include <zlib.h>

#include "server/market/market_builder.h"
#include "server/market/platform_files.h"
#include "tests/screen/support/full_disk.h"
#include "tests/server/market/market_values.h"
#include "tests/server/market/scratch_folder.h"

namespace jogeon::market {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::size_t kHeaderSize = 128;

// Two stocks over two days of one week and month. In bytes: the header to 128; two stocks of 104 bytes,
// padded to 384; texts "가나" "우량기업부" "B" "test" of 26 bytes, padded to 448; 4 dates, padded to 512; 20
// checksums, padded to 640; 20 rows of 64 bytes, to 1920.
MarketBuilder TwoStocks() {
    MarketBuilder builder;
    Instrument first;
    first.code = "000020";
    first.name = "가나";
    first.exchange = Exchange::Kosdaq;
    first.division = "우량기업부";
    first.settlementMonth = 12;
    first.listingDate = 19760324;
    first.shares = 27931470;
    first.fundamentals[static_cast<std::size_t>(Fundamental::EarningsPerShare)] = -120;
    first.fundamentals[static_cast<std::size_t>(Fundamental::DividendYield)] = 1.5;
    first.status[static_cast<std::size_t>(Status::Alert)] = true;
    first.status[static_cast<std::size_t>(Status::FullMargin)] = true;
    Instrument second;
    second.code = "00088K";
    second.name = "B";
    const int a = builder.AddInstrument(second);
    const int b = builder.AddInstrument(first);
    builder.AddBar(b, 20240304, 9350, 9550, 9330, 9550, 78661);
    builder.AddBar(b, 20240305, 9550, 9600, 9400, 9500, 5'000'000'000.0);
    builder.AddBar(a, 20240305, 0, 0, 0, 1200, 0);
    builder.SetSource("test");
    return builder;
}

class MarketFile : public testing::Test {
protected:
    MarketFile() {
        TwoStocks().Write(path_);
        bytes_ = folder_.Read("market");
    }

    std::string OpenError(const std::string& bytes) {
        folder_.Write("damaged", bytes);
        return ErrorOf([&] { OpenMarket(folder_ / "damaged"); });
    }

    template <typename Number>
    Number At(std::size_t offset) const {
        Number value;
        std::memcpy(&value, bytes_.data() + offset, sizeof value);
        return value;
    }

    // `bytes_` with one number of the header changed, and checksums that agree.
    template <typename Number>
    std::string Forge(std::size_t offset, Number value) const {
        std::string forged = bytes_;
        std::memcpy(forged.data() + offset, &value, sizeof value);
        return Sign(std::move(forged));
    }

    static std::string Sign(std::string file) {
        const auto sum = [&](std::size_t from, std::size_t to) {
            return static_cast<std::uint32_t>(
                crc32(0, reinterpret_cast<const Bytef*>(file.data() + from), static_cast<uInt>(to - from)));
        };
        const std::uint32_t directory = sum(kHeaderSize, 640);
        std::memcpy(file.data() + 96, &directory, sizeof directory);
        const std::uint32_t header = sum(0, 124);
        std::memcpy(file.data() + 124, &header, sizeof header);
        return file;
    }

    ScratchFolder folder_;
    std::filesystem::path path_ = folder_ / "market";
    std::string bytes_;
};

TEST_F(MarketFile, KeepsEverything) {
    const auto market = OpenMarket(path_);
    ExpectSameBars(*market, *TwoStocks().Build());
    EXPECT_EQ(market->Source(), "test");
    EXPECT_FALSE(market->Generated());
    const Instrument& stock = market->Instruments()[0];
    EXPECT_EQ(stock.code + stock.name + stock.division + stock.industry, "000020가나우량기업부");
    EXPECT_EQ(stock.exchange, Exchange::Kosdaq);
    EXPECT_EQ(stock.settlementMonth, 12);
    EXPECT_EQ(stock.listingDate, 19760324);
    EXPECT_EQ(stock.shares, 27931470);
    EXPECT_EQ(stock.Get(Fundamental::EarningsPerShare), -120);
    EXPECT_EQ(stock.Get(Fundamental::DividendYield), 1.5);
    EXPECT_TRUE(std::isnan(stock.Get(Fundamental::DebtRatio)));
    EXPECT_THAT(stock.status, ElementsAre(false, true, false, false, true));
    EXPECT_TRUE(std::isnan(market->Instruments()[1].shares));
    EXPECT_THAT(BarTexts(*market, Timeframe::Week, "000020"),
                ElementsAre("20240305: 9350 9600 9330 9500 5000078661"));
    VerifyMarket(path_);
}

TEST_F(MarketFile, LiesAsItsLayoutSays) {
    ASSERT_EQ(bytes_.size(), 1920u);
    EXPECT_EQ(bytes_.substr(0, 8), "JOGEONM\n");
    EXPECT_EQ(At<std::uint32_t>(8), 1u);      // version
    EXPECT_EQ(At<std::uint64_t>(16), 1920u);  // size
    EXPECT_EQ(At<std::uint32_t>(24), 2u);     // stocks
    EXPECT_EQ(At<std::uint32_t>(28), 2u);     // days
    EXPECT_EQ(At<std::uint32_t>(36), 1u);     // months
    EXPECT_EQ(At<std::uint64_t>(80), 640u);   // rows
    EXPECT_EQ(bytes_.substr(128, 6), "000020");
    EXPECT_EQ(bytes_.substr(232, 6), "00088K");
    EXPECT_EQ(At<std::uint32_t>(140), 0b10010u);  // status
    EXPECT_EQ(bytes_.substr(384, 26), "가나우량기업부Btest");
    EXPECT_EQ(At<std::int32_t>(448), 20240304);
    EXPECT_EQ(At<double>(640), 9350);  // open of the first day
    EXPECT_TRUE(std::isnan(At<double>(648)));
    EXPECT_EQ(At<double>(704), 9550);  // open of the second day
    EXPECT_EQ(At<double>(712), 1200);
    EXPECT_EQ(At<double>(640 + 9 * 64), 5e9);  // volume of the second day
}

TEST_F(MarketFile, RefusesDamageAtEachByteBeforeTheRows) {
    for (std::size_t i = 0; i < 640; ++i) {
        std::string damaged = bytes_;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x20);
        EXPECT_THAT(OpenError(damaged),
                    AnyOf(HasSubstr("no market file"), HasSubstr("version"), HasSubstr("damaged")))
            << "byte " << i;
    }
}

TEST_F(MarketFile, RefusesWhatIsNoWholeFile) {
    for (const std::size_t size : {0u, 1u, 7u, 8u, 127u, 128u, 400u, 639u, 640u, 1000u, 1919u})
        EXPECT_THAT(OpenError(bytes_.substr(0, size)),
                    AnyOf(HasSubstr("cut short"), HasSubstr("no market file")))
            << size;
    EXPECT_THAT(OpenError(bytes_ + "x"), HasSubstr("behind its end"));
    EXPECT_THAT(OpenError("date,code,open,high,low,close,volume\n"), HasSubstr("no market file"));
    EXPECT_THAT(ErrorOf([&] { OpenMarket(folder_ / "absent"); }), HasSubstr("absent: can't be opened"));
    EXPECT_THAT(ErrorOf([&] { OpenMarket(folder_ / "."); }), HasSubstr("not a file"));
    EXPECT_THAT(OpenError(Forge<std::uint32_t>(8, 2)), HasSubstr("version 2"));
}

// A file whose checksums are right but whose numbers would lead out of it.
TEST_F(MarketFile, RefusesNumbersThatLeadOutOfTheFile) {
    for (const std::size_t count : {24u, 28u, 32u, 36u})
        for (const std::uint32_t value : {0u, 3u, 1'000'000u, 0x7FFFFFFFu, 0xFFFFFFFFu})
            EXPECT_NE(OpenError(Forge(count, value)), "") << count << " " << value;
    for (const std::size_t offset : {16u, 40u, 48u, 56u, 64u, 72u, 80u})
        for (const std::uint64_t value : {std::uint64_t{0}, std::uint64_t{1} << 40, ~std::uint64_t{0}})
            EXPECT_NE(OpenError(Forge(offset, value)), "") << offset << " " << value;
    for (const std::size_t text : {88u, 92u, 128 + 80u, 128 + 84u, 232 + 100u})
        EXPECT_THAT(OpenError(Forge<std::uint32_t>(text, 0xFFFFFFF0u)), HasSubstr("directory")) << text;
}

TEST_F(MarketFile, RefusesADirectoryOutOfOrder) {
    std::string swapped = bytes_;
    std::swap_ranges(swapped.begin() + 128, swapped.begin() + 134, swapped.begin() + 232);
    EXPECT_THAT(OpenError(Sign(swapped)), HasSubstr("directory"));
    EXPECT_THAT(OpenError(Forge<std::int32_t>(448, 20240306)), HasSubstr("directory"));
    EXPECT_THAT(OpenError(Forge<std::int32_t>(448, 20240231)), HasSubstr("directory"));
}

TEST_F(MarketFile, NobodyIsGivenADamagedRow) {
    bytes_[640 + 64 + 3] ^= 1;  // open of the second day
    folder_.Write("damaged", bytes_);
    const auto market = OpenMarket(folder_ / "damaged");
    const Bars& days = market->BarsOf(Timeframe::Day);
    EXPECT_EQ(days.Row(PriceField::Open, 0)[0], 9350);
    for (int attempt = 0; attempt < 2; ++attempt)
        EXPECT_THAT(ErrorOf([&] { days.Row(PriceField::Open, 1); }), HasSubstr("20240305"));
    EXPECT_THAT(ErrorOf([&] { VerifyMarket(folder_ / "damaged"); }), HasSubstr("20240305"));
    EXPECT_THROW(days.Row(PriceField::Open, 2), std::out_of_range);
    EXPECT_THROW(days.Row(PriceField::Volume, -1), std::out_of_range);
}

TEST_F(MarketFile, AnOpenMarketSurvivesItsReplacement) {
    const auto market = OpenMarket(path_);
    MarketBuilder other;
    other.Write(path_);
    EXPECT_EQ(BarText(*market, Timeframe::Day, "000020", 0), "9350 9550 9330 9550 78661");
    EXPECT_EQ(OpenMarket(path_)->Instruments().size(), 0u);
}

TEST_F(MarketFile, AFullDiskLeavesTheOldFileAndNothingElse) {
    for (const rlim_t room : {0, 100, 640, 1000, 1919}) {
        std::string error;
        {
            const test::FullDisk disk(room);
            error = ErrorOf([&] { TwoStocks().Write(path_); });
        }
        EXPECT_THAT(error, HasSubstr("can't be written")) << room;
        EXPECT_THAT(folder_.Names(), ElementsAre("market"));
        EXPECT_EQ(folder_.Read("market"), bytes_);
    }
    EXPECT_THAT(ErrorOf([&] { TwoStocks().Write(folder_ / "no/such/folder"); }),
                HasSubstr("can't be written"));
    EXPECT_THAT(ErrorOf([&] { TwoStocks().Write(folder_ / "."); }), HasSubstr("folder"));
}

TEST_F(MarketFile, AKilledWriterLeavesTheOldFileAndNothingElse) {
    const int probe = open((folder_ / ".").c_str(), O_TMPFILE | O_WRONLY, 0600);
    if (probe < 0) GTEST_SKIP() << "this file system has no files without a name";
    close(probe);
    const pid_t child = fork();
    if (child == 0) {
        ReplacingFile file(path_);
        const std::byte bytes[1000]{};
        file.Append(bytes);
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_THAT(folder_.Names(), ElementsAre("market"));
    EXPECT_EQ(folder_.Read("market"), bytes_);
}

}  // namespace
}  // namespace jogeon::market
