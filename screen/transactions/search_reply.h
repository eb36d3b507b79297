// Reading the reply to a search: its counts, its column list and its rows.
//
// A reply is read in place and never beyond its end, whatever its counts say.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "screen/transactions/byte_field.h"

namespace jogeon {

namespace search_reply {

inline constexpr ByteField kLetter{0, 1};
inline constexpr ByteField kResult{1, 1};  // "0" is failure
inline constexpr ByteField kUnread{2, 8};
inline constexpr ByteField kResultHandle{10, 2};
inline constexpr ByteField kTotal{12, 4};
inline constexpr ByteField kReceived{16, 4};
inline constexpr ByteField kRowCount{20, 4};
inline constexpr ByteField kColumnCount{24, 4};
inline constexpr std::size_t kColumns = 28;
inline constexpr std::size_t kFidWidth = 4;
inline constexpr std::size_t kCodeWidth = 12;  // the stock's code, first in every row

}  // namespace search_reply

enum class ReplyOutcome { Failure, NoRows, Rows };

struct SearchReply {
    ReplyOutcome outcome = ReplyOutcome::Failure;
    int resultHandle = 0;
    int total = 0;                       // stocks that match; not negative
    int received = 0;                    // rows sent so far, these included; not negative
    int rowCount = 0;                    // rows that this reply claims to hold
    std::vector<std::string_view> fids;  // without leading zeros
    std::string_view rows;               // everything behind the column list
};

// The views point into `data`. None when the reply ends before what its outcome needs. A failure needs two
// bytes, an empty answer the counts, an answer with rows the whole column list.
std::optional<SearchReply> ParseSearchReply(std::string_view data);

// Cuts one row into its fields, the code first, then one for each width. Every field is trimmed on the right.
// `row` holds the whole of them.
void CutRow(std::string_view row, std::span<const int> widths, std::vector<std::string_view>& fields);

// Bytes of one row: the code and the widths; widths below 0 count as 0.
std::size_t RowBytes(std::span<const int> widths);

}  // namespace jogeon
