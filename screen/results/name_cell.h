// The cell of a stock's name: what comes in it is the market's letter and the code.
#pragma once

#include <string_view>

#include "screen/text/bytes.h"

namespace jogeon {

// The six-byte code; shorter or empty where the cell is.
inline std::string_view CodeInNameCell(std::string_view cell) {
    return TrimRight(Field(cell, 1, 6));
}

// All that stands behind the letter, the blanks at its end cut.
inline std::string_view BehindMarketLetter(std::string_view cell) {
    return TrimRight(cell.substr(cell.empty() ? 0 : 1));
}

}  // namespace jogeon
