// How long an import takes beside what no import can go below: counting the lines of the same bytes, and
// inflating them. And how long it takes to open a market file, small and large.
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>
#include <unistd.h>
#include <zlib.h>

#include "server/market/calendar.h"
#include "server/market/import.h"
#include "server/market/market_builder.h"
#include "server/market/market_file.h"
#include "server/market/random_numbers.h"

namespace jogeon::market {
namespace {

constexpr int kStocks = 2700;
constexpr int kDays = 340;

std::string MakeTable() {
    std::string text = "date,code,open,high,low,close,volume\n";
    RandomNumbers random(1, 1);
    for (int day = 0; day < kDays; ++day) {
        const int date = DateOfDay(DayNumber(20240101) + day);
        for (int stock = 0; stock < kStocks; ++stock) {
            const int close = 1000 + random.Below(90'000);
            const int volume = random.Below(10'000'000);
            char line[128];
            std::snprintf(line, sizeof line, "%04d-%02d-%02d,%05d0,%d,%d,%d,%d,%d\n", date / 10000,
                          date / 100 % 100, date % 100, stock, close - 5, close + 20, close - 30, close,
                          volume);
            text += line;
        }
    }
    return text;
}

// The table as a file, plain and gzipped, made once.
class Files {
public:
    Files() {
        std::filesystem::create_directories(folder_);
        std::ofstream(Plain(), std::ios::binary) << text_;
        const gzFile file = gzopen(Gzipped().c_str(), "wb");
        gzwrite(file, text_.data(), static_cast<unsigned>(text_.size()));
        gzclose(file);
    }
    ~Files() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    const std::string& Text() const { return text_; }
    std::filesystem::path Plain() const { return folder_ / "bars.csv"; }
    std::filesystem::path Gzipped() const { return folder_ / "bars.csv.gz"; }
    std::filesystem::path Out() const { return folder_ / "market"; }

private:
    std::string text_ = MakeTable();
    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("jogeon-import-bench-" + std::to_string(getpid()));
};

const Files& TheFiles() {
    static const Files files;
    return files;
}

class Silent : public ImportListener {
    void OnReject(const ImportReject&) override {}
    void OnProgress(const ImportProgress&) override {}
};

void CountRates(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * kStocks * kDays);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(TheFiles().Text().size()));
}

void BM_CountLines(benchmark::State& state) {
    const std::string& text = TheFiles().Text();
    for (auto _ : state) {
        long lines = 0;
        const char* at = text.data();
        const char* const end = at + text.size();
        while ((at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at))))) {
            ++lines;
            ++at;
        }
        benchmark::DoNotOptimize(lines);
    }
    CountRates(state);
}

// gzread gives the bytes of a plain file as they are, of a gzipped one inflated.
void ReadWhole(benchmark::State& state, const std::filesystem::path& path) {
    std::string buffer(1 << 18, '\0');
    for (auto _ : state) {
        const gzFile file = gzopen(path.c_str(), "rb");
        gzbuffer(file, 1 << 18);
        while (gzread(file, buffer.data(), static_cast<unsigned>(buffer.size())) > 0)
            benchmark::DoNotOptimize(buffer.data());
        gzclose(file);
    }
    CountRates(state);
}
void BM_ReadPlain(benchmark::State& state) {
    ReadWhole(state, TheFiles().Plain());
}
void BM_Inflate(benchmark::State& state) {
    ReadWhole(state, TheFiles().Gzipped());
}

void ImportFile(benchmark::State& state, const std::filesystem::path& path, bool write) {
    ImportOptions options;
    options.inputs = {path};
    Silent listener;
    for (auto _ : state) {
        Import import(options, listener);
        if (import.Read().bars != static_cast<std::size_t>(kStocks) * kDays) {
            state.SkipWithError("bars are lost");
            break;
        }
        if (write) import.Builder().Write(TheFiles().Out());
    }
    CountRates(state);
}
void BM_ImportPlain(benchmark::State& state) {
    ImportFile(state, TheFiles().Plain(), false);
}
void BM_ImportGzipped(benchmark::State& state) {
    ImportFile(state, TheFiles().Gzipped(), false);
}
void BM_ImportGzippedAndWrite(benchmark::State& state) {
    ImportFile(state, TheFiles().Gzipped(), true);
}

// `state.range(0)` trading days of 2,700 stocks.
void BM_Open(benchmark::State& state) {
    MarketBuilder builder;
    for (int stock = 0; stock < kStocks; ++stock) {
        char code[16];
        std::snprintf(code, sizeof code, "%05d0", stock);
        Instrument instrument;
        instrument.code = code;
        instrument.name = "가나다라";
        builder.AddInstrument(std::move(instrument));
    }
    for (int day = 0; day < state.range(0); ++day)
        builder.AddBar(day % kStocks, DateOfDay(DayNumber(20100101) + day), 10, 10, 10, 10, 1);
    builder.Write(TheFiles().Out());
    for (auto _ : state) benchmark::DoNotOptimize(OpenMarket(TheFiles().Out()));
    state.counters["megabytes"] = static_cast<double>(std::filesystem::file_size(TheFiles().Out())) / 1e6;
}

void BM_VerifyAll(benchmark::State& state) {
    ImportOptions options;
    options.inputs = {TheFiles().Plain()};
    Silent listener;
    Import import(options, listener);
    import.Read();
    import.Builder().Write(TheFiles().Out());
    for (auto _ : state) VerifyMarket(TheFiles().Out());
    state.SetBytesProcessed(state.iterations() *
                            static_cast<std::int64_t>(std::filesystem::file_size(TheFiles().Out())));
}

BENCHMARK(BM_CountLines)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadPlain)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Inflate)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ImportPlain)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ImportGzipped)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ImportGzippedAndWrite)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Open)->Arg(20)->Arg(500)->Arg(2500)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_VerifyAll)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace jogeon::market

BENCHMARK_MAIN();
