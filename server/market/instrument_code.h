// The six bytes that name a stock: digits, and capital letters in newer ones.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace jogeon::market {

inline constexpr std::size_t kCodeLength = 6;

inline bool IsInstrumentCode(std::string_view code) {
    return code.size() == kCodeLength && std::all_of(code.begin(), code.end(), [](char c) {
               return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z');
           });
}

}  // namespace jogeon::market
