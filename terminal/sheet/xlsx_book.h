// The two sheets of a workbook: the table, and the notes that say where it comes from.
//
// Relies on libxlsxwriter; texts are CP949 and become UTF-8 here.
#pragma once

#include <vector>

#include "screen/host/services.h"

struct lxw_workbook;

namespace jogeon::terminal {

// Adds both sheets to a workbook that has none. False if the library refuses anything of them.
bool FillBook(lxw_workbook& book, const host::Sheet& sheet, const std::vector<host::SheetNote>& notes);

}  // namespace jogeon::terminal
