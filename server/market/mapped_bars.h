// Bars that lie in a mapped market file.
//
// A row is compared with its checksum when it is first asked for, and from then on given out as it lies.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "server/market/file_sections.h"
#include "server/market/platform_files.h"

namespace jogeon::market {

// An open market file whose header and directory have been found sound.
struct OpenedFile {
    explicit OpenedFile(const std::filesystem::path& path) : name(path.string()), map(path) {}

    std::string name;
    MappedFile map;
    FileCounts counts;
    FileSections at{};
};

class MappedBars : public Bars {
public:
    // `dates` has one for each bar that the file counts for `timeframe`.
    MappedBars(std::shared_ptr<const OpenedFile> file, Timeframe timeframe, std::vector<int> dates);

    int Count() const override { return static_cast<int>(dates_.size()); }
    int Instruments() const override { return static_cast<int>(file_->counts.instruments); }
    int Date(int bar) const override { return dates_[static_cast<std::size_t>(bar)]; }

    // Throws MarketError when the row is damaged, and std::out_of_range when there is no such bar.
    std::span<const double> Row(PriceField field, int bar) const override;

private:
    void Check(std::size_t row, std::span<const double> values, int bar) const;

    std::shared_ptr<const OpenedFile> file_;
    Timeframe timeframe_;
    std::vector<int> dates_;
    // One for each row of this timeframe. Two threads may both check a row; both find the same.
    std::unique_ptr<std::atomic<bool>[]> sound_;
};

}  // namespace jogeon::market
