// A small column table and its layout, as the system file and the grid's layout would give them.
#pragma once

#include <string>

#include "screen/transactions/result_columns.h"

namespace jogeon::test {

inline void AddFixed(ColumnTables& tables, const std::string& fid, const std::string& name, int width) {
    const int place = static_cast<int>(tables.columns.size()) + 1;
    const auto entry = tables.fixedColumns.emplace(fid, ResultColumn{name, fid, width, place, 1}).first;
    tables.columns.push_back(&entry->second);
}

// Fixed: 9001 (12 bytes), 3001 price (7), 2001 volume (9), 4001 change (6). Optional: 5101 (8), 5102 (8).
inline ColumnTables SmallTables() {
    ColumnTables tables;
    AddFixed(tables, "9001", "name", 12);
    AddFixed(tables, "3001", "price", 7);
    AddFixed(tables, "2001", "volume", 9);
    AddFixed(tables, "4001", "change", 6);
    tables.optionalColumns["5101"] = {"value A", "5101", 8, 0, 0};
    tables.optionalColumns["5102"] = {"value B", "5102", 8, 0, 0};
    tables.UpdateSequenceStart();
    return tables;
}

}  // namespace jogeon::test
