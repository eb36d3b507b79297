// The columns that a search can bring beside the stock itself, and the text of their cells.
//
// FID, title and width stand in the column file of the terminal's home as well, since the screen cuts rows by
// them; a test holds the two against each other. Numbers are plain digits, so that whoever shows them groups
// and colours them as he likes.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "server/indicators/market_day.h"

namespace jogeon::engine {

struct ReplyColumn {
    std::string_view fid;
    std::string_view title;  // UTF-8
    int width;               // bytes in a row
    bool number;             // its text is a number

    // The cell's text in CP949, empty where nothing is known.
    std::string (*text)(indicators::MarketDay& day, std::size_t stock);
};

// In the order of the column file.
std::span<const ReplyColumn> AllColumns();

// The column with this FID, null if there is none.
const ReplyColumn* FindColumn(std::string_view fid);

// FID and width of the column that shows the value of the condition with this letter, 'A' to 'Z'.
std::string ValueColumnFid(char letter);
inline constexpr int kValueColumnWidth = 12;

// The stock as the first field of a row has it: the letter of its market, K 거래소 or Q 코스닥, and its code.
std::string MarketAndCode(const market::Instrument& stock);

// Plain digits with `decimals` of them behind the point; empty for a number that is unknown or infinite.
std::string NumberText(double value, int decimals);

// `text` in exactly `width` bytes, left-justified. A number that doesn't fit is never cut to another number:
// its field is filled with '*'. A text is cut between characters.
std::string NumberField(const std::string& text, int width);
std::string TextField(const std::string& text, int width);

// The cell of a stock, as many bytes as the column is wide.
std::string CellField(const ReplyColumn& column, indicators::MarketDay& day, std::size_t stock);

}  // namespace jogeon::engine
