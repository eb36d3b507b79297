// Prints a table of stocks for eyes, for spreadsheets and for programs. All text is UTF-8.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "tools/jogeond/search_arguments.h"

namespace jogeon {

struct PrintedColumn {
    std::string title;
    bool number = false;  // its cells are numbers or empty
};

struct PrintedTable {
    std::vector<PrintedColumn> columns;
    std::vector<std::vector<std::string>> rows;  // each with a cell for every column
};

// Places on a terminal: a Korean character takes two.
std::size_t DisplayWidth(std::string_view utf8);

// Table: columns in line, numbers to the right. CSV: a line of titles, fields quoted where they must be.
// JSON: an array with an object for each row, its members named by the titles; a number is a number, and null
// where its cell is empty.
void Print(std::ostream& out, const PrintedTable& table, OutputFormat format);

}  // namespace jogeon
