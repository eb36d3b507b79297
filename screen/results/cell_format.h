// How the text of a result cell is shown: a trader's number forms, made from the text as it came.
//
// Shown and copied digits are those that came, never by way of a binary number. All text is CP949.
#pragma once

#include <string>
#include <string_view>

namespace jogeon {

enum class CellFormat { Text, Code, Price, Change, Percent, Integer, Decimal };

enum class Sign { None, Rise, Fall };

enum class Placing { Left, Centre, Right };

// The word that stands for a format in a layout file, and back; an unknown word is Text.
std::string_view FormatWord(CellFormat format);
CellFormat FormatOfWord(std::string_view word);

// Rise or Fall by the sign of a number; None for zero and for what is no number.
Sign SignOf(std::string_view raw);

// Whether a price stands above or below the close of the day before, which is `current` less `change`. None
// where one of them is missing or no number, and for the price 0 of a stock that wasn't traded.
Sign SignOfPrice(std::string_view price, std::string_view current, std::string_view change);

// What a cell shows: "12,300" for a price, "▲ 1,200" for a change, "+1.25%" for a percentage. A number may
// come with blanks, a plus sign and leading zeros. Text that is no number is shown as it came.
std::string ShownText(CellFormat format, std::string_view raw);

// What a copy takes: a number without separators, arrow and percent sign, ready for a spreadsheet, and text
// with its tabs and line ends as blanks.
std::string CopiedText(CellFormat format, std::string_view raw);

// Changes and percentages are painted in the colour of their sign.
bool IsSigned(CellFormat format);

Placing PlacingOf(CellFormat format);

}  // namespace jogeon
