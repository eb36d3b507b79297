// The market file: a market kept on disk, mapped into memory when it is opened.
//
// Opening reads and checks the header, the directory of instruments and dates and nothing else, so that it
// takes the same time however many bars there are. Each row of bars has its checksum in the directory and is
// checked when it is first used: nobody computes with damaged numbers.
#pragma once

#include <filesystem>
#include <memory>

#include "server/market/market.h"

namespace jogeon::market {

// Opens a market file. Throws MarketError, with one line that says what is wrong, when there is no such
// file, it is none of ours, of another version, cut short or damaged. Bars::Row of the market that comes
// back throws MarketError when the row is found damaged.
std::shared_ptr<const Market> OpenMarket(const std::filesystem::path& path);

// Opens the file and checks every row of it. Throws MarketError for the first fault.
void VerifyMarket(const std::filesystem::path& path);

// Writes `market` as a market file in the place of `path`: the old file stays whole until the new one is,
// and nothing is left behind when it can't be finished. Throws MarketError then.
void WriteMarket(const Market& market, const std::filesystem::path& path);

}  // namespace jogeon::market
