// Import: reads tables of prices and of symbols and builds a market from them.
//
// Relies on the forms of import_form.h. A line that can't be used is reported and left out; a file that can't
// be used, or too many such lines, ends the import, and then nothing is written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "server/market/import_instruments.h"
#include "server/market/import_table.h"
#include "server/market/market_builder.h"

namespace jogeon::market {

struct ImportOptions {
    std::vector<std::filesystem::path> inputs;
    std::vector<std::filesystem::path> symbols;  // must be symbols files; inputs may be any form
    std::size_t maxRejects = 1000;               // one line more ends the import
};

struct ImportReject {
    std::string file;
    long line;           // 1 is the header
    std::string reason;  // UTF-8
};

struct ImportProgress {
    std::uint64_t bytesRead;  // of the files as they lie on the disk
    std::uint64_t bytesInAll;
    std::size_t bars;
};

// Hears of an import while it runs.
class ImportListener {
public:
    virtual ~ImportListener() = default;
    virtual void OnReject(const ImportReject& reject) = 0;
    virtual void OnProgress(const ImportProgress& progress) = 0;  // every few thousand lines
};

struct ImportSummary {
    std::size_t bars = 0;  // lines that became one
    std::size_t rejects = 0;
    std::size_t halted = 0;        // bars that became flat
    std::size_t widened = 0;       // bars whose range now holds the open and close
    std::size_t otherMarkets = 0;  // lines of markets that aren't read
    int unnamed = 0;               // stocks of which no symbols are known
    int withoutBars = 0;           // stocks that only a symbols file knows
    std::vector<MarketBuilder::Duplicate> duplicates;
};

class Import {
public:
    // Both arguments must outlive the import.
    Import(const ImportOptions& options, ImportListener& listener);

    // Reads all files. Throws MarketError, with one line that names file and fault, when one can't be used,
    // more than the permitted lines were rejected, or no bar was found. To be called once.
    ImportSummary Read();

    // What has been read. Complete after Read.
    const MarketBuilder& Builder() const { return builder_; }

private:
    void ReadFile(const std::filesystem::path& path, bool mustBeSymbols);
    std::string ReadLine(ImportTable& table);
    std::string ReadBar(ImportTable& table);
    void Reject(const ImportTable& table, std::string reason);
    void Report(const ImportTable& table);
    std::string DescribeSources() const;

    const ImportOptions& options_;
    ImportListener& listener_;
    MarketBuilder builder_;
    ImportInstruments instruments_{builder_};
    ImportSummary summary_;
    std::uint64_t bytesBefore_ = 0;  // of the files that have been read
    std::uint64_t bytesInAll_ = 0;
};

}  // namespace jogeon::market
