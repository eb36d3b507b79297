// What the texts of a sheet become in a workbook: names that it allows, numbers, widths of columns.
//
// Relies on the byte texts of the screen; texts are CP949.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "screen/host/services.h"

namespace jogeon::terminal {

// The name of the sheet that says where the table comes from.
inline constexpr char kNotesName[] = "조건";  // UTF-8

// `text` with '_' for every control character and every character that no sheet or no file may have in its
// name, cut to the 31 that a sheet may have. "결과" if nothing is left.
std::string PlainName(std::string_view text);

// The name of the table's sheet: a plain name that is neither that of the notes nor one that spreadsheet
// programs keep for themselves.
std::string SheetName(std::string_view text);

struct CellNumber {
    double value = 0;
    std::size_t decimals = 0;  // digits behind the point, as they came
};

// The number of a cell: digits with sign and point at most. None for another text, and for one with more
// digits than a spreadsheet keeps: as a number it would become another.
std::optional<CellNumber> NumberOf(std::string_view cell);

// The title of a column as the sheet shows it: a percentage says so, since its cells don't.
std::string TitleOf(const host::SheetColumn& column);

// How wide a cell is shown, in digits; a Korean character counts two.
std::size_t ShownWidth(std::string_view cell, host::SheetFormat format);

}  // namespace jogeon::terminal
