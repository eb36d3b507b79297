// The bytes of requests, laid out by hand for the tests.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "server/service/search_service.h"

namespace jogeon::test {

// `text` over the bytes from `offset` on.
inline void Put(std::string& block, std::size_t offset, std::string_view text) {
    block.replace(offset, text.size(), text);
}

// A condition on the close of the last day, in won: family B, number 420, roles 30, 60 and 61.
inline std::string PriceBlock(char letter, std::string_view from, std::string_view to,
                              bool showValue = false) {
    std::string block(71, ' ');
    Put(block, 0, "B");
    Put(block, 1, showValue ? "1" : "0");
    Put(block, 2, "1");
    Put(block, 3, std::string_view(&letter, 1));
    Put(block, 4, "040102420");
    Put(block, 14, " 0");
    Put(block, 32 + 9 - from.size(), from);
    Put(block, 41 + 9 - to.size(), to);
    return block;
}

// A condition on the change over `days`, in percent: family B, number 440, roles 20, 30, 40, 60 and 61. It is
// unknown for a stock with too few days.
inline std::string ChangeBlock(char letter, std::string_view days, std::string_view from, std::string_view to,
                               bool showValue = false) {
    std::string block = PriceBlock(letter, from, to, showValue);
    Put(block, 4, "040104440");
    Put(block, 13, "D");
    Put(block, 16 + 3 - days.size(), days);
    return block;
}

// A header over all sectors.
inline std::string Header(std::string_view expression, std::string_view count) {
    std::string header(828, ' ');
    Put(header, 0, "kim01");
    Put(header, 8, "99");
    Put(header, 10, "test");
    Put(header, 90, "1");
    Put(header, 95, "10");
    Put(header, 108, "00001ALL");
    Put(header, 713, "0000000");
    Put(header, 720, "00");
    Put(header, 722, "00");
    Put(header, 726, expression);
    Put(header, 826, count);
    return header;
}

struct SearchText {
    std::string scope = "0";
    std::string header = {};
    std::string blocks = {};
    std::string columns = "0000";
    std::string codes = {};  // of a narrowing search: count and codes
};

inline std::string SearchPayload(const SearchText& text) {
    return "T0000002a" + text.scope + text.header + text.blocks + text.columns + text.codes;
}

inline service::Request SearchRequest(std::string payload, std::uint32_t window = 0x2a,
                                      std::string user = "kim01") {
    return {std::move(user), window, "pisoscop", 1, std::move(payload)};
}

// "N" with the numbers as they stand on the wire.
inline std::string PagePayload(std::string_view handle, std::string_view received) {
    return "N0000002akim01   " + std::string(handle) + std::string(received);
}

// The code fields of the rows of a reply, joined by blanks; `rowWidth` with the code.
inline std::string CodesOfRows(const std::string& reply, std::size_t rowsAt, std::size_t rowWidth) {
    std::string codes;
    for (std::size_t at = rowsAt; at < reply.size(); at += rowWidth) {
        const std::string field = reply.substr(at, 12);
        codes += (codes.empty() ? "" : " ") + field.substr(0, field.find_last_not_of(' ') + 1);
    }
    return codes;
}

}  // namespace jogeon::test
